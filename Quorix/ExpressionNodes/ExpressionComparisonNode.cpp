#include "Quorix/ExpressionNodes/ExpressionComparisonNode.hpp"

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

TW::ClassInfo ExpressionLessThanNode::classInfo = MakeClassInfo();
bool ExpressionLessThanNode::GetOperationResult(double left, double right) const { return IsLess(left, right); }

TW::ClassInfo ExpressionLessOrEqNode::classInfo = MakeClassInfo();
bool ExpressionLessOrEqNode::GetOperationResult(double left, double right) const { return IsLessOrNear(left, right); }

TW::ClassInfo ExpressionGreaterThanNode::classInfo = MakeClassInfo();
bool ExpressionGreaterThanNode::GetOperationResult(double left, double right) const { return IsGreater(left, right); }

TW::ClassInfo ExpressionGreaterOrEqNode::classInfo = MakeClassInfo();
bool ExpressionGreaterOrEqNode::GetOperationResult(double left, double right) const {
  return IsGreaterOrNear(left, right);
}

TW::ClassInfo ExpressionEqualNode::classInfo = MakeClassInfo();
ExpressionValue ExpressionEqualNode::EvaluateInternal(const IExpressionEvaluationEnv& env, const ExpressionValue& left,
                                                      const ExpressionNode* right) const {
  return AnswerOf(AreEqualValue(env, left, right, this), Equality::Equal);
}

TW::ClassInfo ExpressionNotEqualNode::classInfo = MakeClassInfo();
ExpressionValue ExpressionNotEqualNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                         const ExpressionValue& left,
                                                         const ExpressionNode* right) const {
  return AnswerOf(AreEqualValue(env, left, right, this), Equality::NotEqual);
}

}  // namespace QX
