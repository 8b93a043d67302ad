#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionString.hpp"
#include "TW/Range.hpp"

namespace Host {

/// The smallest range that holds the text of a node and of everything below it.
TW::Range<unsigned int> GetSpan(const QX::ExpressionString& text, const QX::ExpressionNode& node);

}  // namespace Host
