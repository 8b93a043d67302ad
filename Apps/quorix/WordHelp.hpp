#pragma once

#include "Environment.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"
#include "Vocabulary.hpp"

#include <vector>

namespace Command {

struct WordArgument {
  TW::UniString name;
  TW::UniString meaning;
  TW::UniString line;  ///< both, put together as the language does
};

struct WordExample {
  TW::UniString formula;
  QX::ExpressionValue value;
  TW::UniString result;  ///< the value for people; a text in quotation marks
};

/// What is told of a word of the language. Constants and units have neither a description nor arguments.
struct WordHelp {
  WordKind kind;
  TW::UniString word;  ///< as it is written in formulas; keywords in upper case
  TW::UniString title;
  TW::UniString syntax;
  TW::UniString description;
  std::vector<WordArgument> arguments;
  std::vector<WordExample> examples;
};

/// The help of a word; nothing for what is none. The examples are evaluated in `environment` and written in its
/// separators; one that has no value there is left out.
TW::Optional<WordHelp> FindWordHelp(const TW::UniString& word, const Environment& environment);

}  // namespace Command
