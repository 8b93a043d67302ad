#include "TW/ChildList.hpp"

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

namespace TW {

ChildList::~ChildList() {
  if (!IsInPlace()) delete[] heap_;
}

void ChildList::Grow() {
  if (capacity_ > std::numeric_limits<std::uint32_t>::max() / 2) throw std::bad_alloc();
  const std::uint32_t capacity = capacity_ * 2;
  TreeNode** larger = new TreeNode*[capacity];
  std::copy(GetFirst(), GetFirst() + size_, larger);
  if (!IsInPlace()) delete[] heap_;
  heap_ = larger;
  capacity_ = capacity;
}

void ChildList::Add(TreeNode* child) {
  if (size_ == capacity_) Grow();
  GetFirst()[size_++] = child;
}

void ChildList::Swap(ChildList& other) noexcept {
  std::swap(nodes_, other.nodes_);
  std::swap(size_, other.size_);
  std::swap(capacity_, other.capacity_);
}

}  // namespace TW
