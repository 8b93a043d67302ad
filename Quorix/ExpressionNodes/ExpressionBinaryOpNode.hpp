#pragma once

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionOperatorImpl.hpp"
#include "Quorix/Quantity.hpp"

namespace QX {

/// An operator between two operands, its children. Chains of operators that lean to the left (`a + b + c`) are
/// evaluated and rendered in loops, whatever their length.
class QX_EXPORT ExpressionBinaryOpNode : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }

  /// Throws `ExpressionInvalidArgumentNumber` unless there are exactly two operands, as rendering does. The left
  /// operand is evaluated first, and its errors win.
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const override;
  void BuildExpressionString(IExpressionStringBuilder& builder) const final;

  virtual TW::UniString GetOperatorSign() const = 0;
  /// Combines the value of the left operand with the right operand, which it evaluates.
  virtual ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const ExpressionValue& left,
                                           const ExpressionNode* right) const = 0;

 protected:
  explicit ExpressionBinaryOpNode(Kind kind = OtherBinaryOperator) : ExpressionNode(kind) {}

  TW::ErrCode ReadSelf(TW::IChannel& channel) final { return ReadEmptyFrame(channel); }
  TW::ErrCode WriteSelf(TW::OChannel& channel) const final { return WriteEmptyFrame(channel); }
  Nesting GetChildNesting(unsigned int index) const override { return index == 0 ? Nesting::None : Nesting::Aside; }
};

/// An operator that computes a quantity from two.
class QX_EXPORT ExpressionArithmeticBinaryOpNode : public ExpressionBinaryOpNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }

  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const final;
  Quantity EvaluateQuantity(const IExpressionEvaluationEnv& env, const ExpressionNode* source) const final;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const ExpressionValue& left,
                                   const ExpressionNode* right) const final;

  /// Throws, naming this node, where the operation has no result.
  virtual Quantity GetOperationResult(const Quantity& left, const Quantity& right) const = 0;

 protected:
  ExpressionArithmeticBinaryOpNode() : ExpressionBinaryOpNode(ArithmeticOperator) {}

 private:
  Quantity Compute(const IExpressionEvaluationEnv& env) const;
  Quantity ComputeChain(const IExpressionEvaluationEnv& env) const;
};

class QX_EXPORT ExpressionAdditionNode final
    : public ExpressionOperatorImpl<ExpressionAdditionNode, ExpressionArithmeticBinaryOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionAdditionNode", "{3922D3C4-8885-4367-AA4F-74FBF0D8C42A}",
                                             EP::Add};
  static TW::ClassInfo classInfo;
  Quantity GetOperationResult(const Quantity& left, const Quantity& right) const override;
};

class QX_EXPORT ExpressionSubtractionNode final
    : public ExpressionOperatorImpl<ExpressionSubtractionNode, ExpressionArithmeticBinaryOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionSubtractionNode", "{1AC4CD94-0FB8-4131-B724-621DBD52FA04}",
                                             EP::Subtract};
  static TW::ClassInfo classInfo;
  Quantity GetOperationResult(const Quantity& left, const Quantity& right) const override;
};

class QX_EXPORT ExpressionMultiplicationNode final
    : public ExpressionOperatorImpl<ExpressionMultiplicationNode, ExpressionArithmeticBinaryOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionMultiplicationNode", "{C411BBC5-407D-4771-8371-005796C05FBB}",
                                             EP::Multiply};
  static TW::ClassInfo classInfo;
  Quantity GetOperationResult(const Quantity& left, const Quantity& right) const override;
};

class QX_EXPORT ExpressionDivisionNode final
    : public ExpressionOperatorImpl<ExpressionDivisionNode, ExpressionArithmeticBinaryOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionDivisionNode", "{EAD27A61-36F5-45AB-BEF1-8E8A47F2819C}",
                                             EP::Divide};
  static TW::ClassInfo classInfo;
  Quantity GetOperationResult(const Quantity& left, const Quantity& right) const override;
};

/// Raising to a whole power without unit.
class QX_EXPORT ExpressionPowerNode final
    : public ExpressionOperatorImpl<ExpressionPowerNode, ExpressionArithmeticBinaryOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionPowerNode", "{7A70BCD6-BFE8-4313-A434-5D1CA17318F3}",
                                             EP::Power};
  static TW::ClassInfo classInfo;
  Quantity GetOperationResult(const Quantity& left, const Quantity& right) const override;

 protected:
  Nesting GetChildNesting(unsigned int index) const override { return index == 0 ? Nesting::None : Nesting::Level; }
};

}  // namespace QX
