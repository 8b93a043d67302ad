#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodeRegistry.hpp"
#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"
#include "Quorix/ExpressionReferenceFormatUtils.hpp"
#include "Quorix/QuorixResources.hpp"
#include "Quorix/Values.hpp"
#include "TW/Exceptions.hpp"

#include <gtest/gtest.h>

#include <map>
#include <numbers>
#include <string>
#include <vector>

namespace {

using QX::ExpressionValue;
using QX::HelpType;

TEST(OperatorNodeRegistry, ListsTheSignsInOrder) {
  std::vector<std::string> signs;
  QX::GetOperatorNodeRegistry().EnumerateOperators(
      [&signs](const TW::UniString& sign) { signs.push_back(sign.ToUtf8()); });
  EXPECT_EQ(signs, (std::vector<std::string>{"<=", ">=", "<", ">", "<>", "=", "+", "-", "*", "/", "^"}));
}

TEST(OperatorNodeRegistry, FindsTextsByTheNumberOfTheSign) {
  // The numbers of multiplication and division are the other way round than their places in the list.
  const std::map<std::string, int> numbers = {{"+", 1}, {"-", 2}, {"/", 3},  {"*", 4},   {"=", 5}, {"<>", 6},
                                              {"<", 7}, {">", 8}, {"<=", 9}, {">=", 10}, {"^", 11}};
  const QX::OperatorNodeRegistry& registry = QX::GetOperatorNodeRegistry();
  for (const auto& [text, number] : numbers) {
    const TW::UniString sign = TW::UniString::FromUtf8(text);
    EXPECT_TRUE(registry.IsExistingOperator(sign));
    EXPECT_EQ(registry.GetOperatorUIName(sign), TW::UniString::Printf(QX::GetResourceString(107, number), sign));
    const int list = 2000 + number;
    EXPECT_EQ(registry.GetOperatorHelpString(sign, HelpType::Description), QX::GetResourceString(list, 1));
    EXPECT_EQ(registry.GetOperatorHelpString(sign, HelpType::Arguments), QX::GetResourceString(list, 2));
    EXPECT_EQ(registry.GetOperatorHelpString(sign, HelpType::Example), QX::GetResourceString(list, 3));
    for (const int type : {0, 2, 5, -1}) {
      EXPECT_EQ(registry.GetOperatorHelpString(sign, static_cast<HelpType>(type)), u"");
    }
  }
  for (const char16_t* none : {u"", u"==", u" +", u"<=>", u"&"}) {
    EXPECT_FALSE(registry.IsExistingOperator(none));
    EXPECT_EQ(registry.GetOperatorUIName(none), u"");
    EXPECT_EQ(registry.GetOperatorHelpString(none, HelpType::Description), u"");
  }
}

TEST(IdentitiferNodeRegistry, HoldsThreeConstants) {
  const QX::IdentitiferNodeRegistry& registry = QX::GetIdentitiferNodeRegistry();
  std::vector<std::string> names;
  registry.EnumerateIdentifiers([&names](const TW::UniString& name) { names.push_back(name.ToUtf8()); });
  EXPECT_EQ(names, (std::vector<std::string>{"TRUE", "FALSE", "PI"}));

  struct Row {
    const char16_t* name;
    ExpressionValue value;
    short index;  // of its name; 0 for what is no constant
  };
  const Row rows[] = {
      {u"TRUE", ExpressionValue::FromBool(true), 1},
      {u"true", ExpressionValue::FromBool(true), 1},
      {u"False", ExpressionValue::FromBool(false), 2},
      {u"pi", ExpressionValue::FromNumber(std::numbers::pi), 3},
      {u"PI", ExpressionValue::FromNumber(3.141592653589793), 3},
      {u"", ExpressionValue::FromInteger(0), 0},
      {u"E", ExpressionValue::FromInteger(0), 0},
      {u"PI ", ExpressionValue::FromInteger(0), 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(registry.IsExistingIdentifier(row.name), row.index != 0);
    EXPECT_TRUE(ExpressionValue::AreEqualByContent(registry.GetIdentifierValue(row.name), row.value));
    if (row.index == 0) {
      EXPECT_THROW(registry.GetIdentifierData(row.name), TW::IllegalReferenceException);
      EXPECT_EQ(registry.GetIdentifierUIName(row.name), u"");
    } else {
      EXPECT_EQ(registry.GetIdentifierData(row.name).uiNameIndex, row.index);
      EXPECT_EQ(registry.GetIdentifierUIName(row.name),
                TW::UniString::Printf(QX::GetResourceString(108, row.index), row.name));
    }
  }
  EXPECT_EQ(registry.GetIdentifierValue(u"x").CloneContainedVariant()->GetKind(), TW::DynamicValue::Kind::Integer);
}

TEST(FunctionNodeRegistry, FindsNamesInAnyCase) {
  QX::FunctionNodeRegistry registry;
  const TW::ClassInfo* first = &QX::ExpressionIntegerNode::classInfo;
  const TW::ClassInfo* second = &QX::ExpressionNode::classInfo;
  registry.RegisterFunctionName(u"SUM", first, QX::FunctionGroup::Arithmetic, 106);
  registry.RegisterFunctionName(u"MIN", second, QX::FunctionGroup::Statistical, 1026);
  // A second registration is listed and changes nothing.
  registry.RegisterFunctionName(u"SUM", second, QX::FunctionGroup::Text, 1);
  // A name that is not in upper case cannot be found.
  registry.RegisterFunctionName(u"low", second, QX::FunctionGroup::Text, 1);

  std::string names;
  registry.EnumerateRegisteredFunctions([&names](const TW::UniString& name) { names += name.ToUtf8() + ' '; });
  EXPECT_EQ(names, "SUM MIN SUM low ");
  for (const char16_t* name : {u"SUM", u"sum", u"Sum"}) {
    EXPECT_TRUE(registry.IsExistingFunction(name));
    EXPECT_EQ(registry.GetFunctionNodeClassInfo(name), first);
    EXPECT_EQ(registry.GetFunctionGroup(name), QX::FunctionGroup::Arithmetic);
    EXPECT_EQ(registry.GetFunctionHelpResId(name), 106);
    EXPECT_EQ(registry.GetFunctionNormalizedName(name), u"SUM");
    EXPECT_EQ(registry.GetImplementationData(name).classInfo, first);
    EXPECT_EQ(registry.GetFunctionHelpString(name, HelpType::Name, u';'),
              TW::UniString::Printf(QX::GetResourceString(106, 1), name));
    EXPECT_EQ(registry.GetFunctionHelpString(name, HelpType::Description, u';'), QX::GetResourceString(106, 2));
    EXPECT_EQ(registry.GetFunctionHelpString(name, HelpType::Syntax, u';'),
              TW::UniString(name) + u" " + QX::GetResourceString(106, 3).ReplaceAll(u"|", u";"));
    EXPECT_EQ(registry.GetFunctionHelpString(name, HelpType::Arguments, u';'), QX::GetResourceString(106, 4));
    EXPECT_EQ(registry.GetFunctionHelpString(name, HelpType::Example, u';'), QX::GetResourceString(106, 5));
    for (const int type : {5, -1}) {
      EXPECT_EQ(registry.GetFunctionHelpString(name, static_cast<HelpType>(type), u';'), u"");
    }
  }
  for (const char16_t* name : {u"", u"FOO", u"SUM ", u"low"}) {
    EXPECT_FALSE(registry.IsExistingFunction(name));
    EXPECT_EQ(registry.GetFunctionNodeClassInfo(name), nullptr);
    EXPECT_EQ(registry.GetFunctionGroup(name), QX::FunctionGroup::None);
    EXPECT_EQ(registry.GetFunctionHelpResId(name), 0);
    EXPECT_EQ(registry.GetFunctionNormalizedName(name), u"");
    EXPECT_EQ(registry.GetFunctionHelpString(name, HelpType::Name, u';'), u"");
    EXPECT_THROW(registry.GetImplementationData(name), TW::IllegalReferenceException);
  }
}

TEST(FunctionNodeRegistry, ListsTheFunctions) {
  std::vector<std::string> names;
  QX::GetFunctionNodeRegistry().EnumerateRegisteredFunctions(
      [&names](const TW::UniString& name) { names.push_back(name.ToUtf8()); });
  ASSERT_EQ(names.size(), 57U);
  EXPECT_EQ(names.front(), "TRIM");
  EXPECT_EQ(names.back(), "ISUNDEFINED");
}

TEST(CharacterClasses, TellWhatMayStandWhere) {
  for (const char16_t letter : {u'a', u'Z', u'0', u'9', u'é', u'名', u'٣'}) {
    EXPECT_TRUE(QX::IsValidFunctionChar(letter)) << int{letter};
    EXPECT_TRUE(QX::IsValidIdentifierChar(letter)) << int{letter};
    EXPECT_FALSE(QX::IsValidOperatorChar(letter)) << int{letter};
  }
  // Twice, since the first question collects the characters.
  for (int round = 0; round < 2; ++round) {
    for (char16_t unit = 0; unit < 0x200; ++unit) {
      const bool isOperator = std::u16string_view(u"+-*/^<>=").find(unit) != std::u16string_view::npos;
      EXPECT_EQ(QX::IsValidOperatorChar(unit), isOperator) << int{unit};
    }
  }
  for (const char16_t other : {u'_', u' ', u'.', u'(', u'[', u'"', u'+', u'\u00D7', u'\xD83D'}) {
    EXPECT_FALSE(QX::IsValidFunctionChar(other)) << int{other};
    EXPECT_FALSE(QX::IsValidIdentifierChar(other)) << int{other};
  }
}

TEST(PropertyReferences, AreFoundInTexts) {
  const TW::Guid guid("1AF5C228-7607-4175-9B78-A1779295614E");
  const TW::UniString reference(u"[Property:1AF5C228-7607-4175-9B78-A1779295614E]");
  EXPECT_EQ(QX::MakeExpressionPropertyReferenceString(guid), reference);
  std::vector<unsigned int> positions;
  QX::EnumeratePropertyReferences(u"ab " + reference + u"[Property:x]" + reference + u" [Other:y]",
                                  [&](unsigned int position, const TW::Guid& found) {
                                    EXPECT_EQ(found, guid);
                                    positions.push_back(position);
                                  });
  EXPECT_EQ(positions, (std::vector<unsigned int>{3, 62}));

  struct Row {
    const char16_t* text;
    bool contains;
    bool isOne;
  };
  const Row rows[] = {
      {u"", false, false},
      {u"[Property:x]", false, false},
      {u"[Property:]", false, false},
      {u"[Property:1AF5C228-7607-4175-9B78-A1779295614E]", true, true},
      {u"[Property:{1af5c228-7607-4175-9b78-a1779295614e}]", true, true},
      {u" [Property:1AF5C228-7607-4175-9B78-A1779295614E]", true, false},
      {u"[Property:1AF5C228-7607-4175-9B78-A1779295614E]]", true, false},
      {u"[property:1AF5C228-7607-4175-9B78-A1779295614E]", false, false},
      {u"[Property:1AF5C228-7607-4175-9B78-A1779295614E", false, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(QX::ContainsPropertyReferences(row.text), row.contains) << TW::UniString(row.text).ToUtf8();
    TW::Guid found;
    EXPECT_EQ(QX::IsWellFormedExpressionPropertyReference(row.text, &found), row.isOne);
    EXPECT_EQ(QX::IsWellFormedExpressionPropertyReference(row.text, nullptr), row.isOne);
    EXPECT_EQ(found, row.isOne ? guid : TW::Guid());
  }
}

}  // namespace
