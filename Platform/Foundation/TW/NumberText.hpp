#pragma once

#include "TW/Export.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

namespace TWUtils {

/// Reads a number without unit as people write it, and gives whether the whole text is one: white space around it, one
/// sign, ASCII digits with at most one decimal separator before, among or after them, and an exponent.
///
/// The thousand separator stands only before the decimal separator, between groups of three digits, the first of one to
/// three; either all groups are separated or none. Where it is a no-break space (U+00A0 or U+202F), an ordinary blank
/// does as well. A separator of code 0 is none; where both are the same, it is the decimal separator.
///
/// Numbers beyond the largest finite double are refused, those too small for a double are 0. `result`, which may be
/// null, is written only when the text is a number. Takes time linear in the length of the text.
TW_EXPORT bool ConvertNumberStringToNonUnit(const TW::UniString& text, unsigned short decimalSeparator,
                                            TW::Optional<unsigned short> thousandSeparator, double* result);

}  // namespace TWUtils
