#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"

#include <cstdint>

namespace Host {

/// What is known of one property of one element.
enum class CellStatus : std::uint8_t {
  NotComputed,  ///< the formula is new, or there is none and no value was given
  Absent,       ///< the property does not apply to the element
  Failed,       ///< the formula has no value for the element
  Undefined,    ///< the value is user undefined
  Defined,
};

enum class FailureKind : std::uint8_t {
  Evaluation,     ///< an operation of the formula failed
  InvalidResult,  ///< an invalid value, as after an overflow, or too long a text
  WrongKind,      ///< the result, or what the source of an input holds, is not of the declared kind
};

/// Why a formula has no value for an element, as cells keep it.
struct Failure {
  const QX::ExpressionNode* node = nullptr;  ///< the node at fault, in the tree of the property's formula
  short resourceIndex = 0;                   ///< of the exception, for `Evaluation` only
  FailureKind kind = FailureKind::Evaluation;

  friend bool operator==(const Failure&, const Failure&) = default;
};

}  // namespace Host
