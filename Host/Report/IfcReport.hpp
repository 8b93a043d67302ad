#pragma once

#include "Host/Ifc/IfcModel.hpp"
#include "Host/Report/ReportScope.hpp"
#include "TW/ErrorCodes.hpp"

#include <string>

namespace Host {

/// Writes a copy of the model that the scope's elements are those of, by the same numbers, with the values that
/// formulas computed for the chosen properties and elements. They come in a property set of the name of their group,
/// `Quorix` for those without a group. What has failed, or does not apply, is left out; what is undefined has no value.
///
/// A value of a dimension that the schema has no measure for in our kinds (as m^4) becomes a text in base units, since
/// a bare number would be read in units that nobody knows. For errors see `WriteIfcModel`.
TW::ErrCode WriteIfcReport(const ReportScope& scope, const IfcModel& model, const std::string& path);

}  // namespace Host
