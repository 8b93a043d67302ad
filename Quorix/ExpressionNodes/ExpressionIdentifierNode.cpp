#include "Quorix/ExpressionNodes/ExpressionIdentifierNode.hpp"

#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/IdentitiferNodeRegistry.hpp"

namespace QX {

TW::ClassInfo ExpressionIdentifierNode::classInfo("ExpressionIdentifierNode", "{050C2BFD-3264-4C26-9683-41229A250E6D}",
                                                  1, &ExpressionNode::classInfo,
                                                  &ExpressionIdentifierNode::ConstructorFunction);

TW::Ref<TW::Object> ExpressionIdentifierNode::ConstructorFunction() { return TW::MakeRef<ExpressionIdentifierNode>(); }

bool ExpressionIdentifierNode::IsValidName(const TW::UniString& name) {
  return GetIdentitiferNodeRegistry().IsExistingIdentifier(name);
}

ExpressionValue ExpressionIdentifierNode::Evaluate(const IExpressionEvaluationEnv&) const {
  if (!IsValidName(name_)) throw ExpressionInternalErrorException(this);
  if (GetChildCount() != 0) throw ExpressionInvalidArgumentNumber(this);
  return GetIdentitiferNodeRegistry().GetIdentifierValue(name_);
}

void ExpressionIdentifierNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  builder.AppendString(name_, this);
}

TW::ErrCode ExpressionIdentifierNode::WriteSelf(TW::OChannel& channel) const {
  return WriteFramed(channel, [&] { return channel.WriteString(name_); });
}

TW::ErrCode ExpressionIdentifierNode::ReadSelf(TW::IChannel& channel) {
  return ReadFramed(channel, [&] { return channel.ReadString(name_); });
}

}  // namespace QX
