#include "Quorix/ExpressionNodes/ExpressionAggregateFunctionNodes.hpp"

#include "Quorix/ExpressionMathFunctions.hpp"

#include <algorithm>

namespace QX {

TW::ClassInfo ExpressionSumFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionSumFunctionNode::functionName(Identity.keyword);
double ExpressionSumFunctionNode::GetOperationResult(const TW::Array<double>& values) const { return Sum(values); }

TW::ClassInfo ExpressionMinFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionMinFunctionNode::functionName(Identity.keyword);
double ExpressionMinFunctionNode::GetOperationResult(const TW::Array<double>& values) const {
  return *std::min_element(values.begin(), values.end());
}

TW::ClassInfo ExpressionMaxFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionMaxFunctionNode::functionName(Identity.keyword);
double ExpressionMaxFunctionNode::GetOperationResult(const TW::Array<double>& values) const {
  return *std::max_element(values.begin(), values.end());
}

TW::ClassInfo ExpressionAvgFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionAvgFunctionNode::functionName(Identity.keyword);
double ExpressionAvgFunctionNode::GetOperationResult(const TW::Array<double>& values) const {
  return Sum(values) / static_cast<double>(values.size());
}

}  // namespace QX
