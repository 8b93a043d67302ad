#include "Host/Ifc/StepCursor.hpp"

#include "Host/Ifc/StepScan.hpp"
#include "Host/Ifc/StepText.hpp"
#include "TW/DecimalNumber.hpp"

#include <charconv>
#include <system_error>

namespace Host {
namespace {

bool IsNumberStart(char character) { return IsStepDigit(character) || character == '-' || character == '+'; }

bool IsNumberPart(char character) {
  return IsNumberStart(character) || character == '.' || character == 'E' || character == 'e';
}

// What is too small for a double is 0, which from_chars leaves open.
TW::Optional<double> ReadExtreme(std::string_view digits, bool negative) {
  double value = 0;
  if (TW::ReadDecimalNumber(digits, value) != TW::NumberReading::Read) return {};
  return negative ? -value : value;
}

}  // namespace

TW::Optional<double> StepValue::GetNumber() const {
  if (kind != StepKind::Integer && kind != StepKind::Real) return {};
  const bool negative = text.starts_with('-');
  const std::string_view digits = text.substr(negative || text.starts_with('+') ? 1 : 0);
  if (digits.empty() || !IsStepDigit(digits[0])) return {};
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error == std::errc::result_out_of_range) return ReadExtreme(digits, negative);
  if (error != std::errc() || end != digits.data() + digits.size()) return {};
  return negative ? -value : value;
}

TW::UniString StepValue::GetText() const { return kind == StepKind::Text ? DecodeStepText(text) : TW::UniString(); }

StepValue StepCursor::Next() {
  if (nested_) PassNested();
  at_ = SkipStepSpace(text_, at_);
  if (at_ == text_.size()) return Break();
  if (text_[at_] == ')') return {};
  if (!first_ && !PassSeparator()) return Break();
  first_ = false;
  return Read();
}

StepValue StepCursor::NextAfter(unsigned int count) {
  StepValue value = Next();
  for (; count > 0 && value.kind != StepKind::End && value.kind != StepKind::Broken; --count) value = Next();
  return value;
}

bool StepCursor::PassSeparator() {
  if (text_[at_] != ',') return false;
  at_ = SkipStepSpace(text_, at_ + 1);
  return at_ < text_.size();
}

StepValue StepCursor::Break() {
  text_ = {};
  at_ = 0;
  return {StepKind::Broken, {}, 0, {}};
}

StepValue StepCursor::Take(StepKind kind, std::size_t first, std::size_t end, std::size_t next) {
  at_ = next;
  return {kind, text_.substr(first, end - first), 0, {}};
}

StepValue StepCursor::Read() {
  switch (text_[at_]) {
    case '$':
      return Take(StepKind::Absent, at_, at_ + 1, at_ + 1);
    case '*':
      return Take(StepKind::Derived, at_, at_ + 1, at_ + 1);
    case '\'':
      return ReadText();
    case '"':
      return ReadBinary();
    case '.':
      return ReadEnumeration();
    case '#':
      return ReadReference();
    case '(':
      return Enter(StepKind::List, {});
    default:
      return IsNumberStart(text_[at_]) ? ReadNumber() : ReadTyped();
  }
}

StepValue StepCursor::ReadText() {
  const std::size_t first = at_ + 1;
  std::size_t end = FindStepByte(text_, '\'', first);
  while (end + 1 < text_.size() && text_[end + 1] == '\'') end = FindStepByte(text_, '\'', end + 2);
  return end >= text_.size() ? Break() : Take(StepKind::Text, first, end, end + 1);
}

StepValue StepCursor::ReadBinary() {
  const std::size_t end = FindStepByte(text_, '"', at_ + 1);
  return end == text_.size() ? Break() : Take(StepKind::Binary, at_ + 1, end, end + 1);
}

StepValue StepCursor::ReadEnumeration() {
  const std::size_t first = at_ + 1;
  std::size_t end = first;
  while (end < text_.size() && IsStepKeyword(text_[end])) ++end;
  if (end == text_.size() || end == first || text_[end] != '.') return Break();
  return Take(StepKind::Enumeration, first, end, end + 1);
}

StepValue StepCursor::ReadReference() {
  const std::size_t first = at_ + 1;
  std::size_t end = first;
  std::uint64_t id = 0;
  if (!ReadStepId(text_, end, id)) id = 0;
  if (end == first) return Break();
  StepValue value = Take(StepKind::Reference, first, end, end);
  value.id = id;
  return value;
}

StepValue StepCursor::ReadNumber() {
  std::size_t end = at_ + 1;
  bool real = false;
  for (; end < text_.size() && IsNumberPart(text_[end]); ++end) real = real || !IsNumberStart(text_[end]);
  return Take(real ? StepKind::Real : StepKind::Integer, at_, end, end);
}

StepValue StepCursor::ReadTyped() {
  const std::size_t first = at_;
  while (at_ < text_.size() && IsStepKeyword(text_[at_])) ++at_;
  const std::string_view keyword = text_.substr(first, at_ - first);
  at_ = SkipStepSpace(text_, at_);
  if (keyword.empty() || at_ == text_.size() || text_[at_] != '(') return Break();
  return Enter(StepKind::Typed, keyword);
}

StepValue StepCursor::Enter(StepKind kind, std::string_view keyword) {
  ++at_;
  nested_ = true;
  return {kind, keyword, 0, text_.substr(at_)};
}

void StepCursor::PassNested() {
  nested_ = false;
  for (std::size_t depth = 1; depth > 0 && at_ < text_.size();) {
    const char character = text_[at_];
    if (character == '\'') {
      at_ = FindStepByte(text_, '\'', at_ + 1);
    } else if (character == ';') {
      // The instance ends with an open bracket. To look on in what follows would take time by the whole file.
      Break();
      return;
    } else if (IsStepComment(text_, at_)) {
      at_ = SkipStepComment(text_, at_);
      continue;
    }
    depth += character == '(' ? 1U : 0U;
    depth -= character == ')' ? 1U : 0U;
    ++at_;
  }
  if (at_ > text_.size()) at_ = text_.size();
}

}  // namespace Host
