#include "Host/Report/CellReport.hpp"
#include "ReportModel.hpp"
#include "Resources/Language.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::string Explain(ReportModel& model, Host::PropertyIndex property, Host::ElementIndex element) {
  Resources::SetLanguage("en");
  const Host::ReportScope scope = model.MakeScope();
  const auto origin = [&](Host::PropertyIndex input, Host::ElementIndex) {
    return u"Set." + model.table.GetCatalog().Get(input).name;
  };
  return Collect([&](const Host::ReportSink& sink) { Host::WriteCellReport(scope, property, element, origin, sink); });
}

TEST(CellReport, ShowsThePartsOfAFormula) {
  House house;
  EXPECT_EQ(Explain(house, house.label, 0), R"(Element   Wall 1 (IFCWALL, guid1)
Property  Label
Value     thick

Label
  IF ( [Width] > 30 cm, "thick", "thin" )

  IF ( [Width] > 30 cm, "thick", "thin" )  thick
    [Width] > 30 cm                        TRUE
      [Width]                              0.50 m
      30 cm                                0.30 m
    "thick"                                thick
    "thin"                                 not taken

  Width  0.50 m  Set.Width
)");
}

TEST(CellReport, FollowsAFailureToItsRoot) {
  House house;
  EXPECT_EQ(Explain(house, house.total, 1), R"(Element   Wände 2 (IFCWALL, guid2)
Property  Total
Value     failed
Reason    Total has no value because Share has none. The divisor is zero. Change the formula or the value that it divides by.

Total
  2 * [Share]
      ^^^^^^^

  2 * [Share]  failed
    2          2
    [Share]    The value of a property in this formula is not available. Check that property, or remove it from the formula.

  Share  failed  formula

Share
  1 m / [Count] + [Width]
  ~~~^^^~~~~~~~

  1 m / [Count] + [Width]  failed
    1 m / [Count]          The divisor is zero. Change the formula or the value that it divides by.
      1 m                  1.00 m
      [Count]              0
    [Width]                0.25 m

  Count  0       Set.Count
  Width  0.25 m  Set.Width
)");
}

TEST(CellReport, TellsTheReasonInASentence) {
  House house;
  const Host::PropertyIndex large = house.DefineFormula("Large", "1e300*1e300");
  const Host::PropertyIndex uses = house.DefineFormula("Uses", "CONCAT([Label], \"x\")");
  const Host::PropertyIndex unset = house.Define("Unset");
  const Host::PropertyIndex none = house.DefineFormula("None", "IFS([Width] < 0 m, 1 m, FALSE, 2 m)");
  struct Row {
    Host::PropertyIndex property;
    Host::ElementIndex element;
    const char* reason;
  };
  const Row rows[] = {
      {house.width, 0, ""},
      {house.depth, 1, "Depth is undefined in the model."},
      {house.area, 1, "Area is undefined because Depth is. Depth is undefined in the model."},
      {none, 0, "The formula of None itself gives an undefined value."},
      {house.count, 2,
       "Count has no value. The source holds no whole number. Change the value there or the kind of the property."},
      {large, 0, "Large has no value. The result is too large for a number or too long for a text. Change the values."},
      {house.label, 2, "Label does not apply to the element."},
      {unset, 0, "Unset has no value yet."},
      {uses, 2, "Uses has no value because Label has none. Label does not apply to the element."},
  };
  for (const Row& row : rows) {
    std::istringstream lines(Explain(house, row.property, row.element));
    std::string reason;
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with("Reason    ")) reason = line.substr(10);
    }
    EXPECT_EQ(reason, row.reason);
  }
}

TEST(CellReport, MarksThePartsThatWereNotNeeded) {
  struct Row {
    const char* formula;
    bool evaluatesAll;
    const char* skipped;  ///< the parts, each with a bar behind it
  };
  const Row rows[] = {
      {"IF([U] > 0, 1, 2)", false, "2|"},
      {"IF([N] < 0, 1 + 5, 2)", false, "1 + 5|1|5|"},
      {"IF([N] > 0, 1, 2)", true, "2|"},
      {"IF([N], 1, 2)", false, "1|2|"},
      {"IFS([N] < 0, 1, [N] = 1, 2, TRUE, 3)", false, "1|TRUE|3|"},
      {"IFS([N] < 0, 1, [N] = 2, 2)", false, "1|"},
      {"IFS([U] < 0, 1, TRUE, 2)", false, "TRUE|2|"},
      {"IFS(TRUE, 1, TRUE, 2)", true, "TRUE|2|"},
      {"IFS(1 / 0 = 1, 1, TRUE, 2)", false, "1|TRUE|2|"},
      {"AND(FALSE, [N] = 1, TRUE)", false, "[N] = 1|[N]|1|TRUE|"},
      {"AND(FALSE, [N] = 1, TRUE)", true, ""},
      {"AND([U] = 1, TRUE, FALSE)", false, ""},
      {"OR([U] = 1, TRUE, FALSE)", false, "FALSE|"},
      {"XOR([U] = 1, TRUE)", false, "TRUE|"},
      {"XOR(TRUE, TRUE)", false, ""},
      {"NOT(OR(TRUE, IF(TRUE, FALSE, TRUE)))", false, "IF ( TRUE, FALSE, TRUE )|TRUE|FALSE|TRUE|"},
      {"MAX(1, IF(TRUE, 2, 3))", false, "3|"},
  };
  for (const Row& row : rows) {
    ReportModel model(std::vector<FakeSource::Element>(1));
    Host::EvaluationSettings settings;
    settings.isUndefinedPropagationEnabled = row.evaluatesAll;
    model.table.SetSettings(settings);
    model.SetNumber(model.Define("N", Host::PropertyKind::Number), 1);
    model.Define("U", Host::PropertyKind::Number);
    std::istringstream lines(Explain(model, model.DefineFormula("Result", row.formula), 0));
    std::string skipped;
    for (std::string line; std::getline(lines, line);) {
      if (!line.ends_with("  not taken")) continue;
      line.erase(line.find_last_not_of(' ', line.size() - 10) + 1);
      skipped += line.substr(line.find_first_not_of(' ')) + "|";
    }
    EXPECT_EQ(skipped, row.skipped) << row.formula;
  }
}

TEST(CellReport, StaysWithinLimits) {
  House house;
  std::string sum = "1";
  for (int i = 0; i < 1000; ++i) sum += " + 1";
  std::string nested = "[Width]";
  for (int i = 0; i < 100; ++i) nested = "ABS(" + nested + ")";
  const std::string wide = Explain(house, house.DefineFormula("Sum", sum), 0);
  EXPECT_NE(wide.find("  1801 more parts are not shown.\n"), wide.npos);
  const std::string deep = Explain(house, house.DefineFormula("Nested", nested), 0);
  std::istringstream lines(deep);
  for (std::string line; std::getline(lines, line);) EXPECT_LT(line.size(), 140U);
}

}  // namespace
