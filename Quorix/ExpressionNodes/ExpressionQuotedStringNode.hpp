#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"

namespace QX {

/// A text between quotation marks. It never holds a line break: carriage returns and line feeds are taken out.
class QX_EXPORT ExpressionQuotedStringNode final : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();

  ExpressionQuotedStringNode() = default;
  /// `text` is without quotation marks and escapes.
  explicit ExpressionQuotedStringNode(const TW::UniString& text);

  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const override;
  void BuildExpressionString(IExpressionStringBuilder& builder) const override;
  void Translate(Localization::PoDictionary& dictionary, const TW::UniString& context) override;

 protected:
  TW::ErrCode ReadSelf(TW::IChannel& channel) override;
  TW::ErrCode WriteSelf(TW::OChannel& channel) const override;

 private:
  TW::UniString text_;
};

}  // namespace QX
