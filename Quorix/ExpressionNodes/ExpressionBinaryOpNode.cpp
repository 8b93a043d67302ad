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
TW::ClassInfo ExpressionAdditionNode::classInfo("ExpressionAdditionNode", "{3922D3C4-8885-4367-AA4F-74FBF0D8C42A}", 1,
                                                &ExpressionArithmeticBinaryOpNode::classInfo,
                                                &ExpressionAdditionNode::ConstructorFunction);
TW::ClassInfo ExpressionSubtractionNode::classInfo("ExpressionSubtractionNode",
                                                   "{1AC4CD94-0FB8-4131-B724-621DBD52FA04}", 1,
                                                   &ExpressionArithmeticBinaryOpNode::classInfo,
                                                   &ExpressionSubtractionNode::ConstructorFunction);
TW::ClassInfo ExpressionMultiplicationNode::classInfo("ExpressionMultiplicationNode",
                                                      "{C411BBC5-407D-4771-8371-005796C05FBB}", 1,
                                                      &ExpressionArithmeticBinaryOpNode::classInfo,
                                                      &ExpressionMultiplicationNode::ConstructorFunction);
TW::ClassInfo ExpressionDivisionNode::classInfo("ExpressionDivisionNode", "{EAD27A61-36F5-45AB-BEF1-8E8A47F2819C}", 1,
                                                &ExpressionArithmeticBinaryOpNode::classInfo,
                                                &ExpressionDivisionNode::ConstructorFunction);
TW::ClassInfo ExpressionPowerNode::classInfo("ExpressionPowerNode", "{7A70BCD6-BFE8-4313-A434-5D1CA17318F3}", 1,
                                             &ExpressionArithmeticBinaryOpNode::classInfo,
                                             &ExpressionPowerNode::ConstructorFunction);

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

TW::Ref<TW::Object> ExpressionAdditionNode::ConstructorFunction() { return TW::MakeRef<ExpressionAdditionNode>(); }

TW::UniString ExpressionAdditionNode::GetOperatorSign() const { return TW::UniString(EP::Add); }

Quantity ExpressionAdditionNode::GetOperationResult(const Quantity& left, const Quantity& right) const {
  Quantity sum;
  if (!Quantity::Add(left, right, sum)) throw ExpressionIncompatibleArgumentDimensions(this);
  return sum;
}

TW::Ref<TW::Object> ExpressionSubtractionNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionSubtractionNode>();
}

TW::UniString ExpressionSubtractionNode::GetOperatorSign() const { return TW::UniString(EP::Subtract); }

Quantity ExpressionSubtractionNode::GetOperationResult(const Quantity& left, const Quantity& right) const {
  Quantity difference;
  if (!Quantity::Subtract(left, right, difference)) throw ExpressionIncompatibleArgumentDimensions(this);
  return difference;
}

TW::Ref<TW::Object> ExpressionMultiplicationNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionMultiplicationNode>();
}

TW::UniString ExpressionMultiplicationNode::GetOperatorSign() const { return TW::UniString(EP::Multiply); }

Quantity ExpressionMultiplicationNode::GetOperationResult(const Quantity& left, const Quantity& right) const {
  Quantity product;
  if (!Quantity::Multiply(left, right, product)) throw ExpressionInternalErrorException(this);
  return product;
}

TW::Ref<TW::Object> ExpressionDivisionNode::ConstructorFunction() { return TW::MakeRef<ExpressionDivisionNode>(); }

TW::UniString ExpressionDivisionNode::GetOperatorSign() const { return TW::UniString(EP::Divide); }

Quantity ExpressionDivisionNode::GetOperationResult(const Quantity& left, const Quantity& right) const {
  Quantity quotient;
  if (!Quantity::Divide(left, right, quotient)) throw ExpressionDivisionByZero(this);
  return quotient;
}

TW::Ref<TW::Object> ExpressionPowerNode::ConstructorFunction() { return TW::MakeRef<ExpressionPowerNode>(); }

TW::UniString ExpressionPowerNode::GetOperatorSign() const { return TW::UniString(EP::Power); }

Quantity ExpressionPowerNode::GetOperationResult(const Quantity& left, const Quantity& right) const {
  return PowerFuncImpl(left, right, this);
}

}  // namespace QX
