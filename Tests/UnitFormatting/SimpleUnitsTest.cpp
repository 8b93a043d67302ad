#include "UnitTexts.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using TW::UniString;
using TWUnit::AreaUnit;
using TWUnit::VolumeUnit;

template <class Unit>
struct Row {
  double amount;
  Unit unit;
  const char16_t* legacy;
  const char16_t* formatted;
};

template <class Unit, std::size_t Count>
void ExpectTexts(const Row<Unit> (&rows)[Count]) {
  for (const Row<Unit>& row : rows) {
    EXPECT_EQ(Legacy(row.amount, row.unit), UniString(row.legacy));
    EXPECT_EQ(Formatted(row.amount, row.unit), UniString(row.formatted));
  }
  constexpr double Largest = std::numeric_limits<double>::max();
  EXPECT_EQ(Legacy(1, static_cast<Unit>(Count)), UniString());
  EXPECT_EQ(Legacy(Largest, static_cast<Unit>(1)), UniString());
  EXPECT_EQ(Legacy(Largest, static_cast<Unit>(0)).GetLength(), 309 + 102 + 3 + 3U);
}

TEST(SimpleUnits, ShowsAreas) {
  ExpectTexts<AreaUnit>({
      {-1234.5, AreaUnit::SquareMeter, u"-1,234.50 m²", u"\u22121,234.50\u00A0m²"},
      {1.5, AreaUnit::SquareCentimeter, u"15,000.00 cm²", u"15,000.00\u00A0cm²"},
      {1.5, AreaUnit::SquareMillimeter, u"1,500,000.00 mm²", u"1,500,000.00\u00A0mm²"},
      {1.5, AreaUnit::SquareFoot, u"16.15 ft²", u"16.15\u00A0ft²"},
      {1.5, AreaUnit::SquareInch, u"2,325.00 in²", u"2,325.00\u00A0in²"},
  });
}

TEST(SimpleUnits, ShowsVolumes) {
  ExpectTexts<VolumeUnit>({
      {-0.004, VolumeUnit::CubicMeter, u"0.00 m³", u"0.00\u00A0m³"},
      {-1.5, VolumeUnit::Liter, u"-1,500.00 l", u"\u22121,500.00\u00A0l"},
      {1.5, VolumeUnit::CubicCentimeter, u"1,500,000.00 cm³", u"1,500,000.00\u00A0cm³"},
      {1.5, VolumeUnit::CubicYard, u"1.96 y³", u"1.96\u00A0y³"},
      {1.5, VolumeUnit::CubicFoot, u"52.97 ft³", u"52.97\u00A0ft³"},
      {1.5, VolumeUnit::CubicInch, u"91,535.62 in³", u"91,535.62\u00A0in³"},
      {1.5, VolumeUnit::Gallon, u"396.26 gal", u"396.26\u00A0gal"},
  });
}

}  // namespace
