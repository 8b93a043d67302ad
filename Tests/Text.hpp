#pragma once

#include "TW/UniString.hpp"

#include <ostream>

/// Shows texts of the library in the messages of failed tests.

namespace TW {

inline void PrintTo(const UniString& text, std::ostream* out) { *out << '"' << text.ToUtf8() << '"'; }

}  // namespace TW
