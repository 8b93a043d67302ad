#pragma once

#include "TW/Export.hpp"
#include "TW/UniString.hpp"

#include <string>
#include <string_view>

namespace TW {

/// A number in decimal digits: the shortest that read back as the double it was made from, so that rounding works on
/// what a person would write (1.005 rounds to 1.01, though the double lies below it).
class TW_EXPORT DecimalNumber {
 public:
  /// More decimals than this are taken as this many: no finite double has more.
  static constexpr unsigned int MaximumDecimals = 340;

  /// `value` must be finite.
  explicit DecimalNumber(double value);

  /// Rounds to so many decimals, halves away from zero. A result of zero has no sign.
  void RoundToDecimals(unsigned int decimals);

  bool IsNegative() const { return negative_; }
  bool IsZero() const { return digits_.empty(); }

  /// The digits before the decimal separator, at least one, in groups of three when `groupSeparator` is not empty; no
  /// sign.
  UniString GetIntegerText(std::u16string_view groupSeparator = {}) const;
  /// The digits after the decimal separator, padded with zeros to at least `minimum` digits.
  UniString GetFractionText(unsigned int minimum = 0) const;
  /// Integer part, separator and fraction part (no separator without a fraction); no sign.
  UniString GetUnsignedText(unsigned int minimumDecimals, std::u16string_view decimalSeparator,
                            std::u16string_view groupSeparator = {}) const;

 private:
  bool negative_ = false;
  std::string digits_;  ///< significant digits without zeros at either end; empty for zero
  int point_ = 0;       ///< the value is 0.digits times ten to this power
};

/// What became of reading a number.
enum class NumberReading {
  Read,
  NotANumber,
  TooLarge,  ///< beyond the largest finite double
};

/// Reads digits with at most one full stop among them, before, between or behind them, and an optional exponent, all
/// in ASCII, without sign or blanks. What is too small for a double is 0. Writes `value` only when the number was read.
TW_EXPORT NumberReading ReadDecimalNumber(std::string_view text, double& value);

}  // namespace TW
