#include "Quorix/ExpressionNodes/ExpressionUnaryFunctionNodes.hpp"

#include "Quorix/ExpressionMathFunctions.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

#include <cmath>
#include <numbers>

namespace QX {
namespace {

constexpr double Pi = std::numbers::pi;

void RequireDomain(bool inDomain, const ExpressionNode* node) {
  if (!inDomain) throw ExpressionOutOfDomainOfMathematicalFunction(node);
}

bool IsSineOrCosine(double value) { return !IsLess(value, -1.0) && !IsGreater(value, 1.0); }

}  // namespace

TW::ClassInfo ExpressionSqrtFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionSqrtFunctionNode::functionName(Identity.keyword);
Quantity ExpressionSqrtFunctionNode::GetOperationResult(const Quantity& quantity) const {
  Quantity root;
  RequireDomain(Quantity::NthRoot(quantity, 2, root), this);
  return root;
}

TW::ClassInfo ExpressionAbsFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionAbsFunctionNode::functionName(Identity.keyword);
Quantity ExpressionAbsFunctionNode::GetOperationResult(const Quantity& quantity) const {
  if (quantity.IsUserUndefinedValue() || !(quantity.GetNumericValue() < 0.0)) return quantity;
  return {-quantity.GetNumericValue(), quantity.GetUnitExponents()};
}

TW::ClassInfo ExpressionSignFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionSignFunctionNode::functionName(Identity.keyword);
Quantity ExpressionSignFunctionNode::GetOperationResult(const Quantity& quantity) const {
  constexpr UnitExponents NonUnit = UnitExponents::CreateNonUnit();
  if (quantity.IsUserUndefinedValue()) return {Quantity::UndefinedSelector(), NonUnit};
  const double value = quantity.GetNumericValue();
  if (IsNearZero(value)) return {0.0, NonUnit};
  return {IsGreater(value, 0.0) ? 1.0 : -1.0, NonUnit};
}

TW::ClassInfo ExpressionSineFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionSineFunctionNode::functionName(Identity.keyword);
double ExpressionSineFunctionNode::GetOperationResult(double radians) const { return std::sin(radians); }

TW::ClassInfo ExpressionCosineFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionCosineFunctionNode::functionName(Identity.keyword);
double ExpressionCosineFunctionNode::GetOperationResult(double radians) const { return std::cos(radians); }

TW::ClassInfo ExpressionTangentFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionTangentFunctionNode::functionName(Identity.keyword);
double ExpressionTangentFunctionNode::GetOperationResult(double radians) const {
  RequireDomain(!IsNear(std::fabs(std::remainder(radians, Pi)), Pi / 2), this);
  return std::tan(radians);
}

TW::ClassInfo ExpressionCotangentFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionCotangentFunctionNode::functionName(Identity.keyword);
double ExpressionCotangentFunctionNode::GetOperationResult(double radians) const {
  RequireDomain(!IsNearZero(std::remainder(radians, Pi)), this);
  return 1.0 / std::tan(radians);
}

TW::ClassInfo ExpressionArcSineFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionArcSineFunctionNode::functionName(Identity.keyword);
double ExpressionArcSineFunctionNode::GetOperationResult(double value) const {
  RequireDomain(IsSineOrCosine(value), this);
  return std::asin(value);
}

TW::ClassInfo ExpressionArcCosineFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionArcCosineFunctionNode::functionName(Identity.keyword);
double ExpressionArcCosineFunctionNode::GetOperationResult(double value) const {
  RequireDomain(IsSineOrCosine(value), this);
  return std::acos(value);
}

TW::ClassInfo ExpressionArcTangentFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionArcTangentFunctionNode::functionName(Identity.keyword);
double ExpressionArcTangentFunctionNode::GetOperationResult(double value) const { return std::atan(value); }

TW::ClassInfo ExpressionArcCotangentFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionArcCotangentFunctionNode::functionName(Identity.keyword);
double ExpressionArcCotangentFunctionNode::GetOperationResult(double value) const {
  RequireDomain(!IsNearZero(value), this);
  return std::atan(1.0 / value);
}

TW::ClassInfo ExpressionExpFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionExpFunctionNode::functionName(Identity.keyword);
double ExpressionExpFunctionNode::GetOperationResult(double value) const { return std::exp(value); }

TW::ClassInfo ExpressionLnFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionLnFunctionNode::functionName(Identity.keyword);
double ExpressionLnFunctionNode::GetOperationResult(double value) const {
  RequireDomain(!IsLessOrNear(value, 0.0), this);
  return std::log(value);
}

TW::ClassInfo ExpressionLog10FunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionLog10FunctionNode::functionName(Identity.keyword);
double ExpressionLog10FunctionNode::GetOperationResult(double value) const {
  RequireDomain(!IsLessOrNear(value, 0.0), this);
  return std::log(value) / std::numbers::ln10;
}

}  // namespace QX
