#pragma once

#include "EP/LocaleSettings.hpp"
#include "Host/Cell.hpp"
#include "Host/PropertyCatalog.hpp"
#include "Quorix/Expression.hpp"
#include "TW/Range.hpp"
#include "TW/UniString.hpp"

namespace Host {

/// Why a formula or an input has no value for an element, as people are told. Ranges count the 16-bit units of the
/// formula's text with names.
struct FailureReport {
  FailureKind kind = FailureKind::Evaluation;
  TW::UniString name;       ///< the name of the exception's class; `InvalidResult` or `WrongKind` for the other kinds
  short resourceIndex = 0;  ///< the number of the message, 0 for the other kinds
  TW::UniString message;    ///< in the user's language
  TW::UniString formula;    ///< the text with names that the ranges refer to; empty for an input
  TW::Range<unsigned int> range;  ///< of the node at fault itself
  TW::Range<unsigned int> span;   ///< of the node at fault and everything below it
};

/// Tells about the failure of `expression`, which an input has not, where a value of `kind` was expected, if any. The
/// text of the formula is written in the separators of `settings`.
FailureReport ReportFailure(const Failure& failure, const QX::Expression& expression, TW::Optional<PropertyKind> kind,
                            const PropertyCatalog& catalog, const EP::IParsingLocaleSettings& settings);

/// The name alone, as in the report.
TW::UniString GetFailureName(const Failure& failure);

}  // namespace Host
