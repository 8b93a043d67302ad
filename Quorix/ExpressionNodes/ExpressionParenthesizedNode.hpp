#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"

namespace QX {

/// A pair of brackets around one operand, its only child.
class QX_EXPORT ExpressionParenthesizedNode final : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();

  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  /// Throws `ExpressionInvalidArgumentNumber` unless there is exactly one operand.
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const override;
  Quantity EvaluateQuantity(const IExpressionEvaluationEnv& env, const ExpressionNode* source) const override;
  void BuildExpressionString(IExpressionStringBuilder& builder) const override;

 protected:
  TW::ErrCode ReadSelf(TW::IChannel& channel) override { return ReadEmptyFrame(channel); }
  TW::ErrCode WriteSelf(TW::OChannel& channel) const override { return WriteEmptyFrame(channel); }
};

}  // namespace QX
