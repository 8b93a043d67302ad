#include "TW/TextSearch.hpp"

namespace TW {
namespace {

// Up to this length trying every position costs no more than a constant factor and needs no table.
constexpr std::size_t ShortPattern = 16;

}  // namespace

TextSearch::TextSearch(std::u16string_view pattern) : pattern_(pattern) {
  if (pattern.size() <= ShortPattern) return;
  // Knuth, Morris, Pratt: for each prefix, the length of its longest proper prefix that is also its end.
  fallback_.assign(pattern.size(), 0);
  std::size_t matched = 0;
  for (std::size_t i = 1; i < pattern.size(); ++i) {
    while (matched > 0 && pattern[i] != pattern[matched]) matched = fallback_[matched - 1];
    if (pattern[i] == pattern[matched]) ++matched;
    fallback_[i] = matched;
  }
}

std::size_t TextSearch::FindIn(std::u16string_view text, std::size_t start) const {
  if (fallback_.empty()) return text.find(pattern_, start);
  std::size_t matched = 0;
  for (std::size_t i = start; i < text.size(); ++i) {
    while (matched > 0 && text[i] != pattern_[matched]) matched = fallback_[matched - 1];
    if (text[i] == pattern_[matched]) ++matched;
    if (matched == pattern_.size()) return i + 1 - matched;
  }
  return NotFound;
}

}  // namespace TW
