#include "Quorix/ExpressionMathFunctions.hpp"

#include "Quorix/ExpressionSemanticExceptions.hpp"

#include <algorithm>
#include <limits>
#include <numeric>

namespace QX {
namespace {

int HeldToLimits(double whole) {
  constexpr double Lowest = std::numeric_limits<int>::min();
  constexpr double Highest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(whole, Lowest, Highest));
}

}  // namespace

bool WholeNumberFromDouble(double x, int& whole) {
  // Most numbers that should be whole are, and need no rounding.
  if (std::fabs(x) <= std::numeric_limits<int>::max() && static_cast<int>(x) == x) {
    whole = static_cast<int>(x);
    return true;
  }
  const double rounded = std::round(x);
  const bool isWhole = IsNear(x, rounded);
  whole = isWhole ? HeldToLimits(rounded) : 0;
  return isWhole;
}

bool WholeNumberFromQuantity(const Quantity& quantity, const ExpressionNode* node, int& whole) {
  if (!quantity.IsNonUnit()) throw ExpressionInvalidNonUnitNumberType(node);
  if (quantity.IsUserUndefinedValue()) return false;
  if (!WholeNumberFromDouble(quantity.GetNumericValue(), whole)) throw ExpressionWholeNumberExpected(node);
  return true;
}

bool Power(double base, double exponent, double& result) {
  result = 0.0;
  if (IsNearZero(base) && IsNearZero(exponent)) return false;
  const double power = std::pow(base, exponent);
  if (!IsValidNumber(power)) return false;
  result = power;
  return true;
}

// A tiny negative number within the tolerance goes on to the power function and fails there, as it is meant to.
bool NthRoot(double x, int n, double& result) {
  result = 0.0;
  if (n < 1 || x < -Tolerance) return false;
  return Power(x, 1.0 / n, result);
}

double RoundToMultiplier(double x, double multiplier, const RoundingRule& rule) {
  const double sign = x < 0 ? -1.0 : 1.0;
  const double magnitude = std::fabs(x);
  const double step = std::fabs(multiplier);
  double count = 0.0;
  switch (rule) {
    case RoundingRule::Up:
      count = std::ceil(1.0 / step * (magnitude - Tolerance));
      break;
    case RoundingRule::Down:
      count = std::floor(1.0 / step * (magnitude + Tolerance));
      break;
    case RoundingRule::Nearest:
      count = std::round(1.0 / step * (magnitude + Tolerance));
      break;
  }
  return step * (sign * count);
}

double GetValidatedMultiplier(int digits, const ExpressionNode* node) {
  // As the power function gives them.
  constexpr double NegativePowersOfTen[] = {1, 1e-1, 1e-2, 1e-3, 1e-4, 1e-5, 1e-6, 1e-7, 1e-8};
  constexpr int MostDigits = 8;
  if (digits >= 0) return NegativePowersOfTen[std::min(digits, MostDigits)];
  const double multiplier = std::pow(10.0, -static_cast<double>(digits));
  if (!IsValidNumber(multiplier)) throw ExpressionOutOfDomainOfMathematicalFunction(node);
  return multiplier;
}

double Sum(const TW::Array<double>& values) { return std::accumulate(values.begin(), values.end(), 0.0); }

}  // namespace QX
