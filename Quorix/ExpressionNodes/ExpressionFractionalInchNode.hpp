#pragma once

#include "EP/FractionalInch.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"

namespace QX {

/// A length written as whole inches and a fraction of an inch.
class QX_EXPORT ExpressionFractionalInchNode final : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();

  ExpressionFractionalInchNode() = default;
  /// Throws `EP::ExpressionInvalidFractionalNodeException` when `value` is not valid.
  explicit ExpressionFractionalInchNode(EP::FractionalInch value);

  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const override;
  void BuildExpressionString(IExpressionStringBuilder& builder) const override;

 protected:
  TW::ErrCode ReadSelf(TW::IChannel& channel) override;
  TW::ErrCode WriteSelf(TW::OChannel& channel) const override;

 private:
  EP::FractionalInch value_;
};

}  // namespace QX
