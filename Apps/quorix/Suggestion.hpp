#pragma once

#include "TW/UniString.hpp"

#include <string>
#include <vector>

namespace Command {

/// Asks for the word that may have been meant, after a blank; empty when none of the words is like it.
std::string Suggest(const TW::UniString& word, const std::vector<TW::UniString>& words);
/// The same for a word that is none of the language.
std::string SuggestOfLanguage(const TW::UniString& word);

}  // namespace Command
