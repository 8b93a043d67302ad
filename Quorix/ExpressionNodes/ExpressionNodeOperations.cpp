#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionMathFunctions.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "TW/ClassManager.hpp"

namespace QX {
namespace {

void EnumerateExpressionNodeClassInfos(const std::function<void(const TW::ClassInfo*)>& visit) {
  TW::ClassManager::EnumerateClassInfos([&visit](const TW::ClassInfo* info) {
    if (info->IsCompatibleWith(ExpressionNode::classInfo)) visit(info);
  });
}

}  // namespace

void EnumerateExpressionNodeTypes(const std::function<void(const TW::Ref<ExpressionNode>&)>& visit) {
  EnumerateExpressionNodeClassInfos([&visit](const TW::ClassInfo* info) {
    const TW::Ref<TW::Object> instance = info->CreateNewInstance();
    if (instance) visit(instance.CheckedCast<ExpressionNode>());
  });
}

void DumpExpressionNodeHierarchy() {
  EnumerateExpressionNodeClassInfos([](const TW::ClassInfo*) {});
}

void BuildParenthesizedExpressionString(const ExpressionNode* node, IExpressionStringBuilder& builder) {
  const TW::UniString space(EP::SpaceChar);
  builder.AppendString(TW::UniString(EP::LeftParenthesis), node);
  builder.AppendString(space, node);
  const unsigned int count = node->GetChildCount();
  for (unsigned int i = 0; i < count; ++i) {
    node->GetChild(i)->BuildExpressionString(builder);
    if (i + 1 == count) break;
    const TW::UniChar separator(builder.GetLocaleSettings().GetListSeparator());
    builder.AppendString(TW::UniString(separator) + EP::SpaceChar, node);
  }
  builder.AppendString(space, node);
  builder.AppendString(TW::UniString(EP::RightParenthesis), node);
}

ExpressionValue GetExpressionValueFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                                           const ExpressionNode* source) {
  ExpressionValue value = node->Evaluate(env);
  RequireValid(value, source);
  return value;
}

bool GetStringValueFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                            const ExpressionNode* source, TW::UniString& out) {
  ExpressionValue value = GetExpressionValueFromNode(env, node, source);
  if (!value.IsString()) throw ExpressionInvalidStringType(source);
  if (value.IsUserUndefined()) return false;
  out = std::move(value).GetAsString();
  return true;
}

bool GetNumberValueFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                            const ExpressionNode* source, double& out) {
  const ExpressionValue value = GetExpressionValueFromNode(env, node, source);
  if (!value.IsNonUnitNumericValue()) throw ExpressionInvalidNonUnitNumberType(source);
  if (value.IsUserUndefined()) return false;
  out = value.GetAsNonUnitNumericValue();
  return true;
}

bool GetBooleanValueFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                             const ExpressionNode* source, bool& out) {
  const ExpressionValue value = GetExpressionValueFromNode(env, node, source);
  if (!value.IsBool()) throw ExpressionInvalidBoolType(source);
  if (value.IsUserUndefined()) return false;
  out = value.GetAsBool();
  return true;
}

bool GetZeroOrPositiveWholeNumberFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                                          const ExpressionNode* source, unsigned int& out) {
  double number = 0.0;
  if (!GetNumberValueFromNode(env, node, source, number)) return false;
  int whole = 0;
  if (IsLess(number, 0.0) || !WholeNumberFromDouble(number, whole)) {
    throw ExpressionZeroOrPositiveWholeNumberExpected(source);
  }
  out = static_cast<unsigned int>(whole);
  return true;
}

bool GetPositiveWholeNumberFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                                    const ExpressionNode* source, unsigned int& out) {
  double number = 0.0;
  if (!GetNumberValueFromNode(env, node, source, number)) return false;
  int whole = 0;
  if (!WholeNumberFromDouble(number, whole) || whole <= 0) throw ExpressionPositiveWholeNumberExpected(source);
  out = static_cast<unsigned int>(whole);
  return true;
}

}  // namespace QX
