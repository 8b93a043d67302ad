#include "Quorix/ExpressionNodes/ExpressionArithmeticFunctionNode.hpp"

#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {
namespace {

constexpr Quantity::UndefinedSelector Undefined;
constexpr UnitExponents NonUnit = UnitExponents::CreateNonUnit();
constexpr UnitExponents Angle = UnitExponents::CreateAngle();

}  // namespace

TW::ClassInfo ExpressionSameDimensionValuesAggregatorFunctionNode::classInfo(
    "ExpressionSameDimensionValuesAggregatorFunctionNode", "{9032B7E3-D346-4EC7-A3DC-713BB1DB4A9D}", 1,
    &ExpressionFunctionNode::classInfo);
TW::ClassInfo ExpressionUnaryArithmeticFunctionNode::classInfo("ExpressionUnaryArithmeticFunctionNode",
                                                               "{BE476F9F-5164-4C06-BBE8-2A63D17DDE27}", 1,
                                                               &ExpressionFunctionNode::classInfo);
TW::ClassInfo ExpressionUnaryAngleArithmeticFunctionNode::classInfo("ExpressionUnaryAngleArithmeticFunctionNode",
                                                                    "{F37127EF-7BE4-4FBB-A128-8F84674F2240}", 1,
                                                                    &ExpressionUnaryArithmeticFunctionNode::classInfo);
TW::ClassInfo ExpressionUnaryNonUnitToAngleArithmeticFunctionNode::classInfo(
    "ExpressionUnaryNonUnitToAngleArithmeticFunctionNode", "{8C8DD025-BB5E-46EF-A9EA-E8F44085D59F}", 1,
    &ExpressionUnaryArithmeticFunctionNode::classInfo);
TW::ClassInfo ExpressionUnaryNonUnitArithmeticFunctionNode::classInfo(
    "ExpressionUnaryNonUnitArithmeticFunctionNode", "{D8B4A87E-9E5B-497D-9875-011DB3B20BEA}", 1,
    &ExpressionUnaryArithmeticFunctionNode::classInfo);
TW::ClassInfo ExpressionBinaryArithmeticFunctionNode::classInfo("ExpressionBinaryArithmeticFunctionNode",
                                                                "{F717074C-8CA3-4DFB-9F82-4DBA1D820511}", 1,
                                                                &ExpressionFunctionNode::classInfo);
TW::ClassInfo ExpressionBinaryNonUnitArithmeticFunctionNode::classInfo(
    "ExpressionBinaryNonUnitArithmeticFunctionNode", "{0120C34C-8359-4EB2-A1A5-7582BB77FDF9}", 1,
    &ExpressionBinaryArithmeticFunctionNode::classInfo);

ExpressionValue ExpressionQuantityFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                 const Arguments& arguments) const {
  return ExpressionValue::FromQuantity(Compute(env, arguments));
}

Quantity ExpressionQuantityFunctionNode::EvaluateQuantity(const IExpressionEvaluationEnv& env,
                                                          const ExpressionNode* source) const {
  return RequireFinite(Compute(env, GetValidArguments()), source);
}

Quantity ExpressionSameDimensionValuesAggregatorFunctionNode::Compute(const IExpressionEvaluationEnv& env,
                                                                      const Arguments& arguments) const {
  const Quantity first = GetQuantityValueFromNode(env, arguments[0], this);
  const UnitExponents exponents = first.GetUnitExponents();
  bool allDefined = !first.IsUserUndefinedValue();
  TW::Array<double> values;
  values.reserve(arguments.GetCount());
  values.push_back(first.GetNumericValue());
  for (unsigned int i = 1; i < arguments.GetCount(); ++i) {
    const Quantity quantity = GetQuantityValueFromNode(env, arguments[i], this);
    if (quantity.GetUnitExponents() != exponents) throw ExpressionIncompatibleArgumentDimensions(this);
    allDefined = allDefined && !quantity.IsUserUndefinedValue();
    values.push_back(quantity.GetNumericValue());
  }
  return allDefined ? Quantity(GetOperationResult(values), exponents) : Quantity(Undefined, exponents);
}

Quantity ExpressionUnaryArithmeticFunctionNode::Compute(const IExpressionEvaluationEnv& env,
                                                        const Arguments& arguments) const {
  return GetOperationResult(GetQuantityValueFromNode(env, arguments[0], this));
}

Quantity ExpressionBinaryArithmeticFunctionNode::Compute(const IExpressionEvaluationEnv& env,
                                                         const Arguments& arguments) const {
  const Quantity a = GetQuantityValueFromNode(env, arguments[0], this);
  return GetOperationResult(a, GetQuantityValueFromNode(env, arguments[1], this));
}

Quantity ExpressionUnaryAngleArithmeticFunctionNode::GetOperationResult(const Quantity& quantity) const {
  if (!quantity.IsAngle()) throw ExpressionInvalidAngleType(this);
  if (quantity.IsUserUndefinedValue()) return {Undefined, NonUnit};
  return {GetOperationResult(quantity.GetNumericValue()), NonUnit};
}

Quantity ExpressionUnaryNonUnitToAngleArithmeticFunctionNode::GetOperationResult(const Quantity& quantity) const {
  if (!quantity.IsNonUnit()) throw ExpressionInvalidNonUnitNumberType(this);
  if (quantity.IsUserUndefinedValue()) return {Undefined, Angle};
  return {GetOperationResult(quantity.GetNumericValue()), Angle};
}

Quantity ExpressionUnaryNonUnitArithmeticFunctionNode::GetOperationResult(const Quantity& quantity) const {
  if (!quantity.IsNonUnit()) throw ExpressionInvalidNonUnitNumberType(this);
  if (quantity.IsUserUndefinedValue()) return quantity;
  return {GetOperationResult(quantity.GetNumericValue()), NonUnit};
}

Quantity ExpressionBinaryNonUnitArithmeticFunctionNode::GetOperationResult(const Quantity& a, const Quantity& b) const {
  if (!a.IsNonUnit() || !b.IsNonUnit()) throw ExpressionInvalidNonUnitNumberType(this);
  if (a.IsUserUndefinedValue() || b.IsUserUndefinedValue()) return {Undefined, NonUnit};
  return {GetOperationResult(a.GetNumericValue(), b.GetNumericValue()), NonUnit};
}

}  // namespace QX
