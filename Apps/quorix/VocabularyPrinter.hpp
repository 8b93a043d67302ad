#pragma once

#include "Environment.hpp"

#include <string>
#include <string_view>

/// What the program tells of the language, for people or as a line of JSON.

namespace Command {

/// Appends all words by group.
void AppendVocabulary(std::string& out, bool json);
/// Appends the help of a word. Throws `UsageError`, which names similar words, for what is none.
void AppendWordHelp(std::string& out, std::string_view word, bool json, const Environment& environment);

}  // namespace Command
