#include "Quorix/ExpressionNodes/ExpressionComparisonNode.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionMathFunctions.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {
namespace {

enum class Equality { Equal, NotEqual, Undefined };

Equality EqualityOf(bool bothDefined, bool equal) {
  if (!bothDefined) return Equality::Undefined;
  return equal ? Equality::Equal : Equality::NotEqual;
}

Equality AreEqualValue(const IExpressionEvaluationEnv& env, const ExpressionValue& a, const ExpressionNode* right,
                       const ExpressionNode* node) {
  RequireValid(a, node);
  const ExpressionValue b = GetExpressionValueFromNode(env, right, node);
  const bool bothDefined = !a.IsUserUndefined() && !b.IsUserUndefined();
  if (a.IsBool() && b.IsBool()) return EqualityOf(bothDefined, a.GetAsBool() == b.GetAsBool());
  if (a.IsString() && b.IsString()) return EqualityOf(bothDefined, a.GetAsString() == b.GetAsString());
  if (!a.CanConvertToQuantity() || !b.CanConvertToQuantity()) {
    throw ExpressionEqualsOperatorArgumentTypesMismatch(node);
  }
  if (a.GetUnitExponents() != b.GetUnitExponents()) throw ExpressionIncompatibleArgumentDimensions(node);
  return EqualityOf(bothDefined, IsNear(a.GetIntOrNumVariantValue(), b.GetIntOrNumVariantValue()));
}

ExpressionValue AnswerOf(Equality equality, Equality wanted) {
  if (equality == Equality::Undefined) return ExpressionValue::FromBool(ExpressionValue::UndefinedSelector());
  return ExpressionValue::FromBool(equality == wanted);
}

}  // namespace

TW::ClassInfo ExpressionArithmeticComparisonOpNode::classInfo("ExpressionArithmeticComparisonOpNode",
                                                              "{B974727C-EA8C-4868-BE67-444A7093C017}", 1,
                                                              &ExpressionBinaryOpNode::classInfo);
TW::ClassInfo ExpressionLessThanNode::classInfo("ExpressionLessThanNode", "{58D67C5A-A46B-40C4-807B-DEAB045EFBBC}", 1,
                                                &ExpressionArithmeticComparisonOpNode::classInfo,
                                                &ExpressionLessThanNode::ConstructorFunction);
TW::ClassInfo ExpressionLessOrEqNode::classInfo("ExpressionLessOrEqNode", "{D96141FD-164A-4DF2-A593-75F9AB8DE161}", 1,
                                                &ExpressionArithmeticComparisonOpNode::classInfo,
                                                &ExpressionLessOrEqNode::ConstructorFunction);
TW::ClassInfo ExpressionGreaterThanNode::classInfo("ExpressionGreaterThanNode",
                                                   "{6973BD5D-6F47-435F-9140-1C630BEC0ACD}", 1,
                                                   &ExpressionArithmeticComparisonOpNode::classInfo,
                                                   &ExpressionGreaterThanNode::ConstructorFunction);
TW::ClassInfo ExpressionGreaterOrEqNode::classInfo("ExpressionGreaterOrEqNode",
                                                   "{35C61388-E0E7-4A0D-A2CE-BE6D1A372036}", 1,
                                                   &ExpressionArithmeticComparisonOpNode::classInfo,
                                                   &ExpressionGreaterOrEqNode::ConstructorFunction);
TW::ClassInfo ExpressionEqualNode::classInfo("ExpressionEqualNode", "{7438A0DE-D93C-42D0-9BA9-AD298FA0B007}", 1,
                                             &ExpressionBinaryOpNode::classInfo,
                                             &ExpressionEqualNode::ConstructorFunction);
TW::ClassInfo ExpressionNotEqualNode::classInfo("ExpressionNotEqualNode", "{FF231656-C63D-48D1-9154-CC92E7697838}", 1,
                                                &ExpressionBinaryOpNode::classInfo,
                                                &ExpressionNotEqualNode::ConstructorFunction);

ExpressionValue ExpressionArithmeticComparisonOpNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                       const ExpressionValue& left,
                                                                       const ExpressionNode* right) const {
  const Quantity a = RequireQuantity(left, this);
  const Quantity b = GetQuantityValueFromNode(env, right, this);
  if (!UnitExponents::AreAdditive(a.GetUnitExponents(), b.GetUnitExponents())) {
    throw ExpressionIncompatibleArgumentDimensions(this);
  }
  if (a.IsUserUndefinedValue() || b.IsUserUndefinedValue()) {
    return ExpressionValue::FromBool(ExpressionValue::UndefinedSelector());
  }
  return ExpressionValue::FromBool(GetOperationResult(a.GetNumericValue(), b.GetNumericValue()));
}

TW::Ref<TW::Object> ExpressionLessThanNode::ConstructorFunction() { return TW::MakeRef<ExpressionLessThanNode>(); }

TW::UniString ExpressionLessThanNode::GetOperatorSign() const { return TW::UniString(EP::LessThan); }

bool ExpressionLessThanNode::GetOperationResult(double left, double right) const { return IsLess(left, right); }

TW::Ref<TW::Object> ExpressionLessOrEqNode::ConstructorFunction() { return TW::MakeRef<ExpressionLessOrEqNode>(); }

TW::UniString ExpressionLessOrEqNode::GetOperatorSign() const { return TW::UniString(EP::LessOrEqual); }

bool ExpressionLessOrEqNode::GetOperationResult(double left, double right) const { return IsLessOrNear(left, right); }

TW::Ref<TW::Object> ExpressionGreaterThanNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionGreaterThanNode>();
}

TW::UniString ExpressionGreaterThanNode::GetOperatorSign() const { return TW::UniString(EP::GreaterThan); }

bool ExpressionGreaterThanNode::GetOperationResult(double left, double right) const { return IsGreater(left, right); }

TW::Ref<TW::Object> ExpressionGreaterOrEqNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionGreaterOrEqNode>();
}

TW::UniString ExpressionGreaterOrEqNode::GetOperatorSign() const { return TW::UniString(EP::GreaterOrEqual); }

bool ExpressionGreaterOrEqNode::GetOperationResult(double left, double right) const {
  return IsGreaterOrNear(left, right);
}

TW::Ref<TW::Object> ExpressionEqualNode::ConstructorFunction() { return TW::MakeRef<ExpressionEqualNode>(); }

TW::UniString ExpressionEqualNode::GetOperatorSign() const { return TW::UniString(EP::Equal); }

ExpressionValue ExpressionEqualNode::EvaluateInternal(const IExpressionEvaluationEnv& env, const ExpressionValue& left,
                                                      const ExpressionNode* right) const {
  return AnswerOf(AreEqualValue(env, left, right, this), Equality::Equal);
}

TW::Ref<TW::Object> ExpressionNotEqualNode::ConstructorFunction() { return TW::MakeRef<ExpressionNotEqualNode>(); }

TW::UniString ExpressionNotEqualNode::GetOperatorSign() const { return TW::UniString(EP::NotEqual); }

ExpressionValue ExpressionNotEqualNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                         const ExpressionValue& left,
                                                         const ExpressionNode* right) const {
  return AnswerOf(AreEqualValue(env, left, right, this), Equality::NotEqual);
}

}  // namespace QX
