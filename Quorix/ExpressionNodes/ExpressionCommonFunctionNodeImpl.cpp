#include "Quorix/ExpressionNodes/ExpressionCommonFunctionNodeImpl.hpp"

#include "Quorix/ExpressionMathFunctions.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {
namespace {

enum class PowerOrNthRootFuncOption { Power, NthRoot };

Quantity PowerOrNthRootFunc(const Quantity& x, const Quantity& n, const ExpressionNode* node,
                            PowerOrNthRootFuncOption option) {
  int whole = 1;
  if (!WholeNumberFromQuantity(n, node, whole)) {
    if (x.IsNonUnit()) return {Quantity::UndefinedSelector(), UnitExponents::CreateNonUnit()};
    throw ExpressionOutOfDomainOfMathematicalFunction(node);
  }
  Quantity result;
  const bool defined = option == PowerOrNthRootFuncOption::Power ? Quantity::Power(x, whole, result)
                                                                 : Quantity::NthRoot(x, whole, result);
  if (!defined) throw ExpressionOutOfDomainOfMathematicalFunction(node);
  return result;
}

}  // namespace

Quantity PowerFuncImpl(const Quantity& base, const Quantity& exponent, const ExpressionNode* node) {
  return PowerOrNthRootFunc(base, exponent, node, PowerOrNthRootFuncOption::Power);
}

Quantity NthRootFuncImpl(const Quantity& radicand, const Quantity& degree, const ExpressionNode* node) {
  return PowerOrNthRootFunc(radicand, degree, node, PowerOrNthRootFuncOption::NthRoot);
}

}  // namespace QX
