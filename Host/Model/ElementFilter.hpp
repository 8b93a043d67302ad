#pragma once

#include "Host/FailureReport.hpp"
#include "Host/FormulaReader.hpp"
#include "Host/PropertyTable.hpp"

#include <vector>

namespace Host {

/// The elements for which a condition holds, in order, and what became of the others.
struct FilteredElements {
  std::vector<ElementIndex> kept;
  ElementIndex undefinedCount = 0;  ///< elements for which the condition is user undefined
  ElementIndex failedCount = 0;     ///< elements for which it has no logical value
  TW::Optional<FailureReport> firstFailure;
};

/// Evaluates a condition that was read without error for every element. The table must be computed.
FilteredElements FilterElements(const PropertyTable& table, const ReadFormula& condition,
                                const EP::IParsingLocaleSettings& settings);

/// All elements of a table.
std::vector<ElementIndex> GetAllElements(const PropertyTable& table);

}  // namespace Host
