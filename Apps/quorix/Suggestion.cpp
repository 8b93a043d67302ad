#include "Suggestion.hpp"

#include "CommandText.hpp"
#include "Host/Texts/Suggestion.hpp"
#include "Vocabulary.hpp"

namespace Command {

std::string Suggest(const TW::UniString& word, const std::vector<TW::UniString>& words) {
  const std::vector<std::u16string_view> views(words.begin(), words.end());
  const std::u16string_view similar = Host::FindSimilarWord(word, views);
  return similar.empty() ? std::string() : " " + MakeText(CommandText::SimilarWords, TW::UniString(similar));
}

std::string SuggestOfLanguage(const TW::UniString& word) {
  std::vector<std::string> similar;
  for (const TW::UniString& candidate : FindSimilarWords(word)) similar.push_back(candidate.ToUtf8());
  return similar.empty() ? std::string() : " " + MakeText(CommandText::SimilarWords, JoinWithOr(similar));
}

}  // namespace Command
