#pragma once

#include "EP/LocaleSettings.hpp"
#include "Host/FormulaError.hpp"
#include "Host/FormulaText.hpp"
#include "Host/PropertyCatalog.hpp"
#include "Quorix/Expression.hpp"
#include "TW/Optional.hpp"

#include <string_view>

namespace Host {

/// A formula with what became of its text.
struct ReadFormula {
  QX::Expression expression;
  ResolvedFormulaText text;
  TW::Optional<FormulaError> error;  ///< then there is no expression
};

/// Reads a formula in which properties are named, `[Width]` or `[Group.Width]`, or given as `[Property:GUID]`.
ReadFormula ReadFormulaWithNames(std::u16string_view typed, const EP::IParsingLocaleSettings& settings,
                                 const PropertyCatalog& catalog);

}  // namespace Host
