#include "Quorix/ExpressionNodes/TextPositions.hpp"

#include <algorithm>
#include <limits>

namespace QX {
namespace {

int HeldToLimit(unsigned int position) {
  constexpr unsigned int Limit = std::numeric_limits<int>::max();
  return static_cast<int>(std::min(position, Limit));
}

}  // namespace

int FindIthOccurrencePos(const TW::UniString& text, const TW::UniString& separator, unsigned int i) {
  int found = -1;
  unsigned int count = 0;
  text.Find(separator, [&](unsigned int position) {
    if (count++ == i) found = HeldToLimit(position);
  });
  return found;
}

ExpressionValue FromTextPosition(unsigned int position) { return ExpressionValue::FromInteger(HeldToLimit(position)); }

}  // namespace QX
