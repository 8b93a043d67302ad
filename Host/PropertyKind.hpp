#pragma once

#include "Quorix/ExpressionValue.hpp"
#include "Quorix/UnitExponents.hpp"
#include "TW/Optional.hpp"

#include <string_view>

namespace Host {

/// What the values of a property are.
enum class PropertyKind : unsigned char { Number, Integer, Length, Area, Volume, Angle, Text, Logical };

/// The dimension of the values of a kind; none for texts and logical values.
QX::UnitExponents GetDimension(PropertyKind kind);
/// The user-undefined value of a kind.
QX::ExpressionValue MakeUndefinedValue(PropertyKind kind);

/// Whether `value` is valid and of this kind. A number within the tolerance of a whole number of 32 bits is an integer,
/// and an integer is a number; `value` then becomes one of the kind.
bool FitToKind(QX::ExpressionValue& value, PropertyKind kind);

/// Whether `value` is an integer, and no number that happens to be whole.
bool IsInteger(const QX::ExpressionValue& value);

/// The kind that a value is of, integers apart from other numbers. Nothing for an invalid value, and for a dimension
/// that no kind has.
TW::Optional<PropertyKind> FindKindOf(const QX::ExpressionValue& value);

/// The word for a kind, `length` say.
std::u16string_view GetKindName(PropertyKind kind);
/// The kind that a word stands for. Case counts.
TW::Optional<PropertyKind> FindKind(std::u16string_view name);

}  // namespace Host
