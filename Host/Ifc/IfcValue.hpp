#pragma once

#include "Quorix/ExpressionValue.hpp"

#include <cstdint>

namespace Host {

/// What a property of a building model holds.
enum class IfcKind : std::uint8_t {
  None,  ///< the property is there and holds nothing that has a kind
  Number,
  Integer,
  Length,
  Area,
  Volume,
  Angle,
  Text,
  Logical,
};

/// The value of a property. Lengths, areas, volumes and angles are in metres, square metres, cubic metres and radians;
/// a logical value that is unknown is user undefined; a value of no kind is invalid.
struct IfcValue {
  IfcKind kind = IfcKind::None;
  QX::ExpressionValue value;
};

}  // namespace Host
