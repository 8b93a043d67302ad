#pragma once

#include "Host/Report/ReportScope.hpp"

namespace Host {

/// Writes the graph of the chosen properties and all that they are computed from: inputs at the left, an arrow from
/// each property to those computed from it. The table must be computed. Takes time in proportion to the graph, but for
/// sorting.

/// In the language of graphs.
void WriteDotGraph(const ReportScope& scope, const ReportSink& sink);
/// As a drawing that a browser shows; a box shows its whole formula when one points at it.
void WriteSvgGraph(const ReportScope& scope, const ReportSink& sink);

}  // namespace Host
