#include "EP/Tokenizer.hpp"

#include "EP/CharacterClass.hpp"
#include "EP/Escapes.hpp"
#include "EP/NormalizedParsingLocaleSettings.hpp"
#include "EP/ReferenceScan.hpp"
#include "EP/TextConstants.hpp"

namespace EP {
namespace {

constexpr std::size_t NotFound = std::u16string_view::npos;

struct Stretch {
  TokenKind kind;
  std::size_t end;
};

bool IsAt(std::u16string_view text, std::size_t position, char16_t unit) {
  return position < text.size() && text[position] == unit;
}

template <bool (*Belongs)(char16_t)>
std::size_t Skip(std::u16string_view text, std::size_t position) {
  while (position < text.size() && Belongs(text[position])) ++position;
  return position;
}

std::size_t SkipExponent(std::u16string_view text, std::size_t position) {
  if (!IsAt(text, position, u'e') && !IsAt(text, position, u'E')) return position;
  std::size_t digits = position + 1;
  if (IsAt(text, digits, Plus.front()) || IsAt(text, digits, Minus.front())) ++digits;
  const std::size_t end = Skip<IsDigit>(text, digits);
  return end == digits ? position : end;
}

// Where the fraction and the inch mark end that follow whole inches, or `NotFound` when the number is just a number.
std::size_t FindFractionEnd(std::u16string_view text, std::size_t position) {
  const std::size_t numerator = Skip<IsBlank>(text, position);
  const std::size_t stroke = Skip<IsDigit>(text, numerator);
  if (numerator == position || stroke == numerator || !IsAt(text, stroke, Divide.front())) return NotFound;
  const std::size_t end = Skip<IsDigit>(text, stroke + 1);
  if (end == stroke + 1) return NotFound;
  const std::size_t mark = Skip<IsBlank>(text, end);
  return IsAt(text, mark, InchMark.front()) ? mark + 1 : NotFound;
}

bool StartsNumber(std::u16string_view text, std::size_t position, char16_t decimalSeparator) {
  if (IsDigit(text[position])) return true;
  return text[position] == decimalSeparator && position + 1 < text.size() && IsDigit(text[position + 1]);
}

Stretch ScanNumber(std::u16string_view text, std::size_t position, char16_t decimalSeparator) {
  std::size_t end = Skip<IsDigit>(text, position);
  if (end > position) {
    const std::size_t fractionEnd = FindFractionEnd(text, end);
    if (fractionEnd != NotFound) return {TokenKind::FractionalInch, fractionEnd};
  }
  if (IsAt(text, end, decimalSeparator)) end = Skip<IsDigit>(text, end + 1);
  return {TokenKind::Number, SkipExponent(text, end)};
}

bool StartsUnit(char16_t first) {
  return IsAlphaNumeric(first) || first == FootMark.front() || first == InchMark.front();
}

Stretch ScanUnit(std::u16string_view text, std::size_t position) {
  const std::size_t end = Skip<IsAlphaNumeric>(text, position);
  return {TokenKind::Unit, end == position ? end + 1 : end};
}

Stretch ScanOperator(std::u16string_view text, std::size_t position) {
  const std::u16string_view two = text.substr(position, 2);
  const bool isLong = two == LessOrEqual || two == GreaterOrEqual || two == NotEqual;
  return {TokenKind::Operator, position + (isLong ? 2 : 1)};
}

Stretch ScanQuotedText(std::u16string_view text, std::size_t position) {
  const std::size_t mark = FindClosingMark(text, position + 1, QuotationMark.front());
  if (mark == NotFound) return {TokenKind::UnterminatedText, text.size()};
  return {TokenKind::QuotedText, mark + 1};
}

Stretch ScanUnknown(std::u16string_view text, std::size_t position) {
  const bool isPair =
      (text[position] & 0xFC00) == 0xD800 && position + 1 < text.size() && (text[position + 1] & 0xFC00) == 0xDC00;
  return {TokenKind::Unknown, position + (isPair ? 2 : 1)};
}

Stretch ScanBracket(std::u16string_view text, std::size_t position) {
  const ReferenceScan scan = ScanReference(text, position);
  switch (scan.outcome) {
    case ReferenceOutcome::Complete:
      return {TokenKind::Reference, scan.end};
    case ReferenceOutcome::Unterminated:
      return {TokenKind::UnterminatedReference, text.size()};
    default:
      return ScanUnknown(text, position);
  }
}

// Takes what its first character alone tells apart.
Stretch ScanByClass(std::u16string_view text, std::size_t position) {
  switch (Classify(text[position])) {
    case CharacterClass::Blank:
      return {TokenKind::Blank, Skip<IsBlank>(text, position)};
    case CharacterClass::Letter:
      return {TokenKind::Name, Skip<IsAlphaNumeric>(text, position)};
    case CharacterClass::OperatorSign:
      return ScanOperator(text, position);
    case CharacterClass::Quotation:
      return ScanQuotedText(text, position);
    case CharacterClass::OpeningParenthesis:
      return {TokenKind::LeftParenthesis, position + 1};
    case CharacterClass::ClosingParenthesis:
      return {TokenKind::RightParenthesis, position + 1};
    case CharacterClass::ReferenceOpening:
      return ScanBracket(text, position);
    default:
      return ScanUnknown(text, position);
  }
}

}  // namespace

Tokenizer::Tokenizer(std::u16string_view text, const IParsingLocaleSettings& settings) : text_(text) {
  const NormalizedParsingLocaleSettings normalized(settings);
  decimalSeparator_ = static_cast<char16_t>(normalized.GetDecimalSeparator());
  listSeparator_ = static_cast<char16_t>(normalized.GetListSeparator());
}

TokenKind Tokenizer::Scan() {
  if (position_ == text_.size()) return TokenKind::End;
  const char16_t first = text_[position_];
  Stretch next{};
  if (first == listSeparator_) {
    next = {TokenKind::ListSeparator, position_ + 1};
  } else if (afterNumber_ && StartsUnit(first)) {
    next = ScanUnit(text_, position_);
  } else if (StartsNumber(text_, position_, decimalSeparator_)) {
    next = ScanNumber(text_, position_, decimalSeparator_);
  } else {
    next = ScanByClass(text_, position_);
  }
  afterNumber_ = next.kind == TokenKind::Number || (next.kind == TokenKind::Blank && afterNumber_);
  position_ = next.end;
  return next.kind;
}

void EnumerateTokens(std::u16string_view text, const IParsingLocaleSettings& settings,
                     const std::function<void(const Token&)>& visit) {
  Tokenizer tokenizer(text, settings);
  for (Token token = tokenizer.Next(); token.kind != TokenKind::End; token = tokenizer.Next()) visit(token);
}

}  // namespace EP
