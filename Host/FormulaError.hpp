#pragma once

#include "EP/SyntaxErrorException.hpp"
#include "Host/PropertyDefinition.hpp"
#include "TW/Optional.hpp"
#include "TW/Range.hpp"
#include "TW/UniString.hpp"

#include <vector>

namespace Host {

/// Why a text was not taken as the formula of a property.
enum class FormulaErrorKind {
  NoSuchProperty,  ///< the property that was to have the formula is not in the table
  Syntax,          ///< the text is no formula
  UnknownName,     ///< a reference names no property
  AmbiguousName,   ///< a reference names several properties
  Cycle,           ///< the property would depend on itself
};

/// The reason and the place, in 16-bit code units of the text that was written.
struct FormulaError {
  FormulaErrorKind kind = FormulaErrorKind::Syntax;
  TW::Range<unsigned int> range;
  TW::UniString message;                             ///< one sentence for people
  TW::Optional<EP::SyntaxErrorReason> syntaxReason;  ///< for `Syntax` only
  /// For `Cycle`: the property, what its formula refers to, and so on back to the property. For `AmbiguousName`: those
  /// that go by the name.
  std::vector<PropertyIndex> properties;
};

}  // namespace Host
