#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {

TW::ClassInfo ExpressionIntegerNode::classInfo("ExpressionIntegerNode", "{9ED4C1F8-C947-455A-93D3-29756D1DCCC8}", 1,
                                               &ExpressionNode::classInfo, &ExpressionIntegerNode::ConstructorFunction);

TW::Ref<TW::Object> ExpressionIntegerNode::ConstructorFunction() { return TW::MakeRef<ExpressionIntegerNode>(); }

ExpressionValue ExpressionIntegerNode::Evaluate(const IExpressionEvaluationEnv&) const {
  if (unit_.GetMarker().IsEmpty()) return ExpressionValue::FromInteger(value_);
  return unit_.IsKnown() ? ExpressionValue::FromQuantity(unit_.Apply(value_)) : ExpressionValue::CreateInvalid();
}

Quantity ExpressionIntegerNode::EvaluateQuantity(const IExpressionEvaluationEnv&, const ExpressionNode* source) const {
  if (!unit_.IsKnown()) throw ExpressionInternalErrorException(source);
  return unit_.Apply(value_);
}

void ExpressionIntegerNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  TW::UniString text = TW::UniString::FromInteger(value_);
  if (!unit_.GetMarker().IsEmpty()) {
    text += EP::SpaceChar;
    text += unit_.GetMarker();
  }
  builder.AppendString(text, this);
}

TW::ErrCode ExpressionIntegerNode::WriteSelf(TW::OChannel& channel) const {
  return WriteFramed(channel, [&] {
    channel.WriteInt32(value_);
    return channel.WriteString(unit_.GetMarker());
  });
}

TW::ErrCode ExpressionIntegerNode::ReadSelf(TW::IChannel& channel) {
  return ReadFramed(channel, [&] {
    channel.ReadInt32(value_);
    TW::UniString marker;
    const TW::ErrCode error = channel.ReadString(marker);
    if (error == TW::NoErr) unit_ = UnitOfNumber(std::move(marker));
    return error;
  });
}

}  // namespace QX
