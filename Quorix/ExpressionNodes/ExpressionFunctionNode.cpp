#include "Quorix/ExpressionNodes/ExpressionFunctionNode.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {

TW::ClassInfo ExpressionFunctionNode::classInfo("ExpressionFunctionNode", "{49A1FBF8-FEF3-400D-A8A8-2BD89A9A3B2B}", 1,
                                                &ExpressionNode::classInfo);

ExpressionFunctionNode::Arguments ExpressionFunctionNode::GetValidArguments() const {
  if (!IsValidParameterCount(GetChildCount())) [[unlikely]]
    throw ExpressionInvalidArgumentNumber(this);
  return Arguments(this);
}

ExpressionValue ExpressionFunctionNode::Evaluate(const IExpressionEvaluationEnv& env) const {
  return EvaluateInternal(env, GetValidArguments());
}

void ExpressionFunctionNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  builder.AppendString(GetFunctionName(), this);
  builder.AppendString(TW::UniString(EP::SpaceChar), this);
  BuildParenthesizedExpressionString(this, builder);
}

}  // namespace QX
