#include "Quorix/ExpressionMathFunctions.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using QX::Quantity;
using QX::RoundingRule;
using QX::UnitExponents;

constexpr double Infinity = std::numeric_limits<double>::infinity();
const double NaN = std::numeric_limits<double>::quiet_NaN();

TEST(Comparison, CountsValuesWithinTheToleranceAsEqual) {
  struct Row {
    double a, b;
    bool near, less, greater;
  };
  const Row rows[] = {
      {1.0, 1.0, true, false, false},         {1.0, 1.0 + 5e-10, true, false, false},
      {1.0 + 5e-10, 1.0, true, false, false}, {1.0, 1.0 + 2e-9, false, true, false},
      {1.0 + 2e-9, 1.0, false, false, true},  {-1.0, 1.0, false, true, false},
      {0.0, 1e-9, true, false, false},        {1e12, 1e12 + 1, false, true, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(QX::IsNear(row.a, row.b), row.near);
    EXPECT_EQ(QX::IsLess(row.a, row.b), row.less);
    EXPECT_EQ(QX::IsGreater(row.a, row.b), row.greater);
    EXPECT_EQ(QX::IsLessOrNear(row.a, row.b), !row.greater);
    EXPECT_EQ(QX::IsGreaterOrNear(row.a, row.b), !row.less);
  }
  EXPECT_TRUE(QX::IsNearZero(-1e-9));
  EXPECT_FALSE(QX::IsNearZero(1.1e-9));
}

TEST(Comparison, NothingHoldsForNaN) {
  EXPECT_FALSE(QX::IsNearZero(NaN));
  EXPECT_FALSE(QX::IsNear(NaN, NaN));
  EXPECT_FALSE(QX::IsLess(NaN, 1));
  EXPECT_FALSE(QX::IsGreater(NaN, 1));
  EXPECT_FALSE(QX::IsLessOrNear(NaN, 1));
  EXPECT_FALSE(QX::IsGreaterOrNear(1, NaN));
  EXPECT_FALSE(QX::IsValidNumber(NaN));
  EXPECT_FALSE(QX::IsValidNumber(-Infinity));
  EXPECT_TRUE(QX::IsValidNumber(5e-324));
}

TEST(WholeNumber, IsWhatLiesWithinTheTolerance) {
  struct Row {
    double value;
    bool isWhole;
    int whole;
  };
  const Row rows[] = {
      {2.9999999995, true, 3},
      {2.5, false, 0},
      {-2.0000000004, true, -2},
      {0.0, true, 0},
      {-0.4, false, 0},
      {NaN, false, 0},
      {Infinity, false, 0},
      {2147483647.0, true, 2147483647},
      {1e300, true, std::numeric_limits<int>::max()},
      {-1e300, true, std::numeric_limits<int>::min()},
  };
  for (const Row& row : rows) {
    int whole = -9;
    EXPECT_EQ(QX::WholeNumberFromDouble(row.value, whole), row.isWhole) << row.value;
    EXPECT_EQ(whole, row.whole) << row.value;
  }
}

TEST(WholeNumber, OfAQuantityThrowsForWrongKindsAndTellsUndefinedApart) {
  int whole = 5;
  EXPECT_TRUE(QX::WholeNumberFromQuantity({3, {}}, nullptr, whole));
  EXPECT_EQ(whole, 3);
  EXPECT_FALSE(QX::WholeNumberFromQuantity({Quantity::UndefinedSelector(), {}}, nullptr, whole));
  EXPECT_EQ(whole, 3);
  EXPECT_THROW(QX::WholeNumberFromQuantity({2.5, {}}, nullptr, whole), QX::ExpressionWholeNumberExpected);
  EXPECT_EQ(whole, 0);
  const Quantity undefinedLength(Quantity::UndefinedSelector(), UnitExponents::CreateLength());
  EXPECT_THROW(QX::WholeNumberFromQuantity(undefinedLength, nullptr, whole), QX::ExpressionInvalidNonUnitNumberType);
}

TEST(Power, FailsWhereThereIsNoFiniteResult) {
  struct Row {
    double base, exponent;
    bool defined;
    double result;
  };
  const Row rows[] = {
      {2, 10, true, 1024}, {0, 0, false, 0},        {0, 1e-10, false, 0}, {1e-10, 0, false, 0}, {0, 2, true, 0},
      {10, 400, false, 0}, {-8, 1.0 / 3, false, 0}, {-2, 3, true, -8},    {0, -1, false, 0},    {4, 0.5, true, 2},
  };
  for (const Row& row : rows) {
    double result = -9;
    EXPECT_EQ(QX::Power(row.base, row.exponent, result), row.defined) << row.base << "^" << row.exponent;
    EXPECT_EQ(result, row.result) << row.base << "^" << row.exponent;
  }
}

TEST(NthRoot, HasNoNegativeRadicands) {
  double root = -9;
  EXPECT_TRUE(QX::NthRoot(27, 3, root));
  EXPECT_NEAR(root, 3, 1e-15);
  for (const auto& [x, n] : {std::pair(-8.0, 3), std::pair(4.0, 0), std::pair(4.0, -2), std::pair(-5e-10, 2)}) {
    root = -9;
    EXPECT_FALSE(QX::NthRoot(x, n, root)) << x;
    EXPECT_EQ(root, 0);
  }
}

TEST(RoundToMultiplier, RoundsTheMagnitudeWithATouchOfTolerance) {
  struct Row {
    double x, multiplier;
    RoundingRule rule;
    double result;
  };
  const Row rows[] = {
      {2.5, 1, RoundingRule::Nearest, 3},
      {-2.5, 1, RoundingRule::Nearest, -3},
      {2.4, 1, RoundingRule::Nearest, 2},
      {7, -5, RoundingRule::Nearest, 5},
      {2.4999999995, 1, RoundingRule::Nearest, 3},
      {-2.1, 1, RoundingRule::Up, -3},
      {2.0000000001, 1, RoundingRule::Up, 2},
      {2.1, 1, RoundingRule::Up, 3},
      {-2.9, 1, RoundingRule::Down, -2},
      {1.9999999999, 1, RoundingRule::Down, 2},
      {1.99, 1, RoundingRule::Down, 1},
      {1.25, 0.5, RoundingRule::Up, 1.5},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(QX::RoundToMultiplier(row.x, row.multiplier, row.rule), row.result) << row.x;
  }
}

TEST(GetValidatedMultiplier, CapsAtEightDigits) {
  for (int digits = 0; digits <= 8; ++digits) {
    EXPECT_EQ(QX::GetValidatedMultiplier(digits, nullptr), std::pow(10.0, -digits)) << digits;
  }
  EXPECT_EQ(QX::GetValidatedMultiplier(12, nullptr), 1e-8);
  EXPECT_EQ(QX::GetValidatedMultiplier(-2, nullptr), 100);
  EXPECT_EQ(QX::GetValidatedMultiplier(-308, nullptr), 1e308);
  for (int digits : {-309, -400, std::numeric_limits<int>::min()}) {
    EXPECT_THROW(QX::GetValidatedMultiplier(digits, nullptr), QX::ExpressionOutOfDomainOfMathematicalFunction);
  }
}

TEST(Sum, AddsFromFirstToLast) {
  EXPECT_EQ(QX::Sum({}), 0);
  EXPECT_EQ(QX::Sum({1e16, 1, -1e16}), 0) << "1e16 + 1 is 1e16";
  EXPECT_EQ(QX::Sum({-1e16, 1e16, 1}), 1);
}

}  // namespace
