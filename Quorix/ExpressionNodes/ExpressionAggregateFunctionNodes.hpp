#pragma once

#include "Quorix/ExpressionNodes/ExpressionArithmeticFunctionNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionFunctionImpl.hpp"

/// The functions that make one quantity of one or more of the same dimension. None of them applies a tolerance.

namespace QX {

template <class Function>
using AggregateFunction = ExpressionFunctionImpl<Function, ExpressionSameDimensionValuesAggregatorFunctionNode>;

/// Adds up from first to last.
class QX_EXPORT ExpressionSumFunctionNode final : public AggregateFunction<ExpressionSumFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionSumFunctionNode", "{661B6239-B00D-4333-A10B-14017FE5951E}",
                                             u"SUM"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  double GetOperationResult(const TW::Array<double>& values) const override;
};

/// The smallest value, the first of equal ones.
class QX_EXPORT ExpressionMinFunctionNode final : public AggregateFunction<ExpressionMinFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionMinFunctionNode", "{371A8232-4E2E-48D0-9932-F3568340E8F9}",
                                             u"MIN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  double GetOperationResult(const TW::Array<double>& values) const override;
};

/// The largest value, the first of equal ones.
class QX_EXPORT ExpressionMaxFunctionNode final : public AggregateFunction<ExpressionMaxFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionMaxFunctionNode", "{B0F8781B-42E2-480B-80B3-5ADDF87C3725}",
                                             u"MAX"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  double GetOperationResult(const TW::Array<double>& values) const override;
};

/// The arithmetic mean.
class QX_EXPORT ExpressionAvgFunctionNode final : public AggregateFunction<ExpressionAvgFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionAvgFunctionNode", "{97EF77DD-3AE7-4407-845C-0F3174DFAE99}",
                                             u"AVG"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  double GetOperationResult(const TW::Array<double>& values) const override;
};

}  // namespace QX
