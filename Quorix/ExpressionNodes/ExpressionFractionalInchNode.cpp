#include "Quorix/ExpressionNodes/ExpressionFractionalInchNode.hpp"

namespace QX {

TW::ClassInfo ExpressionFractionalInchNode::classInfo("ExpressionFractionalInchNode",
                                                      "{7DAFE53E-1C7A-4298-864D-426B359AC10B}", 1,
                                                      &ExpressionNode::classInfo,
                                                      &ExpressionFractionalInchNode::ConstructorFunction);

TW::Ref<TW::Object> ExpressionFractionalInchNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionFractionalInchNode>();
}

ExpressionFractionalInchNode::ExpressionFractionalInchNode(EP::FractionalInch value) : value_(value) {
  if (!value_.IsValid()) throw EP::ExpressionInvalidFractionalNodeException(value_);
}

ExpressionValue ExpressionFractionalInchNode::Evaluate(const IExpressionEvaluationEnv&) const {
  return ExpressionValue::FromNumericValueInInches(value_.GetValueInInches());
}

void ExpressionFractionalInchNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  builder.AppendString(value_.ToString(), this);
}

TW::ErrCode ExpressionFractionalInchNode::WriteSelf(TW::OChannel& channel) const {
  return WriteFramed(channel, [&] { return value_.Write(channel); });
}

TW::ErrCode ExpressionFractionalInchNode::ReadSelf(TW::IChannel& channel) {
  return ReadFramed(channel, [&] {
    const TW::ErrCode error = value_.Read(channel);
    if (error != TW::NoErr) return error;
    return value_.IsValid() ? TW::NoErr : TW::ErrRefused;
  });
}

}  // namespace QX
