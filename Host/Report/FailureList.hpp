#pragma once

#include "Host/Report/FailureGroups.hpp"
#include "Host/Report/ReportScope.hpp"

namespace Host {

/// Writes for people why cells have no value: under the number of each reason the property, the message, the place in
/// the formula, the elements, and what has no value because of it. Writes nothing when nothing has failed.
void WriteFailureList(const ReportScope& scope, const FailureGroups& failures, const ReportSink& sink);

}  // namespace Host
