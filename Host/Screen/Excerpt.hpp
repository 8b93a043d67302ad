#pragma once

#include "TW/Range.hpp"
#include "TW/UniString.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace Host {

/// A place in a formula, in 16-bit code units.
struct ExcerptPlace {
  TW::Range<unsigned int> span;               ///< the whole of it
  std::vector<TW::Range<unsigned int>> core;  ///< what is at fault within it, in order; an empty range is a point
};

/// Appends lines for a terminal, in UTF-8, that show a place in a formula: a line with `^` below the core and `~` below
/// the rest of the span follows the text when there is a place. Of a long formula only the surroundings of the place
/// are shown; characters that would move the cursor are shown as blanks.
void AppendExcerpt(std::string& out, std::string_view indentation, const TW::UniString& formula,
                   const ExcerptPlace& place);

}  // namespace Host
