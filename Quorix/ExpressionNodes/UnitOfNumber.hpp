#pragma once

#include "Quorix/AcceptedUnits.hpp"
#include "Quorix/Export.hpp"
#include "Quorix/Quantity.hpp"
#include "TW/UniString.hpp"

namespace QX {

/// The unit written after a number. It is looked up once, when the marker is set.
class QX_EXPORT UnitOfNumber {
 public:
  UnitOfNumber() = default;
  explicit UnitOfNumber(TW::UniString marker);

  const TW::UniString& GetMarker() const { return marker_; }
  /// Whether there is no unit, or one that the language knows.
  bool IsKnown() const { return unit_ != nullptr || marker_.IsEmpty(); }
  /// So many of the unit in base units; the unit must be known.
  Quantity Apply(double value) const {
    return unit_ != nullptr ? Quantity(value * unit_->factor, unit_->exponents) : Quantity(value, UnitExponents());
  }

 private:
  TW::UniString marker_;
  const AcceptedUnit* unit_ = nullptr;
};

}  // namespace QX
