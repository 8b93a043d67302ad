#pragma once

#include <cstdint>

namespace TW {

class TreeNode;

/// The children of a tree node in order, as plain pointers. Two live in place, more on the heap: most nodes of a tree
/// have no more, and a formula of a dozen nodes then takes half the memory. It owns its room but not the children.
class ChildList {
 public:
  ChildList() noexcept = default;
  ~ChildList();
  ChildList(const ChildList&) = delete;
  ChildList& operator=(const ChildList&) = delete;

  std::uint32_t GetSize() const noexcept { return size_; }
  TreeNode*& operator[](std::uint32_t index) noexcept { return GetFirst()[index]; }
  TreeNode* operator[](std::uint32_t index) const noexcept { return const_cast<ChildList&>(*this)[index]; }

  void Add(TreeNode* child);
  void RemoveLast() noexcept { --size_; }
  void Swap(ChildList& other) noexcept;

 private:
  static constexpr std::uint32_t InPlace = 2;

  bool IsInPlace() const noexcept { return capacity_ == InPlace; }
  TreeNode** GetFirst() noexcept { return IsInPlace() ? nodes_ : heap_; }
  void Grow();

  union {
    TreeNode* nodes_[InPlace] = {};
    TreeNode** heap_;
  };
  std::uint32_t size_ = 0;
  std::uint32_t capacity_ = InPlace;
};

}  // namespace TW
