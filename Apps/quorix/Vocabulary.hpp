#pragma once

#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <string_view>
#include <vector>

/// The words of the language as they are listed for people: functions, operators, constants and units.

namespace Command {

enum class WordKind { Function, Operator, Constant, Unit };

/// Words that are listed together, in their order.
struct WordGroup {
  WordKind kind;
  std::string_view name;  ///< for programs, always the same
  TW::UniString heading;  ///< in the user's language
  std::vector<TW::UniString> words;
};

/// The headings of the parts of a help text.
enum class HelpPart { Arguments, Operands, Examples };

/// All words by group, the functions first.
std::vector<WordGroup> GetVocabulary();
/// The kind of a word; nothing for what is none. Functions and constants are known in any case.
TW::Optional<WordKind> FindWordKind(const TW::UniString& word);
/// A word with its name in the user's language; a unit has no name beside itself.
TW::UniString GetWordTitle(WordKind kind, const TW::UniString& word);
/// The kind as one word, for programs.
std::string_view GetKindName(WordKind kind);
TW::UniString GetHeading(HelpPart part);

/// The words most like `word`, which is none: those that the fewest typing errors make of it, if few are enough.
std::vector<TW::UniString> FindSimilarWords(const TW::UniString& word);

}  // namespace Command
