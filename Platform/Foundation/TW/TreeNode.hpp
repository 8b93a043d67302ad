#pragma once

#include "TW/ChildList.hpp"
#include "TW/ClassInfo.hpp"
#include "TW/Export.hpp"
#include "TW/Object.hpp"
#include "TW/Ref.hpp"

namespace TW {

/// A node of a tree that owns its children, in order. Trees of any depth are stored, read and destroyed without
/// recursion.
///
/// A stored tree is the sequence of its nodes, each before its children: the GUID of the node's class, what `WriteSelf`
/// writes, and the count of the children (32 bits).
class TW_EXPORT TreeNode : public Object {
 public:
  static ClassInfo classInfo;

  /// Which kind of tree a node belongs to: whoever defines the nodes of a tree chooses a number, so that a child can be
  /// told from a stranger without asking the run-time type information.
  using Family = unsigned int;

  explicit TreeNode(Family family = 0) : family_(family) {}
  TreeNode(const TreeNode&) = delete;
  TreeNode& operator=(const TreeNode&) = delete;
  ~TreeNode() override;
  const ClassInfo* GetClassInfo() const override;

  /// Reads a stored tree whose root is of this node's class into this node, replacing its children. Nesting is bounded
  /// by `DefaultMaximumDepth`. After a failure this node keeps its children, but may have taken over fields of its own.
  ErrCode Read(IChannel& channel) override;
  /// Stores this node and everything below it.
  ErrCode Write(OChannel& channel) const override;

  Family GetFamily() const { return family_; }

  unsigned int GetChildCount() const { return children_.GetSize(); }
  /// The child at `index`, or null beyond the last.
  TreeNode* GetChild(unsigned int index) { return index < children_.GetSize() ? children_[index] : nullptr; }
  const TreeNode* GetChild(unsigned int index) const {
    return index < children_.GetSize() ? children_[index] : nullptr;
  }
  /// Adds a child after the last; it must not be empty and must not hold this node.
  void AddChild(Ref<TreeNode> child);

  /// How a child is nested.
  enum class Nesting {
    None,  ///< it continues a chain that every walk over the tree follows in a loop, as the left operand of an operator
    Aside,  ///< it stands beside the chain, as the right operand of an operator: in turn only few times on end
    Level,  ///< it is one level deeper
  };
  static constexpr unsigned int DefaultMaximumDepth = 256;

  /// Reads a stored tree, making each node by its registered class. A tree of more than `maximumDepth` levels, or with
  /// more than four times as many nodes aside on one path, gives `ErrTooDeep`. After a failure `root` is unchanged.
  static ErrCode ReadDynamic(IChannel& channel, Ref<TreeNode>& root, unsigned int maximumDepth = DefaultMaximumDepth);

 protected:
  /// Reads and writes the node's own fields, without its children.
  virtual ErrCode ReadSelf(IChannel& channel) = 0;
  virtual ErrCode WriteSelf(OChannel& channel) const = 0;
  /// Whether `child`, of which only the class is known yet, may be read as a child of this node; if not, reading gives
  /// `ErrRefused`.
  virtual bool AcceptsStoredChild(const TreeNode& child) const;
  /// How much deeper than this node the child at `index` is nested.
  virtual Nesting GetChildNesting(unsigned int index) const;

 private:
  friend class TreeReader;

  void DestroyChildren() noexcept;

  Family family_;
  ChildList children_;
};

}  // namespace TW
