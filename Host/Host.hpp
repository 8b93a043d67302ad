#pragma once

#include "Host/ElementEnvironment.hpp"
#include "Host/Explanation.hpp"
#include "Host/FormulaReader.hpp"
#include "Host/FormulaText.hpp"
#include "Host/NameGuidMapper.hpp"
#include "Host/PropertyTable.hpp"

/// Everything that hosts without a property model of their own need.
