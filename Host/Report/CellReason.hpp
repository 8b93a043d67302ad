#pragma once

#include "Host/Report/ReportScope.hpp"

#include <span>

namespace Host {

/// Tells in a sentence or two why a cell has no defined value; empty for one that has. `way` is that of `ExplainCell`.
TW::UniString MakeReason(const ReportScope& scope, std::span<const PropertyIndex> way, ElementIndex element);

}  // namespace Host
