#pragma once

#include "FailingMemory.hpp"
#include "Quorix/ExpressionValue.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <new>
#include <optional>
#include <string>
#include <vector>

/// An operation on objects that its maker has set up.
struct Operation {
  /// Does it and tells the outcome. It may be done again and then tells the same.
  std::function<std::string()> run;
  /// What the operation must leave as it is when it throws; may be empty.
  std::function<std::string()> state = {};
};

struct OperationRow {
  std::string name;
  std::function<Operation()> make;
  /// What the operation may tell besides its outcome when it found too little memory, as its declaration says.
  std::vector<std::string> declared = {};
};

/// Without a stream: streams keep quiet about memory that they lack.
inline std::string ShowValue(const QX::ExpressionValue& value) {
  if (!value.IsValid()) return "invalid";
  if (value.IsUserUndefined()) return "undefined";
  if (value.IsBool()) return value.GetAsBool() ? "TRUE" : "FALSE";
  if (value.IsString()) return value.GetAsString().ToUtf8();
  const QX::UnitExponents exponents = value.GetUnitExponents();
  return std::to_string(value.GetIntOrNumVariantValue()) + " m" + std::to_string(exponents.GetLengthExponent()) + " R" +
         std::to_string(exponents.GetAngleExponent());
}

inline std::string StateOf(const Operation& operation) { return operation.state ? operation.state() : std::string(); }

/// Does the operation with memory for so many allocations. Gives whether an allocation failed.
inline bool SurvivesShortage(const OperationRow& row, const std::string& expected, std::size_t count,
                             FailingMemory::Shortage shortage) {
  const Operation operation = row.make();
  const std::string before = StateOf(operation);
  std::optional<std::string> outcome;
  FailingMemory::FailAfter(count, shortage);
  try {
    outcome = operation.run();
  } catch (const std::bad_alloc&) {
  }
  FailingMemory::Allow();
  const bool failed = FailingMemory::HasFailed();
  const bool isDeclared = outcome && std::ranges::count(row.declared, *outcome) > 0;
  if (!outcome) {
    EXPECT_EQ(StateOf(operation), before);
  } else if (!failed || !isDeclared) {
    EXPECT_EQ(*outcome, expected);
  }
  EXPECT_EQ(operation.run(), expected) << "done again";
  return failed;
}

/// Does each operation with memory for no allocation, for one, and so on until it needs no more.
inline void ExpectToSurviveShortage(const std::vector<OperationRow>& rows) {
  for (const OperationRow& row : rows) {
    // Twice, for what is made at the first use and kept.
    row.make().run();
    const std::string expected = row.make().run();
    for (const auto shortage : {FailingMemory::Shortage::Once, FailingMemory::Shortage::ForGood}) {
      bool failed = true;
      for (std::size_t count = 0; failed && !testing::Test::HasFailure(); ++count) {
        const std::ptrdiff_t live = FailingMemory::GetLiveCount();
        failed = SurvivesShortage(row, expected, count, shortage);
        EXPECT_EQ(FailingMemory::GetLiveCount() - live, 0) << "leaked";
        if (testing::Test::HasFailure()) {
          ADD_FAILURE() << row.name << " with memory for " << count << " allocations";
          return;
        }
      }
    }
  }
}
