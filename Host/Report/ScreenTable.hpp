#pragma once

#include "Host/Screen/ScreenText.hpp"

#include <algorithm>
#include <cstddef>
#include <string>

namespace Host {

/// A column of a table on a terminal.
struct ScreenColumn {
  static constexpr std::size_t Gap = 2;  ///< between two columns

  std::size_t maximumColumns = 0;  ///< of the terminal that it may take
  std::size_t columns = 0;         ///< that it takes
  bool isRight = false;            ///< whether signs and the heading stand at the right

  void Widen(const ScreenText& text) { columns = std::max(columns, text.columns); }
  /// Appends a text filled with blanks, and the gap to the next column.
  void Append(std::string& line, const ScreenText& text, bool atRight) const {
    const std::size_t filling = columns - std::min(columns, text.columns);
    if (atRight) line.append(filling, ' ');
    line += text.text;
    line.append((atRight ? 0 : filling) + Gap, ' ');
  }
};

/// Ends a line, without the blanks at its end.
inline void EndLine(std::string& line) {
  line.erase(line.find_last_not_of(' ') + 1);
  line += '\n';
}

}  // namespace Host
