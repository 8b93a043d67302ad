#pragma once

#include "EP/LocaleSettings.hpp"
#include "Host/Column.hpp"
#include "Host/DependencyGraph.hpp"
#include "Host/EvaluationSettings.hpp"
#include "Host/FailureReport.hpp"
#include "Host/FormulaError.hpp"
#include "Host/PendingCells.hpp"
#include "Host/PropertyCatalog.hpp"
#include "Quorix/Expression.hpp"
#include "Quorix/ExpressionEvaluationEnv.hpp"
#include "TW/Optional.hpp"

#include <cstddef>
#include <functional>
#include <limits>
#include <string_view>
#include <vector>

namespace Host {

/// Is told how many cells were computed so far.
using RecalculationProgress = std::function<void(std::size_t computed)>;

/// The properties of a building model: a column for each property, a row for each element. The values of a property are
/// inputs, or its formula computes them from other properties of the same element.
///
/// A change that throws, which is `std::bad_alloc`, has changed nothing.
///
/// Changes only note what has to be computed; `Recalculate` computes it, and until then cells show what was computed
/// before. One thread changes a table; any number may read it while none does. Indices that the table has not given out
/// are refused by what changes, and what reads answers them as it answers for a cell that is not computed.
class PropertyTable final : public QX::IExpressionReferenceResolver {
 public:
  /// How many units a text may have that a formula, or a function within it, computes. A longer one fails, so that
  /// formulas which multiply texts do not use up the memory.
  static constexpr unsigned int LongestText = 1U << 20U;
  static constexpr ElementIndex MaximumElementCount = std::numeric_limits<ElementIndex>::max() - 1;

  explicit PropertyTable(EvaluationSettings settings = {}) : settings_(std::move(settings)) {}
  PropertyTable(const PropertyTable&) = delete;
  PropertyTable& operator=(const PropertyTable&) = delete;

  /// Adds a property, whose values are inputs, user undefined where a kind is declared. Nothing when the GUID is null,
  /// the name is empty, or the GUID or the name within its group is taken.
  TW::Optional<PropertyIndex> Define(PropertyDefinition definition);
  /// Gives false when the name is empty or taken within the group. No formula changes: they name properties by GUID.
  bool Rename(PropertyIndex property, const TW::UniString& name, const TW::UniString& group);
  /// Adds elements and gives the first. There can be `MaximumElementCount` of them; more throw `std::bad_alloc`.
  ElementIndex AddElements(ElementIndex count);

  /// Makes the values of a property those of a formula, typed in the given separators, in which properties are named
  /// `[Width]`, `[Group.Width]` or `[Property:GUID]`. On an error the property stays as it is.
  TW::Optional<FormulaError> SetFormula(PropertyIndex property, std::u16string_view text,
                                        const EP::IParsingLocaleSettings& settings);
  /// Makes the values of a property inputs, as if it were new.
  bool RemoveFormula(PropertyIndex property);
  /// Sets an input. Gives false when the property has a formula or the value is invalid or of another kind.
  bool SetInput(PropertyIndex property, ElementIndex element, QX::ExpressionValue value);
  /// Makes an input one that has failed, because its source holds no value of its kind. Gives false when the property
  /// has a formula.
  bool SetInputFailed(PropertyIndex property, ElementIndex element);
  /// Says whether a property, input or formula, applies to an element; where it does not, the cell is absent. What is
  /// new applies.
  bool SetApplies(PropertyIndex property, ElementIndex element, bool applies);
  void SetSettings(EvaluationSettings settings);

  /// Computes the cells that depend on what has changed, and no others, each after those that it depends on. Gives
  /// their number. Nothing that a formula does is thrown: one that finds too little memory fails, and is computed again
  /// the next time. `progress` is told how many there were so far, after each column and each single cell; it must not
  /// change the table. Throws what `progress` throws, and `std::bad_alloc` when the cells themselves find no memory;
  /// then the next time computes them all.
  std::size_t Recalculate(const RecalculationProgress& progress = {});

  const PropertyCatalog& GetCatalog() const { return catalog_; }
  const DependencyGraph& GetGraph() const { return graph_; }
  const EvaluationSettings& GetSettings() const { return settings_; }
  ElementIndex GetElementCount() const { return elementCount_; }

  bool HasFormula(PropertyIndex property) const { return FindFormula(property) != nullptr; }
  /// The formula of a property, or null for an input.
  const QX::Expression* FindFormula(PropertyIndex property) const;
  /// The text of a formula, in which properties have their present names; empty for an input.
  TW::UniString GetFormulaText(PropertyIndex property, const EP::IParsingLocaleSettings& settings) const;

  CellStatus GetStatus(PropertyIndex property, ElementIndex element) const;
  /// The value of a cell, invalid when it has none.
  QX::ExpressionValue GetValue(PropertyIndex property, ElementIndex element) const;
  /// Why a cell has failed, or null. The answer lives until the table changes.
  const Failure* FindFailure(PropertyIndex property, ElementIndex element) const;
  /// The same for people; nothing for a cell that has not failed.
  TW::Optional<FailureReport> GetFailureReport(PropertyIndex property, ElementIndex element,
                                               const EP::IParsingLocaleSettings& settings) const;

  TW::HashSet<TW::Guid> GetDirectReferences(const TW::Guid& propertyId) const override;

 private:
  bool HasCell(PropertyIndex property, ElementIndex element) const {
    return property < catalog_.GetCount() && element < elementCount_;
  }
  FormulaError MakeCycleError(std::vector<PropertyIndex> cycle, TW::Range<unsigned int> range) const;
  void FillInputs(PropertyIndex property, ElementIndex first);
  void MarkFormulas() noexcept;
  void MarkDependents(PropertyIndex property);
  void MarkDependents(PropertyIndex property, ElementIndex element);
  void Compute(const PendingCells::Cell& cell, std::size_t& count);
  bool ComputeColumn(PropertyIndex property, std::size_t& count);
  bool ComputeCell(PropertyIndex property, ElementIndex element, std::size_t& count);

  EvaluationSettings settings_;
  PropertyCatalog catalog_;
  DependencyGraph graph_;
  PendingCells pending_;
  std::vector<QX::Expression> formulas_;  ///< by property; without a tree for inputs
  std::vector<Column> columns_;
  ElementIndex elementCount_ = 0;
};

}  // namespace Host
