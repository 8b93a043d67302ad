#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/Quantity.hpp"
#include "Quorix/Tolerance.hpp"
#include "TW/Array.hpp"

/// How the whole library finds whole numbers, and computes powers, roots and multiples.

namespace QX {

class ExpressionNode;

/// Rounds to the nearest whole number, halves away from zero, and tells whether `x` lies within the tolerance of it;
/// `whole` is then that number, held to the limits of 32 bits, and otherwise 0.
QX_EXPORT bool WholeNumberFromDouble(double x, int& whole);

/// The same for a quantity. Gives false, and leaves `whole` alone, for a user-undefined one. Throws, naming `node`,
/// `ExpressionInvalidNonUnitNumberType` for a quantity with a unit (undefined ones included) and
/// `ExpressionWholeNumberExpected` for one that is not whole (`whole` is then 0).
QX_EXPORT bool WholeNumberFromQuantity(const Quantity& quantity, const ExpressionNode* node, int& whole);

/// Raises `base` to `exponent`. Gives false, and 0, for zero to the power zero (both within the tolerance) and where
/// the result is not finite.
QX_EXPORT bool Power(double base, double exponent, double& result);

/// The n-th root. Gives false, and 0, for `n` below 1, for negative `x` (odd roots included) and where `Power` does.
QX_EXPORT bool NthRoot(double x, int n, double& result);

enum class RoundingRule {
  Up = 0,       ///< away from zero
  Down = 1,     ///< toward zero
  Nearest = 2,  ///< to the nearest, halves away from zero
};

/// Rounds the magnitude of `x` to a multiple of the magnitude of `multiplier`, which must not be zero, and restores the
/// sign. What lies within the tolerance of a multiple counts as that multiple.
QX_EXPORT double RoundToMultiplier(double x, double multiplier, const RoundingRule& rule);

/// Ten to the power of minus `digits`, of which more than 8 count as 8. Throws
/// `ExpressionOutOfDomainOfMathematicalFunction`, naming `node`, where that is not finite.
QX_EXPORT double GetValidatedMultiplier(int digits, const ExpressionNode* node);

/// Adds up from first to last; 0 for none.
QX_EXPORT double Sum(const TW::Array<double>& values);

}  // namespace QX
