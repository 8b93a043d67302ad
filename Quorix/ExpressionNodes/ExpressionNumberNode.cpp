#include "Quorix/ExpressionNodes/ExpressionNumberNode.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {

TW::ClassInfo ExpressionNumberNode::classInfo("ExpressionNumberNode", "{0F40D778-238F-459B-9366-F4B9DAF6159C}", 1,
                                              &ExpressionNode::classInfo, &ExpressionNumberNode::ConstructorFunction);

TW::Ref<TW::Object> ExpressionNumberNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionNumberNode>();
}

ExpressionValue ExpressionNumberNode::Evaluate(const IExpressionEvaluationEnv&) const {
  ExpressionValue value = ExpressionValue::FromNumericValueAndUnitMarker(value_, unitMarker_);
  if (!value.IsValid()) throw ExpressionInternalErrorException(this);
  return value;
}

void ExpressionNumberNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  TW::UniString text = localizedString_.GetNumberString(builder.GetLocaleSettings().GetDecimalSeparator());
  if (!unitMarker_.IsEmpty()) {
    text += EP::SpaceChar;
    text += unitMarker_;
  }
  builder.AppendString(text, this);
}

TW::ErrCode ExpressionNumberNode::WriteSelf(TW::OChannel& channel) const {
  return WriteFramed(channel, [&] {
    channel.WriteDouble(value_);
    channel.WriteString(unitMarker_);
    return localizedString_.Write(channel);
  });
}

TW::ErrCode ExpressionNumberNode::ReadSelf(TW::IChannel& channel) {
  return ReadFramed(channel, [&] {
    channel.ReadDouble(value_);
    channel.ReadString(unitMarker_);
    return localizedString_.Read(channel);
  });
}

}  // namespace QX
