#include "Quorix/ExpressionNodes/ExpressionQuotedStringNode.hpp"

#include "EP/TextConstants.hpp"

namespace QX {
namespace {

TW::UniString WithoutLineBreaks(const TW::UniString& text) {
  return text.ReplaceAll(u"\r", u"").ReplaceAll(u"\n", u"");
}

TW::UniString Escaped(std::u16string_view mark) { return TW::UniString(EP::EscapeChar) + mark; }

}  // namespace

TW::ClassInfo ExpressionQuotedStringNode::classInfo("ExpressionQuotedStringNode",
                                                    "{3A2D6093-8A17-4776-A243-E93B1FDF3E86}", 1,
                                                    &ExpressionNode::classInfo,
                                                    &ExpressionQuotedStringNode::ConstructorFunction);

TW::Ref<TW::Object> ExpressionQuotedStringNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionQuotedStringNode>();
}

ExpressionQuotedStringNode::ExpressionQuotedStringNode(const TW::UniString& text) : text_(WithoutLineBreaks(text)) {}

ExpressionValue ExpressionQuotedStringNode::Evaluate(const IExpressionEvaluationEnv&) const {
  return ExpressionValue::FromString(text_);
}

// Escapes are doubled first, so that those which then protect quotation marks are not.
void ExpressionQuotedStringNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  TW::UniString quoted(EP::QuotationMark);
  quoted += text_.ReplaceAll(EP::EscapeChar, Escaped(EP::EscapeChar))
                .ReplaceAll(EP::QuotationMark, Escaped(EP::QuotationMark));
  quoted += EP::QuotationMark;
  builder.AppendString(quoted, this);
}

void ExpressionQuotedStringNode::Translate(Localization::PoDictionary& dictionary, const TW::UniString& context) {
  text_ = WithoutLineBreaks(dictionary.Translate(text_, context));
}

TW::ErrCode ExpressionQuotedStringNode::WriteSelf(TW::OChannel& channel) const {
  return WriteFramed(channel, [&] { return channel.WriteString(text_); });
}

TW::ErrCode ExpressionQuotedStringNode::ReadSelf(TW::IChannel& channel) {
  return ReadFramed(channel, [&] {
    const TW::ErrCode error = channel.ReadString(text_);
    text_ = WithoutLineBreaks(text_);
    return error;
  });
}

}  // namespace QX
