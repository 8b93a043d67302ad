#include "Quorix/ExpressionNodes/ExpressionParenthesizedNode.hpp"

#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {

TW::ClassInfo ExpressionParenthesizedNode::classInfo("ExpressionParenthesizedNode",
                                                     "{5EA463AD-98AC-4F62-A64A-DA5B66799C15}", 1,
                                                     &ExpressionNode::classInfo,
                                                     &ExpressionParenthesizedNode::ConstructorFunction);

TW::Ref<TW::Object> ExpressionParenthesizedNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionParenthesizedNode>();
}

ExpressionValue ExpressionParenthesizedNode::Evaluate(const IExpressionEvaluationEnv& env) const {
  if (GetChildCount() != 1) throw ExpressionInvalidArgumentNumber(this);
  return GetChild(0)->Evaluate(env);
}

Quantity ExpressionParenthesizedNode::EvaluateQuantity(const IExpressionEvaluationEnv& env,
                                                       const ExpressionNode* source) const {
  if (GetChildCount() != 1) throw ExpressionInvalidArgumentNumber(this);
  return GetChild(0)->EvaluateQuantity(env, source);
}

void ExpressionParenthesizedNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  BuildParenthesizedExpressionString(this, builder);
}

}  // namespace QX
