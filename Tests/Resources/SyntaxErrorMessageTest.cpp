#include "EP/SyntaxErrorException.hpp"
#include "Resources/Language.hpp"
#include "Resources/ResourceModule.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <set>

namespace {

using EP::SyntaxErrorReason;

constexpr int SyntaxMessages = 109;
constexpr int BuiltIn = -1;

// Every reason with the place of its message.
constexpr struct {
  SyntaxErrorReason reason;
  int index;
} Rows[] = {
    {SyntaxErrorReason::UnexpectedCharacter, 1}, {SyntaxErrorReason::UnexpectedEnd, 2},
    {SyntaxErrorReason::OperandExpected, 3},     {SyntaxErrorReason::ClosingParenthesisExpected, 4},
    {SyntaxErrorReason::UnterminatedText, 5},    {SyntaxErrorReason::UnterminatedReference, 6},
    {SyntaxErrorReason::RefusedReference, 7},    {SyntaxErrorReason::RefusedText, 8},
    {SyntaxErrorReason::UnknownFunction, 9},     {SyntaxErrorReason::UnknownIdentifier, 10},
    {SyntaxErrorReason::UnknownUnit, 11},        {SyntaxErrorReason::NumberOutOfRange, 12},
    {SyntaxErrorReason::TooDeeplyNested, 13},
};

TEST(SyntaxErrorMessages, TellEveryReasonApartInEveryLanguage) {
  const std::string before = Resources::GetLanguage();
  std::set<TW::UniString> texts;
  for (const char* language : {"root", "de", "fr"}) {
    Resources::SetLanguage(language);
    for (const auto& row : Rows) {
      const TW::UniString text = EP::SyntaxErrorException(row.reason, {}).ToString();
      EXPECT_EQ(text, Resources::GetIndString(SyntaxMessages, row.index, BuiltIn, language)) << row.index;
      EXPECT_FALSE(text.IsEmpty()) << language << ' ' << row.index;
      EXPECT_EQ(text, text.Trim()) << language << ' ' << row.index;
      EXPECT_TRUE(texts.insert(text).second) << language << ' ' << row.index << " repeats another message";
    }
    EXPECT_TRUE(Resources::GetIndString(SyntaxMessages, 0, BuiltIn).IsEmpty());
    EXPECT_TRUE(Resources::GetIndString(SyntaxMessages, 14, BuiltIn).IsEmpty());
  }
  Resources::SetLanguage(before);
}

TEST(SyntaxErrorMessages, ComeFromTheResourceFileOfTheProcess) {
  const EP::SyntaxErrorException error(SyntaxErrorReason::UnknownUnit, {});
  const std::string language = Resources::GetLanguage();
  Resources::SetLanguage("root");
  const int file = Resources::OpenResourceFile(QX_OVERRIDE_ARCHIVE);
  const int before = Resources::SetProcessModule(file);
  EXPECT_GE(before, 1) << "the library has opened its file";
  EXPECT_EQ(error.ToString(), TW::UniString(u"No such unit."));
  EXPECT_EQ(Resources::SetProcessModule(before), file);
  EXPECT_EQ(Resources::GetProcessModule(), before);
  EXPECT_EQ(error.ToString(), Resources::GetIndString(SyntaxMessages, 11, BuiltIn));
  Resources::CloseResourceFile(file);
  Resources::SetLanguage(language);
}

}  // namespace
