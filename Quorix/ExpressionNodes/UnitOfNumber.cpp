#include "Quorix/ExpressionNodes/UnitOfNumber.hpp"

namespace QX {

UnitOfNumber::UnitOfNumber(TW::UniString marker)
    : marker_(std::move(marker)), unit_(marker_.IsEmpty() ? nullptr : FindAcceptedUnit(marker_)) {}

}  // namespace QX
