#pragma once

#include "Host/PropertyKind.hpp"
#include "TW/Guid.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <vector>

namespace Host {

/// The number of a property in its table, from 0 in the order of definition.
using PropertyIndex = unsigned int;
/// The number of an element in its table, from 0.
using ElementIndex = unsigned int;

/// What a property is, whether its values are given or computed.
struct PropertyDefinition {
  TW::Guid id;
  TW::UniString name;
  TW::UniString group;                       ///< empty when the property belongs to no group
  TW::Optional<PropertyKind> kind;           ///< may be missing where a formula decides
  std::vector<TW::UniString> classPatterns;  ///< for readers of models; the table does not look at them
};

}  // namespace Host
