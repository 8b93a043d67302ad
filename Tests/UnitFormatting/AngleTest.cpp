#include "UnitTexts.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using TW::UniString;
using TWUnit::AngleUnit;

TEST(Angle, ShowsEveryUnitInBothModes) {
  struct Row {
    AngleUnit unit;
    unsigned short decimals;
    const char16_t* legacy;
    const char16_t* formatted;
  };
  const Row rows[] = {{AngleUnit::DecimalDegree, 2, u"-45.00°", u"\u221245.00°"},
                      {AngleUnit::DegreeMinuteSecond, 0, u"-45°0'0\"", u"\u221245°0\u20320\u2033"},
                      {AngleUnit::Gradian, 2, u"-50.00 gon", u"\u221250.00\u00A0gon"},
                      {AngleUnit::Radian, 2, u"-0.79 rad", u"\u22120.79\u00A0rad"}};
  for (const Row& row : rows) {
    const UnitArguments use{.decimals = row.decimals};
    EXPECT_EQ(Legacy(-0.7854 * 57.29577951308232, row.unit, use), UniString(row.legacy));
    EXPECT_EQ(Formatted(-0.7854 * 57.29577951308232, row.unit, use), UniString(row.formatted));
  }
}

TEST(Angle, CarriesSecondsAndMinutes) {
  struct Row {
    double degrees;
    unsigned short decimals;
    const char16_t* text;
  };
  const Row rows[] = {{0, 0, u"0°0'0\""},
                      {45.9999999, 0, u"46°0'0\""},
                      {45.9999999, 5, u"45°59'59.99964\""},
                      {-45.9999999, 2, u"-46°0'0.00\""},
                      {12.5 + 59.6 / 3600, 0, u"12°31'0\""},
                      {12.5 + 59.4 / 3600, 0, u"12°30'59\""},
                      {0.00125, 0, u"0°0'5\""},
                      {0.00125, 1, u"0°0'4.5\""},
                      {-0.0001, 0, u"0°0'0\""},
                      {-0.0001, 1, u"-0°0'0.4\""},
                      {-0.0001, 3, u"-0°0'0.360\""},
                      {-0.51, 0, u"-0°30'36\""},
                      {719.75, 0, u"719°45'0\""},
                      {1234567890123.25, 0, u"1234567890123°15'0\""},
                      {1e20, 1, u"100000000000000000000°0'0.0\""},
                      {5e-324, 2, u"0°0'0.00\""}};
  for (const Row& row : rows) {
    const UnitArguments use{.decimals = row.decimals};
    EXPECT_EQ(Legacy(row.degrees, AngleUnit::DegreeMinuteSecond, use), UniString(row.text)) << row.degrees;
  }
  EXPECT_EQ(Legacy(0.0001, AngleUnit::DegreeMinuteSecond, {.decimals = 9, .dropTrailingZeros = true}),
            UniString(u"0°0'0.36\""));
  EXPECT_EQ(Legacy(2, AngleUnit::DegreeMinuteSecond, {.decimals = 9, .dropTrailingZeros = true}),
            UniString(u"2°0'0\""));
}

TEST(Angle, HasNoGroupsAndNoTextWhenNotFinite) {
  EXPECT_EQ(Legacy(12345, AngleUnit::DecimalDegree), UniString(u"12345.00°"));
  EXPECT_EQ(Legacy(12345.5, AngleUnit::DegreeMinuteSecond, {.decimals = 0}), UniString(u"12345°30'0\""));
  for (unsigned short code = 0; code < 5; ++code) {
    const auto unit = static_cast<AngleUnit>(code);
    for (double amount : {std::numeric_limits<double>::infinity(), std::nan("")}) {
      EXPECT_EQ(Legacy(amount, unit), UniString());
    }
  }
  EXPECT_EQ(Legacy(1, static_cast<AngleUnit>(4)), UniString());
  EXPECT_EQ(Legacy(std::numeric_limits<double>::max(), AngleUnit::Gradian), UniString());
}

TEST(Angle, RoundsToAStep) {
  constexpr double Infinite = std::numeric_limits<double>::infinity();
  struct Row {
    double degrees, step;
    const char16_t* text;
  };
  const Row rows[] = {{22.5, 15, u"30.00°"},     {-22.5, 15, u"-30.00°"},          {22.4, 15, u"15.00°"},
                      {-7, 15, u"0.00°"},        {12.37, 0.25, u"12.25°"},         {12.37, 0, u"12.37°"},
                      {12.37, -15, u"12.37°"},   {12.37, std::nan(""), u"12.37°"}, {12.37, Infinite, u"12.37°"},
                      {12.37, 5e-324, u"12.37°"}};
  for (const Row& row : rows) {
    EXPECT_EQ(Legacy(row.degrees, AngleUnit::DecimalDegree, {.step = row.step}), UniString(row.text)) << row.step;
  }
  EXPECT_EQ(Legacy(44.999, AngleUnit::Gradian, {.step = 0.5}), UniString(u"50.00 gon"));
}

}  // namespace
