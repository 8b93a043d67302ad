#pragma once

#include "Quorix/ExpressionNodes/ExpressionArithmeticFunctionNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionFunctionImpl.hpp"

/// The functions of one quantity. Where one has no value, it throws `ExpressionOutOfDomainOfMathematicalFunction`.

namespace QX {

template <class Function>
using UnaryFunction = ExpressionFunctionImpl<Function, ExpressionUnaryArithmeticFunctionNode>;
template <class Function>
using AngleFunction = ExpressionFunctionImpl<Function, ExpressionUnaryAngleArithmeticFunctionNode>;
template <class Function>
using ToAngleFunction = ExpressionFunctionImpl<Function, ExpressionUnaryNonUnitToAngleArithmeticFunctionNode>;
template <class Function>
using NumberFunction = ExpressionFunctionImpl<Function, ExpressionUnaryNonUnitArithmeticFunctionNode>;

/// The square root of a number, or of a quantity whose dimension has a root.
class QX_EXPORT ExpressionSqrtFunctionNode final : public UnaryFunction<ExpressionSqrtFunctionNode> {
 public:
  // Stored formulas know the class by its old name.
  static constexpr FunctionIdentity Identity{"ExpressionRootFunctionNode", "{B261845D-5C7E-47B7-B384-75355A043107}",
                                             u"SQRT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  Quantity GetOperationResult(const Quantity& quantity) const override;
};

/// The magnitude, in the same dimension; it keeps an undefined quantity as it is, and -0.
class QX_EXPORT ExpressionAbsFunctionNode final : public UnaryFunction<ExpressionAbsFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionAbsFunctionNode", "{E4416254-4B16-4062-AF93-F45BCAFD2F4E}",
                                             u"ABS"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  Quantity GetOperationResult(const Quantity& quantity) const override;
};

/// -1, 0 or 1 without unit; 0 for what lies within the tolerance of it.
class QX_EXPORT ExpressionSignFunctionNode final : public UnaryFunction<ExpressionSignFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionSignFunctionNode", "{95239636-2BE2-4AD7-ADCE-F7580DE0C8FC}",
                                             u"SIGN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  Quantity GetOperationResult(const Quantity& quantity) const override;
};

class QX_EXPORT ExpressionSineFunctionNode final : public AngleFunction<ExpressionSineFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionSineFunctionNode", "{90ECD7A5-39D3-4B7F-8FC2-CE3F84215897}",
                                             u"SIN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double radians) const override;
};

class QX_EXPORT ExpressionCosineFunctionNode final : public AngleFunction<ExpressionCosineFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionCosineFunctionNode", "{8A1B763C-2DD7-45A2-BA03-FFBF86C82A60}",
                                             u"COS"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double radians) const override;
};

/// Has no value within the tolerance of odd multiples of a right angle.
class QX_EXPORT ExpressionTangentFunctionNode final : public AngleFunction<ExpressionTangentFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionTangentFunctionNode", "{28C6E313-A7DD-4635-BFDB-CDBDC23A5A5E}",
                                             u"TAN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double radians) const override;
};

/// Has no value within the tolerance of multiples of half a turn.
class QX_EXPORT ExpressionCotangentFunctionNode final : public AngleFunction<ExpressionCotangentFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionCotangentFunctionNode",
                                             "{517DDF46-A411-44DC-A0E9-1243E980A09D}", u"COT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double radians) const override;
};

/// What lies beyond -1 or 1 by no more than the tolerance goes to the standard function as it is.
class QX_EXPORT ExpressionArcSineFunctionNode final : public ToAngleFunction<ExpressionArcSineFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionArcSineFunctionNode", "{1F245562-66D7-44B9-A862-0271E651F993}",
                                             u"ASIN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value) const override;
};

/// What lies beyond -1 or 1 by no more than the tolerance goes to the standard function as it is.
class QX_EXPORT ExpressionArcCosineFunctionNode final : public ToAngleFunction<ExpressionArcCosineFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionArcCosineFunctionNode",
                                             "{1BB07939-66DF-4731-9633-FFFEA10538B2}", u"ACOS"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value) const override;
};

class QX_EXPORT ExpressionArcTangentFunctionNode final : public ToAngleFunction<ExpressionArcTangentFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionArcTangentFunctionNode",
                                             "{DA035558-D93F-4D2F-9BAE-CB6E3A2697E2}", u"ATAN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value) const override;
};

/// Has no value within the tolerance of 0.
class QX_EXPORT ExpressionArcCotangentFunctionNode final : public ToAngleFunction<ExpressionArcCotangentFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionArcCotangentFunctionNode",
                                             "{490B18FE-C295-42CA-BD25-DFC1537D51CB}", u"ACOT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value) const override;
};

class QX_EXPORT ExpressionExpFunctionNode final : public NumberFunction<ExpressionExpFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionExpFunctionNode", "{F48C30A9-F604-4792-9BD7-87E5EB3F647D}",
                                             u"EXP"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value) const override;
};

/// Has values only above the tolerance.
class QX_EXPORT ExpressionLnFunctionNode final : public NumberFunction<ExpressionLnFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionLnFunctionNode", "{7BFCF9E9-337C-4B33-90F8-D0E9DA974010}",
                                             u"LN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value) const override;
};

/// Has values only above the tolerance.
class QX_EXPORT ExpressionLog10FunctionNode final : public NumberFunction<ExpressionLog10FunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionLog10FunctionNode", "{AF640455-4379-4355-A43C-4CCCF15BD7AB}",
                                             u"LOG10"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value) const override;
};

}  // namespace QX
