#include "Host/Ifc/StepIndex.hpp"

#include <algorithm>

namespace Host {

bool StepIndex::Add(std::uint64_t id, std::size_t position, std::uint32_t classNumber) {
  if (count_ == MaximumCount) return false;
  if (count_ % BlockSize == 0) blocks_.push_back(std::make_unique_for_overwrite<Entry[]>(BlockSize));
  ascending_ = ascending_ && (count_ == 0 || id > greatest_);
  Get(static_cast<Place>(count_++)) = {id, static_cast<std::uint64_t>(position) << ClassBits | classNumber};
  smallest_ = std::min(smallest_, id);
  greatest_ = std::max(greatest_, id);
  return true;
}

std::vector<StepIndex::Place> StepIndex::Finish() {
  if (count_ == 0) return {};
  // About as many ranges as there are groups of four instances, and two at least: no shift leaves one of all numbers.
  const std::uint64_t wanted = count_ / 4 + 2;
  while ((greatest_ - smallest_) >> shift_ >= wanted) ++shift_;
  CountBuckets();
  if (ascending_) return {};
  SortIntoBuckets();
  return DropDuplicates();
}

void StepIndex::CountBuckets() {
  buckets_.assign(GetBucket(greatest_) + 2, 0);
  for (std::size_t i = 0; i < count_; ++i) ++buckets_[GetBucket(GetId(static_cast<Place>(i))) + 1];
  for (std::size_t i = 1; i < buckets_.size(); ++i) buckets_[i] += buckets_[i - 1];
}

void StepIndex::SortIntoBuckets() {
  order_.resize(count_);
  std::vector<Place> next(buckets_.begin(), buckets_.end() - 1);
  for (std::size_t i = 0; i < count_; ++i) {
    const auto place = static_cast<Place>(i);
    order_[next[GetBucket(GetId(place))]++] = place;
  }
  const auto isBefore = [this](Place left, Place right) {
    const std::uint64_t leftId = GetId(left);
    const std::uint64_t rightId = GetId(right);
    return leftId != rightId ? leftId < rightId : left < right;
  };
  const auto begin = order_.begin();
  for (std::size_t i = 0; i + 1 < buckets_.size(); ++i)
    std::sort(begin + buckets_[i], begin + buckets_[i + 1], isBefore);
}

std::vector<StepIndex::Place> StepIndex::DropDuplicates() {
  std::vector<Place> dropped;
  for (std::size_t i = 1; i < count_; ++i) {
    if (GetId(order_[i]) != GetId(order_[i - 1])) continue;
    Get(order_[i]).position &= ~ClassMask;
    dropped.push_back(order_[i]);
  }
  return dropped;
}

TW::Optional<StepIndex::Place> StepIndex::Find(std::uint64_t id) const {
  if (count_ == 0 || id < smallest_ || id > greatest_) return {};
  const std::size_t bucket = GetBucket(id);
  std::size_t low = buckets_[bucket];
  std::size_t high = buckets_[bucket + 1];
  while (low < high) {
    const std::size_t middle = low + (high - low) / 2;
    if (GetId(GetOrdered(middle)) < id) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  if (low == buckets_[bucket + 1] || GetId(GetOrdered(low)) != id) return {};
  return GetOrdered(low);
}

}  // namespace Host
