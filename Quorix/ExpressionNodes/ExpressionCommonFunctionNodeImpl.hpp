#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/Quantity.hpp"

namespace QX {

/// Raises `base` to a whole power without unit. Throws, naming `node`, `ExpressionInvalidNonUnitNumberType` for an
/// exponent with a unit, `ExpressionWholeNumberExpected` for one that is not whole, and
/// `ExpressionOutOfDomainOfMathematicalFunction` where there is no result, or none with a known dimension.
Quantity PowerFuncImpl(const Quantity& base, const Quantity& exponent, const ExpressionNode* node);
/// Takes a whole root without unit; throws like `PowerFuncImpl`.
Quantity NthRootFuncImpl(const Quantity& radicand, const Quantity& degree, const ExpressionNode* node);

}  // namespace QX
