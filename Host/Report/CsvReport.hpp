#pragma once

#include "Host/Report/ReportScope.hpp"

namespace Host {

/// Writes the chosen values as a table for spreadsheets: a row for each element with its GlobalId, class and name, then
/// the display texts under the labels of the properties (see `MakePropertyLabels`). What has failed is `#` and the name
/// of the failure. An undefined value and a property that does not apply both leave the cell empty, so that neither is
/// taken for a text.
///
/// Cells are separated as the arguments of functions are in the locale of the scope, where that is a semicolon, and
/// otherwise by commas.
void WriteCsvReport(const ReportScope& scope, const ReportSink& sink);

}  // namespace Host
