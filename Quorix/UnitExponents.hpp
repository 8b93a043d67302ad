#pragma once

#include "Quorix/Export.hpp"
#include "TW/FixArray.hpp"

namespace QX {

/// The dimension of a number: a power of length and a power of angle. Any pair of integers is a dimension; five have
/// names. Arithmetic on exponents wraps around as 32-bit integers do.
class QX_EXPORT UnitExponents {
 public:
  constexpr UnitExponents() noexcept = default;
  constexpr UnitExponents(int length, int angle) noexcept : exponents_{length, angle} {}
  /// The length exponent first, then the angle exponent.
  explicit constexpr UnitExponents(const TW::FixArray<int, 2>& exponents) noexcept : exponents_(exponents) {}

  static constexpr UnitExponents CreateNonUnit() noexcept { return {0, 0}; }
  static constexpr UnitExponents CreateLength() noexcept { return {1, 0}; }
  static constexpr UnitExponents CreateArea() noexcept { return {2, 0}; }
  static constexpr UnitExponents CreateVolume() noexcept { return {3, 0}; }
  static constexpr UnitExponents CreateAngle() noexcept { return {0, 1}; }

  constexpr bool IsNonUnit() const noexcept { return *this == CreateNonUnit(); }
  constexpr bool IsLength() const noexcept { return *this == CreateLength(); }
  constexpr bool IsArea() const noexcept { return *this == CreateArea(); }
  constexpr bool IsVolume() const noexcept { return *this == CreateVolume(); }
  constexpr bool IsAngle() const noexcept { return *this == CreateAngle(); }

  constexpr int GetLengthExponent() const noexcept { return exponents_[0]; }
  constexpr int GetAngleExponent() const noexcept { return exponents_[1]; }

  // Spelled out: comparing the arrays calls a function of the C library.
  friend constexpr bool operator==(const UnitExponents& a, const UnitExponents& b) noexcept {
    return ((a.exponents_[0] ^ b.exponents_[0]) | (a.exponents_[1] ^ b.exponents_[1])) == 0;
  }

  static constexpr UnitExponents Multiply(const UnitExponents& a, const UnitExponents& b) noexcept {
    return {Wrap(Bits(a.exponents_[0]) + Bits(b.exponents_[0])), Wrap(Bits(a.exponents_[1]) + Bits(b.exponents_[1]))};
  }
  static constexpr UnitExponents Divide(const UnitExponents& a, const UnitExponents& b) noexcept {
    return {Wrap(Bits(a.exponents_[0]) - Bits(b.exponents_[0])), Wrap(Bits(a.exponents_[1]) - Bits(b.exponents_[1]))};
  }
  static constexpr UnitExponents Power(const UnitExponents& a, int n) noexcept {
    return {Wrap(Bits(a.exponents_[0]) * Bits(n)), Wrap(Bits(a.exponents_[1]) * Bits(n))};
  }
  /// Divides both exponents by `n`. Gives false and no dimension when `n` is below 1 or a division leaves a remainder.
  static bool NthRoot(const UnitExponents& a, int n, UnitExponents& root) noexcept;
  /// Whether values of the two dimensions can be added, subtracted and compared.
  static constexpr bool AreAdditive(const UnitExponents& a, const UnitExponents& b) noexcept { return a == b; }

 private:
  // Through unsigned numbers, where running over is defined.
  static constexpr unsigned int Bits(int value) noexcept { return static_cast<unsigned int>(value); }
  static constexpr int Wrap(unsigned int bits) noexcept { return static_cast<int>(bits); }

  TW::FixArray<int, 2> exponents_{};
};

}  // namespace QX
