#pragma once

#include <boost/container/small_vector.hpp>

#include <algorithm>
#include <cstddef>

namespace TW {

/// How many elements an `Array` holds without the heap: eight, and more where they fit into one cache line.
template <class T>
// An element may well be a pointer. NOLINTNEXTLINE(bugprone-sizeof-expression)
inline constexpr std::size_t ArrayInlineCount = std::max<std::size_t>(8, 64 / sizeof(T));

/// A growable array whose first elements live in place, so that the operands of a usual call need no heap.
template <class T>
// Boost declares what is inherited noexcept. NOLINTNEXTLINE(bugprone-exception-escape)
class Array : public boost::container::small_vector<T, ArrayInlineCount<T>> {
 public:
  using boost::container::small_vector<T, ArrayInlineCount<T>>::small_vector;
};

}  // namespace TW
