#pragma once

#include "EP/SyntaxTreeBuilder.hpp"
#include "Quorix/Export.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"

namespace QX {

/// Makes expression nodes for the parser. It refuses, by an empty reference, what the language does not know: names,
/// signs and units, references to anything but properties, and texts that hide a reference.
class QX_EXPORT SyntaxTreeBuilder final : public EP::ISyntaxTreeBuilder {
 public:
  using NodeType = ExpressionNode;

  TW::Ref<EP::SyntaxTreeNode> CreateIntegerNode(int value, TW::UniString unitMarker) override;
  TW::Ref<EP::SyntaxTreeNode> CreateNumberNode(double value, TW::UniString unitMarker,
                                               const EP::LocalizedNumberString& text) override;
  /// Throws `EP::ExpressionInvalidFractionalNodeException` for an invalid value.
  TW::Ref<EP::SyntaxTreeNode> CreateFractionalInchNode(EP::FractionalInch value) override;
  TW::Ref<EP::SyntaxTreeNode> CreateQuotedStringNode(const TW::UniString& text) override;
  TW::Ref<EP::SyntaxTreeNode> CreateReferenceNode(const TW::UniString& referenceType,
                                                  const TW::UniString& referenceValue) override;
  TW::Ref<EP::SyntaxTreeNode> CreateIdentifierNode(const TW::UniString& name) override;
  TW::Ref<EP::SyntaxTreeNode> CreatePrefixOperatorNode(const TW::UniString& sign) override;
  TW::Ref<EP::SyntaxTreeNode> CreateBinaryOperatorNode(const TW::UniString& sign) override;
  TW::Ref<EP::SyntaxTreeNode> CreateFunctionNode(const TW::UniString& name) override;
  TW::Ref<EP::SyntaxTreeNode> CreateParenthesizedNode() override;
  bool IsValidUnitMarker(const TW::UniString& marker) override;
};

}  // namespace QX
