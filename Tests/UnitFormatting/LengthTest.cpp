#include "UnitTexts.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <rapidcheck.h>
#include <string>

namespace {

using TW::UniString;
using TWUnit::LengthUnit;

TEST(Length, ShowsEveryUnitInBothModes) {
  struct Row {
    LengthUnit unit;
    const char16_t* legacy;
    const char16_t* formatted;
  };
  const Row rows[] = {{LengthUnit::Meter, u"-1.69 m", u"\u22121.69\u00A0m"},
                      {LengthUnit::Decimeter, u"-16.89 dm", u"\u221216.89\u00A0dm"},
                      {LengthUnit::Centimeter, u"-168.91 cm", u"\u2212168.91\u00A0cm"},
                      {LengthUnit::Millimeter, u"-1,689.10 mm", u"\u22121,689.10\u00A0mm"},
                      {LengthUnit::FootFractionalInch, u"-5'-6 1/2\"", u"\u22125\u2032-6 1/2\u2033"},
                      {LengthUnit::FootDecimalInch, u"-5'-6.50\"", u"\u22125\u2032-6.50\u2033"},
                      {LengthUnit::DecimalFoot, u"-5.54 ft", u"\u22125.54\u00A0ft"},
                      {LengthUnit::FractionalInch, u"-66 1/2\"", u"\u221266 1/2\u2033"},
                      {LengthUnit::DecimalInch, u"-66.50 in", u"\u221266.50\u00A0in"}};
  for (const Row& row : rows) {
    EXPECT_EQ(Legacy(-1.6891, row.unit), UniString(row.legacy));
    EXPECT_EQ(Formatted(-1.6891, row.unit), UniString(row.formatted));
    EXPECT_EQ(Legacy(1.6891, row.unit), UniString(row.legacy + 1));
  }
}

TEST(Length, CarriesAndReducesFractionsOfAnInch) {
  struct Row {
    double inches;
    unsigned short denominator;
    const char16_t* footInch;
    const char16_t* inch;
  };
  const Row rows[] = {{0, 64, u"0'-0\"", u"0\""},
                      {0.5, 64, u"0'-0 1/2\"", u"0 1/2\""},
                      {66, 64, u"5'-6\"", u"66\""},
                      {66.75, 16, u"5'-6 3/4\"", u"66 3/4\""},
                      {11.999, 64, u"1'-0\"", u"12\""},
                      {11.5, 1, u"1'-0\"", u"12\""},
                      {11.5, 0, u"1'-0\"", u"12\""},
                      {11.4, 1, u"0'-11\"", u"11\""},
                      {5 + 2 / 3.0, 3, u"0'-5 2/3\"", u"5 2/3\""},
                      {23.84, 3, u"2'-0\"", u"24\""},
                      {7.25, 100, u"0'-7 1/4\"", u"7 1/4\""},
                      {7.005, 100, u"0'-7 1/100\"", u"7 1/100\""},
                      {1 / 128.0, 128, u"0'-0 1/128\"", u"0 1/128\""},
                      {1 / 128.0, 64, u"0'-0 1/64\"", u"0 1/64\""},
                      {1 / 128.0, 1000, u"0'-0 1/128\"", u"0 1/128\""},
                      {1 / 257.0, 1000, u"0'-0\"", u"0\""},
                      {-11.999, 64, u"-1'-0\"", u"-12\""},
                      {-0.001, 64, u"0'-0\"", u"0\""},
                      {-1 / 64.0, 64, u"-0'-0 1/64\"", u"-0 1/64\""},
                      {150000.5, 2, u"12,500'-0 1/2\"", u"150,000 1/2\""},
                      {86419753086.375, 128, u"7,201,646,090'-6 3/8\"", u"86,419,753,086 3/8\""}};
  for (const Row& row : rows) {
    const UnitArguments use{.denominator = row.denominator};
    EXPECT_EQ(Legacy(row.inches * 0.0254, LengthUnit::FootFractionalInch, use), UniString(row.footInch)) << row.inches;
    EXPECT_EQ(Legacy(row.inches * 0.0254, LengthUnit::FractionalInch, use), UniString(row.inch)) << row.inches;
  }
  EXPECT_EQ(Legacy(0.3047999, LengthUnit::FootFractionalInch), UniString(u"1'-0\""));
}

TEST(Length, CarriesDecimalInchesIntoFeet) {
  struct Row {
    double inches;
    unsigned short decimals;
    const char16_t* text;
  };
  const Row rows[] = {{11.994, 2, u"0'-11.99\""}, {11.995, 2, u"1'-0.00\""},  {-11.5, 0, u"-1'-0\""},
                      {-0.004, 2, u"0'-0.00\""},  {-0.005, 2, u"-0'-0.01\""}, {14403, 1, u"1,200'-3.0\""}};
  for (const Row& row : rows) {
    const UnitArguments use{.decimals = row.decimals};
    EXPECT_EQ(Legacy(row.inches * 0.0254, LengthUnit::FootDecimalInch, use), UniString(row.text)) << row.inches;
  }
}

TEST(Length, BoundsTheTextsOfHugeAmounts) {
  constexpr double Largest = std::numeric_limits<double>::max();
  const UniString feet = Legacy(-1e300, LengthUnit::FootFractionalInch);
  EXPECT_TRUE(feet.GetView().starts_with(u"-3,280,839,895,013,12")) << feet.ToUtf8();
  EXPECT_EQ(feet.GetLength(), 1 + 301 + 100 + 4U);
  EXPECT_TRUE(feet.GetView().ends_with(u"00'-0\""));
  EXPECT_TRUE(Legacy(1e307, LengthUnit::FootDecimalInch).GetView().ends_with(u"00'-0.00\""));
  EXPECT_TRUE(Legacy(1e300, LengthUnit::FractionalInch).GetView().starts_with(u"39,370,078,740,157,48"));
  EXPECT_TRUE(Legacy(Largest, LengthUnit::Meter).GetView().starts_with(u"179,769,313,486,231,570,0"));
  EXPECT_EQ(Legacy(0x1p54 * 0.3048, LengthUnit::FootFractionalInch), UniString(u"18,014,398,509,481,984'-0\""));
  EXPECT_EQ(Legacy(-5e-324, LengthUnit::FootFractionalInch), UniString(u"0'-0\""));

  constexpr double Infinite = std::numeric_limits<double>::infinity();
  for (unsigned short code = 0; code < 9; ++code) {
    const auto unit = static_cast<LengthUnit>(code);
    const UnitArguments use{.format = u"[%T]", .minimumLength = 20};
    for (double amount : {Infinite, -Infinite, std::nan("")}) EXPECT_EQ(Formatted(amount, unit, use), UniString());
    EXPECT_EQ(Legacy(Largest, unit, use).IsEmpty(), unit != LengthUnit::Meter);
  }
  EXPECT_EQ(Legacy(1, static_cast<LengthUnit>(9)), UniString());
}

struct ReadBack {
  double inches;
  unsigned int wholeInches, numerator, denominator;
};

// Reads -F'-I N/D" back.
ReadBack ReadFeetAndInches(std::string text) {
  const double sign = text[0] == '-' ? -1 : 1;
  if (sign < 0) text.erase(0, 1);
  const std::size_t prime = text.find("'-");
  const std::size_t blank = text.find(' ');
  const std::size_t stroke = text.find('/');
  ReadBack read{0, static_cast<unsigned int>(std::stoul(text.substr(prime + 2))), 0, 1};
  if (blank != std::string::npos) {
    read.numerator = static_cast<unsigned int>(std::stoul(text.substr(blank + 1)));
    read.denominator = static_cast<unsigned int>(std::stoul(text.substr(stroke + 1)));
  }
  read.inches = sign * (12.0 * std::stod(text) + read.wholeInches + double(read.numerator) / read.denominator);
  return read;
}

TEST(Length, ReadsBackWithinHalfAFraction) {
  ASSERT_TRUE(rc::check("feet and fractional inches read back", [] {
    const auto scale = *rc::gen::inRange(-3, 12);
    const double meters = *rc::gen::inRange(-1'000'000'000, 1'000'000'001) / 1e9 * std::pow(10.0, scale);
    const auto denominator = *rc::gen::inRange<unsigned short>(1, 129);
    const UnitArguments use{.denominator = denominator, .separators = TUSeparators::Create(u".", u"")};
    const ReadBack read = ReadFeetAndInches(Legacy(meters, LengthUnit::FootFractionalInch, use).ToUtf8());
    const double inches = meters / 0.0254;
    RC_ASSERT(std::fabs(read.inches - inches) <= 0.5 / denominator + std::fabs(inches) * 1e-15);
    RC_ASSERT(read.wholeInches < 12U);
    RC_ASSERT(denominator % read.denominator == 0U);
    RC_ASSERT(std::gcd(read.numerator, read.denominator) == 1U);
  }));
}

}  // namespace
