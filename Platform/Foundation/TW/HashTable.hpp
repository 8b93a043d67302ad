#pragma once

#include "TW/Exceptions.hpp"
#include "TW/OrderedIndex.hpp"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

namespace TW {

/// Values by key, in the order in which their keys were added; removing a key leaves the order of the others unchanged.
/// Texts are looked up by view. Adding and removing invalidate iterators and pointers to entries and values.
///
/// A table owns its entries; several threads may read it while none changes it. It holds fewer than 2^31 entries, more
/// throw `std::bad_alloc`. When adding or putting throws, the table holds what it held before, as long as moving an
/// entry that cannot be copied, or assigning a value, does not fail halfway.
template <class Key, class Value, class Hash = KeyHash<Key>, class Equal = std::equal_to<>>
class HashTable {
 public:
  using LookUp = typename KeyLookUp<Key>::Type;

  struct Entry {
    Entry(Key&& newKey, Value&& newValue) : key(std::move(newKey)), value(std::move(newValue)) {}

    Key key;
    Value value;

    friend bool operator==(const Entry&, const Entry&) = default;
  };

  /// An entry of a table that is not const: its value may be changed.
  struct EntryReference {
    explicit EntryReference(Entry& entry) noexcept : key(entry.key), value(entry.value) {}

    const Key& key;
    Value& value;
  };

 private:
  using Index = OrderedIndex<Entry, Key, Hash, Equal>;

 public:
  using Iterator = typename Index::template Iterator<EntryReference>;
  using ConstIterator = typename Index::template ConstIterator<const Entry&>;

  /// Adds an entry after the last, and gives true, unless the key is there already: then its first value stays.
  bool Add(Key key, Value value) { return index_.FindOrAdd(key, std::move(key), std::move(value)).second; }

  /// Adds an entry after the last, or replaces the value of a key that is there already, in its old place.
  void Put(Key key, Value value) {
    const auto [entry, added] = index_.FindOrAdd(key, std::move(key), std::move(value));
    // Moved from only when it was added. NOLINTNEXTLINE(bugprone-use-after-move)
    if (!added) entry->value = std::move(value);
  }

  /// The value of a key, or null.
  Value* Find(LookUp key) {
    Entry* entry = index_.Find(key);
    return entry == nullptr ? nullptr : std::addressof(entry->value);
  }
  const Value* Find(LookUp key) const { return const_cast<HashTable*>(this)->Find(key); }

  /// The value of a key; throws `IllegalReferenceException` when the key is not there.
  Value& Get(LookUp key) {
    Value* value = Find(key);
    if (value == nullptr) [[unlikely]]
      throw IllegalReferenceException();
    return *value;
  }
  const Value& Get(LookUp key) const { return const_cast<HashTable*>(this)->Get(key); }

  bool Contains(LookUp key) const { return index_.Find(key) != nullptr; }
  /// Gives whether the key was there. Any number of removals takes time linear in that number.
  bool Remove(LookUp key) { return index_.Remove(key); }

  unsigned int GetSize() const noexcept { return index_.GetSize(); }
  bool IsEmpty() const noexcept { return GetSize() == 0; }
  /// Removes everything and gives the memory back.
  void Clear() noexcept { Index().Swap(index_); }
  /// Makes room for so many entries in all.
  void Reserve(unsigned int count) { index_.Reserve(count); }
  void Swap(HashTable& other) noexcept { index_.Swap(other.index_); }
  friend void swap(HashTable& left, HashTable& right) noexcept { left.Swap(right); }

  Iterator begin() noexcept { return index_.template Begin<Iterator>(); }
  Iterator end() noexcept { return index_.template End<Iterator>(); }
  ConstIterator begin() const noexcept { return index_.template Begin<ConstIterator>(); }
  ConstIterator end() const noexcept { return index_.template End<ConstIterator>(); }

  /// Whether both hold the same keys with the same values in the same order.
  friend bool operator==(const HashTable& left, const HashTable& right) {
    return left.GetSize() == right.GetSize() && std::equal(left.begin(), left.end(), right.begin());
  }

 private:
  Index index_;
};

}  // namespace TW
