#pragma once

#include "Quorix/QuorixResources.hpp"
#include "TW/UniString.hpp"

namespace Host {

/// The lists of texts for people in the resource file that this library uses.
enum class TextList : int {
  Table = 120,   ///< the table of properties
  Files = 121,   ///< rules and tables of elements
  Model = 122,   ///< building models
  Report = 123,  ///< reports
};

/// The text at `index` (from 1) of a list in the user's language, filled with the arguments.
template <class... Arguments>
TW::UniString MakeText(TextList list, int index, const Arguments&... arguments) {
  return TW::UniString::Printf(QX::GetResourceString(static_cast<int>(list), index), arguments...);
}

}  // namespace Host
