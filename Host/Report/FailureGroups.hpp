#pragma once

#include "Host/Report/FailureKey.hpp"
#include "Host/Report/ReportScope.hpp"
#include "TW/HashSet.hpp"
#include "TW/HashTable.hpp"
#include "TW/Optional.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Host {

/// Why chosen cells have no value: a failure of one property, with the elements that it befalls and the chosen
/// properties that fail only because of it.
struct FailureGroup {
  static constexpr std::size_t MaximumExamples = 3;

  FailureKey key;
  TW::Optional<PropertyIndex> missing;  ///< the property whose value is missing although it has not failed itself
  std::size_t elementCount = 0;
  std::vector<ElementIndex> examples;  ///< the first of them
  ElementIndex lastElement = 0;
  std::vector<PropertyIndex> consequences;
};

/// The reasons of all failures among the chosen cells, numbered from 1, those of one property beside each other. A
/// failure that follows from that of another property, chosen or not, has the number of that one.
///
/// Keeps a reference to the scope. One thread at a time.
class FailureGroups {
 public:
  /// Takes time linear in the number of chosen cells and of those that they depend on.
  explicit FailureGroups(const ReportScope& scope);

  const std::vector<FailureGroup>& GetList() const { return groups_; }
  /// The number of the reason why a chosen cell has failed; 0 when it has not. Comes soonest when the cells of an
  /// element are asked for one after another.
  std::size_t FindNumber(PropertyIndex property, ElementIndex element);

 private:
  using Number = std::size_t;

  void Take(PropertyIndex property, ElementIndex element);
  Number FindRoot(PropertyIndex property, ElementIndex element);
  Number GetGroup(PropertyIndex property, ElementIndex element, TW::Optional<PropertyIndex> cause);
  void Sort();

  const ReportScope& scope_;
  std::vector<FailureGroup> groups_;
  TW::HashTable<FailureKey, Number, FailureKeyHash> numbers_;
  TW::HashSet<std::uint64_t> consequences_;         ///< the number and the property in one
  TW::HashTable<PropertyIndex, Number> ofElement_;  ///< what is known of `element_`
  ElementIndex element_ = 0;
};

}  // namespace Host
