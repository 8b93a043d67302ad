#include "Host/Report/CellReason.hpp"

#include "Host/Report/ReportTexts.hpp"

namespace Host {
namespace {

// What is wrong where the trouble began; for a failure, the message alone.
TW::UniString MakeRootReason(const ReportScope& scope, PropertyIndex property, ElementIndex element) {
  const TW::UniString& name = scope.table.GetCatalog().Get(property).name;
  switch (scope.table.GetStatus(property, element)) {
    case CellStatus::Failed:
      return scope.table.GetFailureReport(property, element, scope.display.GetLocale())->message;
    case CellStatus::Absent:
      return MakeText(ReportText::DoesNotApply, name);
    case CellStatus::NotComputed:
      return MakeText(ReportText::HasNoValue, name);
    default:
      return MakeText(scope.table.HasFormula(property) ? ReportText::UndefinedByFormula : ReportText::UndefinedItself,
                      name);
  }
}

}  // namespace

TW::UniString MakeReason(const ReportScope& scope, std::span<const PropertyIndex> way, ElementIndex element) {
  if (way.empty()) return {};
  const PropertyCatalog& catalog = scope.table.GetCatalog();
  const TW::UniString& name = catalog.Get(way.front()).name;
  const TW::UniString reason = MakeRootReason(scope, way.back(), element);
  const CellStatus status = scope.table.GetStatus(way.front(), element);
  if (way.size() == 1) {
    return status == CellStatus::Failed ? MakeText(ReportText::FailedItself, name, reason) : reason;
  }
  const ReportText text = status == CellStatus::Failed ? ReportText::FailedBecause : ReportText::UndefinedBecause;
  return MakeText(text, name, catalog.Get(way.back()).name, reason);
}

}  // namespace Host
