#pragma once

#include "Host/Texts/HostText.hpp"

#include <cstddef>

namespace Host {

/// What reports say, by its index in the list of texts.
enum class ReportText : int {
  Element = 1,
  Class,
  Undefined,
  OneMoreElement,
  MoreElements,   ///< %T: their number
  AbsentLegend,   ///< %T: the sign
  FailureLegend,  ///< %T: the first number
  Errors,
  OneElement,
  Elements,      ///< %T: their number
  Examples,      ///< %T: how many elements, %T: the names of some
  Consequences,  ///< %T: properties
  DoesNotApply,  ///< %T: a property
  HasNoValue,    ///< %T: a property
  Summary,       ///< %T: the numbers of elements, values, undefined ones, absent ones, errors
  Property,
  Value,
  Reason,
  Failed,
  NotTaken,
  OfFormula,           ///< where a value comes from
  MoreParts,           ///< %T: their number
  UndefinedItself,     ///< %T: the property
  UndefinedByFormula,  ///< %T: the property
  UndefinedBecause,    ///< %T: the property, %T: where that began, %T: why
  FailedItself,        ///< %T: the property, %T: the message
  FailedBecause,       ///< %T: the property, %T: where that began, %T: the message
};

template <class... Arguments>
TW::UniString MakeText(ReportText text, const Arguments&... arguments) {
  return MakeText(TextList::Report, static_cast<int>(text), arguments...);
}

inline TW::UniString MakeNumberText(std::size_t number) {
  return TW::UniString::FromInteger(static_cast<long long>(number));
}

/// One text for a count of one, another for every other count, which is its argument.
inline TW::UniString MakeCountText(ReportText one, ReportText many, std::size_t count) {
  return count == 1 ? MakeText(one) : MakeText(many, MakeNumberText(count));
}

}  // namespace Host
