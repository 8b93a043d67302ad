#include "Quorix/Quantity.hpp"

#include "Quorix/ExpressionMathFunctions.hpp"

namespace QX {
namespace {

bool IsDefinedZero(const Quantity& quantity) {
  return !quantity.IsUserUndefinedValue() && IsNearZero(quantity.GetNumericValue());
}

bool Fail(Quantity& result) {
  result = Quantity();
  return false;
}

bool AddOrSubtract(const Quantity& a, const Quantity& b, double sign, Quantity& result) {
  if (!UnitExponents::AreAdditive(a.GetUnitExponents(), b.GetUnitExponents())) return Fail(result);
  if (a.IsUserUndefinedValue() || b.IsUserUndefinedValue()) {
    result = Quantity(Quantity::UndefinedSelector(), a.GetUnitExponents());
  } else {
    result = Quantity(a.GetNumericValue() + sign * b.GetNumericValue(), a.GetUnitExponents());
  }
  return true;
}

}  // namespace

bool Quantity::Add(const Quantity& a, const Quantity& b, Quantity& result) noexcept {
  return AddOrSubtract(a, b, 1.0, result);
}

bool Quantity::Subtract(const Quantity& a, const Quantity& b, Quantity& result) noexcept {
  return AddOrSubtract(a, b, -1.0, result);
}

bool Quantity::Multiply(const Quantity& a, const Quantity& b, Quantity& result) noexcept {
  const UnitExponents exponents = UnitExponents::Multiply(a.exponents_, b.exponents_);
  if (!a.undefined_ && !b.undefined_) {
    result = Quantity(a.value_ * b.value_, exponents);
  } else if (IsDefinedZero(a) || IsDefinedZero(b)) {
    result = Quantity(0.0, exponents);
  } else {
    result = Quantity(UndefinedSelector(), exponents);
  }
  return true;
}

bool Quantity::Divide(const Quantity& a, const Quantity& b, Quantity& result) noexcept {
  if (IsDefinedZero(b)) return Fail(result);
  const UnitExponents exponents = UnitExponents::Divide(a.exponents_, b.exponents_);
  if (!a.undefined_ && !b.undefined_) {
    result = Quantity(a.value_ / b.value_, exponents);
  } else if (IsDefinedZero(a)) {
    result = Quantity(0.0, exponents);
  } else {
    result = Quantity(UndefinedSelector(), exponents);
  }
  return true;
}

bool Quantity::Power(const Quantity& a, int n, Quantity& result) noexcept {
  const UnitExponents exponents = UnitExponents::Power(a.exponents_, n);
  if (a.undefined_) {
    result = Quantity(UndefinedSelector(), exponents);
    return true;
  }
  double power = 0.0;
  if (!QX::Power(a.value_, n, power)) return Fail(result);
  result = Quantity(power, exponents);
  return true;
}

bool Quantity::NthRoot(const Quantity& a, int n, Quantity& result) noexcept {
  UnitExponents exponents;
  if (!UnitExponents::NthRoot(a.exponents_, n, exponents)) return Fail(result);
  if (a.undefined_) {
    result = Quantity(UndefinedSelector(), exponents);
    return true;
  }
  double root = 0.0;
  if (!QX::NthRoot(a.value_, n, root)) return Fail(result);
  result = Quantity(root, exponents);
  return true;
}

}  // namespace QX
