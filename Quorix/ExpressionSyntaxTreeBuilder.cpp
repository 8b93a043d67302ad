#include "Quorix/ExpressionSyntaxTreeBuilder.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodes/ExpressionBinaryOpNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionComparisonNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionFractionalInchNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionIdentifierNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionNumberNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionParenthesizedNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionQuotedStringNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionReferenceNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionUnaryOpNode.hpp"
#include "Quorix/ExpressionReferenceFormatUtils.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"

namespace QX {
namespace {

using NodeRef = TW::Ref<EP::SyntaxTreeNode>;

struct SignRow {
  std::u16string_view sign;
  NodeRef (*make)();
};

template <class Node>
NodeRef Make() {
  return TW::MakeRef<Node>();
}

constexpr SignRow PrefixSigns[] = {
    {EP::Plus, Make<ExpressionPlusUnaryOpNode>},
    {EP::Minus, Make<ExpressionMinusUnaryOpNode>},
};

constexpr SignRow BinarySigns[] = {
    {EP::Add, Make<ExpressionAdditionNode>},
    {EP::Subtract, Make<ExpressionSubtractionNode>},
    {EP::Multiply, Make<ExpressionMultiplicationNode>},
    {EP::Divide, Make<ExpressionDivisionNode>},
    {EP::Power, Make<ExpressionPowerNode>},
    {EP::LessThan, Make<ExpressionLessThanNode>},
    {EP::LessOrEqual, Make<ExpressionLessOrEqNode>},
    {EP::GreaterThan, Make<ExpressionGreaterThanNode>},
    {EP::GreaterOrEqual, Make<ExpressionGreaterOrEqNode>},
    {EP::Equal, Make<ExpressionEqualNode>},
    {EP::NotEqual, Make<ExpressionNotEqualNode>},
};

template <std::size_t Count>
NodeRef MakeForSign(const SignRow (&rows)[Count], const TW::UniString& sign) {
  for (const SignRow& row : rows) {
    if (sign.GetView() == row.sign) return row.make();
  }
  return nullptr;
}

}  // namespace

NodeRef SyntaxTreeBuilder::CreateIntegerNode(int value, TW::UniString unitMarker) {
  return TW::MakeRef<ExpressionIntegerNode>(value, std::move(unitMarker));
}

NodeRef SyntaxTreeBuilder::CreateNumberNode(double value, TW::UniString unitMarker,
                                            const EP::LocalizedNumberString& text) {
  return TW::MakeRef<ExpressionNumberNode>(value, std::move(unitMarker), text);
}

NodeRef SyntaxTreeBuilder::CreateFractionalInchNode(EP::FractionalInch value) {
  return TW::MakeRef<ExpressionFractionalInchNode>(value);
}

NodeRef SyntaxTreeBuilder::CreateQuotedStringNode(const TW::UniString& text) {
  if (ContainsPropertyReferences(text)) return nullptr;
  return TW::MakeRef<ExpressionQuotedStringNode>(text);
}

NodeRef SyntaxTreeBuilder::CreateReferenceNode(const TW::UniString& referenceType,
                                               const TW::UniString& referenceValue) {
  if (referenceType.GetView() != PropertyReferenceType) return nullptr;
  // Only a text of bad format is refused: any other outcome, such as that of an empty text, leaves a usable GUID.
  TW::Guid propertyId;
  if (propertyId.ConvertFromString(referenceValue) == TW::ErrGuidFormat) return nullptr;
  return TW::MakeRef<ExpressionPropertyReferenceNode>(propertyId);
}

NodeRef SyntaxTreeBuilder::CreateIdentifierNode(const TW::UniString& name) {
  if (!ExpressionIdentifierNode::IsValidName(name)) return nullptr;
  return TW::MakeRef<ExpressionIdentifierNode>(name);
}

NodeRef SyntaxTreeBuilder::CreatePrefixOperatorNode(const TW::UniString& sign) {
  return MakeForSign(PrefixSigns, sign);
}

NodeRef SyntaxTreeBuilder::CreateBinaryOperatorNode(const TW::UniString& sign) {
  return MakeForSign(BinarySigns, sign);
}

NodeRef SyntaxTreeBuilder::CreateFunctionNode(const TW::UniString& name) {
  const TW::ClassInfo* info = GetFunctionNodeRegistry().GetFunctionNodeClassInfo(name);
  if (info == nullptr) return nullptr;
  return info->CreateNewInstance().DynamicCast<EP::SyntaxTreeNode>();
}

NodeRef SyntaxTreeBuilder::CreateParenthesizedNode() { return TW::MakeRef<ExpressionParenthesizedNode>(); }

bool SyntaxTreeBuilder::IsValidUnitMarker(const TW::UniString& marker) {
  return ExpressionValue::FromNumericValueAndUnitMarker(1.0, marker).IsValid();
}

}  // namespace QX
