#include "EP/Escapes.hpp"

#include "EP/TextConstants.hpp"

#include <string>
#include <utility>

namespace EP {
namespace {

constexpr char16_t Escape = EscapeChar.front();

bool IsEscaped(char16_t unit, char16_t mark) { return unit == Escape || unit == mark; }

// Whether an escape and what it escapes begin at `position`.
bool StartsEscape(std::u16string_view text, std::size_t position, char16_t mark) {
  return text[position] == Escape && position + 1 < text.size() && IsEscaped(text[position + 1], mark);
}

}  // namespace

std::size_t FindClosingMark(std::u16string_view text, std::size_t position, char16_t mark) {
  for (; position < text.size(); ++position) {
    if (text[position] == mark) return position;
    if (StartsEscape(text, position, mark)) ++position;
  }
  return std::u16string_view::npos;
}

TW::UniString RemoveEscapes(std::u16string_view text, char16_t mark) {
  if (text.find(Escape) == std::u16string_view::npos) return TW::UniString(text);
  std::u16string plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (StartsEscape(text, i, mark)) ++i;
    plain.push_back(text[i]);
  }
  return TW::UniString(std::move(plain));
}

std::size_t GetLengthWithoutEscapes(std::u16string_view text, char16_t mark) {
  std::size_t length = 0;
  for (std::size_t i = 0; i < text.size(); ++i, ++length) {
    if (StartsEscape(text, i, mark)) ++i;
  }
  return length;
}

TW::UniString AddEscapes(std::u16string_view text, char16_t mark) {
  TW::UniString escaped;
  escaped.Reserve(text.size());
  for (const char16_t unit : text) {
    if (IsEscaped(unit, mark)) escaped.Append(EscapeChar);
    escaped.Append(TW::UniChar(unit));
  }
  return escaped;
}

}  // namespace EP
