#pragma once

#include "TW/UniString.hpp"

#include <cstddef>
#include <string_view>

/// The escapes of quoted texts and of the values of references: before the closing mark and before itself a backslash
/// takes away the meaning, before anything else it stands for itself.

namespace EP {

/// The position of the first closing mark at or after `position` that is not escaped, or `npos`.
std::size_t FindClosingMark(std::u16string_view text, std::size_t position, char16_t mark);

TW::UniString RemoveEscapes(std::u16string_view text, char16_t mark);
/// The length that `RemoveEscapes` leaves.
std::size_t GetLengthWithoutEscapes(std::u16string_view text, char16_t mark);
TW::UniString AddEscapes(std::u16string_view text, char16_t mark);

}  // namespace EP
