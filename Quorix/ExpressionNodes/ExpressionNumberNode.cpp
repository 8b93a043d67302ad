#include "Quorix/ExpressionNodes/ExpressionNumberNode.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {

TW::ClassInfo ExpressionNumberNode::classInfo("ExpressionNumberNode", "{0F40D778-238F-459B-9366-F4B9DAF6159C}", 1,
                                              &ExpressionNode::classInfo, &ExpressionNumberNode::ConstructorFunction);

TW::Ref<TW::Object> ExpressionNumberNode::ConstructorFunction() { return TW::MakeRef<ExpressionNumberNode>(); }

ExpressionValue ExpressionNumberNode::Evaluate(const IExpressionEvaluationEnv&) const {
  return ExpressionValue::FromQuantity(Compute());
}

Quantity ExpressionNumberNode::EvaluateQuantity(const IExpressionEvaluationEnv&, const ExpressionNode*) const {
  return Compute();
}

Quantity ExpressionNumberNode::Compute() const {
  if (!unit_.IsKnown()) throw ExpressionInternalErrorException(this);
  return RequireFinite(unit_.Apply(value_), this);
}

void ExpressionNumberNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  TW::UniString text = localizedString_.GetNumberString(builder.GetLocaleSettings().GetDecimalSeparator());
  if (!unit_.GetMarker().IsEmpty()) {
    text += EP::SpaceChar;
    text += unit_.GetMarker();
  }
  builder.AppendString(text, this);
}

TW::ErrCode ExpressionNumberNode::WriteSelf(TW::OChannel& channel) const {
  return WriteFramed(channel, [&] {
    channel.WriteDouble(value_);
    channel.WriteString(unit_.GetMarker());
    return localizedString_.Write(channel);
  });
}

TW::ErrCode ExpressionNumberNode::ReadSelf(TW::IChannel& channel) {
  return ReadFramed(channel, [&] {
    channel.ReadDouble(value_);
    TW::UniString marker;
    if (const TW::ErrCode error = channel.ReadString(marker); error != TW::NoErr) return error;
    unit_ = UnitOfNumber(std::move(marker));
    return localizedString_.Read(channel);
  });
}

}  // namespace QX
