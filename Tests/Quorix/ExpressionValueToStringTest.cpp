#include "Quorix/ExpressionValueToString.hpp"
#include "Quorix/TestHost.hpp"
#include "Quorix/Values.hpp"

#include <gtest/gtest.h>

namespace {

using QX::ExpressionValue;
using TW::UniString;

TEST(ExpressionValueToString, ShowsEveryKindOfValue) {
  struct Row {
    ExpressionValue value;
    unsigned int minimumDecimals;
    unsigned int maximumDecimals;
    const char16_t* text;  ///< null where there is none
  };
  constexpr ExpressionValue::UndefinedSelector Undefined;
  const auto quantity = [](double value, int length, int angle) {
    return ExpressionValue::FromQuantity(value, QX::UnitExponents(length, angle));
  };
  const Row rows[] = {
      {ExpressionValue::FromNumber(1234.5), 0, 3, u"1234,5"},
      {ExpressionValue::FromNumber(1234.5), 2, 3, u"1234,50"},
      {ExpressionValue::FromNumber(1.0045), 0, 3, u"1,005"},
      {ExpressionValue::FromNumber(1.5), 4, 1, u"1,5000"},
      {ExpressionValue::FromInteger(-7), 1, 1, u"-7,0"},
      {ExpressionValue::FromInteger(-7), 0, 9, u"-7"},
      {ExpressionValue::FromString(u"ä;"), 2, 2, u"ä;"},
      {ExpressionValue::FromString(u""), 2, 2, u""},
      {ExpressionValue::FromBool(true), 2, 2, u"TRUE"},
      {ExpressionValue::FromBool(false), 2, 2, u"FALSE"},
      {quantity(1234.5678, 1, 0), 7, 9, u"1.234,57 m"},
      {quantity(2, 2, 0), 0, 0, u"2,00 m²"},
      {quantity(1, 1, 1), 0, 0, nullptr},
      {quantity(1, 4, 0), 0, 0, nullptr},
      {ExpressionValue::FromQuantity(Undefined, {1, 0}), 0, 0, u"Undefined"},
      {ExpressionValue::FromQuantity(Undefined, {1, 1}), 0, 0, u"Undefined"},
      {ExpressionValue::FromNumber(Undefined), 0, 0, u"Undefined"},
      {ExpressionValue::FromString(Undefined), 0, 0, u"Undefined"},
      {ExpressionValue::FromBool(Undefined), 0, 0, u"Undefined"},
      {ExpressionValue::FromNumber(HUGE_VAL), 0, 0, nullptr},
      {ExpressionValue::CreateInvalid(), 0, 0, nullptr},
  };
  const TestHost host;
  const QX::EvaluationLocaleSettings german(',', ';', '.');
  for (const Row& row : rows) {
    EXPECT_EQ(
        QX::ConvertExpressionValueToString(row.value, host.GetUnitConverter(), german, TWUnit::UnitMarkerMode::Legacy,
                                           row.minimumDecimals, row.maximumDecimals),
        row.text != nullptr ? TW::Optional<UniString>(row.text) : std::nullopt)
        << testing::PrintToString(row.value);
  }
}

}  // namespace
