#pragma once

#include "EP/LocaleSettings.hpp"
#include "TW/UniString.hpp"

#include <vector>

namespace Command {

/// What may stand in the place of the last few characters before the cursor.
struct Completion {
  TW::UniString typed;               ///< these characters
  std::vector<TW::UniString> words;  ///< whole words; none when nothing fits
};

/// Completes the last word of a formula: a function, with its parenthesis, or a constant; after a number a unit; after
/// a bracket one of `properties`, which are given with their brackets. Only units must be typed in the right case.
Completion CompleteFormula(const TW::UniString& beforeCursor, const EP::IParsingLocaleSettings& settings,
                           const std::vector<TW::UniString>& properties);

/// The candidates that begin with `typed`, whatever the case.
Completion CompleteWord(const TW::UniString& typed, const std::vector<TW::UniString>& candidates);

/// The beginning that all words share; at least one is needed.
TW::UniString GetCommonBeginning(const std::vector<TW::UniString>& words);

}  // namespace Command
