#include "Host/Explanation.hpp"

#include "Host/PropertyTable.hpp"
#include "Quorix/PropertyDirectReferenceCollector.hpp"

namespace Host {
namespace {

// The property whose missing value made a formula fail; nothing when an operation failed.
TW::Optional<PropertyIndex> FindFailingPrecedent(const PropertyTable& table, const Failure& failure) {
  if (failure.node == nullptr) return std::nullopt;
  QX::PropertyDirectReferenceCollector collector;
  failure.node->CollectReferences(collector);
  for (const TW::Guid& id : collector.GetReferencedProperties()) {
    if (const PropertyIndex* property = table.GetCatalog().FindById(id)) return *property;
  }
  return std::nullopt;
}

TW::Optional<PropertyIndex> FindUndefinedPrecedent(const PropertyTable& table, PropertyIndex property,
                                                   ElementIndex element) {
  for (const PropertyIndex precedent : table.GetGraph().GetPrecedents(property)) {
    if (table.GetStatus(precedent, element) == CellStatus::Undefined) return precedent;
  }
  return std::nullopt;
}

}  // namespace

TW::Optional<PropertyIndex> FindCause(const PropertyTable& table, PropertyIndex property, ElementIndex element) {
  if (const Failure* failure = table.FindFailure(property, element)) return FindFailingPrecedent(table, *failure);
  const bool isUndefined = table.GetStatus(property, element) == CellStatus::Undefined;
  return isUndefined ? FindUndefinedPrecedent(table, property, element) : std::nullopt;
}

std::vector<PropertyIndex> ExplainCell(const PropertyTable& table, PropertyIndex property, ElementIndex element) {
  std::vector<PropertyIndex> way;
  const bool isInTable = property < table.GetCatalog().GetCount() && element < table.GetElementCount();
  if (!isInTable || table.GetStatus(property, element) == CellStatus::Defined) return way;
  way.push_back(property);
  while (const TW::Optional<PropertyIndex> culprit = FindCause(table, way.back(), element)) way.push_back(*culprit);
  return way;
}

}  // namespace Host
