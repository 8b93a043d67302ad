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

class QX_EXPORT ExpressionLessThanNode final
    : public ExpressionOperatorImpl<ExpressionLessThanNode, ExpressionArithmeticComparisonOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionLessThanNode", "{58D67C5A-A46B-40C4-807B-DEAB045EFBBC}",
                                             EP::LessThan};
  static TW::ClassInfo classInfo;
  bool GetOperationResult(double left, double right) const override;
};

class QX_EXPORT ExpressionLessOrEqNode final
    : public ExpressionOperatorImpl<ExpressionLessOrEqNode, ExpressionArithmeticComparisonOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionLessOrEqNode", "{D96141FD-164A-4DF2-A593-75F9AB8DE161}",
                                             EP::LessOrEqual};
  static TW::ClassInfo classInfo;
  bool GetOperationResult(double left, double right) const override;
};

class QX_EXPORT ExpressionGreaterThanNode final
    : public ExpressionOperatorImpl<ExpressionGreaterThanNode, ExpressionArithmeticComparisonOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionGreaterThanNode", "{6973BD5D-6F47-435F-9140-1C630BEC0ACD}",
                                             EP::GreaterThan};
  static TW::ClassInfo classInfo;
  bool GetOperationResult(double left, double right) const override;
};

class QX_EXPORT ExpressionGreaterOrEqNode final
    : public ExpressionOperatorImpl<ExpressionGreaterOrEqNode, ExpressionArithmeticComparisonOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionGreaterOrEqNode", "{35C61388-E0E7-4A0D-A2CE-BE6D1A372036}",
                                             EP::GreaterOrEqual};
  static TW::ClassInfo classInfo;
  bool GetOperationResult(double left, double right) const override;
};

/// Equality of two logical values, two texts (unit by unit) or two quantities (with the tolerance).
class QX_EXPORT ExpressionEqualNode final : public ExpressionOperatorImpl<ExpressionEqualNode, ExpressionBinaryOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionEqualNode", "{7438A0DE-D93C-42D0-9BA9-AD298FA0B007}",
                                             EP::Equal};
  static TW::ClassInfo classInfo;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const ExpressionValue& left,
                                   const ExpressionNode* right) const override;
};

/// The contrary of equality; undefined, too, where an operand is.
class QX_EXPORT ExpressionNotEqualNode final
    : public ExpressionOperatorImpl<ExpressionNotEqualNode, ExpressionBinaryOpNode> {
 public:
  static constexpr OperatorIdentity Identity{"ExpressionNotEqualNode", "{FF231656-C63D-48D1-9154-CC92E7697838}",
                                             EP::NotEqual};
  static TW::ClassInfo classInfo;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const ExpressionValue& left,
                                   const ExpressionNode* right) const override;
};

}  // namespace QX
