#include "TW/ClassManager.hpp"
#include "TW/Frame.hpp"
#include "TW/MemoryChannel.hpp"
#include "TW/TreeNode.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <span>
#include <string>
#include <thread>
#include <vector>

namespace {

using TW::ErrCode;
using TW::MakeRef;
using TW::NoErr;
using TW::Ref;
using TW::TreeNode;

std::atomic<int> livingNodes = 0;

// A node with a number; below a negative one the first child continues a chain and the others stand aside.
class SampleNode final : public TreeNode {
 public:
  static TW::ClassInfo classInfo;
  static Ref<TW::Object> Construct() { return MakeRef<SampleNode>(); }

  explicit SampleNode(int value = 0) : value_(value) { ++livingNodes; }
  ~SampleNode() override { --livingNodes; }
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  int GetValue() const { return value_; }

 protected:
  ErrCode ReadSelf(TW::IChannel& channel) override {
    const TW::InputFrame frame(channel, classInfo);
    if (channel.GetInputStatus() == NoErr && frame.GetVersion() != 1) return TW::ErrRefused;
    return channel.ReadInt32(value_);
  }
  ErrCode WriteSelf(TW::OChannel& channel) const override {
    TW::OutputFrame frame(channel, classInfo);
    channel.WriteInt32(value_);
    return frame.Close();
  }
  Nesting GetChildNesting(unsigned int index) const override {
    if (value_ >= 0) return Nesting::Level;
    return index == 0 ? Nesting::None : Nesting::Aside;
  }

 private:
  std::int32_t value_;
};

TW::ClassInfo SampleNode::classInfo("SampleNode", "{00000000-0000-0000-0000-0000000000B1}", 1, &TreeNode::classInfo,
                                    SampleNode::Construct);
TW::ClassInfo abstractInfo("Abstract", "{00000000-0000-0000-0000-0000000000B2}", 1, &TreeNode::classInfo);
TW::ClassInfo foreignInfo("Foreign", "{00000000-0000-0000-0000-0000000000B3}", 1, &TW::Object::classInfo,
                          [] { return MakeRef<TW::Object>(); });

Ref<TreeNode> MakeNode(int value, std::vector<Ref<TreeNode>> children = {}) {
  Ref<TreeNode> node = MakeRef<SampleNode>(value);
  for (Ref<TreeNode>& child : children) node->AddChild(child);
  return node;
}

// A chain down the first children; a negative value makes it one that does not count as nested.
Ref<TreeNode> MakeChain(unsigned int length, int value) {
  Ref<TreeNode> node = MakeNode(value);
  for (unsigned int i = 1; i < length; ++i) node = MakeNode(value, {node, MakeNode(7)});
  return node;
}

std::vector<std::byte> Stored(const TreeNode& node) {
  TW::MemoryOChannel channel;
  EXPECT_EQ(node.Write(channel), NoErr);
  return channel.TakeBytes();
}

ErrCode ReadBack(const std::vector<std::byte>& bytes, Ref<TreeNode>& root) {
  TW::MemoryIChannel channel(bytes);
  return TreeNode::ReadDynamic(channel, root);
}

TEST(TreeNode, StoresAndReadsTreesOfEveryShape) {
  const Ref<TreeNode> trees[] = {
      MakeNode(1),
      MakeNode(1, {MakeNode(2), MakeNode(3, {MakeNode(4)}), MakeNode(5)}),
      MakeNode(1, std::vector<Ref<TreeNode>>(1000, MakeNode(2))),
      MakeChain(200, 1),
  };
  for (const Ref<TreeNode>& tree : trees) {
    const auto bytes = Stored(*tree);
    Ref<TreeNode> copy;
    ASSERT_EQ(ReadBack(bytes, copy), NoErr);
    EXPECT_EQ(Stored(*copy), bytes);
    const Ref<TW::Object> clone = tree->Clone();
    ASSERT_TRUE(clone);
    EXPECT_EQ(Stored(*clone.CheckedCast<TreeNode>()), bytes);
  }
}

TEST(TreeNode, AChildBeyondTheLastIsNull) {
  const Ref<TreeNode> node = MakeNode(1, {MakeNode(2)});
  EXPECT_EQ(static_cast<SampleNode*>(node->GetChild(0))->GetValue(), 2);
  EXPECT_EQ(node->GetChild(1), nullptr);
  EXPECT_THROW(node->AddChild(nullptr), TW::NullReferenceException);
}

TEST(TreeNode, ADamagedTreeIsAnErrorAndLeavesNothingBehind) {
  const int before = livingNodes;
  {
    const auto bytes = Stored(*MakeNode(1, {MakeNode(2), MakeNode(3, {MakeNode(4)})}));
    for (std::size_t length = 0; length < bytes.size(); ++length) {
      Ref<TreeNode> root;
      EXPECT_NE(ReadBack({bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)}, root), NoErr);
      EXPECT_FALSE(root);
    }
    // A flipped byte may still leave a tree (another number), never a fault.
    for (std::size_t place = 0; place < bytes.size(); ++place) {
      auto damaged = bytes;
      damaged[place] ^= std::byte{0xFF};
      Ref<TreeNode> root;
      const ErrCode error = ReadBack(damaged, root);
      EXPECT_EQ(error == NoErr, static_cast<bool>(root)) << place;
    }
  }
  EXPECT_EQ(livingNodes, before);
}

TEST(TreeNode, ClassesThatCannotBeMadeAreRefused) {
  for (const TW::Guid& guid : {abstractInfo.GetGuid(), foreignInfo.GetGuid(), TW::Guid()}) {
    TW::MemoryOChannel channel;
    channel.WriteGuid(guid);
    Ref<TreeNode> root;
    EXPECT_EQ(ReadBack(channel.TakeBytes(), root), TW::ErrUnknownClass);
  }
}

TEST(TreeNode, NestingIsBoundedAndChainsAreNot) {
  Ref<TreeNode> root;
  EXPECT_EQ(ReadBack(Stored(*MakeChain(TreeNode::DefaultMaximumDepth + 1, 1)), root), NoErr);
  root = nullptr;
  EXPECT_EQ(ReadBack(Stored(*MakeChain(TreeNode::DefaultMaximumDepth + 2, 1)), root), TW::ErrTooDeep);
  EXPECT_FALSE(root);
  EXPECT_EQ(ReadBack(Stored(*MakeChain(100'000, -1)), root), NoErr);

  const auto chainAside = [](unsigned int length) {
    Ref<TreeNode> node = MakeNode(7);
    for (unsigned int i = 0; i < length; ++i) node = MakeNode(-1, {MakeNode(7), node});
    return node;
  };
  EXPECT_EQ(ReadBack(Stored(*chainAside(4 * TreeNode::DefaultMaximumDepth)), root), NoErr);
  EXPECT_EQ(ReadBack(Stored(*chainAside(4 * TreeNode::DefaultMaximumDepth + 4)), root), TW::ErrTooDeep);
}

TEST(TreeNode, ReadReplacesTheChildrenOrKeepsThem) {
  const auto bytes = Stored(*MakeNode(8, {MakeNode(9), MakeNode(10), MakeNode(11)}));
  const Ref<TreeNode> node = MakeNode(1, {MakeNode(2)});
  TW::MemoryIChannel cut(std::span<const std::byte>(bytes).first(bytes.size() - 1));
  EXPECT_NE(node->Read(cut), NoErr);
  ASSERT_EQ(node->GetChildCount(), 1U);
  TW::MemoryIChannel whole(bytes);
  EXPECT_EQ(node->Read(whole), NoErr);
  EXPECT_EQ(Stored(*node), bytes);
}

TEST(TreeNode, DeepTreesAreDestroyedOnASmallStack) {
  const int before = livingNodes;
  // A million levels would overflow any stack were each level a call.
  {
    const Ref<TreeNode> deep = MakeChain(500'000, 1);
  }
  EXPECT_EQ(livingNodes, before);

  // A shared branch lives on.
  const Ref<TreeNode> branch = MakeChain(1000, 1);
  {
    const Ref<TreeNode> owner = MakeNode(1, {branch, MakeNode(2, {branch})});
  }
  EXPECT_EQ(branch->GetReferenceCount(), 1U);
  EXPECT_EQ(branch->GetChildCount(), 2U);
}

TEST(Object, SnapshotsGoBackOnlyIntoTheirOwnClass) {
  const Ref<SampleNode> node = MakeRef<SampleNode>(1);
  TW::ObjectState state;
  ASSERT_EQ(node->Store(state), NoErr);
  SampleNode other(2);
  EXPECT_EQ(other.Restore(state), NoErr);
  EXPECT_EQ(other.GetValue(), 1);
  TW::Object plain;
  bool valid = true;
  EXPECT_EQ(plain.Validate(state, &valid), NoErr);
  EXPECT_FALSE(valid);
  EXPECT_EQ(plain.Restore(state), TW::ErrFrameClass);
}

TEST(ClassInfo, ClassesAreKnownByGuidAndEnumeratedInOrder) {
  EXPECT_EQ(TW::ClassManager::Find(SampleNode::classInfo.GetGuid()), &SampleNode::classInfo);
  EXPECT_TRUE(SampleNode::classInfo.IsCompatibleWith(TreeNode::classInfo));
  EXPECT_TRUE(SampleNode::classInfo.IsCompatibleWith(TW::Object::classInfo));
  EXPECT_FALSE(foreignInfo.IsCompatibleWith(TreeNode::classInfo));
  EXPECT_FALSE(abstractInfo.CreateNewInstance());

  std::vector<std::string> names;
  const auto collect = [&names](const TW::ClassInfo* info) { names.emplace_back(info->GetName()); };
  {
    const TW::ClassInfo passing("Passing", "{00000000-0000-0000-0000-0000000000B4}", 1, nullptr);
    // A second class of the same GUID is not taken in, and its going takes nothing out.
    {
      const TW::ClassInfo twin("Twin", "{00000000-0000-0000-0000-0000000000B4}", 1, nullptr);
    }
    TW::ClassManager::EnumerateClassInfos(collect);
    EXPECT_EQ(TW::ClassManager::Find(passing.GetGuid()), &passing);
  }
  ASSERT_FALSE(names.empty());
  EXPECT_EQ(names.back(), "Passing");
  EXPECT_EQ(TW::ClassManager::Find(TW::Guid("{00000000-0000-0000-0000-0000000000B4}")), nullptr);
}

TEST(Ref, ChecksAndCounts) {
  const Ref<SampleNode> empty;
  EXPECT_THROW(static_cast<void>(empty->GetValue()), TW::NullReferenceException);
  EXPECT_THROW(static_cast<void>(*empty), TW::NullReferenceException);
  EXPECT_FALSE(empty.CheckedCast<TreeNode>());

  const Ref<TW::Object> node = MakeRef<SampleNode>(3);
  EXPECT_EQ(node.CheckedCast<SampleNode>()->GetValue(), 3);
  try {
    MakeRef<TW::Object>().CheckedCast<SampleNode>();
    FAIL() << "a plain object is no node";
  } catch (const TW::ClassCastException& exception) {
    EXPECT_STREQ(exception.what(), "Bad cast.");
    EXPECT_EQ(exception.GetErrorCode(), -7003);
  }
  EXPECT_EQ(node->GetReferenceCount(), 1U);
  Ref<TW::Object> second = node;
  Ref<TW::Object>& alias = second;
  second = alias;
  EXPECT_EQ(node->GetReferenceCount(), 2U);
}

TEST(Ref, ReferencesAreSharedBetweenThreads) {
  const int before = livingNodes;
  Ref<TreeNode> shared = MakeNode(1, {MakeNode(2)});
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([mine = shared] {
      for (int round = 0; round < 10'000; ++round) Ref<TreeNode> copy = mine;
    });
  }
  shared = nullptr;
  for (std::thread& thread : threads) thread.join();
  threads.clear();
  EXPECT_EQ(livingNodes, before);
}

TEST(TWException, KnowsItsNameAndPrintsWhatCameBefore) {
  const auto cause = std::make_shared<TW::IllegalReferenceException>();
  const TWException exception(u"Outer.", u"File.cpp", 12, cause, TW::ErrDiskFull);
  TW::MemoryOChannel channel;
  exception.Clone()->Print(channel);
  const std::string printed(reinterpret_cast<const char*>(channel.GetBytes().data()), channel.GetBytes().size());
  EXPECT_EQ(printed, "TWException (-7104): Outer.\nIllegalReferenceException (-7003): Illegal reference.\n");
}

}  // namespace
