#include "TW/TreeNode.hpp"

#include "TW/ClassManager.hpp"

#include <cstdint>
#include <utility>
#include <vector>

namespace TW {

ClassInfo TreeNode::classInfo("TreeNode", "{5D0C9B39-5C1A-4E6F-8E0C-2B3A7D1F9C64}", 1, &Object::classInfo);

const ClassInfo* TreeNode::GetClassInfo() const { return &classInfo; }

bool TreeNode::AcceptsStoredChild(const TreeNode&) const { return true; }

TreeNode::Nesting TreeNode::GetChildNesting(unsigned int) const { return Nesting::Level; }

TreeNode::~TreeNode() { DestroyChildren(); }

void TreeNode::AddChild(Ref<TreeNode> child) {
  if (!child) throw NullReferenceException();
  children_.Add(child.Get());
  static_cast<void>(child.Detach());
}

// Going down to a child keeps the way back up in the slot that the child leaves, so that no depth needs stack or
// memory.
void TreeNode::DestroyChildren() noexcept {
  TreeNode* node = this;
  TreeNode* parent = nullptr;
  for (;;) {
    ChildList& children = node->children_;
    if (children.GetSize() > 0) {
      TreeNode*& last = children[children.GetSize() - 1];
      TreeNode* child = last;
      if (child->GetReferenceCount() == 1 && child->GetChildCount() > 0) {
        last = parent;
        parent = node;
        node = child;
      } else {
        children.RemoveLast();
        Ref<TreeNode>::Attach(child);
      }
    } else if (node != this) {
      TreeNode* finished = node;
      node = parent;
      parent = node->children_[node->GetChildCount() - 1];
      node->children_.RemoveLast();
      Ref<TreeNode>::Attach(finished);
    } else {
      return;
    }
  }
}

ErrCode TreeNode::Write(OChannel& channel) const {
  struct Step {
    const TreeNode* node;
    unsigned int next;
  };
  std::vector<Step> path;
  const TreeNode* node = this;
  for (;;) {
    channel.WriteGuid(node->GetClassInfo()->GetGuid());
    if (const ErrCode error = node->WriteSelf(channel); error != NoErr) return error;
    if (const ErrCode error = channel.WriteUInt32(node->GetChildCount()); error != NoErr) return error;
    path.push_back({node, 0});
    while (!path.empty() && path.back().next == path.back().node->GetChildCount()) path.pop_back();
    if (path.empty()) return NoErr;
    Step& step = path.back();
    node = step.node->GetChild(step.next++);
  }
}

/// Reads the nodes of a stored tree one after the other and puts each where it belongs.
class TreeReader {
 public:
  TreeReader(IChannel& channel, unsigned int maximumDepth) : channel_(channel), maximumDepth_(maximumDepth) {}

  /// Reads the GUID of a node's class and makes an empty node of it.
  ErrCode ReadNew(Ref<TreeNode>& node) {
    Guid guid;
    if (const ErrCode error = channel_.ReadGuid(guid); error != NoErr) return error;
    const ClassInfo* info = ClassManager::Find(guid);
    if (info != nullptr) node = info->CreateNewInstance().DynamicCast<TreeNode>();
    return node ? NoErr : ErrUnknownClass;
  }

  /// Reads what follows the GUID of `root`, and everything below it.
  ErrCode ReadBelow(TreeNode& root) {
    if (const ErrCode error = ReadFields(root, {}); error != NoErr) return error;
    while (!path_.empty()) {
      Step& step = path_.back();
      if (step.remaining == 0) {
        path_.pop_back();
        continue;
      }
      --step.remaining;
      if (const ErrCode error = ReadChild(*step.node, step.depth); error != NoErr) return error;
    }
    return NoErr;
  }

 private:
  struct Depth {
    unsigned int levels = 0;
    unsigned int aside = 0;
  };
  struct Step {
    TreeNode* node;
    std::uint32_t remaining;
    Depth depth;
  };

  static constexpr unsigned int MostAsidePerLevel = 4;

  static Depth DepthBelow(const TreeNode& parent, Depth depth) {
    const TreeNode::Nesting nesting = parent.GetChildNesting(parent.GetChildCount());
    if (nesting == TreeNode::Nesting::Level) ++depth.levels;
    if (nesting == TreeNode::Nesting::Aside) ++depth.aside;
    return depth;
  }

  ErrCode ReadChild(TreeNode& parent, const Depth& parentDepth) {
    const Depth depth = DepthBelow(parent, parentDepth);
    if (depth.levels > maximumDepth_ || depth.aside / MostAsidePerLevel > maximumDepth_) return ErrTooDeep;
    Ref<TreeNode> child;
    if (const ErrCode error = ReadNew(child); error != NoErr) return error;
    if (!parent.AcceptsStoredChild(*child)) return ErrRefused;
    parent.AddChild(child);
    return ReadFields(*child, depth);
  }

  ErrCode ReadFields(TreeNode& node, const Depth& depth) {
    if (const ErrCode error = node.ReadSelf(channel_); error != NoErr) return error;
    std::uint32_t count = 0;
    if (const ErrCode error = channel_.ReadUInt32(count); error != NoErr) return error;
    path_.push_back({&node, count, depth});
    return NoErr;
  }

  IChannel& channel_;
  unsigned int maximumDepth_;
  std::vector<Step> path_;
};

ErrCode TreeNode::ReadDynamic(IChannel& channel, Ref<TreeNode>& root, unsigned int maximumDepth) {
  TreeReader reader(channel, maximumDepth);
  Ref<TreeNode> read;
  if (const ErrCode error = reader.ReadNew(read); error != NoErr) return error;
  if (const ErrCode error = reader.ReadBelow(*read); error != NoErr) return error;
  root = std::move(read);
  return NoErr;
}

ErrCode TreeNode::Read(IChannel& channel) {
  Guid guid;
  if (const ErrCode error = channel.ReadGuid(guid); error != NoErr) return error;
  if (guid != GetClassInfo()->GetGuid()) return ErrFrameClass;

  ChildList former;
  children_.Swap(former);
  ErrCode error = NoErr;
  try {
    error = TreeReader(channel, DefaultMaximumDepth).ReadBelow(*this);
  } catch (...) {
    DestroyChildren();
    children_.Swap(former);
    throw;
  }
  if (error == NoErr) children_.Swap(former);
  DestroyChildren();
  children_.Swap(former);
  return error;
}

}  // namespace TW
