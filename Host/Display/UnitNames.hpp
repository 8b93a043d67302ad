#pragma once

#include "TU/Units.hpp"

#include <string>
#include <string_view>

/// The names of display units in options and requests.

namespace Host {

/// Each gives false, and leaves `unit` alone, for a name that is none.
bool FindUnit(std::u16string_view name, TWUnit::LengthUnit& unit);
bool FindUnit(std::u16string_view name, TWUnit::AreaUnit& unit);
bool FindUnit(std::u16string_view name, TWUnit::VolumeUnit& unit);
bool FindUnit(std::u16string_view name, TWUnit::AngleUnit& unit);

/// The names of the units of the same kind, as in `m, dm, cm`; which unit is given has no bearing.
std::string GetUnitNames(TWUnit::LengthUnit);
std::string GetUnitNames(TWUnit::AreaUnit);
std::string GetUnitNames(TWUnit::VolumeUnit);
std::string GetUnitNames(TWUnit::AngleUnit);

}  // namespace Host
