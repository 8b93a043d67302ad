#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionNodes/UnitOfNumber.hpp"

namespace QX {

/// A whole number and the unit written after it.
class QX_EXPORT ExpressionIntegerNode final : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();

  ExpressionIntegerNode() = default;
  ExpressionIntegerNode(int value, TW::UniString unitMarker) : value_(value), unit_(std::move(unitMarker)) {}

  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  /// Gives an invalid value for an unknown unit: unlike a number node, it does not throw.
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const override;
  Quantity EvaluateQuantity(const IExpressionEvaluationEnv& env, const ExpressionNode* source) const override;
  void BuildExpressionString(IExpressionStringBuilder& builder) const override;

 protected:
  TW::ErrCode ReadSelf(TW::IChannel& channel) override;
  TW::ErrCode WriteSelf(TW::OChannel& channel) const override;

 private:
  std::int32_t value_ = 0;
  UnitOfNumber unit_;
};

}  // namespace QX
