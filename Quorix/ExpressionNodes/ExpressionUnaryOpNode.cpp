#include "Quorix/ExpressionNodes/ExpressionUnaryOpNode.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {

TW::ClassInfo ExpressionUnaryOpNode::classInfo("ExpressionUnaryOpNode", "{8A7A42AF-27E1-4CE1-9DA3-F1204C5C545A}", 1,
                                               &ExpressionNode::classInfo);
TW::ClassInfo ExpressionArithmeticUnaryOpNode::classInfo("ExpressionArithmeticUnaryOpNode",
                                                         "{D7A75E5D-205A-4406-8367-FDE50DCE7AC5}", 1,
                                                         &ExpressionUnaryOpNode::classInfo);
TW::ClassInfo ExpressionPlusUnaryOpNode::classInfo("ExpressionPlusUnaryOpNode",
                                                   "{F1E88B4B-FD89-4B9C-9A4C-A1FBCC3B02D3}", 1,
                                                   &ExpressionArithmeticUnaryOpNode::classInfo,
                                                   &ExpressionPlusUnaryOpNode::ConstructorFunction);
TW::ClassInfo ExpressionMinusUnaryOpNode::classInfo("ExpressionMinusUnaryOpNode",
                                                    "{7E39CFD4-B9D4-4BEC-84E6-9805DEAD1E88}", 1,
                                                    &ExpressionArithmeticUnaryOpNode::classInfo,
                                                    &ExpressionMinusUnaryOpNode::ConstructorFunction);

ExpressionValue ExpressionUnaryOpNode::Evaluate(const IExpressionEvaluationEnv& env) const {
  if (GetChildCount() != 1) throw ExpressionInvalidArgumentNumber(this);
  return EvaluateInternal(env, GetChild(0));
}

void ExpressionUnaryOpNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  if (GetChildCount() != 1) throw ExpressionInvalidArgumentNumber(this);
  builder.AppendString(GetOperatorSign() + EP::SpaceChar, this);
  GetChild(0)->BuildExpressionString(builder);
}

ExpressionValue ExpressionArithmeticUnaryOpNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                  const ExpressionNode* operand) const {
  return ExpressionValue::FromQuantity(GetOperationResult(GetQuantityValueFromNode(env, operand, this)));
}

TW::Ref<TW::Object> ExpressionPlusUnaryOpNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionPlusUnaryOpNode>();
}

TW::UniString ExpressionPlusUnaryOpNode::GetOperatorSign() const { return TW::UniString(EP::Plus); }

Quantity ExpressionPlusUnaryOpNode::GetOperationResult(Quantity quantity) const { return quantity; }

TW::Ref<TW::Object> ExpressionMinusUnaryOpNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionMinusUnaryOpNode>();
}

TW::UniString ExpressionMinusUnaryOpNode::GetOperatorSign() const { return TW::UniString(EP::Minus); }

Quantity ExpressionMinusUnaryOpNode::GetOperationResult(Quantity quantity) const {
  if (quantity.IsUserUndefinedValue()) return quantity;
  return {-quantity.GetNumericValue(), quantity.GetUnitExponents()};
}

}  // namespace QX
