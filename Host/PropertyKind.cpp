#include "Host/PropertyKind.hpp"

#include "Quorix/Tolerance.hpp"

#include <cmath>
#include <limits>

namespace Host {
namespace {

using QX::ExpressionValue;

constexpr ExpressionValue::UndefinedSelector Undefined;
constexpr PropertyKind QuantityKinds[] = {PropertyKind::Number, PropertyKind::Length, PropertyKind::Area,
                                          PropertyKind::Volume, PropertyKind::Angle};
constexpr std::u16string_view KindNames[] = {u"number", u"integer", u"length", u"area",
                                             u"volume", u"angle",   u"text",   u"logical"};

bool FitToInteger(ExpressionValue& value) {
  if (!value.IsNonUnitNumericValue()) return false;
  if (value.IsUserUndefined()) {
    value = ExpressionValue::FromInteger(Undefined);
    return true;
  }
  const double whole = std::round(value.GetIntOrNumVariantValue());
  const bool fits = QX::IsNear(whole, value.GetIntOrNumVariantValue()) && whole >= std::numeric_limits<int>::min() &&
                    whole <= std::numeric_limits<int>::max();
  if (fits) value = ExpressionValue::FromInteger(static_cast<int>(whole));
  return fits;
}

bool FitToQuantity(ExpressionValue& value, QX::UnitExponents dimension) {
  if (!value.CanConvertToQuantity() || value.GetUnitExponents() != dimension) return false;
  // Of the dimensions only the missing one has integers.
  if (dimension.IsNonUnit()) value = ExpressionValue::FromQuantity(value.ConvertToQuantity());
  return true;
}

}  // namespace

QX::UnitExponents GetDimension(PropertyKind kind) {
  switch (kind) {
    case PropertyKind::Length:
      return QX::UnitExponents::CreateLength();
    case PropertyKind::Area:
      return QX::UnitExponents::CreateArea();
    case PropertyKind::Volume:
      return QX::UnitExponents::CreateVolume();
    case PropertyKind::Angle:
      return QX::UnitExponents::CreateAngle();
    default:
      return QX::UnitExponents::CreateNonUnit();
  }
}

ExpressionValue MakeUndefinedValue(PropertyKind kind) {
  switch (kind) {
    case PropertyKind::Integer:
      return ExpressionValue::FromInteger(Undefined);
    case PropertyKind::Text:
      return ExpressionValue::FromString(Undefined);
    case PropertyKind::Logical:
      return ExpressionValue::FromBool(Undefined);
    default:
      return ExpressionValue::FromQuantity(Undefined, GetDimension(kind));
  }
}

bool FitToKind(ExpressionValue& value, PropertyKind kind) {
  switch (kind) {
    case PropertyKind::Integer:
      return FitToInteger(value);
    case PropertyKind::Text:
      return value.IsString();
    case PropertyKind::Logical:
      return value.IsBool();
    default:
      return FitToQuantity(value, GetDimension(kind));
  }
}

bool IsInteger(const ExpressionValue& value) {
  if (!value.IsNonUnitNumericValue()) return false;
  const double number = value.GetIntOrNumVariantValue();
  // The question costs an allocation, and hardly any number of a formula without declared kind is whole.
  if (!value.IsUserUndefined() && number != std::floor(number)) return false;
  const std::unique_ptr<TW::DynamicValue> variant = value.CloneContainedVariant();
  return variant != nullptr && variant->GetKind() == TW::DynamicValue::Kind::Integer;
}

TW::Optional<PropertyKind> FindKindOf(const ExpressionValue& value) {
  if (value.IsString()) return PropertyKind::Text;
  if (value.IsBool()) return PropertyKind::Logical;
  if (!value.CanConvertToQuantity()) return std::nullopt;
  if (IsInteger(value)) return PropertyKind::Integer;
  for (const PropertyKind kind : QuantityKinds) {
    if (GetDimension(kind) == value.GetUnitExponents()) return kind;
  }
  return std::nullopt;
}

std::u16string_view GetKindName(PropertyKind kind) { return KindNames[static_cast<unsigned int>(kind)]; }

TW::Optional<PropertyKind> FindKind(std::u16string_view name) {
  for (unsigned int kind = 0; kind < std::size(KindNames); ++kind) {
    if (KindNames[kind] == name) return static_cast<PropertyKind>(kind);
  }
  return std::nullopt;
}

}  // namespace Host
