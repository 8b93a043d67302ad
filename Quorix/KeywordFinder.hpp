#pragma once

#include "Quorix/Export.hpp"
#include "TW/Optional.hpp"
#include "TW/Range.hpp"
#include "TW/UniChar.hpp"
#include "TW/UniString.hpp"

#include <functional>

namespace QX {

/// A word of the language found in a text, for editors that highlight or explain what the caret touches.
struct QX_EXPORT FoundKeyword {
  FoundKeyword(const TW::UniString& foundKeyword, const TW::Range<unsigned int>& foundRange)
      : keyword(foundKeyword), range(foundRange) {}

  TW::UniString keyword;          ///< as written, but for functions, which are in upper case
  TW::Range<unsigned int> range;  ///< where it is written, in 16-bit units

  friend bool operator==(const FoundKeyword&, const FoundKeyword&) = default;
};

/// Finds the constant, operator or function, in this order, that a caret before the unit at `position` touches on
/// either side; nothing when it touches none or lies beyond the text.
QX_EXPORT TW::Optional<FoundKeyword> FindKeywordAroundCharPosition(const TW::UniString& text, unsigned int position);

/// Finds the longest run of units that `isKeywordChar` accepts around the caret, if `isKeyword` accepts the run. Looks
/// at no more of the text than the run and one unit at each end.
QX_EXPORT TW::Optional<FoundKeyword> FindKeywordAroundCharPosition(
    const TW::UniString& text, unsigned int position, const std::function<bool(const TW::UniChar&)>& isKeywordChar,
    const std::function<bool(const TW::UniString&)>& isKeyword);

}  // namespace QX
