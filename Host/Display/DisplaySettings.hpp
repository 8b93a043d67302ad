#pragma once

#include "Quorix/ExpressionUnitConverter.hpp"
#include "Quorix/UnitFormat.hpp"
#include "TU/Units.hpp"

namespace Host {

/// The units in which quantities are shown; at first metres, square metres, cubic metres and degrees with two decimals.
struct DisplayUnits {
  QX::LengthUnitData length{TWUnit::LengthUnit::Meter, 2, 64};
  QX::UnitData<TWUnit::AreaUnit> area{TWUnit::AreaUnit::SquareMeter, 2};
  QX::UnitData<TWUnit::VolumeUnit> volume{TWUnit::VolumeUnit::CubicMeter, 2};
  QX::UnitData<TWUnit::AngleUnit> angle{TWUnit::AngleUnit::DecimalDegree, 2};
};

/// How values are shown.
struct DisplaySettings {
  DisplayUnits units;
  unsigned int minimumDecimals = 0;  ///< of plain numbers
  unsigned int maximumDecimals = 12;
  TWUnit::UnitMarkerMode markerMode = TWUnit::UnitMarkerMode::Formatted;
};

/// What makes texts of quantities in these units.
QX::ExpressionUnitConverter MakeUnitConverter(const DisplayUnits& units);

}  // namespace Host
