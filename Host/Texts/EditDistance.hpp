#pragma once

#include <string_view>

namespace Host {

/// The fewest typing errors that make one text of the other: a character too much, missing, wrong, or two neighbours
/// exchanged. Any number above `limit` stands for more than that; time and memory follow the shorter text and `limit`.
unsigned int GetEditDistance(std::u16string_view a, std::u16string_view b, unsigned int limit);

}  // namespace Host
