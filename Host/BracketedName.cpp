#include "Host/BracketedName.hpp"

#include "EP/TextConstants.hpp"

namespace Host {
namespace {

constexpr char16_t Escape = EP::EscapeChar.front();
constexpr char16_t ClosingBracket = EP::ReferenceEnd.front();

bool NeedsEscape(char16_t unit) { return unit == Escape || unit == ClosingBracket; }

}  // namespace

std::size_t FindBracketEnd(std::u16string_view text, std::size_t position) {
  for (std::size_t i = position + 1; i < text.size(); ++i) {
    if (text[i] == ClosingBracket) return i + 1;
    if (text[i] == Escape && i + 1 < text.size() && NeedsEscape(text[i + 1])) ++i;
  }
  return text.size();
}

TW::UniString BracketName(std::u16string_view name) {
  TW::UniString bracketed(EP::ReferenceStart);
  for (const char16_t unit : name) {
    if (NeedsEscape(unit)) bracketed += EP::EscapeChar;
    bracketed.Append(TW::UniChar(unit));
  }
  bracketed += EP::ReferenceEnd;
  return bracketed;
}

}  // namespace Host
