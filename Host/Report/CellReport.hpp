#pragma once

#include "Host/Report/ReportScope.hpp"

#include <functional>

namespace Host {

/// Tells where the value of an input comes from, a source or a constant, for people.
using OriginText = std::function<TW::UniString(PropertyIndex property, ElementIndex element)>;

/// Explains one cell to people: its value; its formula with the value of each part, and which parts were not needed;
/// the values that the formula uses with their origins. When the value is undefined or missing, tells the reason in a
/// sentence, and explains each property on the way to where that began. The table must be computed.
void WriteCellReport(const ReportScope& scope, PropertyIndex property, ElementIndex element, const OriginText& origin,
                     const ReportSink& sink);

}  // namespace Host
