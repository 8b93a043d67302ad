#pragma once

#include "Quorix/Export.hpp"
#include "TW/HashTable.hpp"
#include "TW/Range.hpp"
#include "TW/UniString.hpp"

namespace QX {

class ExpressionNode;

/// The text of a formula, and for every node of its tree the range of the text that the node produced: from its first
/// piece to the end of its last, with whatever stands in between.
class QX_EXPORT ExpressionString {
 public:
  /// Appends a piece that `node` produced; a piece of no node has no range.
  void Append(const TW::UniString& text, const ExpressionNode* node);

  const TW::UniString& GetFullString() const { return fullString_; }
  bool HasNodeRange(const ExpressionNode* node) const { return nodeRanges_.Contains(node); }
  /// The range of a node; from 0 to 0 when it has none.
  TW::Range<unsigned int> GetNodeRange(const ExpressionNode* node) const;
  /// The text within the range of a node.
  TW::UniString GetNodeString(const ExpressionNode* node) const;

 private:
  TW::UniString fullString_;
  TW::HashTable<const ExpressionNode*, TW::Range<unsigned int>> nodeRanges_;
};

}  // namespace QX
