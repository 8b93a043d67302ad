#pragma once

#include "Quorix/ExpressionNodes/ExpressionBinaryFunctionNodes.hpp"

/// The functions that round: a quantity to a multiple of another of its dimension, or a plain number to decimals, of
/// which more than 8 count as 8 and negative ones as tens, hundreds and so on.

namespace QX {

/// To the nearest multiple, halves away from zero.
class QX_EXPORT ExpressionMRoundFunctionNode final : public BinaryFunction<ExpressionMRoundFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionMRoundFunctionNode", "{70BBC7A5-31DA-447D-8212-DE139C423C6F}",
                                             u"MROUND"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  Quantity GetOperationResult(const Quantity& quantity, const Quantity& multiple) const override;
};

/// To a multiple away from zero.
class QX_EXPORT ExpressionMRoundUpFunctionNode final : public BinaryFunction<ExpressionMRoundUpFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionMRoundUpFunctionNode", "{24177D96-EF15-48BB-B1C2-8F7BAB013800}",
                                             u"MROUNDUP"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  Quantity GetOperationResult(const Quantity& quantity, const Quantity& multiple) const override;
};

/// To a multiple towards zero.
class QX_EXPORT ExpressionMRoundDownFunctionNode final : public BinaryFunction<ExpressionMRoundDownFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionMRoundDownFunctionNode",
                                             "{D292875B-54FC-43DC-B47A-23FFE6A17C39}", u"MROUNDDOWN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  Quantity GetOperationResult(const Quantity& quantity, const Quantity& multiple) const override;
};

/// To the nearest, halves away from zero.
class QX_EXPORT ExpressionRoundFunctionNode final : public BinaryNumberFunction<ExpressionRoundFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionRoundFunctionNode", "{2B3D9EBD-8BA5-4131-BB7D-0CA54698EAFB}",
                                             u"ROUND"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value, double digits) const override;
};

/// Away from zero.
class QX_EXPORT ExpressionRoundUpFunctionNode final : public BinaryNumberFunction<ExpressionRoundUpFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionRoundUpFunctionNode", "{18B73816-C5E4-4557-A8EC-EEEC697AA206}",
                                             u"ROUNDUP"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value, double digits) const override;
};

/// Towards zero.
class QX_EXPORT ExpressionRoundDownFunctionNode final : public BinaryNumberFunction<ExpressionRoundDownFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionRoundDownFunctionNode",
                                             "{559C8350-8A54-47A9-897C-F94BA1709F1C}", u"ROUNDDOWN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  using ExpressionFunctionImpl::GetOperationResult;
  double GetOperationResult(double value, double digits) const override;
};

}  // namespace QX
