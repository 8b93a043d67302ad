#pragma once

#include "Host/PropertyDefinition.hpp"

#include <boost/container/small_vector.hpp>

#include <span>
#include <vector>

namespace Host {

/// Which property is computed from which. The graph never holds a cycle.
///
/// Each property has a rank, which is above the ranks of what it is computed from. Ranks are found anew only when a
/// change has put them out of order.
class DependencyGraph {
 public:
  /// Makes room, so that `AddProperty` cannot fail.
  void MakeRoomForProperty();
  /// Adds a property that is computed from nothing.
  void AddProperty();

  /// Replaces what a property is computed from, each named once. Where that would close a cycle, changes nothing and
  /// gives it, from the property back to the property, each followed by one of its precedents; otherwise gives nothing.
  /// Takes time by the smaller of what depends on the property and what the new precedents depend on. What throws
  /// changes nothing.
  std::vector<PropertyIndex> SetPrecedents(PropertyIndex property, std::span<const PropertyIndex> precedents);

  std::span<const PropertyIndex> GetPrecedents(PropertyIndex property) const { return View(precedents_[property]); }
  std::span<const PropertyIndex> GetDependents(PropertyIndex property) const { return View(dependents_[property]); }

  /// Brings the ranks in order. Takes time linear in the graph when a change has put them out of order.
  void UpdateRanks();
  /// The rank of a property, and the property of a rank, as `UpdateRanks` left them.
  unsigned int GetRank(PropertyIndex property) const { return ranks_[property]; }
  PropertyIndex GetPropertyAt(unsigned int rank) const { return order_[rank]; }

  /// Everything that is computed from the property, directly or not, each before what is computed from it.
  std::vector<PropertyIndex> CollectDependents(PropertyIndex property) const;

 private:
  // Most properties have few neighbours.
  using Neighbours = boost::container::small_vector<PropertyIndex, 2>;
  using Adjacency = std::vector<Neighbours>;
  class Search;

  static std::span<const PropertyIndex> View(const Neighbours& list) { return {list.data(), list.size()}; }
  bool KeepsOrder(PropertyIndex property, std::span<const PropertyIndex> precedents) const;
  std::vector<PropertyIndex> FindCycle(PropertyIndex property, std::span<const PropertyIndex> precedents) const;

  Adjacency precedents_;
  Adjacency dependents_;
  std::vector<unsigned int> ranks_;
  std::vector<PropertyIndex> order_;  ///< the properties by rank
  bool inOrder_ = true;
};

}  // namespace Host
