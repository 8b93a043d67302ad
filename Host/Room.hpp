#pragma once

#include <algorithm>
#include <cstddef>

namespace Host {

/// Makes room for so many more elements, so that adding them cannot fail. Grows as adding them one by one would.
template <class Vector>
void MakeRoom(Vector& elements, std::size_t more) {
  const std::size_t needed = elements.size() + more;
  if (needed > elements.capacity()) elements.reserve(std::max(needed, 2 * elements.capacity()));
}

}  // namespace Host
