#include "Host/SmallModel.hpp"
#include "Quorix/Values.hpp"

#include <gtest/gtest.h>

#include <map>
#include <random>

// Random edits of random models. After each calculation every cell is what a new table makes of the same model.

namespace {

using Host::ElementIndex;
using Host::PropertyIndex;
using Host::PropertyKind;
using QX::ExpressionValue;

constexpr PropertyIndex PropertyCount = 14;
constexpr TW::Optional<PropertyKind> Kinds[] = {PropertyKind::Number, PropertyKind::Length,  PropertyKind::Integer,
                                                PropertyKind::Text,   PropertyKind::Logical, std::nullopt};

class RandomModel {
 public:
  explicit RandomModel(unsigned int seed) : random_(seed) {
    for (PropertyIndex i = 0; i < PropertyCount; ++i) kinds_.push_back(Kinds[Pick(std::size(Kinds))]);
    Define(model_);
    AddElements(3);
  }

  void Edit() {
    switch (Pick(10)) {
      case 0:
        return AddElements(Pick(2) + 1);
      case 1:
      case 2:
        return SetFormula();
      case 3:
        return RemoveFormula();
      case 4:
        return SetApplies();
      default:
        return SetInput();
    }
  }

  void Check() {
    model_.table.Recalculate();
    SmallModel fresh;
    Define(fresh);
    fresh.table.AddElements(elementCount_);
    for (const auto& [cell, value] : inputs_) fresh.table.SetInput(cell.first, cell.second, value);
    for (const auto& [property, formula] : formulas_) ASSERT_FALSE(fresh.SetFormula(property, formula)) << formula;
    for (const auto& [cell, applies] : applies_) fresh.table.SetApplies(cell.first, cell.second, applies);
    fresh.table.Recalculate();
    for (PropertyIndex property = 0; property < PropertyCount; ++property) {
      for (ElementIndex element = 0; element < elementCount_; ++element) Compare(fresh, property, element);
    }
    EXPECT_EQ(model_.table.Recalculate(), 0U);
  }

 private:
  using Cell = std::pair<PropertyIndex, ElementIndex>;

  unsigned int Pick(std::size_t bound) { return static_cast<unsigned int>(random_() % bound); }

  void Define(SmallModel& model) const {
    for (PropertyIndex i = 0; i < PropertyCount; ++i) model.Define("P" + std::to_string(i), kinds_[i]);
  }

  void AddElements(ElementIndex count) {
    EXPECT_EQ(model_.table.AddElements(count), elementCount_);
    elementCount_ += count;
  }

  std::string MakeFormula() {
    const auto reference = [this] { return "[P" + std::to_string(Pick(PropertyCount)) + "]"; };
    const std::string a = reference();
    const std::string b = reference();
    switch (Pick(9)) {
      case 0:
        return a + " / " + b;
      case 1:
        return a + " * " + b + " + 1";
      case 2:
        return "IF(" + a + " = " + b + ", " + a + ", " + reference() + ")";
      case 3:
        return "ISUNDEFINED(" + a + ")";
      case 4:
        return "CONCAT(" + a + ", \"some longer text\")";
      case 5:
        return a + " ^ 2";
      case 6:
        return "IF(" + a + ", 1, 0)";
      case 7:
        return "2 * " + a;
      default:
        return a;
    }
  }

  void SetFormula() {
    const PropertyIndex property = Pick(PropertyCount);
    const std::string formula = MakeFormula();
    if (const auto error = model_.SetFormula(property, formula)) {
      EXPECT_EQ(error->kind, Host::FormulaErrorKind::Cycle) << formula;
      return;
    }
    formulas_[property] = formula;
    ForgetInputs(property);
  }

  void RemoveFormula() {
    const PropertyIndex property = Pick(PropertyCount);
    EXPECT_EQ(model_.table.RemoveFormula(property), formulas_.erase(property) == 1);
  }

  void ForgetInputs(PropertyIndex property) {
    std::erase_if(inputs_, [property](const auto& entry) { return entry.first.first == property; });
  }

  ExpressionValue MakeValue() {
    switch (Pick(6)) {
      case 0:
        return ExpressionValue::FromQuantity(Pick(3), QX::UnitExponents::CreateLength());
      case 1:
        return ExpressionValue::FromString(Pick(2) == 0 ? u"short" : u"a text that needs the heap");
      case 2:
        return ExpressionValue::FromBool(Pick(2) == 0);
      case 3:
        return ExpressionValue::FromInteger(static_cast<int>(Pick(3)));
      case 4:
        return ExpressionValue::FromNumber(ExpressionValue::UndefinedSelector());
      default:
        return ExpressionValue::FromNumber(Pick(5) * 0.5);
    }
  }

  void SetInput() {
    const Cell cell(Pick(PropertyCount), Pick(elementCount_));
    const ExpressionValue value = MakeValue();
    if (!model_.table.SetInput(cell.first, cell.second, value)) return;
    inputs_[cell] = value;
    applies_.erase(cell);
  }

  void SetApplies() {
    const Cell cell(Pick(PropertyCount), Pick(elementCount_));
    const bool applies = Pick(2) == 0;
    EXPECT_TRUE(model_.table.SetApplies(cell.first, cell.second, applies));
    if (!applies) inputs_.erase(cell);
    applies_[cell] = applies;
  }

  void Compare(const SmallModel& fresh, PropertyIndex property, ElementIndex element) const {
    const Host::PropertyTable& table = model_.table;
    ASSERT_EQ(table.GetStatus(property, element), fresh.table.GetStatus(property, element))
        << property << " of " << element << ": " << model_.GetFormula(property);
    const ExpressionValue value = table.GetValue(property, element);
    const ExpressionValue expected = fresh.table.GetValue(property, element);
    ASSERT_TRUE(!value.IsValid() || ExpressionValue::AreEqualByContent(value, expected))
        << property << " of " << element << ": " << model_.GetFormula(property) << " is "
        << testing::PrintToString(value) << " and not " << testing::PrintToString(expected);
    const auto report = table.GetFailureReport(property, element, model_.settings);
    const auto expectedReport = fresh.table.GetFailureReport(property, element, fresh.settings);
    ASSERT_EQ(report.has_value(), expectedReport.has_value());
    if (!report) return;
    EXPECT_EQ(report->name, expectedReport->name);
    EXPECT_EQ(report->span, expectedReport->span);
    EXPECT_EQ(Host::ExplainCell(table, property, element), Host::ExplainCell(fresh.table, property, element));
  }

  std::mt19937 random_;
  SmallModel model_;
  ElementIndex elementCount_ = 0;
  std::vector<TW::Optional<PropertyKind>> kinds_;
  std::map<PropertyIndex, std::string> formulas_;
  std::map<Cell, ExpressionValue> inputs_;
  std::map<Cell, bool> applies_;
};

TEST(RandomEdits, LeaveWhatANewTableWouldCompute) {
  for (unsigned int seed = 0; seed < 60; ++seed) {
    RandomModel model(seed);
    for (int step = 0; step < 60; ++step) {
      model.Edit();
      if (step % 3 != 0) continue;
      model.Check();
      if (testing::Test::HasFailure()) FAIL() << "seed " << seed << ", step " << step;
    }
  }
}

}  // namespace
