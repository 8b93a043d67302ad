#pragma once

#include "TU/ConversionResult.hpp"
#include "TU/Export.hpp"
#include "TU/Separators.hpp"
#include "TU/Units.hpp"
#include "TW/UniString.hpp"

/// Turns an angle in degrees into text in `unit`, never grouped and with a minus for negative amounts only. `decimals`
/// are those of the seconds where minutes and seconds are shown; the signs of these are always written. When `step` is
/// above 0 and finite, the angle is first rounded to a multiple of so many degrees. The other arguments are those of
/// `TUM2UString`.
TU_EXPORT TUConversionResult TUDecDeg2UString(double degrees, TWUnit::AngleUnit unit, const TW::UniString& format,
                                              unsigned short minimumLength, unsigned short decimals, bool writeMarker,
                                              bool dropTrailingZeros, const TUSeparators& separators, double step = 0);
