#include "Quorix/Quantity.hpp"
#include "Quorix/Values.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace {

using QX::Quantity;
using QX::UnitExponents;

constexpr UnitExponents NonUnit = UnitExponents::CreateNonUnit();
constexpr UnitExponents Length = UnitExponents::CreateLength();
constexpr UnitExponents Area = UnitExponents::CreateArea();
constexpr UnitExponents Volume = UnitExponents::CreateVolume();

Quantity Undefined(UnitExponents exponents) { return {Quantity::UndefinedSelector(), exponents}; }

bool AreSame(const Quantity& a, const Quantity& b) {
  return a.IsUserUndefinedValue() == b.IsUserUndefinedValue() && a.GetNumericValue() == b.GetNumericValue() &&
         a.GetUnitExponents() == b.GetUnitExponents();
}

TEST(UnitExponents, OnlyTheExactPairsHaveNames) {
  struct Row {
    UnitExponents exponents;
    const char* names;
  };
  const Row rows[] = {
      {{0, 0}, "n"}, {{1, 0}, "l"}, {{2, 0}, "a"}, {{3, 0}, "v"}, {{0, 1}, "g"},
      {{1, 1}, ""},  {{0, 2}, ""},  {{2, 1}, ""},  {{-1, 0}, ""}, {{4, 0}, ""},
  };
  for (const Row& row : rows) {
    std::string names;
    if (row.exponents.IsNonUnit()) names += 'n';
    if (row.exponents.IsLength()) names += 'l';
    if (row.exponents.IsArea()) names += 'a';
    if (row.exponents.IsVolume()) names += 'v';
    if (row.exponents.IsAngle()) names += 'g';
    EXPECT_EQ(names, row.names);
  }
  EXPECT_EQ(UnitExponents(TW::FixArray<int, 2>{2, 1}), UnitExponents(2, 1));
}

TEST(UnitExponents, CombineAndWrapAround) {
  EXPECT_EQ(UnitExponents::Multiply({1, 2}, {2, -3}), UnitExponents(3, -1));
  EXPECT_EQ(UnitExponents::Divide({1, 2}, {2, -3}), UnitExponents(-1, 5));
  EXPECT_EQ(UnitExponents::Power({2, -1}, 3), UnitExponents(6, -3));
  EXPECT_EQ(UnitExponents::Multiply({INT_MAX, 0}, {1, 0}), UnitExponents(INT_MIN, 0));
  EXPECT_EQ(UnitExponents::Divide({INT_MIN, 0}, {1, 0}), UnitExponents(INT_MAX, 0));
  EXPECT_EQ(UnitExponents::Power({65536, 0}, 65536), UnitExponents(0, 0));
}

TEST(UnitExponents, RootsNeedDivisibleExponents) {
  struct Row {
    UnitExponents exponents;
    int n;
    bool exists;
    UnitExponents root;
  };
  const Row rows[] = {
      {{2, 0}, 2, true, {1, 0}},   {{3, 0}, 3, true, {1, 0}},
      {{-2, 0}, 2, true, {-1, 0}}, {{4, 2}, 2, true, {2, 1}},
      {{0, 0}, 5, true, {0, 0}},   {{1, 0}, 2, false, {0, 0}},
      {{2, 1}, 2, false, {0, 0}},  {{2, 0}, 0, false, {0, 0}},
      {{2, 0}, -2, false, {0, 0}}, {{INT_MIN, 0}, 1, true, {INT_MIN, 0}},
  };
  for (const Row& row : rows) {
    UnitExponents root(7, 7);
    EXPECT_EQ(UnitExponents::NthRoot(row.exponents, row.n, root), row.exists);
    EXPECT_EQ(root, row.root);
  }
}

TEST(Quantity, ArithmeticKeepsDimensionsAndSpreadsUndefined) {
  using Operation = bool (*)(const Quantity&, const Quantity&, Quantity&);
  struct Row {
    const char* name;
    Operation operation;
    Quantity a, b;
    bool defined;
    Quantity result;
  };
  const Row rows[] = {
      {"1 m + 2 m", Quantity::Add, {1, Length}, {2, Length}, true, {3, Length}},
      {"1 m + 1 m2", Quantity::Add, {1, Length}, {1, Area}, false, {}},
      {"undefined m + 1 m2", Quantity::Add, Undefined(Length), {1, Area}, false, {}},
      {"undefined m + 1 m", Quantity::Add, Undefined(Length), {1, Length}, true, Undefined(Length)},
      {"0 m + undefined m", Quantity::Add, {0, Length}, Undefined(Length), true, Undefined(Length)},
      {"1 m - 2 m", Quantity::Subtract, {1, Length}, {2, Length}, true, {-1, Length}},
      {"1 - 1 m", Quantity::Subtract, {1, NonUnit}, {1, Length}, false, {}},
      {"1 m - undefined m", Quantity::Subtract, {1, Length}, Undefined(Length), true, Undefined(Length)},
      {"2 m * 3 m", Quantity::Multiply, {2, Length}, {3, Length}, true, {6, Area}},
      {"undefined m * 0 m", Quantity::Multiply, Undefined(Length), {0, Length}, true, {0, Area}},
      {"5e-10 * undefined m", Quantity::Multiply, {5e-10, NonUnit}, Undefined(Length), true, {0, Length}},
      {"1e-8 * undefined m", Quantity::Multiply, {1e-8, NonUnit}, Undefined(Length), true, Undefined(Length)},
      {"undefined * undefined m", Quantity::Multiply, Undefined(NonUnit), Undefined(Length), true, Undefined(Length)},
      {"6 m2 / 3 m", Quantity::Divide, {6, Area}, {3, Length}, true, {2, Length}},
      {"5 / 1e-10", Quantity::Divide, {5, NonUnit}, {1e-10, NonUnit}, false, {}},
      {"undefined / 0", Quantity::Divide, Undefined(Length), {0, NonUnit}, false, {}},
      {"0 m / undefined", Quantity::Divide, {0, Length}, Undefined(NonUnit), true, {0, Length}},
      {"1 m / undefined m2", Quantity::Divide, {1, Length}, Undefined(Area), true, Undefined({-1, 0})},
      {"undefined m2 / 2 m", Quantity::Divide, Undefined(Area), {2, Length}, true, Undefined(Length)},
  };
  for (const Row& row : rows) {
    Quantity result(99, Volume);
    EXPECT_EQ(row.operation(row.a, row.b, result), row.defined) << row.name;
    EXPECT_TRUE(AreSame(result, row.result)) << row.name << " gave " << testing::PrintToString(result);
  }
}

TEST(Quantity, PowersAndRoots) {
  using Operation = bool (*)(const Quantity&, int, Quantity&);
  struct Row {
    const char* name;
    Operation operation;
    Quantity a;
    int n;
    bool defined;
    Quantity result;
  };
  const Row rows[] = {
      {"(2 m)^3", Quantity::Power, {2, Length}, 3, true, {8, Volume}},
      {"(2 m)^-1", Quantity::Power, {2, Length}, -1, true, {0.5, {-1, 0}}},
      {"(undefined m)^3", Quantity::Power, Undefined(Length), 3, true, Undefined(Volume)},
      {"0^0", Quantity::Power, {0, NonUnit}, 0, false, {}},
      {"0^-1", Quantity::Power, {0, NonUnit}, -1, false, {}},
      {"10^400", Quantity::Power, {10, NonUnit}, 400, false, {}},
      {"root2(9 m2)", Quantity::NthRoot, {9, Area}, 2, true, {3, Length}},
      {"root2(9 m)", Quantity::NthRoot, {9, Length}, 2, false, {}},
      {"root2(undefined m)", Quantity::NthRoot, Undefined(Length), 2, false, {}},
      {"root2(undefined m2)", Quantity::NthRoot, Undefined(Area), 2, true, Undefined(Length)},
      {"root3(-8 m3)", Quantity::NthRoot, {-8, Volume}, 3, false, {}},
      {"root0(4)", Quantity::NthRoot, {4, NonUnit}, 0, false, {}},
  };
  for (const Row& row : rows) {
    Quantity result(99, Volume);
    EXPECT_EQ(row.operation(row.a, row.n, result), row.defined) << row.name;
    EXPECT_TRUE(AreSame(result, row.result)) << row.name << " gave " << testing::PrintToString(result);
  }
}

}  // namespace
