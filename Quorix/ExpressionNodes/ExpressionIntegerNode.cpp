#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"

#include "EP/TextConstants.hpp"

namespace QX {

TW::ClassInfo ExpressionIntegerNode::classInfo("ExpressionIntegerNode", "{9ED4C1F8-C947-455A-93D3-29756D1DCCC8}", 1,
                                               &ExpressionNode::classInfo, &ExpressionIntegerNode::ConstructorFunction);

TW::Ref<TW::Object> ExpressionIntegerNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionIntegerNode>();
}

ExpressionValue ExpressionIntegerNode::Evaluate(const IExpressionEvaluationEnv&) const {
  if (unitMarker_.IsEmpty()) return ExpressionValue::FromInteger(value_);
  return ExpressionValue::FromNumericValueAndUnitMarker(value_, unitMarker_);
}

void ExpressionIntegerNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  TW::UniString text = TW::UniString::FromInteger(value_);
  if (!unitMarker_.IsEmpty()) {
    text += EP::SpaceChar;
    text += unitMarker_;
  }
  builder.AppendString(text, this);
}

TW::ErrCode ExpressionIntegerNode::WriteSelf(TW::OChannel& channel) const {
  return WriteFramed(channel, [&] {
    channel.WriteInt32(value_);
    return channel.WriteString(unitMarker_);
  });
}

TW::ErrCode ExpressionIntegerNode::ReadSelf(TW::IChannel& channel) {
  return ReadFramed(channel, [&] {
    channel.ReadInt32(value_);
    return channel.ReadString(unitMarker_);
  });
}

}  // namespace QX
