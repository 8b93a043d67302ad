#pragma once

#include <optional>

namespace TW {

/// A value or nothing.
template <class T>
using Optional = std::optional<T>;

}  // namespace TW
