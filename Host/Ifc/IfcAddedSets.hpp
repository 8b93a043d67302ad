#pragma once

#include "Host/Ifc/StepFile.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Host {

/// The GlobalIds of the property set that is added to an element, and of its relation.
struct IfcAddedSetIds {
  std::string set;
  std::string relation;
};

/// Both are UTF-8.
IfcAddedSetIds MakeIfcAddedSetIds(std::string_view elementGlobalId, std::string_view setName);

/// Finds the instances of a file that earlier additions consist of: sets that have the GlobalIds of added ones, with
/// their properties and relations. Ascending.
std::vector<StepFile::Place> FindIfcAddedInstances(const StepFile& file);

/// Where an instance stands in the text of its file, from its number to the end of its line.
struct StepStatement {
  std::size_t begin;
  std::size_t end;
};
StepStatement FindStepStatement(const StepFile& file, StepFile::Place place);

}  // namespace Host
