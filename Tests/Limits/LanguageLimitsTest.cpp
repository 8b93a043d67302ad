#include "Quorix/Formulas.hpp"
#include "Resources/Language.hpp"

// The limits of texts and values, from both sides, and texts that were written to do harm.

namespace {

TW::UniString Repeat(unsigned int count, std::u16string_view part) {
  TW::UniString text;
  for (unsigned int i = 0; i < count; ++i) text += part;
  return text;
}

TW::UniString Join(std::initializer_list<std::u16string_view> parts) {
  TW::UniString text;
  for (const std::u16string_view part : parts) text += part;
  return text;
}

// The value, the name of what evaluation threw, or the number of the reason against the text.
std::string OutcomeOf(const TW::UniString& text) {
  try {
    const Outcome outcome = Evaluate(ParseFormula(text), TestHost());
    return outcome.failure.empty() ? testing::PrintToString(outcome.value)
                                   : outcome.failure.substr(0, outcome.failure.find(" @"));
  } catch (const EP::SyntaxErrorException& error) {
    return "syntax " + std::to_string(static_cast<int>(error.GetReason()));
  }
}

std::string Syntax(EP::SyntaxErrorReason reason) { return "syntax " + std::to_string(static_cast<int>(reason)); }

TEST(LanguageLimits, OfNumbersAndCounts) {
  struct Row {
    const char* name;
    const char16_t* within;
    const char* value;
    const char16_t* beyond;
    std::string outcome;
  };
  const Row rows[] = {
      {"greatest number", u"1e308", "1e+308(0, 0)", u"1e309", Syntax(EP::SyntaxErrorReason::NumberOutOfRange)},
      {"greatest result", u"1e308 * 1", "1e+308(0, 0)", u"ABS ( 1e308 * 10 )",
       "error ExpressionInternalErrorException"},
      {"greatest power", u"( 2 ^ 1023 ) / ( 2 ^ 1022 )", "2(0, 0)", u"2 ^ 1024",
       "error ExpressionOutOfDomainOfMathematicalFunction"},
      {"decimals of STR", u"STR ( 1, 12 )", "\"1.000000000000\"", u"STR ( 1, 13 )",
       "error ExpressionTooMuchDigitsRequested"},
      {"digits before the point of ROUND", u"ROUND ( 1.5, -308 )", "0(0, 0)", u"ROUND ( 1.5, -309 )",
       "error ExpressionOutOfDomainOfMathematicalFunction"},
      {"count of characters", u"LEN ( LEFT ( \"abc\", 2147483647 ) )", "3(0, 0)",
       u"LEN ( LEFT ( \"abc\", 4294967297 ) )", "3(0, 0)"},
      {"number of a character", u"MID ( \"abc\", 3, 1 )", "\"c\"", u"MID ( \"abc\", 4294967297, 1 )", "\"\""},
      {"parts of an inch", u"1 2147483646/2147483647\" > 0 m", "logical 1", u"1 1/2147483648\"",
       Syntax(EP::SyntaxErrorReason::NumberOutOfRange)},
      {"arguments of two", u"MOD ( 7, 4 )", "3(0, 0)", u"MOD ( 7, 4, 1 )", "error ExpressionInvalidArgumentNumber"},
      {"arguments of one", u"ABS ( 7 )", "7(0, 0)", u"ABS ( )", "error ExpressionInvalidArgumentNumber"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(OutcomeOf(row.within), row.value) << row.name;
    EXPECT_EQ(OutcomeOf(row.beyond), row.outcome) << row.name;
  }
}

// Whatever its length, a text has an outcome; that reading it takes linear time is for the benchmarks to say.
TEST(LanguageLimits, HostileTextsHaveOutcomes) {
  constexpr unsigned int Many = 100'000;
  constexpr unsigned int Million = 1'000'000;
  struct Row {
    const char* name;
    TW::UniString text;
    std::string outcome;
  };
  using Reason = EP::SyntaxErrorReason;
  const Row rows[] = {
      {"arguments", Join({u"SUM ( 1", Repeat(Many - 1, u", 1"), u" )"}), "100000(0, 0)"},
      {"texts to join", Join({u"LEN ( CONCAT ( \"ab\"", Repeat(Many - 1, u", \"ab\""), u" ) )"}), "200000(0, 0)"},
      {"conditions", Join({u"IFS ( ", Repeat(Many, u"FALSE, 1, "), u"TRUE, 2 )"}), "2(0, 0)"},
      {"unknown names", Join({u"x", Repeat(Many, u" + x")}), Syntax(Reason::UnknownIdentifier)},
      {"open brackets", Repeat(Million, u"("), Syntax(Reason::TooDeeplyNested)},
      {"closing brackets", Join({u"1", Repeat(Million, u")")}), Syntax(Reason::UnexpectedCharacter)},
      {"calls", Repeat(Million, u"SUM("), Syntax(Reason::TooDeeplyNested)},
      {"signs", Repeat(Million, u"-"), Syntax(Reason::TooDeeplyNested)},
      {"signs before each number", Join({Repeat(255, u"-"), u"1", Repeat(1000, u" + --1")}), "999(0, 0)"},
      {"digits", Repeat(Million, u"7"), Syntax(Reason::NumberOutOfRange)},
      {"decimals", Join({u"0.", Repeat(Million, u"3"), u" < 1"}), "logical 1"},
      {"zeros", Join({Repeat(Million, u"0"), u"1"}), "1(0, 0)"},
      {"letters", Repeat(Million, u"x"), Syntax(Reason::UnknownIdentifier)},
      {"letters of a function", Join({Repeat(Million, u"x"), u"(1)"}), Syntax(Reason::UnknownFunction)},
      {"letters of a unit", Join({u"1 ", Repeat(Million, u"m")}), Syntax(Reason::UnknownUnit)},
      {"escapes", Join({u"LEN ( \"", Repeat(Million, u"\\\""), u"\" )"}), "1e+06(0, 0)"},
      {"escapes without an end", Join({u"\"", Repeat(Million, u"\\\"")}), Syntax(Reason::UnterminatedText)},
      {"backslashes in a reference", Join({u"[Property:", Repeat(Million, u"\\"), u"]"}),
       Syntax(Reason::RefusedReference)},
      {"escapes in a reference without an end", Join({u"[Property:", Repeat(Million, u"\\]")}),
       Syntax(Reason::UnterminatedReference)},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(OutcomeOf(row.text), row.outcome) << row.name;
  }
}

TEST(LanguageLimits, OfTagsOfLanguages) {
  const std::string before = Resources::GetLanguage();
  const auto languageOf = [](const std::string& tag) {
    Resources::SetLanguage(tag);
    return Resources::GetLanguage();
  };
  const std::string tag = "de_AT.";
  EXPECT_EQ(languageOf(tag + std::string(100 - tag.size(), 'x')), "de_AT");
  EXPECT_EQ(languageOf(tag + std::string(101 - tag.size(), 'x')), "root");
  Resources::SetLanguage(before);
}

}  // namespace
