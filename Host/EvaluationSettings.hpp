#pragma once

#include "Quorix/CalcUnitSettings.hpp"
#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/ExpressionUnitConverter.hpp"

namespace Host {

/// What formulas are told about the user: units and separators in texts, and whether undefined values always spread.
/// Without further words metres, square metres, cubic metres and degrees with two decimals, full stop and commas.
struct EvaluationSettings {
  QX::ExpressionUnitConverter converter{QX::CalcUnitSettings(
      QX::LengthFormat({TWUnit::LengthUnit::Meter, 2, 64}), QX::AreaFormat({TWUnit::AreaUnit::SquareMeter, 2}),
      QX::VolumeFormat({TWUnit::VolumeUnit::CubicMeter, 2}), QX::AngleFormat({TWUnit::AngleUnit::DecimalDegree, 2}))};
  QX::EvaluationLocaleSettings locale{u'.', u',', u','};
  bool isUndefinedPropagationEnabled = false;
};

}  // namespace Host
