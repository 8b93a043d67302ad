#include "Host/DependencyGraph.hpp"
#include "Host/SmallModel.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>

namespace {

using Host::PropertyIndex;

constexpr PropertyIndex Count = 12;
using Matrix = std::array<std::array<bool, Count>, Count>;

// Which property can be reached from which, along the matrix.
Matrix Close(Matrix reach) {
  for (PropertyIndex through = 0; through < Count; ++through) {
    for (PropertyIndex from = 0; from < Count; ++from) {
      for (PropertyIndex to = 0; to < Count; ++to) reach[from][to] |= reach[from][through] && reach[through][to];
    }
  }
  return reach;
}

class RandomGraph {
 public:
  explicit RandomGraph(unsigned int seed) : random_(seed) {
    for (PropertyIndex i = 0; i < Count; ++i) graph_.AddProperty();
  }

  void Change() {
    const PropertyIndex property = Pick(Count);
    std::set<PropertyIndex> chosen;
    for (PropertyIndex i = Pick(4); i > 0; --i) chosen.insert(Pick(Count));
    const std::vector<PropertyIndex> precedents(chosen.begin(), chosen.end());
    Matrix wanted = uses_;
    wanted[property] = {};
    for (const PropertyIndex precedent : precedents) wanted[property][precedent] = true;
    const bool closes = Close(wanted)[property][property];
    const std::vector<PropertyIndex> cycle = graph_.SetPrecedents(property, precedents);
    ASSERT_EQ(!cycle.empty(), closes);
    if (closes) {
      CheckCycle(cycle, property, wanted);
    } else {
      uses_ = wanted;
    }
    if (Pick(3) == 0) CheckRanks();
    CheckDependents(Pick(Count));
  }

 private:
  PropertyIndex Pick(PropertyIndex bound) { return static_cast<PropertyIndex>(random_() % bound); }

  static void CheckCycle(const std::vector<PropertyIndex>& cycle, PropertyIndex property, const Matrix& uses) {
    EXPECT_EQ(cycle.front(), property);
    EXPECT_EQ(cycle.back(), property);
    for (std::size_t i = 1; i < cycle.size(); ++i) EXPECT_TRUE(uses[cycle[i - 1]][cycle[i]]);
  }

  void CheckRanks() {
    graph_.UpdateRanks();
    for (PropertyIndex from = 0; from < Count; ++from) {
      EXPECT_EQ(graph_.GetPropertyAt(graph_.GetRank(from)), from);
      for (PropertyIndex to = 0; to < Count; ++to) {
        EXPECT_TRUE(!uses_[from][to] || graph_.GetRank(from) > graph_.GetRank(to));
      }
    }
  }

  void CheckDependents(PropertyIndex property) {
    const Matrix reach = Close(uses_);
    const std::vector<PropertyIndex> dependents = graph_.CollectDependents(property);
    for (PropertyIndex other = 0; other < Count; ++other) {
      EXPECT_EQ(std::ranges::count(dependents, other), reach[other][property] ? 1 : 0);
    }
    for (std::size_t later = 0; later < dependents.size(); ++later) {
      for (std::size_t i = 0; i < later; ++i) EXPECT_FALSE(reach[dependents[i]][dependents[later]]);
    }
  }

  std::mt19937 random_;
  Host::DependencyGraph graph_;
  Matrix uses_{};
};

TEST(DependencyGraph, AgreesWithTheClosureOfItsEdges) {
  for (unsigned int seed = 0; seed < 40; ++seed) {
    RandomGraph graph(seed);
    for (int change = 0; change < 60; ++change) ASSERT_NO_FATAL_FAILURE(graph.Change()) << "seed " << seed;
  }
}

TEST(DependencyGraph, CyclesAreToldByName) {
  struct Row {
    const char* property;
    const char* formula;
    const char* path;
  };
  const Row rows[] = {
      {"A", "[A]", "A > A"},
      {"A", "1 + [B]", "A > B > A"},
      {"A", "[Z] + [C]", "A > C > B > A"},
      {"A", "[D]", "A > D > C > B > A"},
      {"B", "[D]", "B > D > C > B"},
      {"Z", "[A] + [D]", "Z > D > Z"},
  };
  for (const Row& row : rows) {
    SmallModel model;
    for (const char* name : {"D", "C", "B", "A", "Z"}) model.Define(name);
    const auto find = [&](const char* name) {
      return model.table.GetCatalog().FindByName(TW::UniString::FromUtf8(name).GetView())[0];
    };
    ASSERT_FALSE(model.SetFormula(find("D"), "[C] + [Z]"));
    ASSERT_FALSE(model.SetFormula(find("C"), "2 * [B]"));
    ASSERT_FALSE(model.SetFormula(find("B"), "[A]"));
    const std::string typed = row.formula;
    const auto error = model.SetFormula(find(row.property), typed);
    ASSERT_TRUE(error) << typed;
    EXPECT_EQ(error->kind, Host::FormulaErrorKind::Cycle);
    EXPECT_EQ(model.Show(error->properties), row.path) << typed;
    EXPECT_FALSE(model.table.FindFormula(find("D"))->ContainsCycle(model.table, nullptr)) << typed;
  }
}

}  // namespace
