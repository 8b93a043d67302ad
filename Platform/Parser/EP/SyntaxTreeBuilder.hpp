#pragma once

#include "EP/Export.hpp"
#include "EP/FractionalInch.hpp"
#include "EP/LocalizedNumberString.hpp"
#include "EP/SyntaxTreeNode.hpp"
#include "TW/Ref.hpp"
#include "TW/UniString.hpp"

namespace EP {

/// Makes the nodes of a syntax tree; the parser asks it once per element, strictly from left to right, an operator at
/// its sign, a function at its name and a parenthesised node at its opening parenthesis.
///
/// Each operation gives a new node without children, or an empty reference to refuse the element, which makes the text
/// a syntax error at that element. What an operation throws passes through the parser.
class EP_EXPORT ISyntaxTreeBuilder {
 public:
  virtual ~ISyntaxTreeBuilder() = default;

  /// A whole number that fits into 32 bits. `unitMarker` is empty when no unit follows.
  virtual TW::Ref<SyntaxTreeNode> CreateIntegerNode(int value, TW::UniString unitMarker) = 0;
  /// Any other number; `text` holds it as it was typed.
  virtual TW::Ref<SyntaxTreeNode> CreateNumberNode(double value, TW::UniString unitMarker,
                                                   const LocalizedNumberString& text) = 0;
  /// May throw `ExpressionInvalidFractionalNodeException` for an invalid value; the parser adds the place.
  virtual TW::Ref<SyntaxTreeNode> CreateFractionalInchNode(FractionalInch value) = 0;
  /// `text` is without its quotation marks and escapes.
  virtual TW::Ref<SyntaxTreeNode> CreateQuotedStringNode(const TW::UniString& text) = 0;
  /// `referenceValue` is without its escapes.
  virtual TW::Ref<SyntaxTreeNode> CreateReferenceNode(const TW::UniString& referenceType,
                                                      const TW::UniString& referenceValue) = 0;
  virtual TW::Ref<SyntaxTreeNode> CreateIdentifierNode(const TW::UniString& name) = 0;
  /// `sign` is `Plus` or `Minus`. The node gets one child.
  virtual TW::Ref<SyntaxTreeNode> CreatePrefixOperatorNode(const TW::UniString& sign) = 0;
  /// `sign` is one of the text constants from `Add` to `NotEqual`. The node gets the left operand, then the right one.
  virtual TW::Ref<SyntaxTreeNode> CreateBinaryOperatorNode(const TW::UniString& sign) = 0;
  /// The node gets the arguments, of which there may be none.
  virtual TW::Ref<SyntaxTreeNode> CreateFunctionNode(const TW::UniString& name) = 0;
  /// The node gets one child.
  virtual TW::Ref<SyntaxTreeNode> CreateParenthesizedNode() = 0;
  /// Whether `marker`, which follows a number, is a unit. If not, the text is a syntax error.
  virtual bool IsValidUnitMarker(const TW::UniString& marker) = 0;
};

}  // namespace EP
