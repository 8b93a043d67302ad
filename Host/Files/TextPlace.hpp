#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Host {

/// Where something stands in a text file, as people count.
struct TextPlace {
  std::uint64_t line = 1;
  std::uint64_t column = 1;  ///< in characters

  friend bool operator==(const TextPlace&, const TextPlace&) = default;
};

/// Finds lines and columns in a text in UTF-8, whose lines end with LF, CR or both. Positions that rise take time by
/// the length of the text in all; one that falls begins anew. Keeps a view of the text.
class TextPlaceFinder {
 public:
  explicit TextPlaceFinder(std::string_view text) : text_(text) {}

  /// The place of a byte; that of the end for a position behind it.
  TextPlace Find(std::size_t position);

 private:
  void Pass(char byte);

  std::string_view text_;
  std::size_t position_ = 0;
  TextPlace place_;
};

}  // namespace Host
