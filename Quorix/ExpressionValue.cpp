#include "Quorix/ExpressionValue.hpp"

#include "Quorix/AcceptedUnits.hpp"

namespace QX {
namespace {

const TW::UniString& EmptyText() {
  static const TW::UniString empty;
  return empty;
}

}  // namespace

ExpressionValue::ExpressionValue(TW::DynamicValue* variant) : ExpressionValue() {
  const std::unique_ptr<TW::DynamicValue> owned(variant);
  if (!owned) return;
  switch (owned->GetKind()) {
    case TW::DynamicValue::Kind::Bool:
      *this = FromBool(static_cast<const TW::BoolValue&>(*owned).Get());
      break;
    case TW::DynamicValue::Kind::String:
      *this = FromString(static_cast<const TW::StringValue&>(*owned).Get());
      break;
    case TW::DynamicValue::Kind::Integer:
      *this = FromInteger(static_cast<const TW::IntValue&>(*owned).Get());
      break;
    case TW::DynamicValue::Kind::Number:
      *this = FromNumber(static_cast<const TW::NumValue&>(*owned).Get());
      break;
  }
  undefined_ = owned->IsUserUndefined();
}

std::unique_ptr<TW::DynamicValue> ExpressionValue::CloneContainedVariant() const {
  std::unique_ptr<TW::DynamicValue> variant;
  switch (kind_) {
    case Kind::Invalid:
      return nullptr;
    case Kind::Logical:
      variant = std::make_unique<TW::BoolValue>(bits_ != 0);
      break;
    case Kind::Text:
      variant = std::make_unique<TW::StringValue>(text_);
      break;
    case Kind::Integer:
      variant = std::make_unique<TW::IntValue>(GetInteger());
      break;
    case Kind::Number:
      variant = std::make_unique<TW::NumValue>(GetNumber());
      break;
  }
  if (undefined_) variant->SetStatus(TW::DynamicValue::Status::UserUndefined);
  return variant;
}

const TW::UniString& ExpressionValue::GetAsString() const& noexcept {
  return kind_ == Kind::Text && !undefined_ ? text_ : EmptyText();
}

TW::UniString ExpressionValue::GetAsString() && noexcept {
  return kind_ == Kind::Text && !undefined_ ? std::move(text_) : TW::UniString();
}

ExpressionValue ExpressionValue::FromNumericValueAndUnitMarker(double value, const TW::UniString& marker) {
  if (marker.IsEmpty()) return FromNumber(value);
  const AcceptedUnit* unit = FindAcceptedUnit(marker);
  return unit != nullptr ? FromQuantity(value * unit->factor, unit->exponents) : CreateInvalid();
}

// The foot marker is meant: stored formulas rely on it.
ExpressionValue ExpressionValue::FromNumericValueInInches(double value) {
  return FromNumericValueAndUnitMarker(value, u"'");
}

bool ExpressionValue::AreEqualByTypeAndUnit(const ExpressionValue& a, const ExpressionValue& b) noexcept {
  if (!a.IsValid()) return !b.IsValid();
  if (a.IsBool()) return b.IsBool();
  if (a.IsString()) return b.IsString();
  return b.ContainsIntOrNumVariant() && a.exponents_ == b.exponents_;
}

bool ExpressionValue::AreEqualByContent(const ExpressionValue& a, const ExpressionValue& b) noexcept {
  if (!a.IsValid() || !b.IsValid()) return a.IsValid() == b.IsValid();
  if (a.undefined_ != b.undefined_ || !AreEqualByTypeAndUnit(a, b)) return false;
  if (a.undefined_) return true;
  if (a.IsBool()) return a.bits_ == b.bits_;
  if (a.IsString()) return a.text_ == b.text_;
  return a.GetIntOrNumVariantValue() == b.GetIntOrNumVariantValue();
}

}  // namespace QX
