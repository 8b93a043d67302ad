#include "Host/SmallModel.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <pthread.h>

// Chains of formulas, each of the one before it, on a stack that a single unbounded recursion would overrun.

namespace {

using Host::PropertyIndex;
using Host::PropertyKind;

constexpr std::size_t StackSize = 256 * 1024;
constexpr PropertyIndex Count = 100000;

void RunOnSmallStack(std::function<void()> work) {
  pthread_attr_t attributes;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, StackSize), 0);
  const auto start = [](void* argument) -> void* {
    (*static_cast<std::function<void()>*>(argument))();
    return nullptr;
  };
  pthread_t thread{};
  ASSERT_EQ(pthread_create(&thread, &attributes, start, &work), 0);
  EXPECT_EQ(pthread_join(thread, nullptr), 0);
  pthread_attr_destroy(&attributes);
}

std::string Reference(PropertyIndex property) { return "[P" + std::to_string(property) + "]"; }

struct Chain : SmallModel {
  // Formulas are set in the order of the chain, or from its end.
  explicit Chain(bool backwards) {
    table.AddElements(1);
    for (PropertyIndex i = 0; i <= Count; ++i) Define("P" + std::to_string(i), PropertyKind::Number);
    for (PropertyIndex i = 1; i <= Count; ++i) {
      const PropertyIndex property = backwards ? Count + 1 - i : i;
      EXPECT_FALSE(SetFormula(property, Reference(property - 1) + " + 1"));
    }
  }
};

void CheckChain(bool backwards) {
  Chain chain(backwards);
  EXPECT_TRUE(chain.SetNumber(0, 7));
  EXPECT_EQ(chain.table.Recalculate(), Count);
  EXPECT_EQ(chain.GetNumber(Count), Count + 7);
  EXPECT_TRUE(chain.SetNumber(0, 8));
  EXPECT_EQ(chain.table.Recalculate(), Count);
  EXPECT_EQ(chain.GetNumber(Count), Count + 8);

  const auto error = chain.SetFormula(1, Reference(Count));
  ASSERT_TRUE(error);
  EXPECT_EQ(error->properties.size(), Count + 1);
  EXPECT_EQ(chain.table.GetGraph().CollectDependents(0).size(), Count);

  // The middle is turned to the end: everything that stood in order no longer does.
  EXPECT_FALSE(chain.SetFormula(1, "1 / 0"));
  EXPECT_EQ(chain.table.Recalculate(), Count);
  EXPECT_EQ(chain.table.GetStatus(Count, 0), Host::CellStatus::Failed);
  EXPECT_EQ(Host::ExplainCell(chain.table, Count, 0).size(), Count);
  EXPECT_FALSE(chain.SetFormula(0, Reference(Count)));
  EXPECT_EQ(chain.table.Recalculate(), 1U);
  EXPECT_EQ(Host::ExplainCell(chain.table, 0, 0).back(), 1U);
}

TEST(Chain, NeedsNoStack) {
  RunOnSmallStack([] { CheckChain(false); });
}
TEST(Chain, MayBeSetFromItsEnd) {
  RunOnSmallStack([] { CheckChain(true); });
}

TEST(Chain, OfTermsInOneFormulaNeedsNoStack) {
  RunOnSmallStack([] {
    SmallModel model;
    model.table.AddElements(1);
    model.SetNumber(model.Define("A", PropertyKind::Number), 2);
    std::string sum = "[A]";
    for (PropertyIndex i = 1; i < Count; ++i) sum += "+[A]";
    const PropertyIndex result = model.DefineFormula("Sum", sum);
    model.table.Recalculate();
    EXPECT_EQ(model.GetNumber(result), 2.0 * Count);
    EXPECT_EQ(model.GetFormula(result).size(), sum.size() + 2 * (Count - 1));
  });
}

}  // namespace
