#include "EP/Parser.hpp"

#include "EP/Literals.hpp"

#include <boost/container/small_vector.hpp>

#include <utility>

namespace EP {
namespace {

// What a node on the stack is, in the order in which operators bind, loosest first.
enum class Binding : unsigned char { Parenthesis, Call, Comparison, Additive, Multiplicative, Prefix, Power };

constexpr bool IsBracket(Binding binding) { return binding <= Binding::Call; }

// Whether such a node, as long as it is open, is one level of nesting. A row of the other operators never holds more
// than one of each open.
constexpr bool IsNestingLevel(Binding binding) { return IsBracket(binding) || binding >= Binding::Prefix; }

Binding GetBinding(std::u16string_view sign) {
  switch (sign.front()) {
    case Add.front():
    case Subtract.front():
      return Binding::Additive;
    case Multiply.front():
    case Divide.front():
      return Binding::Multiplicative;
    case Power.front():
      return Binding::Power;
    default:
      return Binding::Comparison;
  }
}

[[noreturn]] void Fail(SyntaxErrorReason reason, const Token& token) {
  throw SyntaxErrorException(reason, token.range);
}

// Reports a token that cannot stand where it does. One that is broken in itself says so.
[[noreturn]] void FailAt(Token token, SyntaxErrorReason reasonAtEnd, SyntaxErrorReason reasonElsewhere) {
  switch (token.kind) {
    case TokenKind::UnterminatedText:
      token.range.end = token.range.begin + 1;
      Fail(SyntaxErrorReason::UnterminatedText, token);
    case TokenKind::UnterminatedReference:
      token.range.end = token.range.begin + 1;
      Fail(SyntaxErrorReason::UnterminatedReference, token);
    case TokenKind::Unknown:
      Fail(SyntaxErrorReason::UnexpectedCharacter, token);
    case TokenKind::End:
      Fail(reasonAtEnd, token);
    default:
      Fail(reasonElsewhere, token);
  }
}

// Operator precedence with a stack of the nodes that still wait for an operand. A binary operator takes its left
// operand as soon as its node is made, so that only the operand read last is kept beside the stack.
class Parser {
 public:
  Parser(std::u16string_view text, const IParsingLocaleSettings& settings, ISyntaxTreeBuilder& builder)
      : text_(text),
        decimalSeparator_(static_cast<char16_t>(settings.GetDecimalSeparator())),
        tokenizer_(text, settings),
        builder_(builder) {
    Advance();
  }

  TW::Ref<SyntaxTreeNode> Parse() {
    do {
      ParseOperand();
    } while (ParseOperator());
    return std::move(operand_);
  }

 private:
  struct OpenNode {
    TW::Ref<SyntaxTreeNode> node;
    Binding binding;
  };

  void ParseOperand();
  bool ParseElement(const Token& token);
  bool ParseOperator();

  void ParseNumber(const Token& token);
  void ParseFractionalInch(const Token& token);
  void ParseReference(const Token& token);
  bool ParseName(const Token& token);
  void OpenPrefixOperator(const Token& token);
  void OpenParenthesis(const Token& token);
  bool OpenCall(const Token& name);
  void OpenBinaryOperator(const Token& token);
  void PassListSeparator(const Token& token);
  void CloseBracket(const Token& token);
  void Finish(const Token& end);

  TW::UniString TakeUnit();
  void EnterLevel(const Token& token);
  void Open(TW::Ref<SyntaxTreeNode> node, Binding binding) { openNodes_.push_back({std::move(node), binding}); }
  void CloseLast();
  void CloseOperators(Binding loosest);
  void Advance();

  std::u16string_view GetText(const Token& token) const {
    return text_.substr(token.range.begin, token.range.GetLength());
  }
  static TW::Ref<SyntaxTreeNode> Accept(TW::Ref<SyntaxTreeNode> node, SyntaxErrorReason reason, const Token& token) {
    if (!node) Fail(reason, token);
    return node;
  }

  // So many are open at once in all but the deepest formulas.
  static constexpr std::size_t UsualOpenNodes = 24;

  std::u16string_view text_;
  char16_t decimalSeparator_;
  Tokenizer tokenizer_;
  ISyntaxTreeBuilder& builder_;
  Token token_;  ///< the first that is not yet part of the tree; never a blank
  TW::Ref<SyntaxTreeNode> operand_;
  boost::container::small_vector<OpenNode, UsualOpenNodes> openNodes_;
  unsigned int depth_ = 0;
};

void Parser::Advance() {
  do {
    token_ = tokenizer_.Next();
  } while (token_.kind == TokenKind::Blank);
}

void Parser::ParseOperand() {
  for (bool complete = false; !complete;) {
    const Token token = token_;
    Advance();
    complete = ParseElement(token);
  }
}

// Takes what begins an operand; says whether the operand is complete with it.
bool Parser::ParseElement(const Token& token) {
  switch (token.kind) {
    case TokenKind::Number:
      ParseNumber(token);
      return true;
    case TokenKind::FractionalInch:
      ParseFractionalInch(token);
      return true;
    case TokenKind::QuotedText:
      operand_ = Accept(builder_.CreateQuotedStringNode(ReadQuotedTextLiteral(GetText(token))),
                        SyntaxErrorReason::RefusedText, token);
      return true;
    case TokenKind::Reference:
      ParseReference(token);
      return true;
    case TokenKind::Name:
      return ParseName(token);
    case TokenKind::LeftParenthesis:
      OpenParenthesis(token);
      return false;
    case TokenKind::Operator:
      OpenPrefixOperator(token);
      return false;
    default:
      FailAt(token, SyntaxErrorReason::UnexpectedEnd, SyntaxErrorReason::OperandExpected);
  }
}

// Takes what follows an operand, up to what another operand must follow; false at the end of the text.
bool Parser::ParseOperator() {
  for (;;) {
    const Token token = token_;
    Advance();
    switch (token.kind) {
      case TokenKind::Operator:
        OpenBinaryOperator(token);
        return true;
      case TokenKind::ListSeparator:
        PassListSeparator(token);
        return true;
      case TokenKind::RightParenthesis:
        CloseBracket(token);
        break;
      default:
        Finish(token);
        return false;
    }
  }
}

void Parser::ParseNumber(const Token& token) {
  const std::u16string_view literal = GetText(token);
  TW::Ref<SyntaxTreeNode> node;
  if (const TW::Optional<int> integer = ReadIntegerLiteral(literal)) {
    node = builder_.CreateIntegerNode(*integer, TakeUnit());
  } else {
    const TW::Optional<NumberLiteral> number = ReadNumberLiteral(literal, decimalSeparator_);
    if (!number) Fail(SyntaxErrorReason::NumberOutOfRange, token);
    node = builder_.CreateNumberNode(number->value, TakeUnit(), number->text);
  }
  operand_ = Accept(std::move(node), SyntaxErrorReason::NumberOutOfRange, token);
}

TW::UniString Parser::TakeUnit() {
  if (token_.kind != TokenKind::Unit) return {};
  TW::UniString marker(GetText(token_));
  if (!builder_.IsValidUnitMarker(marker)) Fail(SyntaxErrorReason::UnknownUnit, token_);
  Advance();
  return marker;
}

void Parser::ParseFractionalInch(const Token& token) {
  const TW::Optional<FractionalInch> value = ReadFractionalInchLiteral(GetText(token));
  if (!value) Fail(SyntaxErrorReason::NumberOutOfRange, token);
  try {
    operand_ = Accept(builder_.CreateFractionalInchNode(*value), SyntaxErrorReason::NumberOutOfRange, token);
  } catch (ExpressionInvalidFractionalNodeException& exception) {
    exception.SetPlace(token.range);
    throw;
  }
}

void Parser::ParseReference(const Token& token) {
  const std::u16string_view reference = GetText(token);
  const std::size_t separator = reference.find(ReferenceSeparator.front());
  TW::UniString value;
  GetRefValueFromReferenceFormat(reference, value);
  operand_ = Accept(builder_.CreateReferenceNode(TW::UniString(reference.substr(1, separator - 1)), value),
                    SyntaxErrorReason::RefusedReference, token);
}

bool Parser::ParseName(const Token& token) {
  if (token_.kind == TokenKind::LeftParenthesis) return OpenCall(token);
  operand_ =
      Accept(builder_.CreateIdentifierNode(TW::UniString(GetText(token))), SyntaxErrorReason::UnknownIdentifier, token);
  return true;
}

void Parser::EnterLevel(const Token& token) {
  if (depth_ == MaximumNestingDepth) Fail(SyntaxErrorReason::TooDeeplyNested, token);
  ++depth_;
}

void Parser::OpenPrefixOperator(const Token& token) {
  const std::u16string_view sign = GetText(token);
  if (sign != Plus && sign != Minus) Fail(SyntaxErrorReason::OperandExpected, token);
  EnterLevel(token);
  Open(Accept(builder_.CreatePrefixOperatorNode(TW::UniString(sign)), SyntaxErrorReason::UnexpectedCharacter, token),
       Binding::Prefix);
}

void Parser::OpenParenthesis(const Token& token) {
  EnterLevel(token);
  Open(Accept(builder_.CreateParenthesizedNode(), SyntaxErrorReason::UnexpectedCharacter, token), Binding::Parenthesis);
}

bool Parser::OpenCall(const Token& name) {
  EnterLevel(name);
  Open(Accept(builder_.CreateFunctionNode(TW::UniString(GetText(name))), SyntaxErrorReason::UnknownFunction, name),
       Binding::Call);
  Advance();
  if (token_.kind != TokenKind::RightParenthesis) return false;
  Advance();
  CloseLast();
  return true;
}

void Parser::OpenBinaryOperator(const Token& token) {
  const std::u16string_view sign = GetText(token);
  const Binding binding = GetBinding(sign);
  // A power waits for the power on its right; every other operator closes its equals on its left.
  if (binding != Binding::Power) CloseOperators(binding);
  if (IsNestingLevel(binding)) EnterLevel(token);
  TW::Ref<SyntaxTreeNode> node =
      Accept(builder_.CreateBinaryOperatorNode(TW::UniString(sign)), SyntaxErrorReason::UnexpectedCharacter, token);
  node->AddChild(std::move(operand_));
  Open(std::move(node), binding);
}

void Parser::PassListSeparator(const Token& token) {
  CloseOperators(Binding::Comparison);
  if (openNodes_.empty() || openNodes_.back().binding != Binding::Call) {
    Fail(SyntaxErrorReason::UnexpectedCharacter, token);
  }
  openNodes_.back().node->AddChild(std::move(operand_));
}

void Parser::CloseBracket(const Token& token) {
  CloseOperators(Binding::Comparison);
  if (openNodes_.empty()) Fail(SyntaxErrorReason::UnexpectedCharacter, token);
  openNodes_.back().node->AddChild(std::move(operand_));
  CloseLast();
}

void Parser::Finish(const Token& end) {
  CloseOperators(Binding::Comparison);
  if (end.kind == TokenKind::End && openNodes_.empty()) return;
  FailAt(end, SyntaxErrorReason::ClosingParenthesisExpected, SyntaxErrorReason::UnexpectedCharacter);
}

// Makes the operand of the node on top of the stack.
void Parser::CloseLast() {
  OpenNode& last = openNodes_.back();
  if (IsNestingLevel(last.binding)) --depth_;
  operand_ = std::move(last.node);
  openNodes_.pop_back();
}

// Closes the operators on top of the stack that bind at least as tightly as `loosest`.
void Parser::CloseOperators(Binding loosest) {
  while (!openNodes_.empty() && openNodes_.back().binding >= loosest) {
    openNodes_.back().node->AddChild(std::move(operand_));
    CloseLast();
  }
}

}  // namespace

TW::Ref<SyntaxTreeNode> BoostGenerateSyntaxTreeBase(const TW::UniString& text, const IParsingLocaleSettings& settings,
                                                    ISyntaxTreeBuilder& builder) {
  return Parser(text.GetView(), settings, builder).Parse();
}

}  // namespace EP
