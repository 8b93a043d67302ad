#pragma once

/// Everything of the unit formatting layer: display texts of lengths, areas, volumes and angles.

#include "TU/Angle.hpp"
#include "TU/ConversionResult.hpp"
#include "TU/Length.hpp"
#include "TU/Separators.hpp"
#include "TU/SimpleUnits.hpp"
#include "TU/Units.hpp"
