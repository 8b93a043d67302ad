#include "Host/Model/ClassPattern.hpp"

#include <algorithm>
#include <cstddef>

namespace Host {
namespace {

// The names of classes are ASCII.
char16_t ToUpper(char16_t unit) { return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 32) : unit; }

bool Matches(std::u16string_view pattern, std::u16string_view name) {
  std::size_t at = 0;
  std::size_t in = 0;
  // Where to go on when what follows the last asterisk does not fit: one character of the name later.
  std::size_t afterStar = pattern.npos;
  std::size_t nameAtStar = 0;
  while (in < name.size()) {
    if (at < pattern.size() && pattern[at] == u'*') {
      afterStar = ++at;
      nameAtStar = in;
    } else if (at < pattern.size() && ToUpper(pattern[at]) == ToUpper(name[in])) {
      ++at;
      ++in;
    } else if (afterStar != pattern.npos) {
      at = afterStar;
      in = ++nameAtStar;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(u'*', at) == pattern.npos;
}

}  // namespace

bool MatchesClass(const std::vector<TW::UniString>& patterns, std::u16string_view className) {
  return patterns.empty() || std::ranges::any_of(patterns, [className](const TW::UniString& pattern) {
           return Matches(pattern.GetView(), className);
         });
}

}  // namespace Host
