#pragma once

#include "Quorix/ExpressionNodes/ExpressionArithmeticFunctionNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionFunctionImpl.hpp"

/// The functions of two quantities but for those that round.

namespace QX {

template <class Function>
using BinaryFunction = ExpressionFunctionImpl<Function, ExpressionBinaryArithmeticFunctionNode>;
template <class Function>
using BinaryNumberFunction = ExpressionFunctionImpl<Function, ExpressionBinaryNonUnitArithmeticFunctionNode>;

/// What the operator for powers does.
class QX_EXPORT ExpressionPowerFunctionNode final : public BinaryFunction<ExpressionPowerFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionPowerFunctionNode", "{78C0EEDB-58E4-4738-A1C6-2B265829CA67}",
                                             u"POWER"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  Quantity GetOperationResult(const Quantity& base, const Quantity& exponent) const override;
};

/// The root of a whole degree, as the operator for powers treats its dimension. There are no roots of negative numbers.
class QX_EXPORT ExpressionNthRootFunctionNode final : public BinaryFunction<ExpressionNthRootFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionNthRootFunctionNode", "{59D89269-AAA1-4E5E-AEF9-E2DB2AC94F3D}",
                                             u"NTHROOT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  Quantity GetOperationResult(const Quantity& radicand, const Quantity& degree) const override;
};

/// The whole part of the quotient, towards zero, without unit. Both must be of one dimension.
class QX_EXPORT ExpressionQuotientFunctionNode final : public BinaryFunction<ExpressionQuotientFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionQuotientFunctionNode", "{1228F2EB-0666-499D-8E7A-CE381661797A}",
                                             u"QUOTIENT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  Quantity GetOperationResult(const Quantity& dividend, const Quantity& divisor) const override;
};

/// The logarithm of a number to a base. A number or base of 0 is taken, and gives what division makes of it.
class QX_EXPORT ExpressionLogFunctionNode final : public BinaryNumberFunction<ExpressionLogFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionLogFunctionNode", "{06C13D70-E2DE-4447-9402-AA44970649B3}",
                                             u"LOG"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value, double base) const override;
};

/// The remainder, with the sign of the divisor.
class QX_EXPORT ExpressionModFunctionNode final : public BinaryNumberFunction<ExpressionModFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionModFunctionNode", "{AD2C8AAB-C899-44C2-B110-332D5DD561D4}",
                                             u"MOD"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double dividend, double divisor) const override;
};

}  // namespace QX
