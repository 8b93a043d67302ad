#include "Quorix/ExpressionNodes/ExpressionBinaryFunctionNodes.hpp"

#include "Quorix/ExpressionMathFunctions.hpp"
#include "Quorix/ExpressionNodes/ExpressionCommonFunctionNodeImpl.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

#include <cmath>

namespace QX {

TW::ClassInfo ExpressionPowerFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionPowerFunctionNode::functionName(Identity.keyword);
Quantity ExpressionPowerFunctionNode::GetOperationResult(const Quantity& base, const Quantity& exponent) const {
  return PowerFuncImpl(base, exponent, this);
}

TW::ClassInfo ExpressionNthRootFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionNthRootFunctionNode::functionName(Identity.keyword);
Quantity ExpressionNthRootFunctionNode::GetOperationResult(const Quantity& radicand, const Quantity& degree) const {
  return NthRootFuncImpl(radicand, degree, this);
}

TW::ClassInfo ExpressionQuotientFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionQuotientFunctionNode::functionName(Identity.keyword);
Quantity ExpressionQuotientFunctionNode::GetOperationResult(const Quantity& dividend, const Quantity& divisor) const {
  constexpr UnitExponents NonUnit = UnitExponents::CreateNonUnit();
  if (dividend.GetUnitExponents() != divisor.GetUnitExponents()) throw ExpressionIncompatibleArgumentDimensions(this);
  const double a = dividend.GetNumericValue();
  const double b = divisor.GetNumericValue();
  if (!divisor.IsUserUndefinedValue() && IsNearZero(b)) throw ExpressionDivisionByZero(this);
  if (dividend.IsUserUndefinedValue()) return {Quantity::UndefinedSelector(), NonUnit};
  if (!divisor.IsUserUndefinedValue()) return {RoundToMultiplier(a / b, 1.0, RoundingRule::Down), NonUnit};
  if (IsNearZero(a)) return {0.0, NonUnit};
  return {Quantity::UndefinedSelector(), NonUnit};
}

TW::ClassInfo ExpressionLogFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionLogFunctionNode::functionName(Identity.keyword);
double ExpressionLogFunctionNode::GetOperationResult(double value, double base) const {
  if (IsNear(base, 1.0) || IsLess(base, 0.0) || IsLess(value, 0.0)) {
    throw ExpressionOutOfDomainOfMathematicalFunction(this);
  }
  return std::log(value) / std::log(base);
}

TW::ClassInfo ExpressionModFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionModFunctionNode::functionName(Identity.keyword);
double ExpressionModFunctionNode::GetOperationResult(double dividend, double divisor) const {
  if (IsNearZero(divisor)) throw ExpressionDivisionByZero(this);
  return dividend - std::floor(dividend / divisor) * divisor;
}

}  // namespace QX
