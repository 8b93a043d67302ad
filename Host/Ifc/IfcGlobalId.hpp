#pragma once

#include <string>
#include <string_view>

namespace Host {

/// Makes a GlobalId, the 22 characters of an IFC model, from the MD5 digest of a text: the same for the same text.
std::string MakeIfcGlobalId(std::string_view text);

}  // namespace Host
