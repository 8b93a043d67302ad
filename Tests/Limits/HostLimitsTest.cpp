#include "Host/Files/FileProblems.hpp"
#include "Host/Json/JsonDocument.hpp"
#include "Host/SmallModel.hpp"
#include "Quorix/Values.hpp"

#include <gtest/gtest.h>

#include <new>

// The limits of property tables and of what is read for them, from both sides.

namespace {

using Host::CellStatus;
using Host::PropertyIndex;
using Host::PropertyKind;
using Host::PropertyTable;
using QX::ExpressionValue;

std::string FailureOf(const SmallModel& model, PropertyIndex property) {
  const auto report = model.table.GetFailureReport(property, 0, model.settings);
  return report ? report->name.ToUtf8() : "none";
}

TEST(HostLimits, OfTheTextOfACell) {
  SmallModel model;
  model.table.AddElements(1);
  const PropertyIndex half = model.Define("Half", PropertyKind::Text);
  const PropertyIndex text = model.DefineFormula("Text", "CONCAT([Half], [Half])");
  const TW::UniString longest(PropertyTable::LongestText / 2, u'x');
  model.table.SetInput(half, 0, ExpressionValue::FromString(longest));
  model.table.Recalculate();
  EXPECT_EQ(model.table.GetValue(text, 0).GetAsString().GetLength(), PropertyTable::LongestText);
  model.table.SetInput(half, 0, ExpressionValue::FromString(longest + u"x"));
  model.table.Recalculate();
  EXPECT_EQ(FailureOf(model, text), "InvalidResult");
  EXPECT_FALSE(model.table.GetValue(text, 0).IsValid());
}

// Forty properties, each twice the one before: without the limit, the last would have 2^40 units.
TEST(HostLimits, TextsThatDoubleEndInAFailure) {
  SmallModel model;
  model.table.AddElements(1);
  model.Define("P0", PropertyKind::Text);
  model.table.SetInput(0, 0, ExpressionValue::FromString(u"x"));
  constexpr unsigned int Levels = 40;
  for (unsigned int level = 1; level <= Levels; ++level) {
    const std::string below = "[P" + std::to_string(level - 1) + "]";
    model.DefineFormula("P" + std::to_string(level),
                        level % 2 == 0 ? "CONCAT(" + below + ", " + below + ")" : "REPT(" + below + ", 2)");
  }
  EXPECT_EQ(model.table.Recalculate(), Levels);
  EXPECT_EQ(model.table.GetValue(20, 0).GetAsString().GetLength(), PropertyTable::LongestText);
  EXPECT_EQ(FailureOf(model, 21), "InvalidResult");
  for (PropertyIndex level = 22; level <= Levels; ++level) {
    EXPECT_EQ(FailureOf(model, level), "ExpressionPropertyEvaluationFailed");
  }
}

// What is too long within a formula fails before it takes memory, whatever becomes of it.
TEST(HostLimits, AFormulaThatMultipliesTextsEndsInAFailure) {
  SmallModel model;
  model.table.AddElements(1);
  const PropertyIndex text = model.Define("Text");
  struct Row {
    const char* within;
    double length;
    const char* beyond;
  };
  const Row rows[] = {
      {"LEN(REPT(\"xy\", 524288))", 1048576, "LEN(REPT(\"xy\", 524289))"},
      {"LEN(REPT(REPT(\"x\", 1024), 1024))", 1048576, "LEN(REPT(REPT(\"x\", 65536), 65536))"},
      {"LEN(CONCAT(REPT(\"x\", 524288), REPT(\"x\", 524288)))", 1048576,
       "LEN(CONCAT(REPT(\"x\", 524288), REPT(\"x\", 524288), \"x\"))"},
      {"LEN(TEXTJOIN(\",\", TRUE, REPT(\"x\", 524288), REPT(\"x\", 524287)))", 1048576,
       "LEN(TEXTJOIN(\",\", TRUE, REPT(\"x\", 524288), REPT(\"x\", 524288)))"},
      {"LEN(SUBSTITUTE(REPT(\"ab\", 262144), \"a\", \"xyz\"))", 1048576,
       "LEN(SUBSTITUTE(REPT(\"ab\", 262145), \"a\", \"xyz\"))"},
      {"LEN(SUBSTITUTE(REPT(\"ab\", 524288), \"ab\", \"x\"))", 524288,
       "LEN(SUBSTITUTE(REPT(\"a\", 1000000), \"a\", REPT(\"b\", 1000000)))"},
      {"LEN(SUBSTITUTE(REPT(\"a\", 1048575), \"a\", \"bc\", 7))", 1048576,
       "LEN(SUBSTITUTE(REPT(\"a\", 1048576), \"a\", \"bc\", 7))"},
      {"LEN(REPLACE(REPT(\"a\", 1048575), 1, 1, \"bc\"))", 1048576, "LEN(REPLACE(REPT(\"a\", 1048576), 1, 1, \"bc\"))"},
      {"LEN(UPPER(REPT(\"ß\", 524288)))", 1048576, "LEN(UPPER(REPT(\"ß\", 524289)))"},
  };
  for (const Row& row : rows) {
    ASSERT_FALSE(model.SetFormula(text, row.within));
    model.table.Recalculate();
    EXPECT_EQ(model.GetNumber(text), row.length) << row.within;
    ASSERT_FALSE(model.SetFormula(text, row.beyond));
    EXPECT_EQ(model.table.Recalculate(), 1U);
    EXPECT_EQ(FailureOf(model, text), "InvalidResult") << row.beyond;
    EXPECT_EQ(model.table.Recalculate(), 0U);
  }
}

TEST(HostLimits, OfElements) {
  PropertyTable table;
  EXPECT_EQ(table.AddElements(5), 0U);
  EXPECT_THROW(table.AddElements(PropertyTable::MaximumElementCount - 4), std::bad_alloc);
  EXPECT_EQ(table.GetElementCount(), 5U);
  EXPECT_EQ(table.AddElements(PropertyTable::MaximumElementCount - 5), 5U);
  EXPECT_THROW(table.AddElements(1), std::bad_alloc);
  EXPECT_EQ(table.GetElementCount(), PropertyTable::MaximumElementCount);
}

// Beyond so many single cells that wait, whole columns do: more is computed, and the values are the same.
TEST(HostLimits, OfSingleCellsThatWait) {
  constexpr Host::ElementIndex Most = 1U << 20U;
  SmallModel model;
  model.table.AddElements(Most + 10);
  const PropertyIndex width = model.Define("Width", PropertyKind::Number);
  const PropertyIndex twice = model.DefineFormula("Twice", "[Width] * 2");
  model.table.Recalculate();
  for (const Host::ElementIndex changes : {Most, Most + 1}) {
    for (Host::ElementIndex element = 0; element < changes; ++element) model.SetNumber(width, changes + 0.5, element);
    EXPECT_EQ(model.table.Recalculate(), changes == Most ? Most : Most + 10);
    EXPECT_EQ(model.GetNumber(twice, changes - 1), 2 * changes + 1);
    EXPECT_EQ(model.table.GetStatus(twice, Most + 5), CellStatus::Undefined);
  }
}

TEST(HostLimits, OfProblemsThatAreKept) {
  Host::FileProblems problems;
  for (std::size_t i = 0; i < Host::FileProblems::MaximumCount; ++i) problems.Add({});
  EXPECT_EQ(problems.GetList().size(), problems.GetCount());
  problems.Add({});
  EXPECT_EQ(problems.GetList().size(), Host::FileProblems::MaximumCount);
  EXPECT_EQ(problems.GetCount(), Host::FileProblems::MaximumCount + 1);
}

TEST(HostLimits, JsonMayNestToAnyDepth) {
  constexpr std::size_t Levels = 1'000'000;
  Host::JsonDocument document;
  EXPECT_NO_THROW(document.Read(std::string(Levels, '[') + std::string(Levels, ']')));
  EXPECT_THROW(document.Read(std::string(Levels, '[')), Host::JsonError);
}

}  // namespace
