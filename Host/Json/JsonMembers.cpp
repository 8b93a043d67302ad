#include "Host/Json/JsonMembers.hpp"

#include "Host/Texts/FileTexts.hpp"
#include "Host/Texts/Suggestion.hpp"

#include <algorithm>

namespace Host {
namespace {

TW::UniString MakeUnknownKeyText(std::u16string_view key, std::span<const std::u16string_view> keys) {
  const std::u16string_view similar = FindSimilarWord(key, keys);
  if (similar.empty()) return MakeText(FileText::UnknownKey, key, ListWords(keys));
  return MakeText(FileText::MisspelledKey, key, similar, ListWords(keys));
}

}  // namespace

std::size_t JsonMembers::Find(const JsonValue& key) const {
  const auto found = std::ranges::find(keys_, key.GetText());
  if (found == keys_.end()) complain_(key, JsonContentFault::UnknownKey, MakeUnknownKeyText(key.GetText(), keys_));
  return static_cast<std::size_t>(found - keys_.begin());
}

void JsonMembers::ComplainOfDouble(const JsonValue& key) const {
  complain_(key, JsonContentFault::DuplicateKey, MakeText(FileText::DuplicateKey, key.GetText()));
}

}  // namespace Host
