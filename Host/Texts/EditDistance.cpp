#include "Host/Texts/EditDistance.hpp"

#include <algorithm>
#include <numeric>
#include <vector>

namespace Host {

unsigned int GetEditDistance(std::u16string_view a, std::u16string_view b, unsigned int limit) {
  if (std::max(a.size(), b.size()) - std::min(a.size(), b.size()) > limit) return limit + 1;
  // Rows of the table of distances between the beginnings of both texts.
  std::vector<unsigned int> beforeLast(b.size() + 1);
  std::vector<unsigned int> last(b.size() + 1);
  std::vector<unsigned int> row(b.size() + 1);
  std::iota(row.begin(), row.end(), 0U);
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::swap(beforeLast, last);
    std::swap(last, row);
    row[0] = static_cast<unsigned int>(i);
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const unsigned int replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({replaced, last[j] + 1, row[j - 1] + 1});
      const bool exchanged = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (exchanged) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
  }
  return row.back();
}

}  // namespace Host
