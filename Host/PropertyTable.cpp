#include "Host/PropertyTable.hpp"

#include "Host/CellEvaluation.hpp"
#include "Host/ElementEnvironment.hpp"
#include "Host/FormulaReader.hpp"
#include "Host/FormulaText.hpp"
#include "Host/Room.hpp"
#include "Host/TableTexts.hpp"

#include <algorithm>
#include <new>
#include <utility>

namespace Host {

TW::Optional<PropertyIndex> PropertyTable::Define(PropertyDefinition definition) {
  Column column(definition.kind);
  column.Resize(elementCount_);
  MakeRoom(columns_, 1);
  MakeRoom(formulas_, 1);
  graph_.MakeRoomForProperty();
  pending_.MakeRoomForProperty();
  const TW::Optional<PropertyIndex> property = catalog_.Add(std::move(definition));
  if (!property) return std::nullopt;
  // From here on nothing fails.
  graph_.AddProperty();
  pending_.AddProperty();
  formulas_.emplace_back();
  columns_.push_back(std::move(column));
  FillInputs(*property, 0);
  return property;
}

bool PropertyTable::Rename(PropertyIndex property, const TW::UniString& name, const TW::UniString& group) {
  return catalog_.Rename(property, name, group);
}

ElementIndex PropertyTable::AddElements(ElementIndex count) {
  if (count > MaximumElementCount - elementCount_) throw std::bad_alloc();
  for (Column& column : columns_) column.MakeRoomFor(elementCount_ + count);
  // From here on nothing fails.
  const ElementIndex first = std::exchange(elementCount_, elementCount_ + count);
  for (PropertyIndex property = 0; property < columns_.size(); ++property) {
    columns_[property].Resize(elementCount_);
    if (!HasFormula(property)) {
      FillInputs(property, first);
    } else if (count == 1) {
      pending_.MarkCell(property, first);
    } else {
      pending_.MarkColumn(property);
    }
  }
  return first;
}

TW::Optional<FormulaError> PropertyTable::SetFormula(PropertyIndex property, std::u16string_view text,
                                                     const EP::IParsingLocaleSettings& settings) {
  if (property >= catalog_.GetCount()) {
    return FormulaError{FormulaErrorKind::NoSuchProperty, {}, MakeText(TableText::NoSuchProperty), std::nullopt, {}};
  }
  ReadFormula read = ReadFormulaWithNames(text, settings, catalog_);
  if (read.error) return std::move(read.error);
  std::vector<PropertyIndex> precedents;
  precedents.reserve(read.references.size());
  for (const FormulaReference& reference : read.references) precedents.push_back(reference.property);
  std::vector<PropertyIndex> cycle = graph_.SetPrecedents(property, precedents);
  if (!cycle.empty()) {
    const auto culprit = std::ranges::find(read.references, cycle[1], &FormulaReference::property);
    return MakeCycleError(std::move(cycle), culprit->range);
  }
  columns_[property].Clear();
  formulas_[property] = std::move(read.expression);
  pending_.MarkColumn(property);
  return std::nullopt;
}

FormulaError PropertyTable::MakeCycleError(std::vector<PropertyIndex> cycle, TW::Range<unsigned int> range) const {
  TW::UniString way;
  for (const PropertyIndex property : cycle) {
    if (!way.IsEmpty()) way += u" \u2192 ";
    way += catalog_.MakeReference(property);
  }
  TW::UniString message = MakeText(TableText::Cycle, way);
  return {FormulaErrorKind::Cycle, range, std::move(message), std::nullopt, std::move(cycle)};
}

bool PropertyTable::RemoveFormula(PropertyIndex property) {
  if (!HasFormula(property)) return false;
  graph_.SetPrecedents(property, {});
  columns_[property].Clear();
  formulas_[property] = QX::Expression();
  FillInputs(property, 0);
  MarkDependents(property);
  return true;
}

bool PropertyTable::SetInput(PropertyIndex property, ElementIndex element, QX::ExpressionValue value) {
  if (!HasCell(property, element) || HasFormula(property) || !value.IsValid()) return false;
  const TW::Optional<PropertyKind> kind = catalog_.Get(property).kind;
  if (kind && !FitToKind(value, *kind)) return false;
  if (columns_[property].SetValue(element, value)) MarkDependents(property, element);
  return true;
}

bool PropertyTable::SetInputFailed(PropertyIndex property, ElementIndex element) {
  if (!HasCell(property, element) || HasFormula(property)) return false;
  if (columns_[property].SetFailure(element, {nullptr, 0, FailureKind::WrongKind})) MarkDependents(property, element);
  return true;
}

bool PropertyTable::SetApplies(PropertyIndex property, ElementIndex element, bool applies) {
  if (!HasCell(property, element)) return false;
  Column& column = columns_[property];
  if (applies == (column.GetStatus(element) != CellStatus::Absent)) return true;
  const TW::Optional<PropertyKind> kind = catalog_.Get(property).kind;
  if (!applies) {
    column.SetAbsent(element);
  } else if (HasFormula(property) || !kind) {
    column.SetNotComputed(element);
  } else {
    column.SetValue(element, MakeUndefinedValue(*kind));
  }
  if (applies && HasFormula(property)) pending_.MarkCell(property, element);
  MarkDependents(property, element);
  return true;
}

void PropertyTable::SetSettings(EvaluationSettings settings) {
  settings_ = std::move(settings);
  MarkFormulas();
}

void PropertyTable::MarkFormulas() noexcept {
  for (PropertyIndex property = 0; property < columns_.size(); ++property) {
    if (HasFormula(property)) pending_.MarkColumn(property);
  }
}

void PropertyTable::FillInputs(PropertyIndex property, ElementIndex first) {
  const TW::Optional<PropertyKind> kind = catalog_.Get(property).kind;
  if (!kind) return;
  const QX::ExpressionValue undefined = MakeUndefinedValue(*kind);
  for (ElementIndex element = first; element < elementCount_; ++element) {
    if (columns_[property].GetStatus(element) != CellStatus::Absent) columns_[property].SetValue(element, undefined);
  }
}

void PropertyTable::MarkDependents(PropertyIndex property) {
  for (const PropertyIndex dependent : graph_.GetDependents(property)) pending_.MarkColumn(dependent);
}

void PropertyTable::MarkDependents(PropertyIndex property, ElementIndex element) {
  for (const PropertyIndex dependent : graph_.GetDependents(property)) pending_.MarkCell(dependent, element);
}

std::size_t PropertyTable::Recalculate(const RecalculationProgress& progress) {
  std::size_t count = 0;
  graph_.UpdateRanks();
  pending_.Sort(graph_);
  try {
    while (const TW::Optional<PendingCells::Cell> cell = pending_.Take(graph_)) {
      Compute(*cell, count);
      if (progress) progress(count);
    }
  } catch (...) {
    MarkFormulas();
    throw;
  }
  return count;
}

void PropertyTable::Compute(const PendingCells::Cell& cell, std::size_t& count) {
  if (!HasFormula(cell.property)) return;
  const bool changed =
      cell.element ? ComputeCell(cell.property, *cell.element, count) : ComputeColumn(cell.property, count);
  if (!changed) return;
  for (const PropertyIndex dependent : graph_.GetDependents(cell.property)) pending_.Mark(dependent, cell, graph_);
}

bool PropertyTable::ComputeColumn(PropertyIndex property, std::size_t& count) {
  bool changed = false;
  for (ElementIndex element = 0; element < elementCount_; ++element) {
    changed = ComputeCell(property, element, count) || changed;
  }
  return changed;
}

bool PropertyTable::ComputeCell(PropertyIndex property, ElementIndex element, std::size_t& count) {
  Column& column = columns_[property];
  if (column.GetStatus(element) == CellStatus::Absent) return false;
  ++count;
  const ElementEnvironment environment(*this, element, graph_.GetPrecedents(property));
  const CellResult result = EvaluateCell(formulas_[property], environment, catalog_.Get(property).kind);
  if (result.hasLackedMemory || environment.HasLackedMemory()) pending_.MarkCell(property, element);
  return result.failure ? column.SetFailure(element, *result.failure) : column.SetValue(element, result.value);
}

const QX::Expression* PropertyTable::FindFormula(PropertyIndex property) const {
  return property < formulas_.size() && formulas_[property].IsValid() ? &formulas_[property] : nullptr;
}

TW::UniString PropertyTable::GetFormulaText(PropertyIndex property, const EP::IParsingLocaleSettings& settings) const {
  const QX::Expression* formula = FindFormula(property);
  return formula != nullptr ? RenderWithNames(*formula->GetRoot(), settings, catalog_).GetFullString()
                            : TW::UniString();
}

CellStatus PropertyTable::GetStatus(PropertyIndex property, ElementIndex element) const {
  return HasCell(property, element) ? columns_[property].GetStatus(element) : CellStatus::NotComputed;
}

QX::ExpressionValue PropertyTable::GetValue(PropertyIndex property, ElementIndex element) const {
  return HasCell(property, element) ? columns_[property].GetValue(element) : QX::ExpressionValue::CreateInvalid();
}

const Failure* PropertyTable::FindFailure(PropertyIndex property, ElementIndex element) const {
  return HasCell(property, element) ? columns_[property].GetFailure(element) : nullptr;
}

TW::Optional<FailureReport> PropertyTable::GetFailureReport(PropertyIndex property, ElementIndex element,
                                                            const EP::IParsingLocaleSettings& settings) const {
  const Failure* failure = FindFailure(property, element);
  if (failure == nullptr) return std::nullopt;
  return ReportFailure(*failure, formulas_[property], catalog_.Get(property).kind, catalog_, settings);
}

TW::HashSet<TW::Guid> PropertyTable::GetDirectReferences(const TW::Guid& propertyId) const {
  TW::HashSet<TW::Guid> references;
  const PropertyIndex* property = catalog_.FindById(propertyId);
  if (property == nullptr) return references;
  for (const PropertyIndex precedent : graph_.GetPrecedents(*property)) references.Add(catalog_.Get(precedent).id);
  return references;
}

}  // namespace Host
