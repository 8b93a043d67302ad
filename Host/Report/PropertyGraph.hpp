#pragma once

#include "Host/Report/GraphLayout.hpp"
#include "Host/Report/ReportScope.hpp"
#include "TW/UniString.hpp"

#include <vector>

namespace Host {

/// The chosen properties and all that they are computed from, as they are drawn. Nodes are numbered in an order in
/// which each comes after what it is computed from.
struct PropertyGraph {
  std::vector<PropertyIndex> properties;
  std::vector<unsigned int> layers;  ///< 0 for what is computed from nothing, else one more than the greatest before it
  std::vector<GraphEdge> edges;      ///< from what is used to what is computed from it
};

/// The table must be computed. Takes time in proportion to the graph, but for sorting.
PropertyGraph MakePropertyGraph(const ReportScope& scope);

/// What is written into the box of a property; each text is short.
struct PropertyBox {
  TW::UniString name;
  TW::UniString kind;     ///< with the group
  TW::UniString formula;  ///< empty for an input
};
PropertyBox MakePropertyBox(const ReportScope& scope, PropertyIndex property);

}  // namespace Host
