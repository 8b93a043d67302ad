#include "Quorix/ExpressionNodes/ExpressionFunctionNode.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"
#include "Quorix/IdentitiferNodeRegistry.hpp"
#include "Quorix/OperatorNodeRegistry.hpp"
#include "Resources/Language.hpp"
#include "Resources/ResourceModule.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

using QX::HelpType;
using TW::UniString;

constexpr int BuiltIn = -1;
constexpr const char* Languages[] = {"root", "de", "fr"};
constexpr int Headings = 110;
constexpr int FirstFunction = 1001;
constexpr int LastFunction = 1057;
constexpr int FirstOperator = 2001;
constexpr int LastOperator = 2011;

// The places of the texts in the help of a function; that of an operator has other places.
enum FunctionText { Name = 1, Description, Syntax, Arguments, Example };

UniString Text(int listId, int index, const char* language) {
  return Resources::GetIndString(listId, index, BuiltIn, language);
}

constexpr struct {
  int first;
  int last;
  int count;
} Lists[] = {{107, 107, 11},
             {108, 108, 3},
             {Headings, Headings, 15},
             {FirstFunction, LastFunction, 5},
             {FirstOperator, LastOperator, 3}};

template <class Visit>
void ForEachText(Visit visit) {
  for (const char* language : Languages) {
    for (const auto& lists : Lists) {
      for (int list = lists.first; list <= lists.last; ++list) {
        for (int index = 1; index <= lists.count; ++index) {
          SCOPED_TRACE(std::string(language) + ' ' + std::to_string(list) + ' ' + std::to_string(index));
          visit(list, index, Text(list, index, language), language);
        }
      }
    }
  }
}

std::size_t CountOf(const UniString& text, const char16_t* part) { return text.Split(part).size() - 1; }

bool IsFunction(int list) { return list >= FirstFunction && list <= LastFunction; }

bool IsExample(int list, int index) { return index == (IsFunction(list) ? Example : 3) && list > 1000; }

// The names of the arguments in a syntax line.
TW::Array<UniString> ArgumentsOf(const UniString& syntax) {
  UniString plain = syntax;
  for (const char16_t* bracket : {u"(", u")", u"[", u"]"}) plain = plain.ReplaceAll(bracket, u"");
  TW::Array<UniString> names = plain.Split(u"|");
  for (UniString& name : names) name = name.Trim();
  return names;
}

TEST(Vocabulary, IsCompleteInEveryLanguage) {
  ForEachText([](int list, int index, const UniString& text, const char*) {
    EXPECT_FALSE(text.IsEmpty());
    for (const UniString& line : text.Split(u"\n")) EXPECT_EQ(line, line.Trim());
    const bool isTemplate = list < Headings || (IsFunction(list) && index == Name);
    EXPECT_EQ(CountOf(text, u"%T"), std::size_t{isTemplate});
    EXPECT_TRUE((IsFunction(list) && index == Syntax) || !text.Contains(u"|"));
  });
  for (const auto& lists : Lists) {
    for (int list = lists.first; list <= lists.last; ++list) {
      EXPECT_TRUE(Text(list, 0, "root").IsEmpty()) << list;
      EXPECT_TRUE(Text(list, lists.count + 1, "root").IsEmpty()) << list;
    }
  }
}

TEST(Vocabulary, IsTranslated) {
  const auto expectDifferent = [](int list, int index) {
    std::set<UniString> texts;
    for (const char* language : Languages) texts.insert(Text(list, index, language));
    EXPECT_EQ(texts.size(), std::size(Languages)) << list << ' ' << index;
  };
  for (int index = 1; index <= 3; ++index) expectDifferent(108, index);
  for (int list = FirstFunction; list <= LastFunction; ++list) {
    for (int index : {Description, Arguments}) expectDifferent(list, index);
  }
  for (int list = FirstOperator; list <= LastOperator; ++list) {
    for (int index : {1, 2}) expectDifferent(list, index);
  }
}

TEST(Vocabulary, DescribesEachFunctionAndOperatorInItsOwnWords) {
  for (const char* language : Languages) {
    std::set<UniString> texts;
    for (int list = FirstFunction; list <= LastFunction; ++list) {
      EXPECT_TRUE(texts.insert(Text(list, Name, language)).second) << language << ' ' << list;
      EXPECT_TRUE(texts.insert(Text(list, Description, language)).second) << language << ' ' << list;
    }
    for (int list = FirstOperator; list <= LastOperator; ++list) {
      EXPECT_TRUE(texts.insert(Text(list, 1, language)).second) << language << ' ' << list;
    }
  }
}

TEST(Vocabulary, FollowsFrenchTypography) {
  ForEachText([](int list, int index, const UniString& text, const char* language) {
    if (language != std::string_view("fr") || IsExample(list, index)) return;
    EXPECT_FALSE(text.Contains(u"'"));
    char16_t before = 0;
    for (char16_t unit : text) {
      const bool needsNarrowSpace = unit == u';' || unit == u'?' || unit == u'!';
      EXPECT_TRUE(unit != u':' || before == 0x00A0) << text.ToUtf8();
      EXPECT_TRUE(!needsNarrowSpace || before == 0x202F) << text.ToUtf8();
      before = unit;
    }
  });
}

TEST(Vocabulary, ExplainsTheArgumentsOfTheSyntaxLine) {
  for (const char* language : Languages) {
    for (int list = FirstFunction; list <= LastFunction; ++list) {
      SCOPED_TRACE(std::string(language) + ' ' + std::to_string(list));
      const UniString syntax = Text(list, Syntax, language);
      EXPECT_EQ(syntax.Substring(0, 2), UniString(u"( "));
      EXPECT_EQ(syntax.Substring(syntax.GetLength() - 2, 2), UniString(u" )"));
      EXPECT_EQ(CountOf(syntax, u"["), CountOf(syntax, u"]"));
      EXPECT_EQ(CountOf(syntax, u"|"), CountOf(Text(list, Syntax, "root"), u"|"));

      const TW::Array<UniString> names = ArgumentsOf(syntax);
      const TW::Array<UniString> lines = Text(list, Arguments, language).Split(u"\n");
      ASSERT_EQ(lines.size(), names.size());
      for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(lines[i].Split(u":")[0].Trim(), names[i]);
    }
  }
}

TEST(Vocabulary, ShowsAsManyArgumentsAsTheFunctionTakes) {
  std::set<int> lists;
  QX::GetFunctionNodeRegistry().EnumerateRegisteredFunctions([&](const UniString& name) {
    SCOPED_TRACE(name.ToUtf8());
    const QX::FunctionImplementionData& data = QX::GetFunctionNodeRegistry().GetImplementationData(name);
    EXPECT_TRUE(lists.insert(data.helpResId).second) << "another function has this list";
    const auto node = data.classInfo->CreateNewInstance().DynamicCast<QX::ExpressionFunctionNode>();
    ASSERT_TRUE(node);

    const UniString syntax = Text(data.helpResId, Syntax, "root");
    const auto required = static_cast<unsigned int>(ArgumentsOf(syntax.Split(u"[")[0]).size());
    const auto all = static_cast<unsigned int>(ArgumentsOf(syntax).size());
    EXPECT_FALSE(node->IsValidParameterCount(required - 1));
    EXPECT_TRUE(node->IsValidParameterCount(required));
    EXPECT_TRUE(node->IsValidParameterCount(all));
    // The number by which the repeated arguments grow is that of those in the brackets.
    const bool isRepeated = syntax.Contains(u"…");
    EXPECT_EQ(node->IsValidParameterCount(2 * all - required), isRepeated || all == required);
  });
  EXPECT_EQ(lists.size(), LastFunction - FirstFunction + 1U);
  EXPECT_EQ(*lists.begin(), FirstFunction);
  EXPECT_EQ(*lists.rbegin(), LastFunction);
}

TEST(Vocabulary, IsShownByTheRegistries) {
  const std::string before = Resources::GetLanguage();
  const auto& functions = QX::GetFunctionNodeRegistry();
  const auto& operators = QX::GetOperatorNodeRegistry();
  const auto& constants = QX::GetIdentitiferNodeRegistry();
  struct Row {
    const char* language;
    UniString shown;
    const char16_t* expected;
  };
  Resources::SetLanguage("de");
  const Row german[] = {
      {"de", functions.GetFunctionHelpString(u"left", HelpType::Syntax, u';'), u"left ( Text; Anzahl )"},
      {"de", functions.GetFunctionHelpString(u"Sum", HelpType::Name, u';'), u"Sum – Summe"},
      {"de", operators.GetOperatorUIName(u"/"), u"Division (/)"},
      {"de", constants.GetIdentifierUIName(u"True"), u"True (der Wahrheitswert wahr)"},
  };
  Resources::SetLanguage("fr_CA");
  const Row french[] = {
      {"fr", functions.GetFunctionHelpString(u"STR", HelpType::Syntax, u','), u"STR ( valeur [, décimales] )"},
      {"fr", operators.GetOperatorUIName(u"*"), u"Multiplication (*)"},
      {"fr", constants.GetIdentifierUIName(u"FALSE"), u"FALSE (la valeur logique faux)"},
  };
  Resources::SetLanguage(before);
  for (const Row& row : german) EXPECT_EQ(row.shown, UniString(row.expected)) << row.language;
  for (const Row& row : french) EXPECT_EQ(row.shown, UniString(row.expected)) << row.language;
}

}  // namespace
