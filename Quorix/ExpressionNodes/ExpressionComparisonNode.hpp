#pragma once

#include "Quorix/ExpressionNodes/ExpressionBinaryOpNode.hpp"

namespace QX {

/// An operator that puts two quantities of one dimension in order, with the tolerance. An undefined operand makes an
/// undefined answer; the dimensions are compared before that.
class QX_EXPORT ExpressionArithmeticComparisonOpNode : public ExpressionBinaryOpNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }

  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const ExpressionValue& left,
                                   const ExpressionNode* right) const final;

  virtual bool GetOperationResult(double left, double right) const = 0;
};

class QX_EXPORT ExpressionLessThanNode final : public ExpressionArithmeticComparisonOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  bool GetOperationResult(double left, double right) const override;
};

class QX_EXPORT ExpressionLessOrEqNode final : public ExpressionArithmeticComparisonOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  bool GetOperationResult(double left, double right) const override;
};

class QX_EXPORT ExpressionGreaterThanNode final : public ExpressionArithmeticComparisonOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  bool GetOperationResult(double left, double right) const override;
};

class QX_EXPORT ExpressionGreaterOrEqNode final : public ExpressionArithmeticComparisonOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  bool GetOperationResult(double left, double right) const override;
};

/// Equality of two logical values, two texts (unit by unit) or two quantities (with the tolerance).
class QX_EXPORT ExpressionEqualNode final : public ExpressionBinaryOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const ExpressionValue& left,
                                   const ExpressionNode* right) const override;
};

/// The contrary of equality; undefined, too, where an operand is.
class QX_EXPORT ExpressionNotEqualNode final : public ExpressionBinaryOpNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  TW::UniString GetOperatorSign() const override;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const ExpressionValue& left,
                                   const ExpressionNode* right) const override;
};

}  // namespace QX
