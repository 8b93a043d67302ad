#pragma once

#include "TW/Optional.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace Host {

/// Where the instances of a file are: for each its number, its class and the position of its keyword, in the order of
/// the file. Takes about 18 bytes an instance, whatever the numbers are, and finds an instance by number in constant
/// time where numbers are spread evenly.
class StepIndex {
 public:
  using Place = std::uint32_t;  ///< an instance: its place in the order of the file

  static constexpr std::size_t MaximumCount = UINT32_MAX - 1;

  /// Adds an instance; gives false when there are too many.
  bool Add(std::uint64_t id, std::size_t position, std::uint32_t classNumber);
  /// Makes instances ready to be found by number. Gives the places of those whose number occurs before; they lose their
  /// class and are not found.
  std::vector<Place> Finish();

  Place GetCount() const { return static_cast<Place>(count_); }
  std::uint64_t GetId(Place place) const { return Get(place).id; }
  std::size_t GetPosition(Place place) const { return static_cast<std::size_t>(Get(place).position >> ClassBits); }
  std::uint32_t GetClass(Place place) const { return static_cast<std::uint32_t>(Get(place).position & ClassMask); }
  TW::Optional<Place> Find(std::uint64_t id) const;
  std::uint64_t GetGreatestId() const { return greatest_; }

 private:
  static constexpr unsigned int ClassBits = 14;
  static constexpr std::uint64_t ClassMask = (std::uint64_t{1} << ClassBits) - 1;
  static constexpr unsigned int BlockBits = 14;
  static constexpr std::size_t BlockSize = std::size_t{1} << BlockBits;

  struct Entry {
    std::uint64_t id;
    std::uint64_t position;  ///< and the class in the lowest bits
  };

  const Entry& Get(Place place) const { return blocks_[place >> BlockBits][place & (BlockSize - 1)]; }
  Entry& Get(Place place) { return blocks_[place >> BlockBits][place & (BlockSize - 1)]; }
  Place GetOrdered(std::size_t rank) const { return order_.empty() ? static_cast<Place>(rank) : order_[rank]; }
  std::size_t GetBucket(std::uint64_t id) const { return static_cast<std::size_t>((id - smallest_) >> shift_); }

  void CountBuckets();
  void SortIntoBuckets();
  std::vector<Place> DropDuplicates();

  // Blocks, since a growing array would need three times its size while it grows.
  std::vector<std::unique_ptr<Entry[]>> blocks_;
  std::vector<Place> order_;    ///< places by number; empty when that is the order of the file
  std::vector<Place> buckets_;  ///< for each equal range of numbers the rank of its first; one more at the end
  std::size_t count_ = 0;
  std::uint64_t smallest_ = UINT64_MAX;
  std::uint64_t greatest_ = 0;
  unsigned int shift_ = 0;
  bool ascending_ = true;
};

}  // namespace Host
