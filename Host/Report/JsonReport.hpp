#pragma once

#include "Host/Report/ReportScope.hpp"
#include "Host/Report/Summary.hpp"

namespace Host {

/// Writes the chosen values as one JSON object, `properties` before `elements` before `summary`, a line for each
/// property and element. The document is never held as a whole.
///
/// A value stands under the label of its property (see `MakePropertyLabels`); a property that does not apply has none.
/// Places of an error count in the formula of its property, as `properties` shows it.
void WriteJsonReport(const ReportScope& scope, const Summary& summary, const ReportSink& sink);

}  // namespace Host
