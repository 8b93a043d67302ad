#include "Host/Model/ElementFilter.hpp"

#include "Host/CellEvaluation.hpp"
#include "Host/ElementEnvironment.hpp"

#include <numeric>

namespace Host {

FilteredElements FilterElements(const PropertyTable& table, const ReadFormula& condition,
                                const EP::IParsingLocaleSettings& settings) {
  FilteredElements filtered;
  for (ElementIndex element = 0; element < table.GetElementCount(); ++element) {
    const ElementEnvironment environment(table, element);
    const CellResult result = EvaluateCell(condition.expression, environment, PropertyKind::Logical);
    if (result.failure) {
      if (filtered.failedCount++ == 0) {
        filtered.firstFailure =
            ReportFailure(*result.failure, condition.expression, PropertyKind::Logical, table.GetCatalog(), settings);
      }
    } else if (result.value.IsUserUndefined()) {
      ++filtered.undefinedCount;
    } else if (result.value.GetAsBool()) {
      filtered.kept.push_back(element);
    }
  }
  return filtered;
}

std::vector<ElementIndex> GetAllElements(const PropertyTable& table) {
  std::vector<ElementIndex> all(table.GetElementCount());
  std::iota(all.begin(), all.end(), ElementIndex{0});
  return all;
}

}  // namespace Host
