#pragma once

#include "Quorix/ExpressionValue.hpp"
#include "Text.hpp"

#include <ostream>

/// Shows values of the library in the messages of failed tests.

namespace QX {

inline void PrintTo(const UnitExponents& exponents, std::ostream* out) {
  *out << "(" << exponents.GetLengthExponent() << ", " << exponents.GetAngleExponent() << ")";
}

inline void PrintTo(const Quantity& quantity, std::ostream* out) {
  if (quantity.IsUserUndefinedValue()) {
    *out << "undefined";
  } else {
    *out << quantity.GetNumericValue();
  }
  PrintTo(quantity.GetUnitExponents(), out);
}

inline void PrintTo(const ExpressionValue& value, std::ostream* out) {
  if (!value.IsValid()) *out << "invalid ";
  if (value.IsUserUndefined()) *out << "undefined ";
  if (value.IsBool()) *out << "logical " << value.GetAsBool();
  if (value.IsString()) TW::PrintTo(value.GetAsString(), out);
  if (value.ContainsIntOrNumVariant()) PrintTo(value.ConvertToQuantity(), out);
}

}  // namespace QX
