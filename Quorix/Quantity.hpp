#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/UnitExponents.hpp"

namespace QX {

/// A number with its dimension, in base units: metres and radians, raised to the exponents. It may be user undefined:
/// then the user left an input empty on purpose, and only the dimension means anything.
///
/// The operations decide the dimension of a result and how the undefined state spreads: through everything, except that
/// a defined zero absorbs an undefined factor or divisor. They give false where the result is not defined; the result
/// is then a defined 0 without unit.
class QX_EXPORT Quantity {
 public:
  /// Selects the undefined state.
  struct UndefinedSelector {};

  /// A defined 0 without unit.
  constexpr Quantity() noexcept = default;
  constexpr Quantity(double value, UnitExponents exponents) noexcept : value_(value), exponents_(exponents) {}
  constexpr Quantity(UndefinedSelector, UnitExponents exponents) noexcept : exponents_(exponents), undefined_(true) {}

  constexpr bool IsUserUndefinedValue() const noexcept { return undefined_; }
  constexpr double GetNumericValue() const noexcept { return value_; }
  constexpr const UnitExponents& GetUnitExponents() const noexcept { return exponents_; }

  constexpr bool IsNonUnit() const noexcept { return exponents_.IsNonUnit(); }
  constexpr bool IsLength() const noexcept { return exponents_.IsLength(); }
  constexpr bool IsArea() const noexcept { return exponents_.IsArea(); }
  constexpr bool IsVolume() const noexcept { return exponents_.IsVolume(); }
  constexpr bool IsAngle() const noexcept { return exponents_.IsAngle(); }

  /// Fails for different dimensions, undefined operands included.
  static bool Add(const Quantity& a, const Quantity& b, Quantity& result) noexcept;
  /// Fails for different dimensions, undefined operands included.
  static bool Subtract(const Quantity& a, const Quantity& b, Quantity& result) noexcept;
  /// Never fails.
  static bool Multiply(const Quantity& a, const Quantity& b, Quantity& result) noexcept;
  /// Fails when the divisor is defined and within 1e-9 of zero, whatever the dividend.
  static bool Divide(const Quantity& a, const Quantity& b, Quantity& result) noexcept;
  /// Fails for zero to the power zero and where the result is not finite.
  static bool Power(const Quantity& a, int n, Quantity& result) noexcept;
  /// Fails where `n` is below 1, does not divide the exponents, or the value is negative.
  static bool NthRoot(const Quantity& a, int n, Quantity& result) noexcept;

 private:
  double value_ = 0.0;
  UnitExponents exponents_;
  bool undefined_ = false;
};

}  // namespace QX
