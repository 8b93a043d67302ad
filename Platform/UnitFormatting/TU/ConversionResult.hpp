#pragma once

#include "TU/DisplayText.hpp"
#include "TU/Export.hpp"
#include "TW/UniString.hpp"

/// An amount turned into display text, which is laid out in the marker mode that is asked for. A value of its own: it
/// refers to nothing outside, and any number of threads may read it. It is empty when the amount is not finite.
class TU_EXPORT TUConversionResult {
 public:
  /// The longest text to which padding fills up.
  static constexpr unsigned int MaximumMinimumLength = 255;

  /// The result without a text.
  TUConversionResult() = default;
  /// Sets `text` into `format` (see `TUM2UString`), padded at its left with `fill` to `minimumLength` units.
  TUConversionResult(TUDisplayText text, const TW::UniString& format, unsigned int minimumLength, TW::UniChar fill);

  /// Writes the text with typographic signs.
  TW::UniString GetFormattedValue() const { return GetValue(TWUnit::UnitMarkerMode::Formatted); }
  /// Writes the text with the signs of a keyboard.
  TW::UniString GetLegacyFormattedValue() const { return GetValue(TWUnit::UnitMarkerMode::Legacy); }

 private:
  TW::UniString GetValue(TWUnit::UnitMarkerMode mode) const;

  TUDisplayText text_;
  TW::UniString format_;
  unsigned int minimumLength_ = 0;
  TW::UniChar fill_ = u' ';
};
