#include "Completion.hpp"

#include "EP/TextConstants.hpp"
#include "EP/Tokenizer.hpp"
#include "Vocabulary.hpp"

#include <algorithm>

namespace Command {
namespace {

using EP::TokenKind;

// The last token, and whether the cursor may stand in or before the unit of a number.
struct LastToken {
  EP::Token token;
  bool isUnit = false;
};

LastToken FindLastToken(const TW::UniString& text, const EP::IParsingLocaleSettings& settings) {
  LastToken last;
  EP::EnumerateTokens(text, settings, [&](const EP::Token& token) {
    const bool followsNumber = last.token.kind == TokenKind::Number && token.kind == TokenKind::Blank;
    last = {token, token.kind == TokenKind::Number || token.kind == TokenKind::Unit || followsNumber};
  });
  return last;
}

std::vector<TW::UniString> GetWords(WordKind kind, std::u16string_view ending) {
  std::vector<TW::UniString> words;
  for (const WordGroup& group : GetVocabulary()) {
    if (group.kind != kind) continue;
    for (const TW::UniString& word : group.words) words.push_back(word + ending);
  }
  return words;
}

std::vector<TW::UniString> GetNames() {
  std::vector<TW::UniString> names = GetWords(WordKind::Function, EP::LeftParenthesis);
  for (const TW::UniString& constant : GetWords(WordKind::Constant, {})) names.push_back(constant);
  return names;
}

Completion CompleteUnit(const TW::UniString& typed) {
  Completion completion{typed, {}};
  for (const TW::UniString& marker : GetWords(WordKind::Unit, {})) {
    if (marker.GetView().starts_with(typed)) completion.words.push_back(marker);
  }
  return completion;
}

bool BeginsWith(const TW::UniString& word, const TW::UniString& typed) {
  const TW::UniString beginning = word.Substring(0, typed.GetLength());
  return beginning.Compare(typed, TW::CaseComparison::CaseInsensitive) == 0;
}

}  // namespace

Completion CompleteWord(const TW::UniString& typed, const std::vector<TW::UniString>& candidates) {
  Completion completion{typed, {}};
  for (const TW::UniString& candidate : candidates) {
    if (BeginsWith(candidate, typed)) completion.words.push_back(candidate);
  }
  return completion;
}

Completion CompleteFormula(const TW::UniString& beforeCursor, const EP::IParsingLocaleSettings& settings,
                           const std::vector<TW::UniString>& properties) {
  const LastToken last = FindLastToken(beforeCursor, settings);
  const TW::UniString typed = beforeCursor.Substring(last.token.range.begin, beforeCursor.GetLength());
  if (last.isUnit) return CompleteUnit(last.token.kind == TokenKind::Unit ? typed : TW::UniString());
  if (last.token.kind == TokenKind::UnterminatedReference) return CompleteWord(typed, properties);
  if (last.token.kind == TokenKind::Name) return CompleteWord(typed, GetNames());
  return {};
}

TW::UniString GetCommonBeginning(const std::vector<TW::UniString>& words) {
  std::u16string_view common = words.front();
  for (const TW::UniString& word : words) {
    const std::u16string_view view = word;
    const auto end = std::mismatch(common.begin(), common.end(), view.begin(), view.end()).first;
    common = common.substr(0, static_cast<std::size_t>(end - common.begin()));
  }
  return TW::UniString(common);
}

}  // namespace Command
