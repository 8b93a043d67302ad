#pragma once

#include <cstdint>

namespace QX {

/// A version of the formula language: 1 for the first, 2 for the one that added `IFS`.
using VersionNumber = std::uint32_t;

}  // namespace QX
