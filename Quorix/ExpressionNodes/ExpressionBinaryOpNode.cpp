#include "Quorix/ExpressionNodes/ExpressionBinaryOpNode.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodes/ExpressionCommonFunctionNodeImpl.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "TW/Array.hpp"

namespace QX {
namespace {

using Chain = TW::Array<const ExpressionBinaryOpNode*>;

void RequireTwoOperands(const ExpressionBinaryOpNode* node) {
  if (node->GetChildCount() != 2) throw ExpressionInvalidArgumentNumber(node);
}

// The operators from `top` down its left operands; the lowest one's left operand is no operator.
Chain FollowLeftOperands(const ExpressionBinaryOpNode* top) {
  Chain chain;
  for (const ExpressionBinaryOpNode* node = top; node != nullptr; node = node->GetChild(0)->AsBinaryOperator()) {
    RequireTwoOperands(node);
    chain.push_back(node);
  }
  return chain;
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
  RequireTwoOperands(this);
  if (GetChild(0)->AsBinaryOperator() == nullptr) return EvaluateInternal(env, GetChild(0)->Evaluate(env), GetChild(1));

  const Chain chain = FollowLeftOperands(this);
  ExpressionValue value = chain.back()->GetChild(0)->Evaluate(env);
  for (auto node = chain.rbegin(); node != chain.rend(); ++node) {
    value = (*node)->EvaluateInternal(env, value, (*node)->GetChild(1));
  }
  return value;
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
  const Quantity b = GetQuantityValueFromNode(env, right, this);
  return ExpressionValue::FromQuantity(GetOperationResult(a, b));
}

TW::Ref<TW::Object> ExpressionAdditionNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionAdditionNode>();
}

TW::UniString ExpressionAdditionNode::GetOperatorSign() const {
  return TW::UniString(EP::Add);
}

Quantity ExpressionAdditionNode::GetOperationResult(Quantity left, Quantity right) const {
  Quantity sum;
  if (!Quantity::Add(left, right, sum)) throw ExpressionIncompatibleArgumentDimensions(this);
  return sum;
}

TW::Ref<TW::Object> ExpressionSubtractionNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionSubtractionNode>();
}

TW::UniString ExpressionSubtractionNode::GetOperatorSign() const {
  return TW::UniString(EP::Subtract);
}

Quantity ExpressionSubtractionNode::GetOperationResult(Quantity left, Quantity right) const {
  Quantity difference;
  if (!Quantity::Subtract(left, right, difference)) throw ExpressionIncompatibleArgumentDimensions(this);
  return difference;
}

TW::Ref<TW::Object> ExpressionMultiplicationNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionMultiplicationNode>();
}

TW::UniString ExpressionMultiplicationNode::GetOperatorSign() const {
  return TW::UniString(EP::Multiply);
}

Quantity ExpressionMultiplicationNode::GetOperationResult(Quantity left, Quantity right) const {
  Quantity product;
  if (!Quantity::Multiply(left, right, product)) throw ExpressionInternalErrorException(this);
  return product;
}

TW::Ref<TW::Object> ExpressionDivisionNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionDivisionNode>();
}

TW::UniString ExpressionDivisionNode::GetOperatorSign() const {
  return TW::UniString(EP::Divide);
}

Quantity ExpressionDivisionNode::GetOperationResult(Quantity left, Quantity right) const {
  Quantity quotient;
  if (!Quantity::Divide(left, right, quotient)) throw ExpressionDivisionByZero(this);
  return quotient;
}

TW::Ref<TW::Object> ExpressionPowerNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionPowerNode>();
}

TW::UniString ExpressionPowerNode::GetOperatorSign() const {
  return TW::UniString(EP::Power);
}

Quantity ExpressionPowerNode::GetOperationResult(Quantity left, Quantity right) const {
  return PowerFuncImpl(left, right, this);
}

}  // namespace QX
