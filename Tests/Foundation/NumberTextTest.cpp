#include "TW/NumberText.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

using TW::Optional;
using TW::UniString;

constexpr unsigned short NoBreak = 0x00A0;
constexpr unsigned short NarrowNoBreak = 0x202F;
constexpr Optional<unsigned short> None;

Optional<double> Read(const UniString& text, unsigned short decimal, Optional<unsigned short> thousand) {
  constexpr double Untouched = -7.25;
  double value = Untouched;
  const bool read = TWUtils::ConvertNumberStringToNonUnit(text, decimal, thousand, &value);
  EXPECT_EQ(TWUtils::ConvertNumberStringToNonUnit(text, decimal, thousand, nullptr), read) << text.ToUtf8();
  if (!read) {
    EXPECT_EQ(value, Untouched) << text.ToUtf8();
    return {};
  }
  return value;
}

TEST(NumberText, ReadsTheNumbersOfTheLocale) {
  struct Row {
    const char16_t* text;
    unsigned short decimal;
    Optional<unsigned short> thousand;
    double value;
  };
  const Row rows[] = {
      {u"5", '.', ',', 5},
      {u"5.", '.', ',', 5},
      {u".5", '.', ',', 0.5},
      {u"-,5", ',', '.', -0.5},
      {u"+5,25", ',', '.', 5.25},
      {u"007", '.', ',', 7},
      {u" \t\n\u00A0\u2003\u3000-1.5\u2028\u202F ", '.', ',', -1.5},
      {u"1.5e3", '.', ',', 1500},
      {u"1,5E-1", ',', None, 0.15},
      {u"5.e+2", '.', None, 500},
      {u"1e308", '.', ',', 1e308},
      {u"1e-400", '.', ',', 0},
      {u"1,234", '.', ',', 1234},
      {u"1,234.", '.', ',', 1234},
      {u"1.234.567,891", ',', '.', 1234567.891},
      {u"12,345.6e-1", '.', ',', 1234.56},
      {u"123,456e3", '.', ',', 123456000},
      {u"-0,001", '.', ',', -1},
      {u"1234567.8", '.', ',', 1234567.8},
      {u"1\u00A0234", ',', NoBreak, 1234},
      {u"1 234\u00A0567,5", ',', NoBreak, 1234567.5},
      {u"1\u202F234 567", ',', NarrowNoBreak, 1234567},
      {u"1 234", ',', ' ', 1234},
      {u"1\u2019234.5", '.', u'\u2019', 1234.5},
      {u"1\u066C234\u066B5", 0x066B, 0x066C, 1234.5},
      {u"1,5", ',', ',', 1.5},
      {u"1\u00A05", NoBreak, NoBreak, 1.5},
      {u"15", 0, 0, 15},
      {u"15", 0, None, 15},
  };
  for (const Row& row : rows)
    EXPECT_EQ(Read(row.text, row.decimal, row.thousand), Optional<double>(row.value)) << UniString(row.text).ToUtf8();
}

TEST(NumberText, RefusesEverythingElse) {
  struct Row {
    UniString text;
    unsigned short decimal;
    Optional<unsigned short> thousand;
  };
  const Row rows[] = {
      {u"", '.', ','},
      {u"  ", '.', ','},
      {u".", '.', ','},
      {u"-", '.', ','},
      {u"+-5", '.', ','},
      {u"--5", '.', ','},
      {u"- 5", '.', ','},
      {u"- 5", '.', NoBreak},
      {u"5-", '.', ','},
      {u"1-5", '.', ','},
      {u"\u22125", '.', ','},
      {u"5 m", '.', ','},
      {u"1 5", '.', ','},
      {u"1.2.3", '.', ','},
      {u"1.5", ',', None},
      {u"1,5", '.', None},
      {u"1,234", '.', None},
      {u"1,234", '.', 0},
      {u"1.5", 0, None},
      {UniString(std::u16string_view(u"1\0005", 3)), 0, 0},
      {u"e5", '.', ','},
      {u"1e", '.', ','},
      {u"1e+", '.', ','},
      {u"1e5.5", '.', ','},
      {u"1e1,000", '.', ','},
      {u"1e 5", '.', ','},
      {u"1e309", '.', ','},
      {u"-1e309", '.', ','},
      {u"inf", '.', ','},
      {u"nan", '.', ','},
      {u"0x10", '.', ','},
      {u"\u0661\u0662", '.', ','},
      {u"\uFF11", '.', ','},
      {u"\xD835", '.', ','},
      {u"1,5", '.', ','},
      {u"1,23", '.', ','},
      {u"1,2345", '.', ','},
      {u"1,23,456", '.', ','},
      {u"1234,567", '.', ','},
      {u"1234567,890", '.', ','},
      {u"1,234567", '.', ','},
      {u"1,,234", '.', ','},
      {u",234", '.', ','},
      {u"1,234,", '.', ','},
      {u"1,234,.5", '.', ','},
      {u"1,23.5", '.', ','},
      {u"1,23e5", '.', ','},
      {u"1.234,567", '.', ','},
      {u"1\u202F234", ',', NoBreak},
      {u"1\u00A0234", ',', NarrowNoBreak},
      {u"1\u00A0234", ',', ' '},
      {u"1  234", ',', NoBreak},
      {u"1,234,567", ',', ','},
      {u"1 234", NoBreak, NoBreak},
  };
  for (const Row& row : rows)
    EXPECT_EQ(Read(row.text, row.decimal, row.thousand), Optional<double>()) << row.text.ToUtf8();
}

TEST(NumberText, GivesZeroWithoutSign) {
  for (const char16_t* text : {u"-0", u"-.0", u"-1e-400"}) {
    const Optional<double> value = Read(text, '.', ',');
    ASSERT_TRUE(value.has_value());
    EXPECT_FALSE(*value != 0 || std::signbit(*value)) << UniString(text).ToUtf8();
  }
}

TEST(NumberText, TakesLinearTimeOverLongTexts) {
  constexpr unsigned int Count = 10'000'000;
  const auto repeated = [](std::u16string_view part) {
    std::u16string text;
    while (text.size() < Count) text.append(part);
    return text;
  };
  struct Row {
    std::u16string text;
    Optional<double> value;
  };
  const Row rows[] = {
      {repeated(u" ") + u"5" + repeated(u"\u2003"), 5},
      {repeated(u" "), {}},
      {repeated(u"0") + u"5", 5},
      {u"0." + repeated(u"0"), 0},
      {u"0." + repeated(u"3"), 1.0 / 3.0},
      {repeated(u"9"), {}},
      {u"0" + repeated(u",000") + u".5", 0.5},
      {u"1e" + repeated(u"0") + u"2", 100},
      {u"1e-" + repeated(u"9"), 0},
      {u"1" + repeated(u","), {}},
      {repeated(u"-"), {}},
  };
  for (const Row& row : rows) EXPECT_EQ(Read(UniString(row.text), '.', ','), row.value);
}

}  // namespace
