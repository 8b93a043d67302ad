#include "Quorix/ExpressionNodes/ExpressionIdentifierNode.hpp"

#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {

TW::ClassInfo ExpressionIdentifierNode::classInfo("ExpressionIdentifierNode", "{050C2BFD-3264-4C26-9683-41229A250E6D}",
                                                  1, &ExpressionNode::classInfo,
                                                  &ExpressionIdentifierNode::ConstructorFunction);

TW::Ref<TW::Object> ExpressionIdentifierNode::ConstructorFunction() { return TW::MakeRef<ExpressionIdentifierNode>(); }

bool ExpressionIdentifierNode::IsValidName(const TW::UniString& name) {
  return GetIdentitiferNodeRegistry().IsExistingIdentifier(name);
}

ExpressionIdentifierNode::ExpressionIdentifierNode(const TW::UniString& name) { SetName(name); }

void ExpressionIdentifierNode::SetName(TW::UniString name) {
  data_ = GetIdentitiferNodeRegistry().FindIdentifierData(name);
  name_ = std::move(name);
}

ExpressionValue ExpressionIdentifierNode::Evaluate(const IExpressionEvaluationEnv&) const {
  if (data_ == nullptr) throw ExpressionInternalErrorException(this);
  if (GetChildCount() != 0) throw ExpressionInvalidArgumentNumber(this);
  return data_->value;
}

void ExpressionIdentifierNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  builder.AppendString(name_, this);
}

TW::ErrCode ExpressionIdentifierNode::WriteSelf(TW::OChannel& channel) const {
  return WriteFramed(channel, [&] { return channel.WriteString(name_); });
}

TW::ErrCode ExpressionIdentifierNode::ReadSelf(TW::IChannel& channel) {
  return ReadFramed(channel, [&] {
    TW::UniString name;
    const TW::ErrCode error = channel.ReadString(name);
    if (error == TW::NoErr) SetName(std::move(name));
    return error;
  });
}

}  // namespace QX
