#pragma once

#include "Quorix/Export.hpp"
#include "TW/Guid.hpp"

namespace QX {

/// Says which property takes the place of another, when formulas are carried from one model into another.
class QX_EXPORT IGuidMapper {
 public:
  virtual ~IGuidMapper() = default;
  virtual TW::Guid Map(const TW::Guid& id) const = 0;
};

}  // namespace QX
