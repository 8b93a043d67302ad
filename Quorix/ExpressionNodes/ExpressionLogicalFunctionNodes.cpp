#include "Quorix/ExpressionNodes/ExpressionLogicalFunctionNodes.hpp"

#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "TW/Optional.hpp"

namespace QX {
namespace {

ExpressionValue UndefinedBool() { return ExpressionValue::FromBool(ExpressionValue::UndefinedSelector()); }

// One argument that is `decisive` settles the answer, which is then that; without any, it is the opposite.
ExpressionValue SettleBy(bool decisive, const IExpressionEvaluationEnv& env,
                         const ExpressionFunctionNode::Arguments& arguments, const ExpressionNode* node) {
  const bool evaluateAll = env.IsUserUndefinedPropagationEnabled();
  bool found = false;
  bool allDefined = true;
  for (const ExpressionNode* argument : arguments) {
    bool value = false;
    if (!GetBooleanValueFromNode(env, argument, node, value)) {
      allDefined = false;
    } else if (value == decisive) {
      found = true;
      if (!evaluateAll) break;
    }
  }
  if (found) return ExpressionValue::FromBool(decisive);
  return allDefined ? ExpressionValue::FromBool(!decisive) : UndefinedBool();
}

ExpressionValue Undefined(ExpressionValue value) {
  value.SetToUserUndefined();
  return value;
}

}  // namespace

TW::ClassInfo ExpressionAndFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionAndFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionAndFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                            const Arguments& arguments) const {
  return SettleBy(false, env, arguments, this);
}

TW::ClassInfo ExpressionOrFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionOrFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionOrFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                           const Arguments& arguments) const {
  return SettleBy(true, env, arguments, this);
}

TW::ClassInfo ExpressionXorFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionXorFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionXorFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                            const Arguments& arguments) const {
  const bool evaluateAll = env.IsUserUndefinedPropagationEnabled();
  bool odd = false;
  bool allDefined = true;
  for (const ExpressionNode* argument : arguments) {
    bool value = false;
    allDefined = GetBooleanValueFromNode(env, argument, this, value) && allDefined;
    if (!allDefined && !evaluateAll) break;
    odd = odd != value;
  }
  return allDefined ? ExpressionValue::FromBool(odd) : UndefinedBool();
}

TW::ClassInfo ExpressionNotFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionNotFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionNotFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                            const Arguments& arguments) const {
  bool value = false;
  if (!GetBooleanValueFromNode(env, arguments[0], this, value)) return UndefinedBool();
  return ExpressionValue::FromBool(!value);
}

TW::ClassInfo ExpressionIfFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionIfFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionIfFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                           const Arguments& arguments) const {
  bool condition = true;
  const bool defined = GetBooleanValueFromNode(env, arguments[0], this, condition);
  ExpressionValue result;
  if (env.IsUserUndefinedPropagationEnabled()) {
    ExpressionValue whenTrue = GetExpressionValueFromNode(env, arguments[1], this);
    ExpressionValue whenFalse = GetExpressionValueFromNode(env, arguments[2], this);
    if (!ExpressionValue::AreEqualByTypeAndUnit(whenTrue, whenFalse)) throw ExpressionDifferentIfBranchTypes(this);
    result = std::move(condition ? whenTrue : whenFalse);
  } else {
    result = GetExpressionValueFromNode(env, arguments[condition ? 1 : 2], this);
  }
  if (!defined) result.SetToUserUndefined();
  return result;
}

TW::ClassInfo ExpressionIfsFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionIfsFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionIfsFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                            const Arguments& arguments) const {
  return env.IsUserUndefinedPropagationEnabled() ? EvaluateAll(env, arguments) : EvaluateUntilFound(env, arguments);
}

ExpressionValue ExpressionIfsFunctionNode::EvaluateUntilFound(const IExpressionEvaluationEnv& env,
                                                              const Arguments& arguments) const {
  for (unsigned int i = 0; i < arguments.GetCount(); i += 2) {
    bool condition = true;
    const bool defined = GetBooleanValueFromNode(env, arguments[i], this, condition);
    if (!condition) continue;
    ExpressionValue value = GetExpressionValueFromNode(env, arguments[i + 1], this);
    if (!defined) value.SetToUserUndefined();
    return value;
  }
  return Undefined(GetExpressionValueFromNode(env, arguments[arguments.GetCount() - 1], this));
}

// Every value is evaluated once: were it twice, nested calls would take time exponential in their depth. The first
// value comes before the first condition.
ExpressionValue ExpressionIfsFunctionNode::EvaluateAll(const IExpressionEvaluationEnv& env,
                                                       const Arguments& arguments) const {
  const ExpressionValue first = GetExpressionValueFromNode(env, arguments[1], this);
  ExpressionValue last = first;
  TW::Optional<ExpressionValue> result;
  for (unsigned int i = 0; i < arguments.GetCount(); i += 2) {
    bool condition = true;
    const bool defined = GetBooleanValueFromNode(env, arguments[i], this, condition);
    if (i > 0) last = GetExpressionValueFromNode(env, arguments[i + 1], this);
    if (!ExpressionValue::AreEqualByTypeAndUnit(first, last)) throw ExpressionDifferentIfBranchTypes(this);
    if (condition && !result) result = defined ? last : Undefined(last);
  }
  return result ? *std::move(result) : Undefined(std::move(last));
}

TW::ClassInfo ExpressionIsUndefinedFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionIsUndefinedFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionIsUndefinedFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                    const Arguments& arguments) const {
  const bool undefined = GetExpressionValueFromNode(env, arguments[0], this).IsUserUndefined();
  if (undefined && env.IsUserUndefinedPropagationEnabled()) return UndefinedBool();
  return ExpressionValue::FromBool(undefined);
}

}  // namespace QX
