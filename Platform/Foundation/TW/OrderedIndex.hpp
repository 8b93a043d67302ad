#pragma once

#include "TW/UniString.hpp"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>

namespace TW {

/// How keys are handed to look-ups: by reference, texts as a view, so that a literal or a part of a text needs no copy.
template <class Key>
struct KeyLookUp {
  using Type = const Key&;
};
template <>
struct KeyLookUp<UniString> {
  using Type = std::u16string_view;
};

/// The hash that keys have unless told otherwise.
template <class Key>
using KeyHash = std::hash<std::remove_cvref_t<typename KeyLookUp<Key>::Type>>;

/// Walks over the cells of an `OrderedIndex` in order, passing over its gaps.
template <class Cell, class EntryReference>
class OrderedIterator {
 public:
  using value_type = std::remove_cvref_t<decltype(std::declval<Cell&>().entry)>;
  using reference = EntryReference;
  using difference_type = std::ptrdiff_t;
  using iterator_concept = std::forward_iterator_tag;
  using iterator_category = std::conditional_t<std::is_reference_v<EntryReference>, std::forward_iterator_tag,  //
                                               std::input_iterator_tag>;

  /// What `->` needs where the entry is not given by reference.
  struct Arrow {
    EntryReference entry;
    const std::remove_reference_t<EntryReference>* operator->() const noexcept { return std::addressof(entry); }
  };
  using pointer = Arrow;

  OrderedIterator() noexcept = default;
  OrderedIterator(Cell* cell, Cell* end) noexcept : cell_(cell), end_(end) {}

  EntryReference operator*() const noexcept { return static_cast<EntryReference>(cell_->entry); }
  Arrow operator->() const noexcept { return Arrow{**this}; }
  OrderedIterator& operator++() noexcept {
    do ++cell_;
    while (cell_ != end_ && cell_->hash == 0);
    return *this;
  }
  OrderedIterator operator++(int) noexcept {
    OrderedIterator before = *this;
    ++*this;
    return before;
  }
  friend bool operator==(const OrderedIterator& left, const OrderedIterator& right) noexcept {
    return left.cell_ == right.cell_;
  }

 private:
  Cell* cell_ = nullptr;
  Cell* end_ = nullptr;
};

/// What `HashTable` and `HashSet` have in common: entries in a dense array, in the order in which they were added, and
/// slots, probed one after the other, that lead from hashes to places in that array. An entry is either a key itself or
/// has it as the member `key`.
///
/// Removing an entry leaves a gap in the array. Gaps are closed, without changing the order of the rest, when the array
/// is full and when they have come to outweigh the entries.
template <class Entry, class Key, class Hash, class Equal>
class OrderedIndex {
  using LookUp = typename KeyLookUp<Key>::Type;

  struct Cell {
    template <class... Arguments>
    explicit Cell(std::uint32_t entryHash, Arguments&&... arguments)
        : hash(entryHash), entry(std::forward<Arguments>(arguments)...) {}
    ~Cell() {}

    std::uint32_t hash;  ///< 0 for a gap, whose entry is destroyed
    union {
      Entry entry;
    };
  };

  struct Slot {
    std::uint32_t hash = 0;  ///< 0 for an empty slot
    std::uint32_t position = 0;
  };

 public:
  template <class EntryReference>
  using Iterator = OrderedIterator<Cell, EntryReference>;
  template <class EntryReference>
  using ConstIterator = OrderedIterator<const Cell, EntryReference>;

  OrderedIndex() noexcept = default;
  OrderedIndex(const OrderedIndex& other) : OrderedIndex() {
    Reserve(other.size_);
    for (std::uint32_t i = other.first_; i < other.used_; ++i)
      if (const Cell& cell = other.cells_[i]; cell.hash != 0) Append(cell.hash, cell.entry);
  }
  OrderedIndex(OrderedIndex&& other) noexcept { Swap(other); }
  ~OrderedIndex() {
    if constexpr (!std::is_trivially_destructible_v<Entry>)
      for (std::uint32_t i = first_; i < used_; ++i)
        if (cells_[i].hash != 0) std::destroy_at(std::addressof(cells_[i].entry));
    if (cells_ != nullptr) std::allocator<Cell>().deallocate(cells_, capacity_);
  }
  OrderedIndex& operator=(const OrderedIndex& other) {
    OrderedIndex(other).Swap(*this);
    return *this;
  }
  OrderedIndex& operator=(OrderedIndex&& other) noexcept {
    OrderedIndex(std::move(other)).Swap(*this);
    return *this;
  }

  void Swap(OrderedIndex& other) noexcept {
    std::swap(slots_, other.slots_);
    std::swap(cells_, other.cells_);
    std::swap(mask_, other.mask_);
    std::swap(capacity_, other.capacity_);
    std::swap(first_, other.first_);
    std::swap(used_, other.used_);
    std::swap(size_, other.size_);
  }

  std::uint32_t GetSize() const noexcept { return size_; }

  template <class Walker>
  Walker Begin() const noexcept {
    return Walker(cells_ + first_, cells_ + used_);
  }
  template <class Walker>
  Walker End() const noexcept {
    return Walker(cells_ + used_, cells_ + used_);
  }

  Entry* Find(LookUp key) const {
    const Slot* slot = FindSlot(key, HashOf(key));
    return slot == nullptr ? nullptr : std::addressof(cells_[slot->position].entry);
  }

  /// Gives the entry of `key` and false, or makes one from the arguments, which are no part of this index, and gives it
  /// and true.
  template <class... Arguments>
  std::pair<Entry*, bool> FindOrAdd(LookUp key, Arguments&&... arguments) {
    const std::uint32_t hash = HashOf(key);
    if (const Slot* slot = FindSlot(key, hash)) return {std::addressof(cells_[slot->position].entry), false};
    if (used_ == capacity_) Grow();
    return {Append(hash, std::forward<Arguments>(arguments)...), true};
  }

  bool Remove(LookUp key) {
    Slot* slot = FindSlot(key, HashOf(key));
    if (slot == nullptr) return false;
    Cell& cell = cells_[slot->position];
    FreeSlot(static_cast<std::size_t>(slot - slots_.get()));
    cell.hash = 0;
    --size_;
    std::destroy_at(std::addressof(cell.entry));
    TrimGaps();
    return true;
  }

  void Reserve(std::uint32_t count) {
    if (count > MaximumSize) throw std::bad_alloc();
    if (count > capacity_ - (used_ - size_)) Rebuild(std::max(count, size_));
  }

 private:
  static constexpr std::uint32_t MaximumSize = (1U << 31) - 1;
  static constexpr std::size_t MinimumSlots = 8;

  // Hashes of pointers and whole numbers often are these themselves: every bit must come to reach the lowest.
  static std::uint32_t HashOf(LookUp key) {
    std::uint64_t mixed = Hash()(key);
    mixed = (mixed ^ (mixed >> 32)) * 0x9E3779B97F4A7C15U;
    mixed = (mixed ^ (mixed >> 32)) * 0xBF58476D1CE4E5B9U;
    return std::max(1U, static_cast<std::uint32_t>(mixed >> 32));
  }

  static LookUp GetKey(const Entry& entry) noexcept {
    if constexpr (std::is_same_v<Entry, Key>)
      return entry;
    else
      return entry.key;
  }

  std::size_t GetNext(std::size_t slot) const noexcept { return (slot + 1) & mask_; }

  // There is always an empty slot to stop at: the slots outnumber what the array has room for.
  Slot* FindSlot(LookUp key, std::uint32_t hash) const {
    if (size_ == 0) return nullptr;
    for (std::size_t i = hash & mask_; slots_[i].hash != 0; i = GetNext(i))
      if (slots_[i].hash == hash && Equal()(GetKey(cells_[slots_[i].position].entry), key)) return &slots_[i];
    return nullptr;
  }

  template <class... Arguments>
  Entry* Append(std::uint32_t hash, Arguments&&... arguments) {
    Cell* cell = std::construct_at(cells_ + used_, hash, std::forward<Arguments>(arguments)...);
    std::size_t free = hash & mask_;
    while (slots_[free].hash != 0) free = GetNext(free);
    slots_[free] = {hash, used_};
    ++used_;
    ++size_;
    return std::addressof(cell->entry);
  }

  // Moves the slots of the same run back, as far as their hashes allow, so that no search stops too early.
  void FreeSlot(std::size_t hole) noexcept {
    for (std::size_t i = GetNext(hole); slots_[i].hash != 0; i = GetNext(i)) {
      const std::size_t fromHome = (i - slots_[i].hash) & mask_;
      if (fromHome < ((i - hole) & mask_)) continue;
      slots_[hole] = slots_[i];
      hole = i;
    }
    slots_[hole] = Slot();
  }

  // Gaps at either end are given up at once, so that taking entries from an end never walks over them again.
  void TrimGaps() noexcept {
    while (used_ > first_ && cells_[used_ - 1].hash == 0) --used_;
    while (first_ < used_ && cells_[first_].hash == 0) ++first_;
    if (size_ == 0) first_ = used_ = 0;
    if constexpr (std::is_nothrow_move_constructible_v<Entry>)
      if (used_ - first_ > 4 * std::size_t{size_}) CloseGaps();
  }

  void CloseGaps() noexcept {
    std::uint32_t target = 0;
    for (std::uint32_t i = first_; i < used_; ++i) {
      const Cell& cell = cells_[i];
      if (cell.hash == 0) continue;
      if (i != target) MoveCell(i, target);
      ++target;
    }
    first_ = 0;
    used_ = target;
  }

  void MoveCell(std::uint32_t from, std::uint32_t to) noexcept {
    Cell& cell = cells_[from];
    std::size_t slot = cell.hash & mask_;
    while (slots_[slot].position != from || slots_[slot].hash == 0) slot = GetNext(slot);
    slots_[slot].position = to;
    std::construct_at(cells_ + to, cell.hash, std::move(cell.entry));
    std::destroy_at(std::addressof(cell.entry));
  }

  void Grow() {
    if (size_ == MaximumSize) throw std::bad_alloc();
    // Where a quarter of the array is gaps, closing them makes room enough.
    Rebuild(size_ > capacity_ - capacity_ / 4 ? std::min(capacity_ + 1, MaximumSize) : size_ + 1);
  }

  // Makes everything anew, without gaps and with room for so many entries at least; nothing has changed when that
  // fails.
  void Rebuild(std::uint32_t count) {
    OrderedIndex next;
    next.Allocate(std::max(count, capacity_));
    for (std::uint32_t i = first_; i < used_; ++i)
      if (Cell& cell = cells_[i]; cell.hash != 0) next.Append(cell.hash, std::move_if_noexcept(cell.entry));
    Swap(next);
  }

  void Allocate(std::uint32_t count) {
    const std::size_t slotCount = std::bit_ceil(std::max(MinimumSlots, (std::size_t{count} * 8 + 4) / 5));
    const std::size_t capacity = slotCount / 8 * 5;
    slots_ = std::make_unique<Slot[]>(slotCount);
    cells_ = std::allocator<Cell>().allocate(capacity);
    mask_ = slotCount - 1;
    capacity_ = static_cast<std::uint32_t>(capacity);
  }

  std::unique_ptr<Slot[]> slots_;
  Cell* cells_ = nullptr;
  std::size_t mask_ = 0;
  std::uint32_t capacity_ = 0;
  std::uint32_t first_ = 0;  ///< the first entry; there are only gaps before it
  std::uint32_t used_ = 0;   ///< entries and gaps; the last of them is an entry
  std::uint32_t size_ = 0;
};

}  // namespace TW
