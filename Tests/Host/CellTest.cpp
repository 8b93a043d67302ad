#include "Host/SmallModel.hpp"
#include "Quorix/Values.hpp"

#include <gtest/gtest.h>

// What cells hold after a calculation: values, failures, and where they come from.

namespace {

using Host::CellStatus;
using Host::PropertyIndex;
using Host::PropertyKind;
using QX::ExpressionValue;

constexpr ExpressionValue::UndefinedSelector Undefined;

ExpressionValue Length(double metres) {
  return ExpressionValue::FromQuantity(metres, QX::UnitExponents::CreateLength());
}

struct Model : SmallModel {
  Model() {
    width = Define("Width", PropertyKind::Length);
    count = Define("Count", PropertyKind::Integer);
    label = Define("Label", PropertyKind::Text);
    Define("Open", PropertyKind::Logical);
    table.AddElements(1);
    table.SetInput(width, 0, Length(0.5));
    table.SetInput(count, 0, ExpressionValue::FromInteger(0));
  }
  PropertyIndex width = 0;
  PropertyIndex count = 0;
  PropertyIndex label = 0;
};

TEST(Cell, HoldsTheResultOfTheFormula) {
  struct Row {
    const char* formula;
    TW::Optional<PropertyKind> kind;
    ExpressionValue value;
  };
  const Row rows[] = {
      {"[Width] * 2", PropertyKind::Length, Length(1.0)},
      {"[Width] * 2", std::nullopt, Length(1.0)},
      {"[Width] ^ 5", std::nullopt, ExpressionValue::FromQuantity(0.03125, {5, 0})},
      {"[Count]", std::nullopt, ExpressionValue::FromInteger(0)},
      {"[Count]", PropertyKind::Number, ExpressionValue::FromNumber(0)},
      {"[Count] * 2 + 6 / 2", PropertyKind::Integer, ExpressionValue::FromInteger(3)},
      {"[Count] + 3", std::nullopt, ExpressionValue::FromNumber(3)},
      {"[Width] > 40 cm", PropertyKind::Logical, ExpressionValue::FromBool(true)},
      {"\"A rather long text\"", PropertyKind::Text, ExpressionValue::FromString(u"A rather long text")},
      {"[Label]", PropertyKind::Text, ExpressionValue::FromString(Undefined)},
      {"[Open]", std::nullopt, ExpressionValue::FromBool(Undefined)},
  };
  for (const Row& row : rows) {
    Model model;
    const PropertyIndex result = model.DefineFormula("Result", row.formula, row.kind);
    EXPECT_EQ(model.table.GetStatus(result, 0), CellStatus::NotComputed);
    EXPECT_EQ(model.table.Recalculate(), 1U);
    const ExpressionValue value = model.table.GetValue(result, 0);
    EXPECT_TRUE(ExpressionValue::AreEqualByContent(value, row.value))
        << row.formula << " gives " << testing::PrintToString(value);
    const auto variant = value.CloneContainedVariant();
    const auto expected = row.value.CloneContainedVariant();
    EXPECT_EQ(variant->GetKind(), expected->GetKind()) << row.formula;
    EXPECT_EQ(model.table.Recalculate(), 0U);
  }
}

TEST(Cell, TellsWhyItHasNoValue) {
  struct Row {
    const char* formula;
    TW::Optional<PropertyKind> kind;
    const char* report;  ///< name, number of the message, range and span in the text with names
  };
  const Row rows[] = {
      {"1 + [Width]/[Count]", std::nullopt, "ExpressionDivisionByZero 13 11..14 4..21"},
      {"[Width] + [Count]", std::nullopt, "ExpressionIncompatibleArgumentDimensions 4 7..10 0..17"},
      {"[Nothing] + 1", std::nullopt, "ExpressionPropertyEvaluationFailed 14 0..9 0..9"},
      {"SQRT(-1)", std::nullopt, "ExpressionOutOfDomainOfMathematicalFunction 10 0..12 0..12"},
      {"1e300 * 1e300", std::nullopt, "InvalidResult 0 0..13 0..13"},
      {"[Width] * 2", PropertyKind::Area, "WrongKind 0 0..11 0..11"},
      {"[Width]", PropertyKind::Number, "WrongKind 0 0..7 0..7"},
      {"\"a\"", PropertyKind::Logical, "WrongKind 0 0..3 0..3"},
      {"[Count]>1", PropertyKind::Text, "WrongKind 0 0..11 0..11"},
      {"2.5", PropertyKind::Integer, "WrongKind 0 0..3 0..3"},
      {"2147483648.0", PropertyKind::Integer, "WrongKind 0 0..12 0..12"},
      {"[Label]", PropertyKind::Number, "WrongKind 0 0..7 0..7"},
  };
  for (const Row& row : rows) {
    Model model;
    model.Define("Nothing");
    const PropertyIndex result = model.DefineFormula("Result", row.formula, row.kind);
    model.table.Recalculate();
    EXPECT_FALSE(model.table.GetValue(result, 0).IsValid());
    const auto report = model.table.GetFailureReport(result, 0, model.settings);
    ASSERT_TRUE(report) << row.formula;
    const auto show = [](TW::Range<unsigned int> range) {
      return " " + std::to_string(range.begin) + ".." + std::to_string(range.end);
    };
    EXPECT_EQ(
        report->name.ToUtf8() + " " + std::to_string(report->resourceIndex) + show(report->range) + show(report->span),
        row.report)
        << report->formula.ToUtf8();
    EXPECT_EQ(report->name, Host::GetFailureName(*model.table.FindFailure(result, 0)));
    EXPECT_EQ(report->formula.ToUtf8(), model.GetFormula(result));
    EXPECT_FALSE(report->message.IsEmpty()) << row.formula;
  }
}

TEST(Cell, TakesInputsOfItsKindOnly) {
  struct Row {
    PropertyKind kind;
    ExpressionValue value;
    bool taken;
  };
  const Row rows[] = {
      {PropertyKind::Length, Length(1), true},
      {PropertyKind::Length, ExpressionValue::FromNumber(1), false},
      {PropertyKind::Area, Length(1), false},
      {PropertyKind::Number, ExpressionValue::FromInteger(3), true},
      {PropertyKind::Integer, ExpressionValue::FromNumber(3.0 + 1e-12), true},
      {PropertyKind::Integer, ExpressionValue::FromNumber(3.1), false},
      {PropertyKind::Integer, ExpressionValue::FromNumber(-3e9), false},
      {PropertyKind::Integer, ExpressionValue::FromNumber(Undefined), true},
      {PropertyKind::Text, ExpressionValue::FromString(u""), true},
      {PropertyKind::Text, ExpressionValue::FromBool(true), false},
      {PropertyKind::Logical, ExpressionValue::FromBool(false), true},
      {PropertyKind::Logical, ExpressionValue::FromString(u"TRUE"), false},
      {PropertyKind::Number, ExpressionValue::CreateInvalid(), false},
  };
  for (const Row& row : rows) {
    SmallModel model;
    model.table.AddElements(2);
    const PropertyIndex input = model.Define("Input", row.kind);
    EXPECT_EQ(model.table.SetInput(input, 1, row.value), row.taken) << testing::PrintToString(row.value);
    EXPECT_EQ(model.table.GetStatus(input, 0), CellStatus::Undefined);
    EXPECT_TRUE(
        QX::ExpressionValue::AreEqualByTypeAndUnit(model.table.GetValue(input, 0), Host::MakeUndefinedValue(row.kind)));
    const bool isDefined = row.taken && !row.value.IsUserUndefined();
    EXPECT_EQ(model.table.GetStatus(input, 1), isDefined ? CellStatus::Defined : CellStatus::Undefined);
  }
  Model model;
  const PropertyIndex formula = model.DefineFormula("Formula", "1");
  EXPECT_FALSE(model.SetNumber(formula, 2));
  EXPECT_FALSE(model.SetNumber(model.count, 2, 1)) << "no such element";
  EXPECT_FALSE(model.SetNumber(1000, 2));
  EXPECT_EQ(model.table.GetStatus(1000, 0), CellStatus::NotComputed);
  EXPECT_FALSE(model.table.GetValue(0, 1000).IsValid());
  EXPECT_EQ(model.SetFormula(1000, "1")->kind, Host::FormulaErrorKind::NoSuchProperty);
}

TEST(Cell, IsComputedOnlyWhenSomethingItDependsOnChanges) {
  SmallModel model;
  const PropertyIndex a = model.Define("A", PropertyKind::Number);
  const PropertyIndex b = model.Define("B", PropertyKind::Number);
  const PropertyIndex sign = model.DefineFormula("Sign", "IF([A] > 0, 1, -1)");
  const PropertyIndex left = model.DefineFormula("Left", "[Sign] + [B]");
  const PropertyIndex right = model.DefineFormula("Right", "[Sign] * 2");
  const PropertyIndex both = model.DefineFormula("Both", "[Left] + [Right] + [Sign]");
  const PropertyIndex lonely = model.DefineFormula("Lonely", "[B] ^ 2");
  model.table.AddElements(3);
  for (Host::ElementIndex element = 0; element < 3; ++element) {
    model.SetNumber(a, 5, element);
    model.SetNumber(b, 1, element);
  }
  EXPECT_EQ(model.table.Recalculate(), 15U);
  EXPECT_EQ(model.GetNumber(both, 1), 5);

  EXPECT_TRUE(model.SetNumber(a, 6, 1));
  EXPECT_EQ(model.table.Recalculate(), 1U) << "the sign stays, and stops the change";
  EXPECT_TRUE(model.SetNumber(a, -6, 1));
  EXPECT_EQ(model.table.Recalculate(), 4U) << "each once, though Both is reached three ways";
  EXPECT_EQ(model.GetNumber(both, 1), -3);
  EXPECT_EQ(model.GetNumber(both, 0), 5);
  EXPECT_TRUE(model.SetNumber(b, 1, 1));
  EXPECT_EQ(model.table.Recalculate(), 0U) << "the same value again";
  EXPECT_TRUE(model.SetNumber(b, 3, 2));
  EXPECT_EQ(model.table.Recalculate(), 3U);
  EXPECT_EQ(model.GetNumber(lonely, 2), 9);

  EXPECT_FALSE(model.SetFormula(right, "[B] - 1"));
  EXPECT_EQ(model.table.Recalculate(), 6U) << "two columns";
  EXPECT_EQ(model.GetNumber(both, 2), 7);
  EXPECT_TRUE(model.SetNumber(b, 4, 2));
  EXPECT_FALSE(model.SetFormula(right, "[B] - 2"));
  EXPECT_EQ(model.table.Recalculate(), 8U) << "no cell twice, alone and with its column";
  EXPECT_EQ(model.table.AddElements(1), 3U);
  EXPECT_EQ(model.table.Recalculate(), 5U) << "the new element";
  EXPECT_EQ(model.table.GetStatus(both, 3), CellStatus::Undefined);
  EXPECT_TRUE(model.table.RemoveFormula(left));
  EXPECT_FALSE(model.table.RemoveFormula(left));
  EXPECT_EQ(model.table.Recalculate(), 4U);
  EXPECT_EQ(model.table.GetStatus(both, 0), CellStatus::Failed) << "an input without kind has no value yet";
  EXPECT_TRUE(model.SetNumber(left, 100, 0));
  EXPECT_EQ(model.table.Recalculate(), 1U);
  EXPECT_EQ(model.GetNumber(both, 0), 100);
  EXPECT_EQ(model.Show(model.table.GetGraph().CollectDependents(sign)), "Both");
  EXPECT_EQ(model.Show(model.table.GetGraph().CollectDependents(a)), "Sign > Both");
}

TEST(Cell, FollowsTheSettings) {
  SmallModel model;
  model.table.AddElements(1);
  const PropertyIndex text = model.DefineFormula("Text", "STR(0.5, 1)");
  const PropertyIndex any = model.DefineFormula("Any", "IF(TRUE, 1, 1 / 0)");
  model.table.Recalculate();
  EXPECT_EQ(model.table.GetValue(text, 0).GetAsString(), TW::UniString(u"0.5"));
  EXPECT_EQ(model.table.GetStatus(any, 0), CellStatus::Defined);
  Host::EvaluationSettings settings;
  settings.locale = {u',', u';', u'.'};
  settings.isUndefinedPropagationEnabled = true;
  model.table.SetSettings(settings);
  EXPECT_EQ(model.table.Recalculate(), 2U);
  EXPECT_EQ(model.table.GetValue(text, 0).GetAsString(), TW::UniString(u"0,5"));
  EXPECT_EQ(model.table.GetStatus(any, 0), CellStatus::Failed) << "now every branch counts";
}

TEST(Cell, MayBeAbsent) {
  SmallModel model;
  const PropertyIndex input = model.Define("Input", PropertyKind::Number);
  const PropertyIndex twice = model.DefineFormula("Twice", "[Input] * 2");
  const PropertyIndex more = model.DefineFormula("More", "[Twice] + 1");
  model.table.AddElements(2);
  model.SetNumber(input, 1, 0);
  model.SetNumber(input, 1, 1);
  EXPECT_TRUE(model.table.SetApplies(twice, 1, false));
  model.table.Recalculate();
  EXPECT_EQ(model.table.GetStatus(twice, 1), CellStatus::Absent);
  EXPECT_EQ(model.table.GetStatus(more, 1), CellStatus::Failed);
  EXPECT_EQ(model.Show(Host::ExplainCell(model.table, more, 1)), "More > Twice");
  EXPECT_EQ(model.GetNumber(more, 0), 3);

  EXPECT_FALSE(model.SetFormula(twice, "[Input] * 3"));
  model.table.Recalculate();
  EXPECT_EQ(model.table.GetStatus(twice, 1), CellStatus::Absent) << "whatever the formula";
  EXPECT_TRUE(model.table.SetApplies(twice, 1, true));
  EXPECT_EQ(model.table.Recalculate(), 2U);
  EXPECT_EQ(model.GetNumber(more, 1), 4);
  EXPECT_TRUE(model.table.SetApplies(input, 0, false));
  model.table.Recalculate();
  EXPECT_EQ(model.table.GetStatus(more, 0), CellStatus::Failed);
  EXPECT_TRUE(model.table.SetApplies(input, 0, true));
  model.table.Recalculate();
  EXPECT_EQ(model.table.GetStatus(more, 0), CellStatus::Undefined);
  EXPECT_FALSE(model.table.SetApplies(input, 2, false));
}

TEST(Cell, ExplainsWhereTroubleBegan) {
  Model model;
  model.Define("Depth", PropertyKind::Length);
  const PropertyIndex area = model.DefineFormula("Area", "[Width] * [Depth]");
  const PropertyIndex share = model.DefineFormula("Share", "1 m / [Count] + [Area]");
  const PropertyIndex total = model.DefineFormula("Total", "[Width] + [Share]");
  const PropertyIndex twice = model.DefineFormula("Twice", "[Width] + 2 * [Area] / [Width]");
  const PropertyIndex fine = model.DefineFormula("Fine", "[Width] * 0");
  model.table.Recalculate();
  struct Row {
    PropertyIndex property;
    const char* way;
  };
  const Row rows[] = {{total, "Total > Share"}, {share, "Share"}, {twice, "Twice > Area > Depth"},
                      {area, "Area > Depth"},   {fine, ""},       {model.label, "Label"},
                      {model.width, ""},        {1000, ""}};
  for (const Row& row : rows) EXPECT_EQ(model.Show(Host::ExplainCell(model.table, row.property, 0)), row.way);
}

}  // namespace
