#pragma once

#include "Host/Report/FailureGroups.hpp"
#include "Host/Report/ReportScope.hpp"

#include <cstddef>

namespace Host {

/// How much of a terminal a table may take.
struct TableLimits {
  static constexpr std::size_t LeastColumns = 40;

  std::size_t columns = 0;          ///< 0 for any number; fewer than `LeastColumns` count as that
  std::size_t maximumElements = 0;  ///< 0 for all
};

/// Writes a table for people: a row for each element, a column for each property. Where the columns do not fit beside
/// each other, blocks of them follow each other. A cell that has failed shows `#` and the number of the reason in
/// `failures`. Takes time linear in the number of cells shown.
void WriteTable(const ReportScope& scope, FailureGroups& failures, const TableLimits& limits, const ReportSink& sink);

}  // namespace Host
