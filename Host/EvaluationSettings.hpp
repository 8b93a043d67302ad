#pragma once

#include "Host/Display/DisplaySettings.hpp"
#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/ExpressionUnitConverter.hpp"

namespace Host {

/// What formulas are told about the user: units and separators in texts, and whether undefined values always spread.
/// Without further words metres, square metres, cubic metres and degrees with two decimals, full stop and commas.
struct EvaluationSettings {
  QX::ExpressionUnitConverter converter = MakeUnitConverter({});
  QX::EvaluationLocaleSettings locale{u'.', u',', u','};
  bool isUndefinedPropagationEnabled = false;
};

}  // namespace Host
