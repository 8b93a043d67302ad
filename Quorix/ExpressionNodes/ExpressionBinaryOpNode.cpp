#include "Quorix/ExpressionNodes/ExpressionBinaryOpNode.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodes/ExpressionCommonFunctionNodeImpl.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "TW/Array.hpp"

#include <algorithm>

namespace QX {
namespace {

using Chain = TW::Array<const ExpressionBinaryOpNode*>;

void RequireTwoOperands(const ExpressionBinaryOpNode* node) {
  if (node->GetChildCount() != 2) [[unlikely]]
    throw ExpressionInvalidArgumentNumber(node);
}

bool IsBinaryOperator(const ExpressionNode* node) { return node->GetKind() != ExpressionNode::Ordinary; }

// The operators from `top` down its left operands; the lowest one's left operand is no operator.
Chain FollowLeftOperands(const ExpressionBinaryOpNode* top) {
  Chain chain;
  const ExpressionNode* node = top;
  do {
    const auto* op = static_cast<const ExpressionBinaryOpNode*>(node);
    RequireTwoOperands(op);
    chain.push_back(op);
    node = op->GetChild(0);
  } while (IsBinaryOperator(node));
  return chain;
}

ExpressionValue EvaluateChain(const IExpressionEvaluationEnv& env, const Chain& chain) {
  ExpressionValue value = chain.back()->GetChild(0)->Evaluate(env);
  for (auto node = chain.rbegin(); node != chain.rend(); ++node) {
    value = (*node)->EvaluateInternal(env, value, (*node)->GetChild(1));
  }
  return value;
}

// The quantity behind a value, also one that is invalid because it is not finite.
Quantity AsComputed(const ExpressionValue& value) {
  if (value.IsUserUndefined()) return {Quantity::UndefinedSelector(), value.GetUnitExponents()};
  return {value.GetIntOrNumVariantValue(), value.GetUnitExponents()};
}

}  // namespace

TW::ClassInfo ExpressionBinaryOpNode::classInfo("ExpressionBinaryOpNode", "{B51D46AC-2813-4110-AABD-52DD18818C69}", 1,
                                                &ExpressionNode::classInfo);
TW::ClassInfo ExpressionArithmeticBinaryOpNode::classInfo("ExpressionArithmeticBinaryOpNode",
                                                          "{1F110BCB-4DB3-4DA9-BD1A-96287C2A6A1D}", 1,
                                                          &ExpressionBinaryOpNode::classInfo);

ExpressionValue ExpressionBinaryOpNode::Evaluate(const IExpressionEvaluationEnv& env) const {
  return EvaluateChain(env, FollowLeftOperands(this));
}

void ExpressionBinaryOpNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  const Chain chain = FollowLeftOperands(this);
  chain.back()->GetChild(0)->BuildExpressionString(builder);
  for (auto node = chain.rbegin(); node != chain.rend(); ++node) {
    builder.AppendString(TW::UniString(EP::SpaceChar) + (*node)->GetOperatorSign() + EP::SpaceChar, *node);
    (*node)->GetChild(1)->BuildExpressionString(builder);
  }
}

ExpressionValue ExpressionArithmeticBinaryOpNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                   const ExpressionValue& left,
                                                                   const ExpressionNode* right) const {
  const Quantity a = RequireQuantity(left, this);
  return ExpressionValue::FromQuantity(GetOperationResult(a, GetQuantityValueFromNode(env, right, this)));
}

ExpressionValue ExpressionArithmeticBinaryOpNode::Evaluate(const IExpressionEvaluationEnv& env) const {
  return ExpressionValue::FromQuantity(Compute(env));
}

Quantity ExpressionArithmeticBinaryOpNode::EvaluateQuantity(const IExpressionEvaluationEnv& env,
                                                            const ExpressionNode* source) const {
  return RequireFinite(Compute(env), source);
}

Quantity ExpressionArithmeticBinaryOpNode::Compute(const IExpressionEvaluationEnv& env) const {
  RequireTwoOperands(this);
  const ExpressionNode* left = GetChild(0);
  if (IsBinaryOperator(left)) return ComputeChain(env);
  const Quantity a = GetQuantityValueFromNode(env, left, this);
  return GetOperationResult(a, GetQuantityValueFromNode(env, GetChild(1), this));
}

Quantity ExpressionArithmeticBinaryOpNode::ComputeChain(const IExpressionEvaluationEnv& env) const {
  const Chain chain = FollowLeftOperands(this);
  const auto isArithmetic = [](const ExpressionNode* node) { return node->GetKind() == ArithmeticOperator; };
  if (!std::all_of(chain.begin(), chain.end(), isArithmetic)) return AsComputed(EvaluateChain(env, chain));

  Quantity result = GetQuantityValueFromNode(env, chain.back()->GetChild(0), chain.back());
  for (auto node = chain.rbegin(); node != chain.rend(); ++node) {
    if (node != chain.rbegin()) RequireFinite(result, *node);
    const auto* op = static_cast<const ExpressionArithmeticBinaryOpNode*>(*node);
    result = op->GetOperationResult(result, GetQuantityValueFromNode(env, op->GetChild(1), op));
  }
  return result;
}

TW::ClassInfo ExpressionAdditionNode::classInfo = MakeClassInfo();
Quantity ExpressionAdditionNode::GetOperationResult(const Quantity& left, const Quantity& right) const {
  Quantity sum;
  if (!Quantity::Add(left, right, sum)) throw ExpressionIncompatibleArgumentDimensions(this);
  return sum;
}

TW::ClassInfo ExpressionSubtractionNode::classInfo = MakeClassInfo();
Quantity ExpressionSubtractionNode::GetOperationResult(const Quantity& left, const Quantity& right) const {
  Quantity difference;
  if (!Quantity::Subtract(left, right, difference)) throw ExpressionIncompatibleArgumentDimensions(this);
  return difference;
}

TW::ClassInfo ExpressionMultiplicationNode::classInfo = MakeClassInfo();
Quantity ExpressionMultiplicationNode::GetOperationResult(const Quantity& left, const Quantity& right) const {
  Quantity product;
  if (!Quantity::Multiply(left, right, product)) throw ExpressionInternalErrorException(this);
  return product;
}

TW::ClassInfo ExpressionDivisionNode::classInfo = MakeClassInfo();
Quantity ExpressionDivisionNode::GetOperationResult(const Quantity& left, const Quantity& right) const {
  Quantity quotient;
  if (!Quantity::Divide(left, right, quotient)) throw ExpressionDivisionByZero(this);
  return quotient;
}

TW::ClassInfo ExpressionPowerNode::classInfo = MakeClassInfo();
Quantity ExpressionPowerNode::GetOperationResult(const Quantity& left, const Quantity& right) const {
  return PowerFuncImpl(left, right, this);
}

}  // namespace QX
