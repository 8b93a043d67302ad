#include "Host/Report/FailureExcerpt.hpp"

#include "Host/FormulaText.hpp"
#include "Host/Screen/Excerpt.hpp"

namespace Host {

void AppendFailureExcerpt(std::string& out, std::string_view indentation, const ReportScope& scope,
                          PropertyIndex property, const Failure& failure, const FailureReport& report) {
  const QX::Expression* formula = scope.table.FindFormula(property);
  if (formula == nullptr) return;
  ExcerptPlace place;
  // Where no node is at fault, nothing is underlined rather than everything.
  if (failure.node != nullptr) {
    place.span = report.span;
    place.core = FindPieces(*formula->GetRoot(), *failure.node, scope.display.GetLocale(), scope.table.GetCatalog());
  }
  AppendExcerpt(out, indentation, report.formula, place);
}

}  // namespace Host
