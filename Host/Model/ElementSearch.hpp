#pragma once

#include "Host/Model/ElementSource.hpp"

#include <string_view>
#include <vector>

namespace Host {

/// The elements that a person means by a text: those whose GlobalId it is; when there are none, those whose name it is;
/// when there are none, those whose tag it is.
std::vector<ElementIndex> FindElements(const ElementSource& source, std::u16string_view text);

}  // namespace Host
