#include "Host/PendingCells.hpp"

#include "Host/Room.hpp"

#include <algorithm>
#include <functional>
#include <new>

namespace Host {
namespace {

constexpr std::size_t MaximumCellCount = 1U << 20U;
constexpr unsigned int RankShift = 32;

std::uint64_t MakeKey(unsigned int rank, const TW::Optional<ElementIndex>& element) {
  return (std::uint64_t{rank} << RankShift) | (element ? std::uint64_t{*element} + 1 : 0);
}

}  // namespace

// There is always room for every column.
void PendingCells::MakeRoomForProperty() {
  MakeRoom(isWholeColumn_, 1);
  MakeRoom(columns_, isWholeColumn_.size() + 1 - columns_.size());
}

void PendingCells::AddProperty() {
  MakeRoomForProperty();
  isWholeColumn_.push_back(false);
}

void PendingCells::MarkColumn(PropertyIndex property) noexcept {
  if (isWholeColumn_[property]) return;
  isWholeColumn_[property] = true;
  columns_.push_back(property);
}

void PendingCells::MarkCell(PropertyIndex property, ElementIndex element) noexcept {
  if (isWholeColumn_[property]) return;
  try {
    cells_.push_back({property, element});
  } catch (const std::bad_alloc&) {
    return MarkColumn(property);
  }
  if (cells_.size() <= MaximumCellCount) return;
  for (const Cell& cell : cells_) MarkColumn(cell.property);
  cells_.clear();
}

void PendingCells::Mark(PropertyIndex property, const Cell& cause, const DependencyGraph& graph) {
  Push(MakeKey(graph.GetRank(property), cause.element));
}

void PendingCells::Sort(const DependencyGraph& graph) {
  heap_.clear();
  heap_.reserve(columns_.size() + cells_.size());
  last_.reset();
  for (const PropertyIndex property : columns_) {
    isWholeColumn_[property] = false;
    heap_.push_back(MakeKey(graph.GetRank(property), std::nullopt));
  }
  for (const Cell& cell : cells_) heap_.push_back(MakeKey(graph.GetRank(cell.property), cell.element));
  columns_.clear();
  cells_.clear();
  std::ranges::make_heap(heap_, std::greater<>());
}

TW::Optional<PendingCells::Cell> PendingCells::Take(const DependencyGraph& graph) {
  while (!heap_.empty()) {
    std::ranges::pop_heap(heap_, std::greater<>());
    const Key key = heap_.back();
    heap_.pop_back();
    const auto rank = static_cast<unsigned int>(key >> RankShift);
    const bool isDone = last_ && (*last_ == key || *last_ == MakeKey(rank, std::nullopt));
    if (isDone) continue;
    last_ = key;
    const auto number = static_cast<ElementIndex>(key);
    const PropertyIndex property = graph.GetPropertyAt(rank);
    return number == 0 ? Cell{property, std::nullopt} : Cell{property, number - 1};
  }
  return std::nullopt;
}

void PendingCells::Push(Key key) {
  heap_.push_back(key);
  std::ranges::push_heap(heap_, std::greater<>());
}

}  // namespace Host
