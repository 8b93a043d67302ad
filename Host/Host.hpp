#pragma once

/// Everything that runs formulas over the elements of a model.

#include "Host/Display/DisplayText.hpp"
#include "Host/ElementEnvironment.hpp"
#include "Host/Explanation.hpp"
#include "Host/FormulaReader.hpp"
#include "Host/FormulaText.hpp"
#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/IfcWriter.hpp"
#include "Host/Model/ElementFilter.hpp"
#include "Host/Model/ElementSearch.hpp"
#include "Host/Model/IfcElements.hpp"
#include "Host/Model/ModelTable.hpp"
#include "Host/NameGuidMapper.hpp"
#include "Host/PropertyTable.hpp"
#include "Host/Report/ReportScope.hpp"
#include "Quorix/Quorix.hpp"
