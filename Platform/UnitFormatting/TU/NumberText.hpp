#pragma once

#include "TU/DisplayText.hpp"
#include "TU/Separators.hpp"
#include "TU/Units.hpp"
#include "TW/DecimalNumber.hpp"
#include "TW/UniString.hpp"

#include <string>
#include <string_view>

/// The parts of which the texts of all kinds of amounts are made.

namespace TU {

/// How numbers are written. It refers to the separators it was made with.
struct NumberStyle {
  unsigned int decimals;  ///< at most `TW::DecimalNumber::MaximumDecimals`
  bool writeMarker;
  TWUnit::ShowSmallFives showSmallFives;
  bool dropTrailingZeros;
  TWUnit::SignHandling signHandling;
  std::u16string_view decimalSeparator;
  std::u16string_view thousandSeparator;  ///< empty for no groups
};

/// The style of `separators`, with `decimals` held to what a number can have.
NumberStyle MakeNumberStyle(unsigned int decimals, bool writeMarker, TWUnit::ShowSmallFives showSmallFives,
                            bool dropTrailingZeros, const TUSeparators& separators, TWUnit::SignHandling signHandling);

/// A number rounded to the decimals of a style, or, when a small five follows, to one more, which is that five.
struct RoundedNumber {
  TW::DecimalNumber number;
  bool smallFive;
};

/// Rounds a finite amount, halves away from zero.
RoundedNumber Round(double amount, const NumberStyle& style);

/// A fraction of one, taken so many times.
struct ScaledFraction {
  unsigned int whole;
  std::u16string decimals;  ///< exactly as many as asked for
};

/// Multiplies the fraction of one that `digits` are the decimals of by `factor` (at most 100,000), digit by digit and
/// so without an error, and rounds to `decimals`, halves away from zero.
ScaledFraction ScaleFraction(std::u16string_view digits, unsigned int factor, unsigned int decimals);

/// The separator and the decimals of a rounded number, or nothing where there are none.
TW::UniString DecimalsText(const RoundedNumber& rounded, const NumberStyle& style);
TW::UniString DecimalsText(const ScaledFraction& fraction, const NumberStyle& style);

/// Appends the sign of an amount that shows as zero or not.
void AppendSign(TUDisplayText& text, bool negative, bool zero, const NumberStyle& style);

/// The marker of a unit, and whether a gap stands before it.
struct UnitMarker {
  std::u16string_view text;
  bool gap = true;
};

/// The text of an amount in one unit: sign, number, and the marker where the style wants one. Nothing when the amount
/// is not finite.
TUDisplayText SimpleUnitText(double amount, const UnitMarker& marker, const NumberStyle& style);

}  // namespace TU
