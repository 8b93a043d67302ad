#include "Quorix/UnitExponents.hpp"

namespace QX {
namespace {

// Through unsigned numbers, where running over is defined.
int WrappingAdd(int a, int b) {
  return static_cast<int>(static_cast<unsigned int>(a) + static_cast<unsigned int>(b));
}
int WrappingSubtract(int a, int b) {
  return static_cast<int>(static_cast<unsigned int>(a) - static_cast<unsigned int>(b));
}
int WrappingMultiply(int a, int b) {
  return static_cast<int>(static_cast<unsigned int>(a) * static_cast<unsigned int>(b));
}

}  // namespace

UnitExponents UnitExponents::Multiply(const UnitExponents& a, const UnitExponents& b) noexcept {
  return {WrappingAdd(a.exponents_[0], b.exponents_[0]), WrappingAdd(a.exponents_[1], b.exponents_[1])};
}

UnitExponents UnitExponents::Divide(const UnitExponents& a, const UnitExponents& b) noexcept {
  return {WrappingSubtract(a.exponents_[0], b.exponents_[0]), WrappingSubtract(a.exponents_[1], b.exponents_[1])};
}

UnitExponents UnitExponents::Power(const UnitExponents& a, int n) noexcept {
  return {WrappingMultiply(a.exponents_[0], n), WrappingMultiply(a.exponents_[1], n)};
}

bool UnitExponents::NthRoot(const UnitExponents& a, int n, UnitExponents& root) noexcept {
  const bool whole = n >= 1 && a.exponents_[0] % n == 0 && a.exponents_[1] % n == 0;
  root = whole ? UnitExponents(a.exponents_[0] / n, a.exponents_[1] / n) : UnitExponents();
  return whole;
}

}  // namespace QX
