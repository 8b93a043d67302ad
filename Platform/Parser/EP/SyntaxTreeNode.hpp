#pragma once

#include "EP/Export.hpp"
#include "TW/ClassInfo.hpp"
#include "TW/TreeNode.hpp"

namespace EP {

/// The root of the nodes that a builder makes. The parser adds the operands of a node as its children, in the order in
/// which they are written.
class EP_EXPORT SyntaxTreeNode : public TW::TreeNode {
 public:
  static TW::ClassInfo classInfo;

  using TreeNode::TreeNode;
  ~SyntaxTreeNode() override;
  const TW::ClassInfo* GetClassInfo() const override;
};

}  // namespace EP
