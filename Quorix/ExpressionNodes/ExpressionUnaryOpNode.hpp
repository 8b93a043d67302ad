#pragma once

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionOperatorImpl.hpp"
#include "Quorix/Quantity.hpp"

namespace QX {

/// A sign before an operand, its only child.
class QX_EXPORT ExpressionUnaryOpNode : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }

  /// Throws `ExpressionInvalidArgumentNumber` unless there is exactly one operand, as rendering does.
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const final;
  void BuildExpressionString(IExpressionStringBuilder& builder) const final;

  virtual TW::UniString GetOperatorSign() const = 0;
  virtual ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env,
                                           const ExpressionNode* operand) const = 0;

 protected:
  TW::ErrCode ReadSelf(TW::IChannel& channel) final { return ReadEmptyFrame(channel); }
  TW::ErrCode WriteSelf(TW::OChannel& channel) const final { return WriteEmptyFrame(channel); }
};

/// A sign before a number or quantity.
class QX_EXPORT ExpressionArithmeticUnaryOpNode : public ExpressionUnaryOpNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }

  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const ExpressionNode* operand) const final;
  Quantity EvaluateQuantity(const IExpressionEvaluationEnv& env, const ExpressionNode* source) const final;

  virtual Quantity GetOperationResult(const Quantity& quantity) const = 0;
};

class QX_EXPORT ExpressionPlusUnaryOpNode final
    : public ExpressionOperatorImpl<ExpressionPlusUnaryOpNode, ExpressionArithmeticUnaryOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionPlusUnaryOpNode", "{F1E88B4B-FD89-4B9C-9A4C-A1FBCC3B02D3}",
                                             EP::Plus};
  static TW::ClassInfo classInfo;
  Quantity GetOperationResult(const Quantity& quantity) const override;
};

/// Negation. It keeps an undefined quantity as it is and turns 0 into -0.
class QX_EXPORT ExpressionMinusUnaryOpNode final
    : public ExpressionOperatorImpl<ExpressionMinusUnaryOpNode, ExpressionArithmeticUnaryOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionMinusUnaryOpNode", "{7E39CFD4-B9D4-4BEC-84E6-9805DEAD1E88}",
                                             EP::Minus};
  static TW::ClassInfo classInfo;
  Quantity GetOperationResult(const Quantity& quantity) const override;
};

}  // namespace QX
