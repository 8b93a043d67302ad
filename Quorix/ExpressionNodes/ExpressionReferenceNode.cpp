#include "Quorix/ExpressionNodes/ExpressionReferenceNode.hpp"

#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionReferenceFormatUtils.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

namespace QX {
namespace {

// Whatever the host throws, and for whatever reason, the formula only learns that there is no value.
ExpressionValue AskHost(const IExpressionEvaluationEnv& env, const TW::Guid& propertyId) noexcept {
  try {
    return env.GetPropertyValue(propertyId);
  } catch (...) {
    return ExpressionValue::CreateInvalid();
  }
}

}  // namespace

TW::ClassInfo ExpressionReferenceNode::classInfo("ExpressionReferenceNode", "{33B4D13E-794B-4FEE-8D13-15F527EFC003}", 1,
                                                 &ExpressionNode::classInfo);
TW::ClassInfo ExpressionPropertyReferenceNode::classInfo("ExpressionPropertyReferenceNode",
                                                         "{1AF5C228-7607-4175-9B78-A1779295614E}", 1,
                                                         &ExpressionReferenceNode::classInfo,
                                                         &ExpressionPropertyReferenceNode::ConstructorFunction);

TW::Ref<TW::Object> ExpressionPropertyReferenceNode::ConstructorFunction() {
  return TW::MakeRef<ExpressionPropertyReferenceNode>();
}

ExpressionValue ExpressionPropertyReferenceNode::Evaluate(const IExpressionEvaluationEnv& env) const {
  ExpressionValue value = AskHost(env, propertyId_);
  if (!value.IsValid()) throw ExpressionPropertyEvaluationFailed(this);
  return value;
}

Quantity ExpressionPropertyReferenceNode::EvaluateQuantity(const IExpressionEvaluationEnv& env,
                                                           const ExpressionNode* source) const {
  const ExpressionValue value = AskHost(env, propertyId_);
  if (!value.IsValid()) throw ExpressionPropertyEvaluationFailed(this);
  return RequireQuantity(value, source);
}

void ExpressionPropertyReferenceNode::BuildExpressionString(IExpressionStringBuilder& builder) const {
  builder.AppendString(MakeExpressionPropertyReferenceString(propertyId_), this);
}

void ExpressionPropertyReferenceNode::CollectReferences(IExpressionReferenceCollector& collector) const {
  collector.PropertyReferenceFound(propertyId_);
}

void ExpressionPropertyReferenceNode::RestorePropertyReferences(const IGuidMapper& mapper) {
  propertyId_ = mapper.Map(propertyId_);
}

TW::ErrCode ExpressionPropertyReferenceNode::WriteSelf(TW::OChannel& channel) const {
  return WriteFramed(channel, [&] { return channel.WriteGuid(propertyId_); });
}

TW::ErrCode ExpressionPropertyReferenceNode::ReadSelf(TW::IChannel& channel) {
  return ReadFramed(channel, [&] { return channel.ReadGuid(propertyId_); });
}

}  // namespace QX
