#include "TW/DynamicValue.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <vector>

namespace {

using TW::BoolValue;
using TW::DynamicValue;
using TW::DynamicValueConversionRules;
using TW::IntValue;
using TW::NumValue;
using TW::StringValue;

using Owned = std::unique_ptr<DynamicValue>;

template <class Value, class Content>
Owned Make(Content content, DynamicValue::Status status = DynamicValue::Status::Normal) {
  auto value = std::make_unique<Value>(content);
  value->SetStatus(status);
  return value;
}

constexpr DynamicValue::Status Undefined = DynamicValue::Status::UserUndefined;

TEST(DynamicValue, ShowsItsText) {
  struct Row {
    Owned value;
    unsigned int minimum;
    unsigned int maximum;
    const char16_t* text;
  };
  const double infinity = std::numeric_limits<double>::infinity();
  const Row rows[] = {
      {Make<IntValue>(5), 0, 4, u"5"},
      {Make<IntValue>(5), 2, 4, u"5;00"},
      {Make<IntValue>(5), 2, 0, u"5;00"},
      {Make<IntValue>(-1234567), 0, 0, u"-1234567"},
      {Make<IntValue>(std::numeric_limits<std::int32_t>::min()), 1, 1, u"-2147483648;0"},
      {Make<NumValue>(2.5), 0, 4, u"2;5"},
      {Make<NumValue>(2.5), 3, 4, u"2;500"},
      {Make<NumValue>(2.5), 0, 0, u"3"},
      {Make<NumValue>(-2.5), 0, 0, u"-3"},
      {Make<NumValue>(1.005), 0, 2, u"1;01"},
      {Make<NumValue>(1.00049), 0, 3, u"1"},
      {Make<NumValue>(1.00049), 1, 3, u"1;0"},
      {Make<NumValue>(1.23456), 4, 2, u"1;2346"},
      {Make<NumValue>(-0.004), 0, 2, u"0"},
      {Make<NumValue>(-0.004), 2, 2, u"0;00"},
      {Make<NumValue>(-0.0), 0, 2, u"0"},
      {Make<NumValue>(1e21), 0, 2, u"1000000000000000000000"},
      {Make<NumValue>(1e-7), 0, 8, u"0;0000001"},
      {Make<NumValue>(infinity), 2, 2, u""},
      {Make<NumValue>(-infinity), 2, 2, u""},
      {Make<NumValue>(std::numeric_limits<double>::quiet_NaN()), 2, 2, u""},
      {Make<StringValue>(u"1.50 | TRUE"), 0, 0, u"1.50 | TRUE"},
      {Make<StringValue>(u""), 2, 2, u""},
      {Make<BoolValue>(true), 2, 2, u"TRUE"},
      {Make<BoolValue>(false), 2, 2, u"FALSE"},
      {Make<IntValue>(5, Undefined), 2, 2, u"Undefined"},
      {Make<NumValue>(infinity, Undefined), 2, 2, u"Undefined"},
      {Make<StringValue>(u"text", Undefined), 2, 2, u"Undefined"},
      {Make<BoolValue>(true, Undefined), 2, 2, u"Undefined"},
  };
  for (const Row& row : rows) {
    const DynamicValueConversionRules rules(row.minimum, row.maximum, u"|", u";");
    EXPECT_EQ(row.value->ToDisplayText(rules), TW::UniString(row.text)) << row.minimum << ' ' << row.maximum;
  }
}

TEST(DynamicValue, ShowsBoundedTextForAbsurdDecimals) {
  const DynamicValueConversionRules rules(4'000'000'000U, 0, u",", u"::");
  EXPECT_LT(NumValue(0.1).ToDisplayText(rules).GetLength(), 400U);
  EXPECT_EQ(NumValue(0.1).ToDisplayText(rules).Substring(0, 5), TW::UniString(u"0::10"));
}

TEST(DynamicValue, EqualsOnlyTheSameKindStatusAndContent) {
  std::vector<Owned> values;
  values.push_back(Make<IntValue>(1));
  values.push_back(Make<IntValue>(2));
  values.push_back(Make<IntValue>(1, Undefined));
  values.push_back(Make<NumValue>(1.0));
  values.push_back(Make<NumValue>(1.5));
  values.push_back(Make<StringValue>(u"1"));
  values.push_back(Make<StringValue>(u""));
  values.push_back(Make<StringValue>(u"", Undefined));
  values.push_back(Make<BoolValue>(true));
  values.push_back(Make<BoolValue>(false));
  for (std::size_t i = 0; i < values.size(); ++i) {
    const Owned clone = values[i]->Clone();
    EXPECT_NE(clone, values[i]);
    for (std::size_t j = 0; j < values.size(); ++j) EXPECT_EQ(*clone == *values[j], i == j) << i << ' ' << j;
  }
}

TEST(DynamicValue, KeepsItsKindAndContentWhateverItsStatus) {
  const Owned original = Make<StringValue>(u"text", Undefined);
  const Owned clone = original->Clone();
  EXPECT_TRUE(clone->IsUserUndefined());
  EXPECT_EQ(clone->GetKind(), DynamicValue::Kind::String);
  auto* text = dynamic_cast<StringValue*>(clone.get());
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(dynamic_cast<IntValue*>(clone.get()), nullptr);
  text->Set(text->Get() + u" of its own");
  text->SetStatus(DynamicValue::Status::Normal);
  EXPECT_EQ(static_cast<const StringValue&>(*original).Get(), TW::UniString(u"text"));
  EXPECT_EQ(text->ToDisplayText(DynamicValueConversionRules(0, 0, u",", u".")), TW::UniString(u"text of its own"));
}

}  // namespace
