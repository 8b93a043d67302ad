#pragma once

#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <string_view>

/// A name in brackets, as people write references to properties: `[Width]`. Within it `\]` is a closing bracket and
/// `\\` a backslash; a backslash before anything else stands for itself.

namespace Host {

/// A name as it was found in a text.
struct BracketedName {
  TW::UniString name;   ///< without escapes
  std::size_t end = 0;  ///< the position after the closing bracket
};

/// Reads the name whose opening bracket stands at `position`; nothing when the closing one is missing.
TW::Optional<BracketedName> ReadBracketedName(std::u16string_view text, std::size_t position);

/// The name in brackets, with escapes.
TW::UniString BracketName(std::u16string_view name);

}  // namespace Host
