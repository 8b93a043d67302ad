#include "Quorix/Quantity.hpp"

#include "Quorix/ExpressionMathFunctions.hpp"

namespace QX {

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
