#include "Quorix/ExpressionNodes/ExpressionRoundingFunctionNodes.hpp"

#include "Quorix/ExpressionMathFunctions.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {
namespace {

Quantity MRoundFuncImpl(const Quantity& quantity, const Quantity& multiple, RoundingRule rule,
                        const ExpressionNode* node) {
  const UnitExponents exponents = quantity.GetUnitExponents();
  if (exponents != multiple.GetUnitExponents()) throw ExpressionIncompatibleArgumentDimensions(node);
  if (quantity.IsUserUndefinedValue() || multiple.IsUserUndefinedValue()) {
    return {Quantity::UndefinedSelector(), exponents};
  }
  if (IsNearZero(multiple.GetNumericValue())) throw ExpressionDivisionByZero(node);
  return {RoundToMultiplier(quantity.GetNumericValue(), multiple.GetNumericValue(), rule), exponents};
}

double RoundFuncImpl(double value, double digits, RoundingRule rule, const ExpressionNode* node) {
  int wholeDigits = 0;
  if (!WholeNumberFromDouble(digits, wholeDigits)) throw ExpressionWholeNumberExpected(node);
  return RoundToMultiplier(value, GetValidatedMultiplier(wholeDigits, node), rule);
}

}  // namespace

TW::ClassInfo ExpressionMRoundFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionMRoundFunctionNode::functionName(Identity.keyword);
Quantity ExpressionMRoundFunctionNode::GetOperationResult(const Quantity& quantity, const Quantity& multiple) const {
  return MRoundFuncImpl(quantity, multiple, RoundingRule::Nearest, this);
}

TW::ClassInfo ExpressionMRoundUpFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionMRoundUpFunctionNode::functionName(Identity.keyword);
Quantity ExpressionMRoundUpFunctionNode::GetOperationResult(const Quantity& quantity, const Quantity& multiple) const {
  return MRoundFuncImpl(quantity, multiple, RoundingRule::Up, this);
}

TW::ClassInfo ExpressionMRoundDownFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionMRoundDownFunctionNode::functionName(Identity.keyword);
Quantity ExpressionMRoundDownFunctionNode::GetOperationResult(const Quantity& quantity,
                                                              const Quantity& multiple) const {
  return MRoundFuncImpl(quantity, multiple, RoundingRule::Down, this);
}

TW::ClassInfo ExpressionRoundFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionRoundFunctionNode::functionName(Identity.keyword);
double ExpressionRoundFunctionNode::GetOperationResult(double value, double digits) const {
  return RoundFuncImpl(value, digits, RoundingRule::Nearest, this);
}

TW::ClassInfo ExpressionRoundUpFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionRoundUpFunctionNode::functionName(Identity.keyword);
double ExpressionRoundUpFunctionNode::GetOperationResult(double value, double digits) const {
  return RoundFuncImpl(value, digits, RoundingRule::Up, this);
}

TW::ClassInfo ExpressionRoundDownFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionRoundDownFunctionNode::functionName(Identity.keyword);
double ExpressionRoundDownFunctionNode::GetOperationResult(double value, double digits) const {
  return RoundFuncImpl(value, digits, RoundingRule::Down, this);
}

}  // namespace QX
