#include "Quorix/UnitExponents.hpp"

namespace QX {

bool UnitExponents::NthRoot(const UnitExponents& a, int n, UnitExponents& root) noexcept {
  const bool whole = n >= 1 && a.exponents_[0] % n == 0 && a.exponents_[1] % n == 0;
  root = whole ? UnitExponents(a.exponents_[0] / n, a.exponents_[1] / n) : UnitExponents();
  return whole;
}

}  // namespace QX
