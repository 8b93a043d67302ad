#pragma once

#include "TW/UniString.hpp"

#include <string_view>
#include <vector>

namespace Host {

/// Whether a class goes by one of the patterns, in which `*` stands for any characters; every class does when there are
/// no patterns. Case does not count. Takes time by the product of both lengths at most.
bool MatchesClass(const std::vector<TW::UniString>& patterns, std::u16string_view className);

}  // namespace Host
