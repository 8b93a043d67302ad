#pragma once

#include "Quorix/Formulas.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"
#include "TW/DecimalNumber.hpp"

#include <rapidcheck.h>
#include <string>
#include <vector>

/// Makes random trees as the grammar of formulas allows them, by the nodes of the builder. The first choice is always
/// the simplest, so that failing trees shrink.
class TreeMaker {
 public:
  using Node = TW::Ref<EP::SyntaxTreeNode>;

  /// `functions` are the names that calls may have.
  explicit TreeMaker(std::vector<TW::UniString> functions) : functions_(std::move(functions)) {}

  QX::Expression Make() { return QX::Expression(MakeRow(Comparison).CheckedCast<QX::ExpressionNode>()); }

  /// A formula of plain numbers, most of which can be evaluated.
  static QX::Expression MakeSum() {
    TreeMaker maker({});
    maker.onlyNumbers_ = true;
    return QX::Expression(maker.MakeRow(Additive).CheckedCast<QX::ExpressionNode>());
  }

  static std::vector<TW::UniString> GetFunctionNames() {
    std::vector<TW::UniString> names;
    QX::GetFunctionNodeRegistry().EnumerateRegisteredFunctions(
        [&names](const TW::UniString& name) { names.push_back(name); });
    return names;
  }

 private:
  using Signs = std::vector<const char16_t*>;

  static constexpr int Comparison = 0;
  static constexpr int Additive = 1;
  static constexpr int Multiplicative = 2;

  // Below `count`; every number as often, however small the trees are that the framework asks for.
  static int Pick(int count) { return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, count)); }
  template <class Choice>
  static const Choice& PickOf(const std::vector<Choice>& choices) {
    return choices[static_cast<std::size_t>(Pick(static_cast<int>(choices.size())))];
  }

  // Whether a row or a row of signs goes on. Trees end soon after they have so many nodes.
  static constexpr int ManyNodes = 60;
  bool GoesOn() { return nodes_ < ManyNodes && Pick(5) > 2; }

  // One level of the operators that lean to the left.
  Node MakeRow(int level) {
    static const Signs signs[] = {{u"=", u"<>", u"<", u"<=", u">", u">="}, {u"+", u"-"}, {u"*", u"/"}};
    Node left = level == Multiplicative ? MakePrefixed() : MakeRow(level + 1);
    while (GoesOn()) {
      Node op = Count(builder_.CreateBinaryOperatorNode(PickOf(signs[level])));
      op->AddChild(left);
      op->AddChild(level == Multiplicative ? MakePrefixed() : MakeRow(level + 1));
      left = op;
    }
    return left;
  }

  Node MakePrefixed() {
    if (!GoesOn()) return MakePower();
    Node op = Count(builder_.CreatePrefixOperatorNode(PickOf(Signs{u"-", u"+"})));
    op->AddChild(MakePrefixed());
    return op;
  }

  Node MakePower() {
    Node base = MakePrimary();
    if (onlyNumbers_ || !GoesOn()) return base;
    Node op = Count(builder_.CreateBinaryOperatorNode(u"^"));
    op->AddChild(base);
    op->AddChild(MakePrefixed());
    return op;
  }

  Node MakePrimary() {
    if (onlyNumbers_ && nodes_ < ManyNodes && Pick(3) == 2) return MakeBrackets(Additive);
    if (onlyNumbers_) return Count(builder_.CreateIntegerNode(1 + Pick(9), TW::UniString()));
    switch (nodes_ < ManyNodes ? Pick(9) : Pick(6)) {
      case 0:
        return Count(builder_.CreateIntegerNode(Pick(2147483647), MakeUnit()));
      case 1:
        return MakeNumber();
      case 2:
        return Count(builder_.CreateQuotedStringNode(MakeText()));
      case 3:
        return MakeFractionalInch();
      case 4:
        return Count(builder_.CreateIdentifierNode(PickOf(Signs{u"TRUE", u"false", u"PI", u"Pi"})));
      case 5:
        return MakeReference();
      case 6:
        if (!functions_.empty()) return MakeCall();
        [[fallthrough]];
      default:
        return MakeBrackets(Comparison);
    }
  }

  Node MakeBrackets(int level) {
    Node brackets = Count(builder_.CreateParenthesizedNode());
    brackets->AddChild(MakeRow(level));
    return brackets;
  }

  Node MakeNumber() {
    std::string text = std::to_string(Pick(100000)) + "." + Digits();
    if (Pick(3) == 2) text += PickOf(std::vector<std::string>{"e", "E+", "e-0"}) + std::to_string(Pick(300));
    double value = 0;
    RC_ASSERT(TW::ReadDecimalNumber(text, value) == TW::NumberReading::Read);
    return Count(builder_.CreateNumberNode(value, MakeUnit(), EP::LocalizedNumberString(text)));
  }

  static std::string Digits() {
    std::string digits;
    for (int count = Pick(12); count > 0; --count) digits += static_cast<char>('0' + Pick(10));
    return digits;
  }

  static TW::UniString MakeUnit() {
    static const Signs units = {u"",    u"",    u"m",   u"cm", u"mm", u"'", u"\"", u"in", u"m2",
                                u"ft2", u"cm3", u"gal", u"l",  u"D",  u"R", u"G",  u"",   u""};
    return PickOf(units);
  }

  // Any units but line breaks, which texts lose, and brackets, which could make a reference.
  static TW::UniString MakeText() {
    static const std::u16string_view often = u"\\\"a 1,.;+'\u00E9\u540D\xD83D\xDE00\x0001";
    TW::UniString text;
    for (int count = Pick(12); count > 0; --count) {
      const auto unit = static_cast<char16_t>(Pick(0x10000));
      const bool isAllowed = unit != u'\r' && unit != u'\n' && unit != u'[';
      text.Append(Pick(3) == 2 && isAllowed ? unit
                                            : often[static_cast<std::size_t>(Pick(static_cast<int>(often.size())))]);
    }
    return text;
  }

  Node MakeFractionalInch() {
    const auto denominator = static_cast<std::uint32_t>(1 + Pick(2147483646));
    const auto numerator = static_cast<std::uint32_t>(Pick(2147483647)) % denominator;
    const auto whole = static_cast<std::uint32_t>(Pick(2147483647));
    return Count(builder_.CreateFractionalInchNode({whole, numerator, denominator}));
  }

  Node MakeReference() {
    static const std::vector<std::string> words = {"1",       "0",      "undefined length", "undefined text",
                                                   "failing", "invalid"};
    return Count(builder_.CreateReferenceNode(u"Property", FormulaWords::GetId(PickOf(words)).ToUniString()));
  }

  Node MakeCall() {
    Node call = Count(builder_.CreateFunctionNode(PickOf(functions_)));
    for (int count = Pick(4); count > 0; --count) call->AddChild(MakeRow(Comparison));
    return call;
  }

  Node Count(Node node) {
    RC_ASSERT(static_cast<bool>(node));
    ++nodes_;
    return node;
  }

  QX::SyntaxTreeBuilder builder_;
  std::vector<TW::UniString> functions_;
  int nodes_ = 0;
  bool onlyNumbers_ = false;
};
