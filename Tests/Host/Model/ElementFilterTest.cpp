#include "Host/Model/ElementFilter.hpp"
#include "Host/SmallModel.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

// Elements with the widths 1, 2 and 3, an undefined one, one that has failed and one to which the property does not
// apply.
struct Widths : SmallModel {
  Widths() {
    width = Define("Width", Host::PropertyKind::Number);
    DefineFormula("Inverse", "6 / ([Width] - 1)");
    table.AddElements(6);
    for (Host::ElementIndex element = 0; element < 3; ++element) SetNumber(width, element + 1, element);
    table.SetInputFailed(width, 4);
    table.SetApplies(width, 5, false);
    table.Recalculate();
  }
  Host::PropertyIndex width;
};

TEST(ElementFilter, TellsWhatBecameOfEachElement) {
  struct Row {
    const char* condition;
    std::vector<Host::ElementIndex> kept;
    unsigned int undefinedCount;
    unsigned int failedCount;
    const char16_t* firstFailure;
  };
  const char16_t* const noValue = u"ExpressionPropertyEvaluationFailed";
  const Row rows[] = {
      {"TRUE", {0, 1, 2, 3, 4, 5}, 0, 0, u""}, {"1 > 2", {}, 0, 0, u""},
      {"[Width] >= 2", {1, 2}, 1, 2, noValue}, {"ISUNDEFINED([Width])", {3}, 0, 2, noValue},
      {"[Inverse] = 3", {2}, 1, 3, noValue},   {"6 / ([Width] - 1) = 3", {2}, 1, 3, u"ExpressionDivisionByZero"},
      {"[Width]", {}, 0, 6, u"WrongKind"},     {"IF([Width] = 2, TRUE, \"no\")", {1}, 1, 4, u"WrongKind"},
  };
  const Widths model;
  for (const Row& row : rows) {
    const Host::ReadFormula condition = Host::ReadFormulaWithNames(TW::UniString::FromUtf8(row.condition).GetView(),
                                                                   model.settings, model.table.GetCatalog());
    ASSERT_FALSE(condition.error) << row.condition;
    const Host::FilteredElements found = Host::FilterElements(model.table, condition, model.settings);
    EXPECT_EQ(found.kept, row.kept) << row.condition;
    EXPECT_EQ(found.undefinedCount, row.undefinedCount) << row.condition;
    EXPECT_EQ(found.failedCount, row.failedCount) << row.condition;
    const TW::UniString failure = found.firstFailure ? found.firstFailure->name : TW::UniString();
    EXPECT_EQ(failure.ToUtf8(), TW::UniString(row.firstFailure).ToUtf8()) << row.condition;
  }
}

}  // namespace
