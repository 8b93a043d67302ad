#pragma once

#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/UnitFormat.hpp"
#include "TU/Units.hpp"

namespace Command {

/// The units in which quantities are shown.
struct DisplayUnits {
  QX::LengthUnitData length{TWUnit::LengthUnit::Meter, 2, 64};
  QX::UnitData<TWUnit::AreaUnit> area{TWUnit::AreaUnit::SquareMeter, 2};
  QX::UnitData<TWUnit::VolumeUnit> volume{TWUnit::VolumeUnit::CubicMeter, 2};
  QX::UnitData<TWUnit::AngleUnit> angle{TWUnit::AngleUnit::DecimalDegree, 2};
};

/// How formulas are read, evaluated and shown.
struct Settings {
  QX::EvaluationLocaleSettings locale{u'.', u',', u','};
  QX::EvaluationLocaleSettings renderLocale{u'.', u',', u','};  ///< for the text of a formula in answers
  DisplayUnits units;
  unsigned int minimumDecimals = 0;  ///< of plain numbers
  unsigned int maximumDecimals = 12;
  TWUnit::UnitMarkerMode markerMode = TWUnit::UnitMarkerMode::Formatted;
  bool propagateUndefined = false;
};

}  // namespace Command
