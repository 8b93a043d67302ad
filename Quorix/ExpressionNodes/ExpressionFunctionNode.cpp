#include "Quorix/ExpressionNodes/ExpressionFunctionNode.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {

TW::ClassInfo ExpressionFunctionNode::classInfo("ExpressionFunctionNode", "{49A1FBF8-FEF3-400D-A8A8-2BD89A9A3B2B}", 1,
                                                &ExpressionNode::classInfo);

ExpressionValue ExpressionFunctionNode::Evaluate(const IExpressionEvaluationEnv& env) const {
  const unsigned int count = GetChildCount();
  if (!IsValidParameterCount(count)) throw ExpressionInvalidArgumentNumber(this);
  Arguments arguments;
  arguments.reserve(count);
  for (unsigned int i = 0; i < count; ++i) arguments.push_back(GetChild(i));
  return EvaluateInternal(env, arguments);
}

void ExpressionFunctionNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  builder.AppendString(GetFunctionName(), this);
  builder.AppendString(TW::UniString(EP::SpaceChar), this);
  BuildParenthesizedExpressionString(this, builder);
}

}  // namespace QX
