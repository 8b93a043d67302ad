#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts on a terminal, where a character takes no column, one or two, and some characters do harm.

namespace Host {

/// A character of a text, as a terminal shows it.
struct ScreenCharacter {
  std::u16string_view units;  ///< what to show; a blank in the place of what would move the cursor or turn the order
  unsigned int position = 0;  ///< in the text, in 16-bit units
  unsigned int columns = 0;   ///< none for what joins the character before it
};

/// Reads the characters of a text from left to right. Keeps the text only as a view.
class ScreenReader {
 public:
  explicit ScreenReader(std::u16string_view text) : text_(text) {}

  /// Gives false at the end.
  bool Read(ScreenCharacter& character);

 private:
  std::u16string_view text_;
  std::size_t position_ = 0;
};

/// A text that a terminal can show, in UTF-8.
struct ScreenText {
  std::string text;
  std::size_t columns = 0;
};

/// Makes a text of at most so many columns, at least one; a longer one ends in an ellipsis.
ScreenText MakeScreenText(std::u16string_view text, std::size_t maximumColumns);

}  // namespace Host
