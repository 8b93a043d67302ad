#pragma once

#include "Host/Model/ElementSource.hpp"
#include "Host/PropertyCatalog.hpp"
#include "TW/UniString.hpp"

#include <span>
#include <vector>

/// What reports call elements and properties.

namespace Host {

/// The name of an element; without one its GlobalId, and without both its number from 1.
TW::UniString MakeElementLabel(const ElementSource& source, ElementIndex element);

/// The names of properties, in the order given. Where several have the same name, the group comes before it, and where
/// that leaves several, the GUID of the later ones behind it.
std::vector<TW::UniString> MakePropertyLabels(const PropertyCatalog& catalog,
                                              std::span<const PropertyIndex> properties);

}  // namespace Host
