#pragma once

#include "TW/UniString.hpp"

#include <string>
#include <string_view>

namespace Host {

/// Reads the text between the quotes of a STEP file, with all its escapes. Bytes beyond ASCII are taken as UTF-8, line
/// breaks are passed over, what is no whole escape stands for itself, and what is no character becomes U+FFFD. Any
/// thread may call it.
TW::UniString DecodeStepText(std::string_view raw);

/// Writes a text as it stands between the quotes of a STEP file, in ASCII.
std::string EncodeStepText(const TW::UniString& text);

}  // namespace Host
