#pragma once

#include "TW/UniString.hpp"

#include <span>
#include <string_view>

namespace Host {

/// The word most like a misspelled one; empty when none is like it.
std::u16string_view FindSimilarWord(std::u16string_view word, std::span<const std::u16string_view> words);
/// The words with commas between them.
TW::UniString ListWords(std::span<const std::u16string_view> words);

}  // namespace Host
