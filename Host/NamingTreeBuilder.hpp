#pragma once

#include "EP/SyntaxTreeBuilder.hpp"
#include "Host/PropertyCatalog.hpp"
#include "Quorix/ExpressionSyntaxTreeBuilder.hpp"

#include <span>
#include <vector>

namespace Host {

/// Makes the nodes of formulas in which the values of references are names of properties, or `Property:` and a GUID. It
/// keeps a reference to the catalog, which must outlive it.
class NamingTreeBuilder final : public EP::ISyntaxTreeBuilder {
 public:
  using NodeType = QX::ExpressionNode;
  using Node = TW::Ref<EP::SyntaxTreeNode>;

  explicit NamingTreeBuilder(const PropertyCatalog& catalog) : catalog_(catalog) {}

  /// The properties that were referred to, as often as they were.
  const std::vector<PropertyIndex>& GetReferences() const { return references_; }
  /// The properties that the reference refused could have meant: none, or several.
  std::span<const PropertyIndex> GetRefusedMeanings() const { return refusedMeanings_; }

  Node CreateIntegerNode(int value, TW::UniString unitMarker) override {
    return builder_.CreateIntegerNode(value, std::move(unitMarker));
  }
  Node CreateNumberNode(double value, TW::UniString unitMarker, const EP::LocalizedNumberString& text) override {
    return builder_.CreateNumberNode(value, std::move(unitMarker), text);
  }
  Node CreateFractionalInchNode(EP::FractionalInch value) override { return builder_.CreateFractionalInchNode(value); }
  Node CreateQuotedStringNode(const TW::UniString& text) override { return builder_.CreateQuotedStringNode(text); }
  /// Refuses what means no property or several.
  Node CreateReferenceNode(const TW::UniString& referenceType, const TW::UniString& referenceValue) override;
  Node CreateIdentifierNode(const TW::UniString& name) override { return builder_.CreateIdentifierNode(name); }
  Node CreatePrefixOperatorNode(const TW::UniString& sign) override { return builder_.CreatePrefixOperatorNode(sign); }
  Node CreateBinaryOperatorNode(const TW::UniString& sign) override { return builder_.CreateBinaryOperatorNode(sign); }
  Node CreateFunctionNode(const TW::UniString& name) override { return builder_.CreateFunctionNode(name); }
  Node CreateParenthesizedNode() override { return builder_.CreateParenthesizedNode(); }
  bool IsValidUnitMarker(const TW::UniString& marker) override { return builder_.IsValidUnitMarker(marker); }

 private:
  const PropertyCatalog& catalog_;
  QX::SyntaxTreeBuilder builder_;
  std::vector<PropertyIndex> references_;
  std::span<const PropertyIndex> refusedMeanings_;
};

}  // namespace Host
