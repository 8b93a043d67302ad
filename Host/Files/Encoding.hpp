#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Host {

/// The mark that many programs write before a text in UTF-8.
inline constexpr std::string_view Utf8ByteOrderMark = "\xEF\xBB\xBF";

/// Appends a character in UTF-8.
void AppendUtf8(std::string& out, char32_t code);
/// The position of the first byte that is no part of UTF-8, or the length of the text when all of it is.
std::size_t FindInvalidUtf8(std::string_view text);

/// Whether a text begins with the mark of UTF-16, of either byte order.
bool HasUtf16ByteOrderMark(std::string_view text);
/// Writes a text in UTF-16 that begins with such a mark as UTF-8, without the mark. Gives false at the first unit that
/// is half a character; `utf8` then holds what came before it.
bool ConvertUtf16ToUtf8(std::string_view text, std::string& utf8);

}  // namespace Host
