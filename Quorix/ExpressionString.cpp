#include "Quorix/ExpressionString.hpp"

#include <algorithm>
#include <utility>

namespace QX {

void ExpressionString::Append(const TW::UniString& text, const ExpressionNode* node) {
  if (node != nullptr) {
    const unsigned int start = fullString_.GetLength();
    const unsigned int stop = start + text.GetLength();
    TW::Range<unsigned int>* range = nodeRanges_.Find(node);
    if (range == nullptr) {
      nodeRanges_.Add(node, {start, stop});
    } else {
      *range = {std::min(range->begin, start), std::max(range->end, stop)};
    }
  }
  fullString_ += text;
}

TW::Range<unsigned int> ExpressionString::GetNodeRange(const ExpressionNode* node) const {
  const TW::Range<unsigned int>* range = nodeRanges_.Find(node);
  return range != nullptr ? *range : TW::Range<unsigned int>();
}

TW::UniString ExpressionString::GetNodeString(const ExpressionNode* node) const {
  const TW::Range<unsigned int> range = GetNodeRange(node);
  return fullString_.Substring(range.begin, range.GetLength());
}

}  // namespace QX
