#pragma once

#include "TU/UnitFormatting.hpp"
#include "Text.hpp"

/// The formatting functions with all but the arguments of a test at their usual values.

struct UnitArguments {
  TW::UniString format = {};
  unsigned short minimumLength = 0;
  unsigned short decimals = 2;
  unsigned short denominator = 64;
  bool writeMarker = true;
  TWUnit::ShowSmallFives showSmallFives = TWUnit::ShowSmallFives::Off;
  TW::UniChar fill = {};
  bool dropTrailingZeros = false;
  TUSeparators separators = TUSeparators::Create(u".", u",");
  TWUnit::SignHandling signHandling = TWUnit::SignHandling::MinusOnly;
  double step = 0;
};

inline TUConversionResult Convert(double meters, TWUnit::LengthUnit unit, const UnitArguments& use = {}) {
  return TUM2UString(meters, unit, use.format, use.minimumLength, use.decimals, use.denominator, use.writeMarker,
                     use.showSmallFives, use.fill, use.dropTrailingZeros, use.separators, use.signHandling);
}

inline TUConversionResult Convert(double squareMeters, TWUnit::AreaUnit unit, const UnitArguments& use = {}) {
  return TUM22UString(squareMeters, unit, use.format, use.minimumLength, use.decimals, use.writeMarker,
                      use.showSmallFives, use.dropTrailingZeros, use.separators, use.signHandling);
}

inline TUConversionResult Convert(double cubicMeters, TWUnit::VolumeUnit unit, const UnitArguments& use = {}) {
  return TUM32UString(cubicMeters, unit, use.format, use.minimumLength, use.decimals, use.writeMarker,
                      use.showSmallFives, use.dropTrailingZeros, use.separators, use.signHandling);
}

inline TUConversionResult Convert(double degrees, TWUnit::AngleUnit unit, const UnitArguments& use = {}) {
  return TUDecDeg2UString(degrees, unit, use.format, use.minimumLength, use.decimals, use.writeMarker,
                          use.dropTrailingZeros, use.separators, use.step);
}

template <class Unit>
TW::UniString Legacy(double amount, Unit unit, const UnitArguments& use = {}) {
  return Convert(amount, unit, use).GetLegacyFormattedValue();
}

template <class Unit>
TW::UniString Formatted(double amount, Unit unit, const UnitArguments& use = {}) {
  return Convert(amount, unit, use).GetFormattedValue();
}
