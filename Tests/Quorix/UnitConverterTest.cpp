#include "Quorix/ExpressionUnitConverter.hpp"
#include "Quorix/Values.hpp"

#include <gtest/gtest.h>

#include <numbers>

namespace {

using QX::ExpressionValue;
using TW::UniString;
using TWUnit::UnitMarkerMode;

QX::CalcUnitSettings MetricSettings() {
  return {QX::LengthFormat({TWUnit::LengthUnit::Millimeter, 1, 64}), QX::AreaFormat({TWUnit::AreaUnit::SquareMeter, 2}),
          QX::VolumeFormat({TWUnit::VolumeUnit::Liter, 0}), QX::AngleFormat({TWUnit::AngleUnit::DecimalDegree, 1})};
}

TEST(ExpressionUnitConverter, ShowsQuantitiesInTheUnitsOfTheirKind) {
  struct Row {
    ExpressionValue value;
    UnitMarkerMode mode;
    const char16_t* text;  ///< null where there is none
  };
  const auto quantity = [](double value, int length, int angle) {
    return ExpressionValue::FromQuantity(value, QX::UnitExponents(length, angle));
  };
  const Row rows[] = {
      {quantity(1.6891, 1, 0), UnitMarkerMode::Legacy, u"1.689,1 mm"},
      {quantity(-1.6891, 1, 0), UnitMarkerMode::Formatted, u"\u22121.689,1\u00A0mm"},
      {quantity(1.6891, 1, 0), static_cast<UnitMarkerMode>(7), u"1.689,1 mm"},
      {quantity(1234.5, 2, 0), UnitMarkerMode::Legacy, u"1.234,50 m²"},
      {quantity(2.5, 3, 0), UnitMarkerMode::Legacy, u"2.500 l"},
      {quantity(std::numbers::pi / 4, 0, 1), UnitMarkerMode::Legacy, u"45,0°"},
      {quantity(std::numbers::pi * 10, 0, 1), UnitMarkerMode::Legacy, u"1800,0°"},
      {quantity(1, 1, 1), UnitMarkerMode::Legacy, nullptr},
      {quantity(1, 4, 0), UnitMarkerMode::Legacy, nullptr},
      {quantity(1e306, 1, 0), UnitMarkerMode::Legacy, nullptr},
      {ExpressionValue::FromNumber(1), UnitMarkerMode::Legacy, nullptr},
      {ExpressionValue::FromString(u"1 m"), UnitMarkerMode::Legacy, nullptr},
      {ExpressionValue::FromBool(true), UnitMarkerMode::Legacy, nullptr},
      {ExpressionValue::CreateInvalid(), UnitMarkerMode::Legacy, nullptr},
      {ExpressionValue::FromQuantity(ExpressionValue::UndefinedSelector(), {1, 0}), UnitMarkerMode::Legacy, nullptr},
  };
  const QX::ExpressionUnitConverter converter(MetricSettings());
  const QX::EvaluationLocaleSettings german(',', ';', '.');
  for (const Row& row : rows) {
    const TW::Optional<UniString> text = converter.SIToString(row.value, german, row.mode);
    EXPECT_EQ(text, row.text != nullptr ? TW::Optional<UniString>(row.text) : std::nullopt)
        << testing::PrintToString(row.value);
  }
}

TEST(ExpressionUnitConverter, GroupsOnlyWhereThereIsASeparator) {
  const QX::ExpressionUnitConverter converter(MetricSettings());
  const ExpressionValue length = ExpressionValue::FromQuantity(12, QX::UnitExponents::CreateLength());
  EXPECT_EQ(converter.SIToString(length, QX::EvaluationLocaleSettings('.', ',', 0), UnitMarkerMode::Legacy),
            UniString(u"12000.0 mm"));
}

TEST(UnitFormat, TheCheckSumCoversEverySetting) {
  const auto digest = [](const auto& format) {
    IO::MD5Channel channel;
    format.WriteCheckSum(channel);
    return channel.GetDigestText();
  };
  using TWUnit::LengthUnit;
  // Three 32-bit integers, little-endian: 3, 1, 64.
  EXPECT_EQ(digest(QX::LengthFormat({LengthUnit::Millimeter, 1, 64})), UniString(u"45d792d97eadd741065d6945deab8cd2"));
  EXPECT_NE(digest(QX::LengthFormat({LengthUnit::Millimeter, 1, 64})),
            digest(QX::LengthFormat({LengthUnit::Millimeter, 1, 32})));
  EXPECT_NE(digest(QX::LengthFormat({LengthUnit::Millimeter, 1, 64})),
            digest(QX::LengthFormat({LengthUnit::Millimeter, 2, 64})));
  EXPECT_NE(digest(QX::AreaFormat({TWUnit::AreaUnit::SquareMeter, 2})),
            digest(QX::AreaFormat({TWUnit::AreaUnit::SquareFoot, 2})));
  EXPECT_NE(digest(QX::VolumeFormat({TWUnit::VolumeUnit::Liter, 2})),
            digest(QX::VolumeFormat({TWUnit::VolumeUnit::Liter, 3})));
  // Two 32-bit integers: 0, 1.
  EXPECT_EQ(digest(QX::AngleFormat({TWUnit::AngleUnit::DecimalDegree, 1})),
            UniString(u"da35686b165e3223d5d49c046644e68e"));
}

}  // namespace
