#pragma once

#include <array>
#include <cstddef>

namespace TW {

/// An array of a size fixed by its type.
template <class T, std::size_t Size>
using FixArray = std::array<T, Size>;

}  // namespace TW
