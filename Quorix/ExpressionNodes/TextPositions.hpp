#pragma once

#include "Quorix/ExpressionValue.hpp"
#include "TW/UniString.hpp"

namespace QX {

/// The position of occurrence number `i` of `separator`, counted from 0, or -1 when there are not so many. An empty
/// separator never occurs.
int FindIthOccurrencePos(const TW::UniString& text, const TW::UniString& separator, unsigned int i);

/// A length or position as a value; what is beyond the largest integer is that integer.
ExpressionValue FromTextPosition(unsigned int position);

}  // namespace QX
