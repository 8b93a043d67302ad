#include "TW/DecimalNumber.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using TW::DecimalNumber;
using TW::NumberReading;

struct RoundingRow {
  double value;
  unsigned int decimals;
  const char16_t* text;
};

TW::UniString Rounded(double value, unsigned int decimals) {
  DecimalNumber number(value);
  number.RoundToDecimals(decimals);
  return (number.IsNegative() ? TW::UniString(u"-") : TW::UniString()) + number.GetUnsignedText(decimals, u".", u",");
}

TEST(DecimalNumber, RoundsWhatAPersonWouldWriteHalvesAwayFromZero) {
  const RoundingRow rows[] = {
      {0, 2, u"0.00"},
      {-0.0, 0, u"0"},
      {1.005, 2, u"1.01"},
      {-1.005, 2, u"-1.01"},
      {2.5, 0, u"3"},
      {0.5, 0, u"1"},
      {0.49999999999999994, 0, u"0"},
      {-0.004, 2, u"0.00"},
      {-0.005, 2, u"-0.01"},
      {0.05, 0, u"0"},
      {9.995, 2, u"10.00"},
      {999.9999, 3, u"1,000.000"},
      {199.96, 1, u"200.0"},
      {1e-7, 3, u"0.000"},
      {1e21, 0, u"1,000,000,000,000,000,000,000"},
      {123456.789, 12, u"123,456.789000000000"},
      {5e-324, 2, u"0.00"},
  };
  for (const RoundingRow& row : rows) EXPECT_EQ(Rounded(row.value, row.decimals), TW::UniString(row.text)) << row.value;
}

TEST(DecimalNumber, ShowsEveryDigitOfTheExtremes) {
  const TW::UniString largest = DecimalNumber(std::numeric_limits<double>::max()).GetUnsignedText(0, u".");
  EXPECT_EQ(largest.GetLength(), 309U);
  const TW::UniString smallest = DecimalNumber(5e-324).GetUnsignedText(0, u".");
  EXPECT_EQ(smallest.GetLength(), 326U);
  // An absurd count of decimals stays bounded.
  EXPECT_EQ(DecimalNumber(1).GetUnsignedText(4'000'000'000U, u".").GetLength(), 2 + DecimalNumber::MaximumDecimals);
}

TEST(ReadDecimalNumber, TakesExactlyTheNumbersOfTheGrammar) {
  struct Row {
    const char* text;
    NumberReading reading;
    double value;
  };
  const Row rows[] = {
      {"5", NumberReading::Read, 5},
      {"5.", NumberReading::Read, 5},
      {".5", NumberReading::Read, 0.5},
      {"5.25e1", NumberReading::Read, 52.5},
      {"5E-1", NumberReading::Read, 0.5},
      {"1e+3", NumberReading::Read, 1000},
      {"1e308", NumberReading::Read, 1e308},
      {"1e309", NumberReading::TooLarge, 0},
      {"0.001e312", NumberReading::TooLarge, 0},
      {"1e99999999999999999999", NumberReading::TooLarge, 0},
      {"1e-400", NumberReading::Read, 0},
      {"0.0001e-99999999999999999999", NumberReading::Read, 0},
      {"0e99999999999999999999", NumberReading::Read, 0},
      {"", NumberReading::NotANumber, 0},
      {".", NumberReading::NotANumber, 0},
      {"1.2.3", NumberReading::NotANumber, 0},
      {"1e", NumberReading::NotANumber, 0},
      {"1e+", NumberReading::NotANumber, 0},
      {"e5", NumberReading::NotANumber, 0},
      {"+1", NumberReading::NotANumber, 0},
      {"-1", NumberReading::NotANumber, 0},
      {" 1", NumberReading::NotANumber, 0},
      {"inf", NumberReading::NotANumber, 0},
      {"nan", NumberReading::NotANumber, 0},
      {"0x10", NumberReading::NotANumber, 0},
      {"1e1.5", NumberReading::NotANumber, 0},
  };
  for (const Row& row : rows) {
    double value = -7;
    EXPECT_EQ(TW::ReadDecimalNumber(row.text, value), row.reading) << row.text;
    EXPECT_EQ(value, row.reading == NumberReading::Read ? row.value : -7) << row.text;
  }
}

TEST(ReadDecimalNumber, ReadsAMillionDigits) {
  double value = 0;
  EXPECT_EQ(TW::ReadDecimalNumber("0." + std::string(1'000'000, '0') + "1e1000001", value), NumberReading::Read);
  EXPECT_EQ(value, 1);
  EXPECT_EQ(TW::ReadDecimalNumber(std::string(1'000'000, '9'), value), NumberReading::TooLarge);
}

}  // namespace
