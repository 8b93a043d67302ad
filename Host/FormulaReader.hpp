#pragma once

#include "EP/LocaleSettings.hpp"
#include "Host/FormulaError.hpp"
#include "Host/PropertyCatalog.hpp"
#include "Quorix/Expression.hpp"
#include "TW/Optional.hpp"
#include "TW/Range.hpp"

#include <string_view>
#include <vector>

namespace Host {

/// A property that a formula refers to, and where the text that was typed names it.
struct FormulaReference {
  PropertyIndex property = 0;
  TW::Range<unsigned int> range;
};

/// A formula with what became of its text.
struct ReadFormula {
  QX::Expression expression;                 ///< refers to properties by GUID
  std::vector<FormulaReference> references;  ///< each property once, in the order of the text
  TW::Optional<FormulaError> error;          ///< the first from the left; then there is no expression
};

/// Reads a formula in which properties are named, `[Width]` or `[Group.Width]`, or given as `[Property:GUID]`.
ReadFormula ReadFormulaWithNames(std::u16string_view typed, const EP::IParsingLocaleSettings& settings,
                                 const PropertyCatalog& catalog);

}  // namespace Host
