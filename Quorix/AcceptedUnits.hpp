#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/UnitExponents.hpp"
#include "TW/UniString.hpp"

#include <functional>

namespace QX {

/// A unit that a number in a formula may carry.
struct AcceptedUnit {
  double factor;  ///< what one of the unit is in base units
  UnitExponents exponents;
};

/// The unit of a marker, matched exactly, or null. The table is made on the first call and kept.
QX_EXPORT const AcceptedUnit* FindAcceptedUnit(const TW::UniString& marker);

/// Calls `visit` for every marker, always in the same order.
QX_EXPORT void EnumerateAcceptedUnits(
    const std::function<void(const TW::UniString& marker, const AcceptedUnit& unit)>& visit);

}  // namespace QX
