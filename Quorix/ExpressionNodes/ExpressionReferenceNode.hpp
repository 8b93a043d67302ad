#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "TW/Guid.hpp"

namespace QX {

/// What all kinds of references have in common; those to properties are the only kind.
class QX_EXPORT ExpressionReferenceNode : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
};

/// The value of another property of the host's model.
class QX_EXPORT ExpressionPropertyReferenceNode final : public ExpressionReferenceNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();

  ExpressionPropertyReferenceNode() = default;
  explicit ExpressionPropertyReferenceNode(const TW::Guid& propertyId) : propertyId_(propertyId) {}

  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  /// Throws `ExpressionPropertyEvaluationFailed` when the host has no valid value or throws anything.
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const override;
  Quantity EvaluateQuantity(const IExpressionEvaluationEnv& env, const ExpressionNode* source) const override;
  void BuildExpressionString(IExpressionStringBuilder& builder) const override;
  void CollectReferences(IExpressionReferenceCollector& collector) const override;
  void RestorePropertyReferences(const IGuidMapper& mapper) override;

 protected:
  TW::ErrCode ReadSelf(TW::IChannel& channel) override;
  TW::ErrCode WriteSelf(TW::OChannel& channel) const override;

 private:
  TW::Guid propertyId_;
};

}  // namespace QX
