#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace TW {

/// Finds one text in others, in time linear in the length of both whatever they hold.
class TextSearch {
 public:
  static constexpr std::size_t NotFound = std::u16string_view::npos;

  /// Keeps a view of `pattern`, which must not be empty.
  explicit TextSearch(std::u16string_view pattern);

  /// The first occurrence at or after `start`.
  std::size_t FindIn(std::u16string_view text, std::size_t start) const;

 private:
  std::u16string_view pattern_;
  std::vector<std::size_t> fallback_;
};

}  // namespace TW
