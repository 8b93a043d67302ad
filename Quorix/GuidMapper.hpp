#pragma once

#include "Quorix/Export.hpp"
#include "TW/Guid.hpp"

namespace QX {

/// Says which property takes the place of another, when formulas are carried from one model into another. What it
/// throws reaches the caller; then the references before the one at fault are replaced and those after it are not.
class QX_EXPORT IGuidMapper {
 public:
  virtual ~IGuidMapper() = default;
  virtual TW::Guid Map(const TW::Guid& id) const = 0;
};

}  // namespace QX
