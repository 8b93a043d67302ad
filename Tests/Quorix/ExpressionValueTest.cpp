#include "Quorix/ExpressionValue.hpp"
#include "Quorix/Values.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

using QX::ExpressionValue;
using QX::Quantity;
using QX::UnitExponents;
using TW::UniString;

constexpr ExpressionValue::UndefinedSelector Undefined;
constexpr UnitExponents Length = UnitExponents::CreateLength();
constexpr UnitExponents Area = UnitExponents::CreateArea();
const UniString longText(u"a text that does not fit into the value");

struct Sample {
  const char* name;
  ExpressionValue value;
  bool valid, logical, text, numeric, nonUnit, undefined;
};

std::vector<Sample> Samples() {
  constexpr double Infinity = std::numeric_limits<double>::infinity();
  return {
      {"invalid", ExpressionValue::CreateInvalid(), false, false, false, false, false, false},
      {"true", ExpressionValue::FromBool(true), true, true, false, false, false, false},
      {"undefined logical", ExpressionValue::FromBool(Undefined), true, true, false, false, false, true},
      {"text", ExpressionValue::FromString(u"abc"), true, false, true, false, false, false},
      {"long text", ExpressionValue::FromString(longText), true, false, true, false, false, false},
      {"undefined text", ExpressionValue::FromString(Undefined), true, false, true, false, false, true},
      {"integer", ExpressionValue::FromInteger(-7), true, false, false, true, true, false},
      {"undefined integer", ExpressionValue::FromInteger(Undefined), true, false, false, true, true, true},
      {"number", ExpressionValue::FromNumber(2.5), true, false, false, true, true, false},
      {"undefined number", ExpressionValue::FromNumber(Undefined), true, false, false, true, true, true},
      {"length", ExpressionValue::FromQuantity(2, Length), true, false, false, true, false, false},
      {"undefined length", ExpressionValue::FromQuantity(Undefined, Length), true, false, false, true, false, true},
      {"infinity", ExpressionValue::FromNumber(Infinity), false, false, false, false, false, false},
      {"infinite area", ExpressionValue::FromQuantity({-Infinity, Area}), false, false, false, false, false, false},
      {"NaN", ExpressionValue::FromNumber(std::nan("")), false, false, false, false, false, false},
  };
}

void CheckKind(const Sample& sample, const ExpressionValue& value) {
  EXPECT_EQ(value.IsValid(), sample.valid) << sample.name;
  EXPECT_EQ(value.IsBool(), sample.logical) << sample.name;
  EXPECT_EQ(value.IsString(), sample.text) << sample.name;
  EXPECT_EQ(value.ContainsIntOrNumVariant(), sample.numeric) << sample.name;
  EXPECT_EQ(value.CanConvertToQuantity(), sample.numeric) << sample.name;
  EXPECT_EQ(value.IsNonUnitNumericValue(), sample.nonUnit) << sample.name;
  EXPECT_EQ(value.IsUserUndefined(), sample.undefined) << sample.name;
}

TEST(ExpressionValue, KnowsItsKind) {
  for (const Sample& sample : Samples()) CheckKind(sample, sample.value);
}

TEST(ExpressionValue, CopiesMovesAndAssignsEveryKindOverEveryOther) {
  for (const Sample& source : Samples()) {
    for (const Sample& target : Samples()) {
      ExpressionValue copied = target.value;
      copied = source.value;
      CheckKind(source, copied);
      EXPECT_TRUE(ExpressionValue::AreEqualByContent(copied, source.value)) << source.name;

      ExpressionValue moved = target.value;
      moved = std::move(copied);
      CheckKind(source, moved);
      EXPECT_TRUE(ExpressionValue::AreEqualByContent(moved, source.value)) << source.name;
      EXPECT_FALSE(copied.IsValid()) << "a value is invalid after a move";
      EXPECT_FALSE(copied.IsUserUndefined());
      EXPECT_EQ(copied.GetUnitExponents(), source.value.GetUnitExponents()) << "and keeps its dimension";
    }
  }
  ExpressionValue self = ExpressionValue::FromString(longText);
  ExpressionValue& alias = self;
  self = alias;
  self = std::move(alias);
  EXPECT_EQ(self.GetAsString(), longText);
}

TEST(ExpressionValue, ReadersGiveNeutralResultsForOtherKinds) {
  for (const Sample& sample : Samples()) {
    const ExpressionValue& value = sample.value;
    if (!sample.logical || sample.undefined) {
      EXPECT_FALSE(value.GetAsBool()) << sample.name;
    }
    if (!sample.text || sample.undefined) {
      EXPECT_TRUE(value.GetAsString().IsEmpty()) << sample.name;
    }
    if (!sample.nonUnit || sample.undefined) {
      EXPECT_EQ(value.GetAsNonUnitNumericValue(), 0) << sample.name;
    }
    const Quantity quantity = value.ConvertToQuantity();
    EXPECT_EQ(quantity.IsUserUndefinedValue(), sample.numeric && sample.undefined) << sample.name;
    if (!sample.numeric) {
      EXPECT_TRUE(quantity.GetNumericValue() == 0 && quantity.IsNonUnit()) << sample.name;
    }
  }
  EXPECT_EQ(ExpressionValue::FromInteger(-7).GetAsNonUnitNumericValue(), -7);
  EXPECT_EQ(ExpressionValue::FromQuantity(2, Length).GetAsNonUnitNumericValue(), 0);
  EXPECT_EQ(ExpressionValue::FromQuantity(2, Length).GetIntOrNumVariantValue(), 2);
  EXPECT_TRUE(std::isinf(ExpressionValue::FromNumber(HUGE_VAL).GetIntOrNumVariantValue()));
  EXPECT_EQ(ExpressionValue::FromString(longText).GetAsString(), longText) << "of a value that goes at once";
}

TEST(ExpressionValue, UndefinedKeepsKindAndDimension) {
  for (Sample sample : Samples()) {
    if (!sample.valid || sample.undefined) continue;
    const ExpressionValue defined = sample.value;
    sample.value.SetToUserUndefined();
    EXPECT_TRUE(sample.value.IsUserUndefined());
    EXPECT_TRUE(ExpressionValue::AreEqualByTypeAndUnit(sample.value, defined)) << sample.name;
    EXPECT_FALSE(ExpressionValue::AreEqualByContent(sample.value, defined)) << sample.name;
  }
}

TEST(ExpressionValue, GoesOverTheBorderToDynamicValuesAndBack) {
  for (const Sample& sample : Samples()) {
    auto variant = sample.value.CloneContainedVariant();
    EXPECT_EQ(variant == nullptr, std::string(sample.name) == "invalid");
    if (variant) {
      EXPECT_EQ(variant->IsUserUndefined(), sample.undefined) << sample.name;
    }
    const ExpressionValue back(variant.release());
    EXPECT_EQ(back.GetUnitExponents(), UnitExponents()) << sample.name;
    if (sample.value.GetUnitExponents().IsNonUnit()) {
      CheckKind(sample, back);
      EXPECT_TRUE(ExpressionValue::AreEqualByContent(back, sample.value)) << sample.name;
    }
  }
}

TEST(ExpressionValue, ComparesByTypeAndUnitAndByContent) {
  struct Row {
    ExpressionValue a, b;
    bool sameType, sameContent;
  };
  const Row rows[] = {
      {{}, {}, true, true},
      {{}, ExpressionValue::FromInteger(0), false, false},
      {ExpressionValue::FromNumber(HUGE_VAL), {}, true, true},
      {ExpressionValue::FromInteger(3), ExpressionValue::FromNumber(3.0), true, true},
      {ExpressionValue::FromNumber(0.1 + 0.2), ExpressionValue::FromNumber(0.3), true, false},
      {ExpressionValue::FromNumber(0.0), ExpressionValue::FromNumber(-0.0), true, true},
      {ExpressionValue::FromQuantity(1, Length), ExpressionValue::FromQuantity(1, Area), false, false},
      {ExpressionValue::FromQuantity(1, Length), ExpressionValue::FromInteger(1), false, false},
      {ExpressionValue::FromBool(true), ExpressionValue::FromBool(Undefined), true, false},
      {ExpressionValue::FromBool(true), ExpressionValue::FromInteger(1), false, false},
      {ExpressionValue::FromString(Undefined), ExpressionValue::FromString(Undefined), true, true},
      {ExpressionValue::FromString(Undefined), ExpressionValue::FromString(u""), true, false},
      {ExpressionValue::FromString(u"a"), ExpressionValue::FromString(u"A"), true, false},
      {ExpressionValue::FromString(u"1"), ExpressionValue::FromInteger(1), false, false},
      {ExpressionValue::FromNumber(Undefined), ExpressionValue::FromInteger(Undefined), true, true},
      {ExpressionValue::FromNumber(Undefined), ExpressionValue::FromQuantity(Undefined, Length), false, false},
  };
  for (const Row& row : rows) {
    for (const auto& [a, b] : {std::pair(row.a, row.b), std::pair(row.b, row.a)}) {
      EXPECT_EQ(ExpressionValue::AreEqualByTypeAndUnit(a, b), row.sameType) << testing::PrintToString(row.a);
      EXPECT_EQ(ExpressionValue::AreEqualByContent(a, b), row.sameContent) << testing::PrintToString(row.a);
    }
  }
}

TEST(ExpressionValue, UnitMarkersAreMatchedExactly) {
  struct Row {
    const char16_t* marker;
    double factor;
    UnitExponents exponents;
  };
  const Row rows[] = {
      {u"", 1, {0, 0}},
      {u"m", 1, {1, 0}},
      {u"dm", 0.1, {1, 0}},
      {u"cm", 0.01, {1, 0}},
      {u"mm", 0.001, {1, 0}},
      {u"'", 0.3048, {1, 0}},
      {u"ft", 0.3048, {1, 0}},
      {u"\"", 0.0254, {1, 0}},
      {u"in", 0.0254, {1, 0}},
      {u"m2", 1, {2, 0}},
      {u"cm2", 1e-4, {2, 0}},
      {u"mm2", 1e-6, {2, 0}},
      {u"ft2", 0.09290304, {2, 0}},
      {u"in2", 0.00064516, {2, 0}},
      {u"m3", 1, {3, 0}},
      {u"l", 1e-3, {3, 0}},
      {u"cm3", 1e-6, {3, 0}},
      {u"y3", 0.764554857984, {3, 0}},
      {u"ft3", 0.028316846592, {3, 0}},
      {u"in3", 1.6387064e-05, {3, 0}},
      {u"gal", 0.0037854, {3, 0}},
      {u"D", 3.141592653589793 / 180, {0, 1}},
      {u"R", 1, {0, 1}},
      {u"G", 3.141592653589793 / 200, {0, 1}},
  };
  for (const Row& row : rows) {
    const Quantity quantity = ExpressionValue::FromNumericValueAndUnitMarker(2, row.marker).ConvertToQuantity();
    EXPECT_DOUBLE_EQ(quantity.GetNumericValue(), 2 * row.factor) << UniString(row.marker).ToUtf8();
    EXPECT_EQ(quantity.GetUnitExponents(), row.exponents) << UniString(row.marker).ToUtf8();
  }
  for (const char16_t* unknown : {u"CM", u" cm", u"cm ", u"dm2", u"dm3", u"km", u"y", u"y2", u"d", u"g", u"°"}) {
    EXPECT_FALSE(ExpressionValue::FromNumericValueAndUnitMarker(2, unknown).IsValid()) << UniString(unknown).ToUtf8();
  }
  EXPECT_DOUBLE_EQ(ExpressionValue::FromNumericValueAndUnitMarker(100, u"G").GetIntOrNumVariantValue(),
                   1.5707963267948966);
}

TEST(ExpressionValue, AnInchLiteralCountsInFeet) {
  const Quantity quantity = ExpressionValue::FromNumericValueInInches(12).ConvertToQuantity();
  EXPECT_DOUBLE_EQ(quantity.GetNumericValue(), 3.6576);
  EXPECT_TRUE(quantity.IsLength());
}

}  // namespace
