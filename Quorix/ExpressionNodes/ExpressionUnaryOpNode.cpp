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

ExpressionValue ExpressionUnaryOpNode::Evaluate(const IExpressionEvaluationEnv& env) const {
  if (GetChildCount() != 1) throw ExpressionInvalidArgumentNumber(this);
  return EvaluateInternal(env, GetChild(0));
}

void ExpressionUnaryOpNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  if (GetChildCount() != 1) throw ExpressionInvalidArgumentNumber(this);
  builder.AppendString(GetOperatorSign() + EP::SpaceChar, this);
  GetChild(0)->BuildExpressionString(builder);
}

Quantity ExpressionArithmeticUnaryOpNode::EvaluateQuantity(const IExpressionEvaluationEnv& env,
                                                           const ExpressionNode* source) const {
  if (GetChildCount() != 1) throw ExpressionInvalidArgumentNumber(this);
  return RequireFinite(GetOperationResult(GetQuantityValueFromNode(env, GetChild(0), this)), source);
}

ExpressionValue ExpressionArithmeticUnaryOpNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                  const ExpressionNode* operand) const {
  return ExpressionValue::FromQuantity(GetOperationResult(GetQuantityValueFromNode(env, operand, this)));
}

TW::ClassInfo ExpressionPlusUnaryOpNode::classInfo = MakeClassInfo();
Quantity ExpressionPlusUnaryOpNode::GetOperationResult(const Quantity& quantity) const { return quantity; }

TW::ClassInfo ExpressionMinusUnaryOpNode::classInfo = MakeClassInfo();
Quantity ExpressionMinusUnaryOpNode::GetOperationResult(const Quantity& quantity) const {
  if (quantity.IsUserUndefinedValue()) return quantity;
  return {-quantity.GetNumericValue(), quantity.GetUnitExponents()};
}

}  // namespace QX
