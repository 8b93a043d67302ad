#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// The parts of the STEP text encoding (ISO 10303-21) that the index and the cursor share. All of them stay within the
/// text that they are given, whatever it holds.

namespace Host {

inline bool IsStepDigit(char character) noexcept { return character >= '0' && character <= '9'; }
inline bool IsStepSpace(char character) noexcept { return static_cast<unsigned char>(character) <= ' '; }
inline bool IsStepLetter(char character) noexcept {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}
inline bool IsStepKeyword(char character) noexcept {
  return IsStepLetter(character) || IsStepDigit(character) || character == '_' || character == '-' || character == '!';
}
inline char ToStepUpper(char character) noexcept {
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

/// The position of `wanted` at or after `from`, or the end of the text.
inline std::size_t FindStepByte(std::string_view text, char wanted, std::size_t from) noexcept {
  const std::size_t found = from < text.size() ? text.find(wanted, from) : std::string_view::npos;
  return found == std::string_view::npos ? text.size() : found;
}

/// The position behind a comment that begins at `at`; the end of the text when the comment has no end.
inline std::size_t SkipStepComment(std::string_view text, std::size_t at) noexcept {
  const std::size_t end = text.find("*/", at + 2);
  return end == std::string_view::npos ? text.size() : end + 2;
}

inline bool IsStepComment(std::string_view text, std::size_t at) noexcept {
  return text[at] == '/' && at + 1 < text.size() && text[at + 1] == '*';
}

/// The first position at or after `at` that is neither white space nor in a comment.
inline std::size_t SkipStepSpace(std::string_view text, std::size_t at) noexcept {
  while (at < text.size()) {
    if (IsStepSpace(text[at])) {
      ++at;
    } else if (IsStepComment(text, at)) {
      at = SkipStepComment(text, at);
    } else {
      break;
    }
  }
  return at;
}

/// Reads the digits at `at` and moves behind them. Gives false when there are none or their number needs more than 64
/// bits.
inline bool ReadStepId(std::string_view text, std::size_t& at, std::uint64_t& id) noexcept {
  const std::size_t first = at;
  bool fits = true;
  std::uint64_t value = 0;
  for (; at < text.size() && IsStepDigit(text[at]); ++at) {
    const auto digit = static_cast<std::uint64_t>(text[at] - '0');
    fits = fits && value <= (UINT64_MAX - digit) / 10;
    value = value * 10 + digit;
  }
  id = value;
  return fits && at > first;
}

}  // namespace Host
