#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace Host {

/// For each of a number of owners a list of numbers, all of them in one array.
class IfcSpans {
 public:
  struct Pair {
    std::uint32_t owner;  ///< below the count of owners
    std::uint32_t value;
  };

  IfcSpans() = default;
  /// Gives each owner its values, in the order of the pairs.
  IfcSpans(std::size_t ownerCount, std::span<const Pair> pairs) : ends_(ownerCount + 1, 0), values_(pairs.size()) {
    for (const Pair& pair : pairs) ++ends_[pair.owner + 1];
    for (std::size_t i = 1; i < ends_.size(); ++i) ends_[i] += ends_[i - 1];
    // Where an owner's values begin moves to where they end, which is where the next owner's begin.
    for (const Pair& pair : pairs) values_[ends_[pair.owner]++] = pair.value;
  }

  std::span<const std::uint32_t> operator[](std::size_t owner) const {
    const std::uint32_t begin = owner == 0 ? 0 : ends_[owner - 1];
    return std::span(values_).subspan(begin, ends_[owner] - begin);
  }
  std::size_t GetTotal() const { return values_.size(); }

 private:
  std::vector<std::uint32_t> ends_;
  std::vector<std::uint32_t> values_;
};

}  // namespace Host
