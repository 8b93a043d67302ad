#pragma once

#include "TU/ConversionResult.hpp"
#include "TU/Export.hpp"
#include "TU/Separators.hpp"
#include "TU/Units.hpp"
#include "TW/UniString.hpp"

/// Turns an area in square metres into text in `unit`; the other arguments are those of `TUM2UString`.
TU_EXPORT TUConversionResult TUM22UString(double squareMeters, TWUnit::AreaUnit unit, const TW::UniString& format,
                                          unsigned short minimumLength, unsigned short decimals, bool writeMarker,
                                          TWUnit::ShowSmallFives showSmallFives, bool dropTrailingZeros,
                                          const TUSeparators& separators, TWUnit::SignHandling signHandling);

/// Turns a volume in cubic metres into text in `unit`; the other arguments are those of `TUM2UString`.
TU_EXPORT TUConversionResult TUM32UString(double cubicMeters, TWUnit::VolumeUnit unit, const TW::UniString& format,
                                          unsigned short minimumLength, unsigned short decimals, bool writeMarker,
                                          TWUnit::ShowSmallFives showSmallFives, bool dropTrailingZeros,
                                          const TUSeparators& separators, TWUnit::SignHandling signHandling);
