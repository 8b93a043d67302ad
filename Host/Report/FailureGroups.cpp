#include "Host/Report/FailureGroups.hpp"

#include "Host/Explanation.hpp"

#include <algorithm>
#include <tuple>
#include <utility>

namespace Host {

FailureGroups::FailureGroups(const ReportScope& scope) : scope_(scope) {
  for (const ElementIndex element : scope.elements) {
    for (const PropertyIndex property : scope.properties) {
      if (scope.table.GetStatus(property, element) == CellStatus::Failed) Take(property, element);
    }
  }
  Sort();
}

void FailureGroups::Take(PropertyIndex property, ElementIndex element) {
  const Number number = FindRoot(property, element);
  FailureGroup& group = groups_[number - 1];
  if (group.elementCount == 0 || group.lastElement != element) {
    ++group.elementCount;
    group.lastElement = element;
    if (group.examples.size() < FailureGroup::MaximumExamples) group.examples.push_back(element);
  }
  if (property == group.key.property || !consequences_.Add(std::uint64_t{number} << 32 | property)) return;
  group.consequences.push_back(property);
}

FailureGroups::Number FailureGroups::FindNumber(PropertyIndex property, ElementIndex element) {
  return scope_.table.GetStatus(property, element) == CellStatus::Failed ? FindRoot(property, element) : 0;
}

FailureGroups::Number FailureGroups::FindRoot(PropertyIndex property, ElementIndex element) {
  if (std::exchange(element_, element) != element) ofElement_.Clear();
  std::vector<PropertyIndex> way{property};
  Number number = 0;
  while (number == 0) {
    const Number* known = ofElement_.Find(way.back());
    const auto cause = known == nullptr ? FindCause(scope_.table, way.back(), element) : std::nullopt;
    if (known != nullptr) {
      number = *known;
    } else if (cause && scope_.table.GetStatus(*cause, element) == CellStatus::Failed) {
      way.push_back(*cause);
    } else {
      number = GetGroup(way.back(), element, cause);
    }
  }
  for (const PropertyIndex step : way) ofElement_.Put(step, number);
  return number;
}

FailureGroups::Number FailureGroups::GetGroup(PropertyIndex property, ElementIndex element,
                                              TW::Optional<PropertyIndex> cause) {
  FailureKey key{property, *scope_.table.FindFailure(property, element)};
  if (cause) key.cause = scope_.table.GetStatus(*cause, element);
  if (const Number* number = numbers_.Find(key)) return *number;
  FailureGroup& group = groups_.emplace_back();
  group.key = key;
  group.missing = cause;
  numbers_.Add(key, groups_.size());
  return groups_.size();
}

// Those of chosen properties come in the order of these, the others behind them.
void FailureGroups::Sort() {
  TW::HashTable<PropertyIndex, std::size_t> places;
  for (const PropertyIndex property : scope_.properties) places.Add(property, places.GetSize());
  // No element has two of them for one property.
  const auto getPlace = [&](const FailureGroup& group) {
    const std::size_t* place = places.Find(group.key.property);
    return std::tuple(place != nullptr ? *place : places.GetSize(), group.key.property, group.examples.front());
  };
  std::ranges::sort(groups_, {}, getPlace);
  for (std::size_t i = 0; i < groups_.size(); ++i) numbers_.Put(groups_[i].key, i + 1);
  ofElement_.Clear();
  consequences_.Clear();
}

}  // namespace Host
