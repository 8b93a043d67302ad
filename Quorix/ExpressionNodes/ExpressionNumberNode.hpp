#pragma once

#include "EP/LocalizedNumberString.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionNodes/UnitOfNumber.hpp"

namespace QX {

/// A number with decimals or an exponent, and the unit written after it.
class QX_EXPORT ExpressionNumberNode final : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();

  ExpressionNumberNode() = default;
  /// `text` is the number as it was written; it, and not `value`, is what is rendered.
  ExpressionNumberNode(double value, TW::UniString unitMarker, const EP::LocalizedNumberString& text)
      : value_(value), unit_(std::move(unitMarker)), localizedString_(text) {}

  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  /// Throws `ExpressionInternalErrorException` for an unknown unit.
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const override;
  Quantity EvaluateQuantity(const IExpressionEvaluationEnv& env, const ExpressionNode* source) const override;
  void BuildExpressionString(IExpressionStringBuilder& builder) const override;

 protected:
  TW::ErrCode ReadSelf(TW::IChannel& channel) override;
  TW::ErrCode WriteSelf(TW::OChannel& channel) const override;

 private:
  Quantity Compute() const;

  double value_ = 0.0;
  UnitOfNumber unit_;
  EP::LocalizedNumberString localizedString_;
};

}  // namespace QX
