#pragma once

#include "Host/PropertyDefinition.hpp"

#include <vector>

namespace Host {

class PropertyTable;

/// The way from a cell that is undefined, or has failed or no value, to where that began: the property, then in turn
/// the one that the property before it has its trouble from. The property alone when the trouble is its own, and
/// nothing when the cell has a defined value. Of several undefined precedents the one that the formula names first is
/// followed.
std::vector<PropertyIndex> ExplainCell(const PropertyTable& table, PropertyIndex property, ElementIndex element);

/// The first step of that way: the property that a cell has its trouble from, or nothing.
TW::Optional<PropertyIndex> FindCause(const PropertyTable& table, PropertyIndex property, ElementIndex element);

}  // namespace Host
