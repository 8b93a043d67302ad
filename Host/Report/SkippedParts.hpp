#pragma once

#include "Host/NodeList.hpp"

#include <vector>

namespace Host {

/// Which nodes of a list have no part in the value of its first: those below an argument that a function of logical
/// values did not need, or did not choose. `evaluatesAll` says whether such functions evaluate every argument.
std::vector<bool> FindSkippedParts(const std::vector<NodeFacts>& nodes, bool evaluatesAll);

}  // namespace Host
