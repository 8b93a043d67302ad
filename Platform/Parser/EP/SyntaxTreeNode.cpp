#include "EP/SyntaxTreeNode.hpp"

namespace EP {

TW::ClassInfo SyntaxTreeNode::classInfo("SyntaxTreeNode", "{82AF3E97-212B-44E5-A841-452EABBD8BF2}", 1,
                                        &TW::TreeNode::classInfo);

SyntaxTreeNode::~SyntaxTreeNode() = default;

const TW::ClassInfo* SyntaxTreeNode::GetClassInfo() const { return &classInfo; }

}  // namespace EP
