#include "Host/Texts/Suggestion.hpp"

#include "Host/Texts/EditDistance.hpp"

namespace Host {

std::u16string_view FindSimilarWord(std::u16string_view word, std::span<const std::u16string_view> words) {
  const TW::UniString wanted = TW::UniString(word).ToLowerCase();
  std::u16string_view similar;
  unsigned int limit = wanted.GetLength() / 3 + 1;
  for (const std::u16string_view candidate : words) {
    const unsigned int distance = GetEditDistance(wanted, TW::UniString(candidate).ToLowerCase(), limit);
    if (distance > limit || (distance == limit && !similar.empty())) continue;
    limit = distance;
    similar = candidate;
  }
  return similar;
}

TW::UniString ListWords(std::span<const std::u16string_view> words) {
  TW::UniString list;
  for (const std::u16string_view word : words) {
    if (!list.IsEmpty()) list += u", ";
    list += word;
  }
  return list;
}

}  // namespace Host
