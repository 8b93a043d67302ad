#pragma once

#include "EP/Parser.hpp"
#include "TW/DecimalNumber.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <string>
#include <utility>

/// A builder whose trees can be written out: `(+ 1 (* 2 m))`.

inline std::atomic<int> livingShapeNodes = 0;

/// A node that knows how it is written. A leaf is its label, a parenthesised node is `{...}`, anything else is its
/// label and its children in parentheses.
class ShapeNode final : public EP::SyntaxTreeNode {
 public:
  enum class Kind { Leaf, Composite, Parenthesized };

  ShapeNode(std::string label, Kind kind) : label_(std::move(label)), kind_(kind) { ++livingShapeNodes; }
  ~ShapeNode() override { --livingShapeNodes; }

  const std::string& GetLabel() const { return label_; }
  const ShapeNode& GetShapeChild(unsigned int index) const { return static_cast<const ShapeNode&>(*GetChild(index)); }

  /// Only for trees of a few levels.
  std::string GetShape() const {
    if (kind_ == Kind::Leaf) return label_;
    std::string shape = kind_ == Kind::Composite ? "(" + label_ : "{";
    for (unsigned int i = 0; i < GetChildCount(); ++i) {
      if (shape != "{") shape += ' ';
      shape += GetShapeChild(i).GetShape();
    }
    return shape + (kind_ == Kind::Composite ? ")" : "}");
  }

 protected:
  TW::ErrCode ReadSelf(TW::IChannel&) override { return TW::ErrRefused; }
  TW::ErrCode WriteSelf(TW::OChannel&) const override { return TW::ErrRefused; }

 private:
  std::string label_;
  Kind kind_;
};

/// Accepts everything but the units other than `m`, `cm`, `'` and `"`, and invalid fractions, for which it throws.
/// `beforeCall` is told of each call by the label of its node, or of its unit with `?`; false refuses.
class ShapeBuilder final : public EP::ISyntaxTreeBuilder {
 public:
  using NodeType = ShapeNode;
  using Node = TW::Ref<EP::SyntaxTreeNode>;

  std::function<bool(const std::string& call)> beforeCall = [](const std::string&) { return true; };

  Node CreateIntegerNode(int value, TW::UniString unitMarker) override {
    return Leaf(std::to_string(value) + unitMarker.ToUtf8());
  }
  /// A number is written with `#` before it.
  Node CreateNumberNode(double value, TW::UniString unitMarker, const EP::LocalizedNumberString& text) override {
    const std::string digits = text.GetNumberString(u'.').ToUtf8();
    double typed = -1;
    EXPECT_EQ(TW::ReadDecimalNumber(digits, typed), TW::NumberReading::Read) << digits;
    EXPECT_EQ(typed, value);
    return Leaf("#" + digits + unitMarker.ToUtf8());
  }
  Node CreateFractionalInchNode(EP::FractionalInch value) override {
    if (!value.IsValid()) throw EP::ExpressionInvalidFractionalNodeException(value);
    return Leaf(value.ToString().ToUtf8());
  }
  Node CreateQuotedStringNode(const TW::UniString& text) override { return Leaf("'" + text.ToUtf8() + "'"); }
  Node CreateReferenceNode(const TW::UniString& referenceType, const TW::UniString& referenceValue) override {
    return Leaf("[" + referenceType.ToUtf8() + "|" + referenceValue.ToUtf8() + "]");
  }
  Node CreateIdentifierNode(const TW::UniString& name) override { return Leaf(name.ToUtf8()); }
  Node CreatePrefixOperatorNode(const TW::UniString& sign) override { return Composite(sign.ToUtf8()); }
  Node CreateBinaryOperatorNode(const TW::UniString& sign) override { return Composite(sign.ToUtf8()); }
  Node CreateFunctionNode(const TW::UniString& name) override { return Composite(name.ToUtf8()); }
  Node CreateParenthesizedNode() override { return Make("{}", ShapeNode::Kind::Parenthesized); }
  bool IsValidUnitMarker(const TW::UniString& marker) override {
    const bool accepted = beforeCall(marker.ToUtf8() + "?");
    return accepted && (marker == u"m" || marker == u"cm" || marker == u"'" || marker == u"\"");
  }

 private:
  Node Leaf(const std::string& label) { return Make(label, ShapeNode::Kind::Leaf); }
  Node Composite(const std::string& label) { return Make(label, ShapeNode::Kind::Composite); }
  Node Make(const std::string& label, ShapeNode::Kind kind) {
    if (!beforeCall(label)) return nullptr;
    return TW::MakeRef<ShapeNode>(label, kind);
  }
};

/// Explicit separators.
class TestSettings final : public EP::IParsingLocaleSettings {
 public:
  TestSettings(char16_t decimalSeparator, char16_t listSeparator)
      : decimalSeparator_(decimalSeparator), listSeparator_(listSeparator) {}
  unsigned short GetDecimalSeparator() const override { return decimalSeparator_; }
  unsigned short GetListSeparator() const override { return listSeparator_; }

 private:
  char16_t decimalSeparator_;
  char16_t listSeparator_;
};
