#pragma once

namespace TW {

/// A stretch of positions, from `begin` up to `end`, which no longer belongs to it.
template <class T>
struct Range {
  T begin{};
  T end{};

  constexpr T GetLength() const { return end - begin; }
  constexpr bool IsEmpty() const { return begin == end; }
  constexpr bool Contains(T position) const { return begin <= position && position < end; }

  friend constexpr bool operator==(const Range&, const Range&) = default;
};

}  // namespace TW
