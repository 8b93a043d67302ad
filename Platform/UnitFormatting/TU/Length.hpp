#pragma once

#include "TU/ConversionResult.hpp"
#include "TU/Export.hpp"
#include "TU/Separators.hpp"
#include "TU/Units.hpp"
#include "TW/UniChar.hpp"
#include "TW/UniString.hpp"

/// Turns a length in metres into text in `unit`. The number is the shortest decimal form of the amount in that unit
/// (in inches, where feet and inches are shown), rounded halves away from zero; the result is empty when the amount is
/// not finite or `unit` is no unit.
///
/// - `format`: a template in which `%T` stands for the text (`TW::UniString::Printf`); empty for the text alone.
/// - `minimumLength`: how many 16-bit units the text has at least, held to 255; what is missing is put before the
///   text, sign included, so that texts of one length end at the same place.
/// - `decimals`: of the number, or of the inches beside feet; held to `TW::DecimalNumber::MaximumDecimals`.
/// - `denominator`: the finest fraction of an inch, held to 1 to 128; fractions are reduced, and left out when zero.
/// - `writeMarker`: whether the marker follows. The signs of feet and inches that stand together are always written.
/// - `showSmallFives`: see there; units that show a fraction have none.
/// - `fill`: what fills up to `minimumLength`; a blank when 0.
/// - `dropTrailingZeros`: whether zeros at the end of the decimals are left out.
/// - `separators`: the one before decimals, and the one between groups of three digits before them.
/// - `signHandling`: see there; the sign stands before everything but `fill`.
TU_EXPORT TUConversionResult TUM2UString(double meters, TWUnit::LengthUnit unit, const TW::UniString& format,
                                         unsigned short minimumLength, unsigned short decimals,
                                         unsigned short denominator, bool writeMarker,
                                         TWUnit::ShowSmallFives showSmallFives, TW::UniChar fill,
                                         bool dropTrailingZeros, const TUSeparators& separators,
                                         TWUnit::SignHandling signHandling);
