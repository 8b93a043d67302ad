#include "Host/NodeSpan.hpp"

#include <algorithm>

namespace Host {

TW::Range<unsigned int> GetSpan(const QX::ExpressionString& text, const QX::ExpressionNode& node) {
  TW::Range<unsigned int> span = text.GetNodeRange(&node);
  node.EnumerateRecursive([&](const QX::ExpressionNode* below) {
    // A node that wrote nothing itself does not widen the span.
    if (!text.HasNodeRange(below)) return;
    const TW::Range<unsigned int> range = text.GetNodeRange(below);
    span = {std::min(span.begin, range.begin), std::max(span.end, range.end)};
  });
  return span;
}

}  // namespace Host
