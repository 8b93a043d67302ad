#pragma once

#include "TW/OrderedIndex.hpp"

#include <algorithm>
#include <functional>
#include <utility>

namespace TW {

/// Keys in the order in which they were added; removing a key leaves the order of the others unchanged. Texts are
/// looked up by view. Adding and removing invalidate iterators and pointers to keys.
///
/// A set owns its keys; several threads may read it while none changes it. It holds fewer than 2^31 keys, more throw
/// `std::bad_alloc`. When adding throws, the set holds what it held before, as long as moving a key that cannot be
/// copied does not throw.
template <class Key, class Hash = KeyHash<Key>, class Equal = std::equal_to<>>
class HashSet {
  using Index = OrderedIndex<Key, Key, Hash, Equal>;

 public:
  using LookUp = typename KeyLookUp<Key>::Type;
  using Iterator = typename Index::template ConstIterator<const Key&>;

  /// Adds a key after the last, and gives true, unless it is there already.
  bool Add(Key key) { return index_.FindOrAdd(key, std::move(key)).second; }

  bool Contains(LookUp key) const { return index_.Find(key) != nullptr; }
  /// Gives whether the key was there. Any number of removals takes time linear in that number.
  bool Remove(LookUp key) { return index_.Remove(key); }

  unsigned int GetSize() const noexcept { return index_.GetSize(); }
  bool IsEmpty() const noexcept { return GetSize() == 0; }
  /// Removes everything and gives the memory back.
  void Clear() noexcept { Index().Swap(index_); }
  /// Makes room for so many keys in all.
  void Reserve(unsigned int count) { index_.Reserve(count); }
  void Swap(HashSet& other) noexcept { index_.Swap(other.index_); }
  friend void swap(HashSet& left, HashSet& right) noexcept { left.Swap(right); }

  Iterator begin() const noexcept { return index_.template Begin<Iterator>(); }
  Iterator end() const noexcept { return index_.template End<Iterator>(); }

  /// Whether both hold the same keys in the same order.
  friend bool operator==(const HashSet& left, const HashSet& right) {
    return left.GetSize() == right.GetSize() && std::equal(left.begin(), left.end(), right.begin());
  }

 private:
  Index index_;
};

}  // namespace TW
