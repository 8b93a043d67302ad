#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/IdentitiferNodeRegistry.hpp"

namespace QX {

/// A named constant.
class QX_EXPORT ExpressionIdentifierNode final : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();

  /// Whether `name`, in any case, names a constant.
  static bool IsValidName(const TW::UniString& name);

  ExpressionIdentifierNode() = default;
  /// Keeps the name as it is written.
  explicit ExpressionIdentifierNode(const TW::UniString& name);

  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  /// Throws `ExpressionInternalErrorException` for a name that is no constant and `ExpressionInvalidArgumentNumber`
  /// when there is a child.
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const override;
  void BuildExpressionString(IExpressionStringBuilder& builder) const override;

 protected:
  TW::ErrCode ReadSelf(TW::IChannel& channel) override;
  TW::ErrCode WriteSelf(TW::OChannel& channel) const override;

 private:
  void SetName(TW::UniString name);

  TW::UniString name_;
  const IdentifierData* data_ = nullptr;  ///< looked up once, when the name is set
};

}  // namespace QX
