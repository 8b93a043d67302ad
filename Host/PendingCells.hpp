#pragma once

#include "Host/DependencyGraph.hpp"
#include "Host/PropertyDefinition.hpp"
#include "TW/Optional.hpp"

#include <cstdint>
#include <vector>

namespace Host {

/// Which cells are to be computed: single ones, or whole columns. Takes memory for so many single cells at most; beyond
/// that, and where there is no memory, their columns are computed as a whole.
class PendingCells {
 public:
  struct Cell {
    PropertyIndex property = 0;
    TW::Optional<ElementIndex> element;  ///< every element when there is none
  };

  /// Makes room, so that `AddProperty` cannot fail.
  void MakeRoomForProperty();
  void AddProperty();
  void MarkColumn(PropertyIndex property) noexcept;
  void MarkCell(PropertyIndex property, ElementIndex element) noexcept;
  /// While cells are taken: as the two above, for properties of higher rank than the cell taken last.
  void Mark(PropertyIndex property, const Cell& cause, const DependencyGraph& graph);

  /// Makes ready for `Take`: `graph` has its ranks in order. What throws changes nothing.
  void Sort(const DependencyGraph& graph);
  /// The next in the order of ranks; each once, and none of a column that is taken as a whole. Nothing when all are
  /// taken.
  TW::Optional<Cell> Take(const DependencyGraph& graph);

 private:
  // The rank, and below it the element counted from 1, or 0 for the whole column, which so comes first.
  using Key = std::uint64_t;

  void Push(Key key);

  std::vector<Cell> cells_;
  std::vector<PropertyIndex> columns_;
  std::vector<bool> isWholeColumn_;
  std::vector<Key> heap_;
  TW::Optional<Key> last_;
};

}  // namespace Host
