#include "UnitTexts.hpp"

#include <gtest/gtest.h>

/// What each argument means, for all kinds of amounts alike.

namespace {

using TW::UniString;
using TWUnit::AngleUnit;
using TWUnit::AreaUnit;
using TWUnit::LengthUnit;
using TWUnit::ShowSmallFives;
using TWUnit::SignHandling;
using TWUnit::VolumeUnit;

TEST(Arguments, FormatAndLengthSurroundTheFinishedText) {
  EXPECT_EQ(Legacy(2, LengthUnit::Meter, {.format = u"<%T> 100%%"}), UniString(u"<2.00 m> 100%"));
  EXPECT_EQ(Legacy(2, LengthUnit::Meter, {.format = u"none"}), UniString(u"none"));
  EXPECT_EQ(Legacy(-2, LengthUnit::Meter, {.format = u"<%T>", .minimumLength = 9}), UniString(u"<  -2.00 m>"));
  EXPECT_EQ(Legacy(-2, LengthUnit::Meter, {.minimumLength = 9, .fill = u'*'}), UniString(u"**-2.00 m"));
  EXPECT_EQ(Legacy(2, AreaUnit::SquareMeter, {.minimumLength = 8}), UniString(u" 2.00 m²"));
  EXPECT_EQ(Legacy(2, VolumeUnit::CubicMeter, {.format = u"V=%T", .minimumLength = 8}), UniString(u"V= 2.00 m³"));
  EXPECT_EQ(Legacy(2, AngleUnit::DecimalDegree, {.format = u"%T!", .minimumLength = 7}), UniString(u"  2.00°!"));
  EXPECT_EQ(Legacy(2, LengthUnit::Meter, {.minimumLength = 6}), UniString(u"2.00 m"));
  EXPECT_EQ(Formatted(2, LengthUnit::Meter, {.minimumLength = 255}).GetLength(), 255U);
  EXPECT_EQ(Formatted(2, LengthUnit::Meter, {.minimumLength = 65535}).GetLength(), 255U);
}

TEST(Arguments, DecimalsAreKeptOrDropped) {
  struct Row {
    double amount;
    unsigned short decimals;
    const char16_t* kept;
    const char16_t* dropped;
  };
  const Row rows[] = {{1.005, 2, u"1.01", u"1.01"}, {2.5, 4, u"2.5000", u"2.5"}, {2, 2, u"2.00", u"2"},
                      {2.5, 0, u"3", u"3"},         {100, 0, u"100", u"100"},    {0, 3, u"0.000", u"0"}};
  for (const Row& row : rows) {
    UnitArguments use{.decimals = row.decimals, .writeMarker = false};
    EXPECT_EQ(Legacy(row.amount, LengthUnit::Meter, use), UniString(row.kept));
    EXPECT_EQ(Legacy(row.amount, VolumeUnit::CubicMeter, use), UniString(row.kept));
    use.dropTrailingZeros = true;
    EXPECT_EQ(Legacy(row.amount, AreaUnit::SquareMeter, use), UniString(row.dropped));
    EXPECT_EQ(Legacy(row.amount, AngleUnit::DecimalDegree, use), UniString(row.dropped));
  }
  const UnitArguments most{.decimals = 65535, .writeMarker = false};
  EXPECT_EQ(Legacy(1, LengthUnit::Meter, most).GetLength(), 342U);
  EXPECT_EQ(Legacy(1, AngleUnit::DegreeMinuteSecond, most).GetLength(), 342U + 5);
}

TEST(Arguments, MarkersGoButTheSignsOfCompoundTextsStay) {
  const UnitArguments use{.writeMarker = false};
  EXPECT_EQ(Legacy(1.6891, LengthUnit::Meter, use), UniString(u"1.69"));
  EXPECT_EQ(Legacy(1.6891, LengthUnit::FractionalInch, use), UniString(u"66 1/2"));
  EXPECT_EQ(Legacy(1.6891, LengthUnit::FootFractionalInch, use), UniString(u"5'-6 1/2\""));
  EXPECT_EQ(Legacy(1.6891, LengthUnit::FootDecimalInch, use), UniString(u"5'-6.50\""));
  EXPECT_EQ(Legacy(2, AreaUnit::SquareFoot, use), UniString(u"21.53"));
  EXPECT_EQ(Legacy(2, VolumeUnit::Liter, use), UniString(u"2,000.00"));
  EXPECT_EQ(Legacy(45, AngleUnit::DecimalDegree, use), UniString(u"45.00"));
  EXPECT_EQ(Legacy(45, AngleUnit::Gradian, use), UniString(u"50.00"));
  EXPECT_EQ(Legacy(45, AngleUnit::DegreeMinuteSecond, use), UniString(u"45°0'0.00\""));
}

TEST(Arguments, SmallFivesStandForAHalfDecimal) {
  struct Row {
    double amount;
    unsigned short decimals;
    bool dropTrailingZeros;
    const char16_t* text;
  };
  const Row rows[] = {
      {1.685, 2, false, u"1.68\u2075"},   {1.6849, 2, false, u"1.68\u2075"}, {1.6844, 2, false, u"1.68"},
      {1.6855, 2, false, u"1.69"},        {1.684, 2, false, u"1.68"},        {2.5, 0, false, u"2\u2075"},
      {-0.005, 2, false, u"-0.00\u2075"}, {1.205, 2, true, u"1.20\u2075"},   {1.2, 2, true, u"1.2"},
      {1.995, 2, false, u"1.99\u2075"},   {-0.0044, 2, false, u"0.00"}};
  for (const Row& row : rows) {
    const UnitArguments use{.decimals = row.decimals,
                            .writeMarker = false,
                            .showSmallFives = ShowSmallFives::On,
                            .dropTrailingZeros = row.dropTrailingZeros};
    EXPECT_EQ(Legacy(row.amount, LengthUnit::Meter, use), UniString(row.text)) << row.amount;
    EXPECT_EQ(Legacy(row.amount, AreaUnit::SquareMeter, use), UniString(row.text)) << row.amount;
    EXPECT_EQ(Legacy(row.amount, VolumeUnit::CubicMeter, use), UniString(row.text)) << row.amount;
  }
  const UnitArguments use{.decimals = 0, .denominator = 1, .showSmallFives = ShowSmallFives::On};
  EXPECT_EQ(Legacy(11.5 * 0.0254, LengthUnit::FootDecimalInch, use), UniString(u"0'-11\u2075\""));
  EXPECT_EQ(Legacy(11.5 * 0.0254, LengthUnit::FootFractionalInch, use), UniString(u"1'-0\""));
  EXPECT_EQ(Legacy(1.5, LengthUnit::Meter, {.decimals = 0, .showSmallFives = static_cast<ShowSmallFives>(2)}),
            UniString(u"2 m"));
}

TEST(Arguments, SignsFollowTheirHandling) {
  const double inch = 0.0254;
  struct Row {
    SignHandling handling;
    const char16_t *positive, *negative;
  };
  const Row rows[] = {{SignHandling::MinusOnly, u"", u"-"},
                      {SignHandling::PlusAndMinus, u"+", u"-"},
                      {SignHandling::NoSign, u"", u""},
                      {static_cast<SignHandling>(3), u"", u"-"}};
  for (const Row& row : rows) {
    const UnitArguments use{.signHandling = row.handling};
    const UniString positive(row.positive);
    const UniString negative(row.negative);
    EXPECT_EQ(Legacy(inch, LengthUnit::FootFractionalInch, use), positive + u"0'-1\"");
    EXPECT_EQ(Legacy(-inch, LengthUnit::FootDecimalInch, use), negative + u"0'-1.00\"");
    EXPECT_EQ(Legacy(-inch, LengthUnit::FractionalInch, use), negative + u"1\"");
    EXPECT_EQ(Legacy(2, AreaUnit::SquareMeter, use), positive + u"2.00 m²");
    EXPECT_EQ(Legacy(-2, VolumeUnit::CubicMeter, use), negative + u"2.00 m³");
    EXPECT_EQ(Legacy(-0.001, LengthUnit::Meter, use), UniString(u"0.00 m"));
    EXPECT_EQ(Legacy(1e-9, LengthUnit::FootFractionalInch, use), UniString(u"0'-0\""));
  }
}

TEST(Arguments, SeparatorsStandAsTheyAre) {
  struct Row {
    UniString decimal, thousand;
    const char16_t* millimeters;
    const char16_t* feet;
  };
  const UniString none(1, u'\0');
  const Row rows[] = {{u",", u".", u"-1.234.567,50 mm", u"-4.050'-5,02\""},
                      {u".", u"'", u"-1'234'567.50 mm", u"-4'050'-5.02\""},
                      {u"-", u"\"", u"-1\"234\"567-50 mm", u"-4\"050'-5-02\""},
                      {u".", u"\u202F", u"-1\u202F234\u202F567.50 mm", u"-4\u202F050'-5.02\""},
                      {u".", {}, u"-1234567.50 mm", u"-4050'-5.02\""},
                      {none, none, u"-1234567.50 mm", u"-4050'-5.02\""},
                      {{}, u"::", u"-1::234::567.50 mm", u"-4::050'-5.02\""}};
  for (const Row& row : rows) {
    const UnitArguments use{.separators = TUSeparators::Create(row.decimal, row.thousand)};
    EXPECT_EQ(Legacy(-1234.5675, LengthUnit::Millimeter, use), UniString(row.millimeters));
    EXPECT_EQ(Legacy(-1234.5675, LengthUnit::FootDecimalInch, use), UniString(row.feet));
  }
  // Separators that look like marks stay what they are in the formatted text.
  const UnitArguments marks{.separators = TUSeparators::Create(u"-", u"'")};
  EXPECT_EQ(Formatted(-1234.5, LengthUnit::Meter, marks), UniString(u"\u22121'234-50\u00A0m"));
}

TEST(Arguments, FactorsLeadToTheBaseUnits) {
  static_assert(TWUnit::GetFactor(LengthUnit::FootFractionalInch) == 0.3048);
  static_assert(TWUnit::GetFactor(LengthUnit::FractionalInch) == 0.0254);
  static_assert(TWUnit::GetFactor(AreaUnit::SquareFoot) == 0.09290304);
  static_assert(TWUnit::GetFactor(VolumeUnit::CubicYard) == 0.764554857984);
  static_assert(TWUnit::GetFactor(VolumeUnit::Gallon) == 0.0037854);
  const auto unknown = TWUnit::GetFactor(static_cast<AngleUnit>(4));
  EXPECT_NE(unknown, unknown);
}

}  // namespace
