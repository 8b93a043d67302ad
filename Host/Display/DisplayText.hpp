#pragma once

#include "Host/Display/DisplaySettings.hpp"
#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/ExpressionUnitConverter.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

namespace Host {

/// Makes the texts that show values to people. Keeps its settings; any number of threads may use one.
class DisplayText {
 public:
  DisplayText(const DisplaySettings& settings, const QX::EvaluationLocaleSettings& locale)
      : settings_(settings), locale_(locale), converter_(MakeUnitConverter(settings.units)) {}

  /// The text of a value; nothing for an invalid value, and for a quantity of a dimension without units or beyond what
  /// its unit can show.
  TW::Optional<TW::UniString> Find(const QX::ExpressionValue& value) const;
  /// The same, but in base units where there is no such text, as in `16 m^4`; empty for an invalid value only.
  TW::UniString Make(const QX::ExpressionValue& value) const;

  const QX::ExpressionUnitConverter& GetConverter() const { return converter_; }
  const QX::EvaluationLocaleSettings& GetLocale() const { return locale_; }

 private:
  DisplaySettings settings_;
  QX::EvaluationLocaleSettings locale_;
  QX::ExpressionUnitConverter converter_;
};

}  // namespace Host
