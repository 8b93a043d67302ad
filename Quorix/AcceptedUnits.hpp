#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/UnitExponents.hpp"
#include "TW/UniString.hpp"

namespace QX {

/// A unit that a number in a formula may carry.
struct AcceptedUnit {
  double factor;  ///< what one of the unit is in base units
  UnitExponents exponents;
};

/// The unit of a marker, matched exactly, or null. The table is made on the first call and kept.
QX_EXPORT const AcceptedUnit* FindAcceptedUnit(const TW::UniString& marker);

}  // namespace QX
