#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
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

class QX_EXPORT ExpressionAdditionNode final : public ExpressionArithmeticBinaryOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  Quantity GetOperationResult(const Quantity& left, const Quantity& right) const override;
};

class QX_EXPORT ExpressionSubtractionNode final : public ExpressionArithmeticBinaryOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  Quantity GetOperationResult(const Quantity& left, const Quantity& right) const override;
};

class QX_EXPORT ExpressionMultiplicationNode final : public ExpressionArithmeticBinaryOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  Quantity GetOperationResult(const Quantity& left, const Quantity& right) const override;
};

class QX_EXPORT ExpressionDivisionNode final : public ExpressionArithmeticBinaryOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  Quantity GetOperationResult(const Quantity& left, const Quantity& right) const override;
};

/// Raising to a whole power without unit.
class QX_EXPORT ExpressionPowerNode final : public ExpressionArithmeticBinaryOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  Quantity GetOperationResult(const Quantity& left, const Quantity& right) const override;

 protected:
  Nesting GetChildNesting(unsigned int index) const override { return index == 0 ? Nesting::None : Nesting::Level; }
};

}  // namespace QX
