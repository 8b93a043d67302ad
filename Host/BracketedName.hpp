#pragma once

#include "TW/UniString.hpp"

#include <cstddef>
#include <string_view>

/// A name in brackets, as people write references to properties: `[Width]`. Within it `\]` is a closing bracket and
/// `\\` a backslash; a backslash before anything else stands for itself.

namespace Host {

/// The position after the bracket that closes the one at `position`, or the length of the text when none does.
std::size_t FindBracketEnd(std::u16string_view text, std::size_t position);

/// The name in brackets, with escapes.
TW::UniString BracketName(std::u16string_view name);

}  // namespace Host
