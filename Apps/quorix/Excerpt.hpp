#pragma once

#include "TW/Range.hpp"
#include "TW/UniString.hpp"

#include <string>
#include <vector>

namespace Command {

/// A place in a formula, in 16-bit code units.
struct Place {
  TW::Range<unsigned int> span;               ///< the whole of it
  std::vector<TW::Range<unsigned int>> core;  ///< what is at fault within it, in order; an empty range is a point
};

/// Two lines for a terminal, in UTF-8, without line ends.
struct Excerpt {
  std::string text;
  std::string marks;  ///< `^` below the core and `~` below the rest of the span
};

/// What shows a place in a formula. Of a long formula only the surroundings of the place are shown; characters that
/// would move the cursor are shown as blanks.
Excerpt MakeExcerpt(const TW::UniString& formula, const Place& place);

}  // namespace Command
