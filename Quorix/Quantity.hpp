#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/Tolerance.hpp"
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
  bool IsDefinedZero() const noexcept { return !undefined_ && IsNearZero(value_); }
  static bool Fail(Quantity& result) noexcept {
    result = Quantity();
    return false;
  }

  double value_ = 0.0;
  UnitExponents exponents_;
  bool undefined_ = false;
};

// What evaluation does at every operator stands here, where callers can see through it.

inline bool Quantity::Add(const Quantity& a, const Quantity& b, Quantity& result) noexcept {
  if (!UnitExponents::AreAdditive(a.exponents_, b.exponents_)) return Fail(result);
  const bool undefined = a.undefined_ || b.undefined_;
  result = undefined ? Quantity(UndefinedSelector(), a.exponents_) : Quantity(a.value_ + b.value_, a.exponents_);
  return true;
}

inline bool Quantity::Subtract(const Quantity& a, const Quantity& b, Quantity& result) noexcept {
  return Add(a, b.undefined_ ? b : Quantity(-b.value_, b.exponents_), result);
}

inline bool Quantity::Multiply(const Quantity& a, const Quantity& b, Quantity& result) noexcept {
  const UnitExponents exponents = UnitExponents::Multiply(a.exponents_, b.exponents_);
  if (!a.undefined_ && !b.undefined_) [[likely]] {
    result = Quantity(a.value_ * b.value_, exponents);
  } else if (a.IsDefinedZero() || b.IsDefinedZero()) {
    result = Quantity(0.0, exponents);
  } else {
    result = Quantity(UndefinedSelector(), exponents);
  }
  return true;
}

inline bool Quantity::Divide(const Quantity& a, const Quantity& b, Quantity& result) noexcept {
  if (b.IsDefinedZero()) return Fail(result);
  const UnitExponents exponents = UnitExponents::Divide(a.exponents_, b.exponents_);
  if (!a.undefined_ && !b.undefined_) [[likely]] {
    result = Quantity(a.value_ / b.value_, exponents);
  } else if (a.IsDefinedZero()) {
    result = Quantity(0.0, exponents);
  } else {
    result = Quantity(UndefinedSelector(), exponents);
  }
  return true;
}

}  // namespace QX
