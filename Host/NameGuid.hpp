#pragma once

#include "TW/Guid.hpp"
#include "TW/UniString.hpp"

namespace Host {

/// The GUID that stands for a name, the same at every time and place. Names that differ only in how accents are
/// composed have the same.
TW::Guid MakeNameGuid(const TW::UniString& name);

}  // namespace Host
