#include "Host/Report/FailureList.hpp"
#include "Host/Report/Labels.hpp"
#include "Host/Report/Summary.hpp"
#include "Host/Report/TableReport.hpp"
#include "ReportModel.hpp"
#include "Resources/Language.hpp"

#include <gtest/gtest.h>

namespace {

using Host::PropertyIndex;
using Host::PropertyKind;
using Host::ReportScope;
using Host::ReportSink;

std::string MakeTable(const ReportScope& scope, const Host::TableLimits& limits = {}) {
  Host::FailureGroups failures(scope);
  return Collect([&](const ReportSink& sink) { Host::WriteTable(scope, failures, limits, sink); });
}

std::string MakeFailureList(const ReportScope& scope) {
  return Collect([&](const ReportSink& sink) { Host::WriteFailureList(scope, Host::FailureGroups(scope), sink); });
}

std::string MakeSummaryText(const ReportScope& scope) {
  return Collect([&](const ReportSink& sink) { Host::WriteSummary(Host::MakeSummary(scope), sink); });
}

class TableReport : public testing::Test {
 protected:
  void SetUp() override { Resources::SetLanguage("en"); }
  void TearDown() override { Resources::SetLanguage("en"); }
};

TEST_F(TableReport, ShowsEveryKindOfCell) {
  House house;
  EXPECT_EQ(MakeTable(house.MakeScope()),
            R"(Element  Class     Width      Depth  Count       Area   Share   Total  Label
────────────────────────────────────────────────────────────────────────────
Wall 1   IFCWALL  0.50 m     4.00 m      4    2.00 m²  0.75 m  1.50 m  thick
Wände 2  IFCWALL  0.25 m  undefined      0  undefined      #2      #2  thin
guid3    IFCDOOR  1.00 m  undefined     #1  undefined      #1      #1  –

–: the property does not apply to the element.
#2: no value; the error of this number tells why.
)");
}

TEST_F(TableReport, BreaksIntoBlocksAndTellsWhatIsLeftOut) {
  House house;
  EXPECT_EQ(MakeTable(house.MakeScope(), {40, 2}), R"(Element  Class     Width      Depth
───────────────────────────────────
Wall 1   IFCWALL  0.50 m     4.00 m
Wände 2  IFCWALL  0.25 m  undefined

Element  Class    Count       Area
──────────────────────────────────
Wall 1   IFCWALL      4    2.00 m²
Wände 2  IFCWALL      0  undefined

Element  Class     Share   Total  Label
───────────────────────────────────────
Wall 1   IFCWALL  0.75 m  1.50 m  thick
Wände 2  IFCWALL      #2      #2  thin

1 more element is not shown.
#2: no value; the error of this number tells why.
)");
}

TEST_F(TableReport, ExplainsFailuresOnce) {
  House house;
  EXPECT_EQ(MakeFailureList(house.MakeScope()), R"(Errors
#1 Count: The source holds no whole number. Change the value there or the kind of the property.
    1 element: guid3
    No value for this reason: Share, Total
#2 Share: The divisor is zero. Change the formula or the value that it divides by.
    1 m / [Count] + [Width]
    ~~~^^^~~~~~~~
    1 element: Wände 2
    No value for this reason: Total
)");
  EXPECT_EQ(MakeSummaryText(house.MakeScope()),
            R"(Elements: 3   Values: 11   Undefined: 4   Not applicable: 1   Errors: 5
  3 × ExpressionPropertyEvaluationFailed: The value of a property in this formula is not available. Check that property, or remove it from the formula.
  1 × ExpressionDivisionByZero: The divisor is zero. Change the formula or the value that it divides by.
  1 × WrongKind: The source holds no whole number. Change the value there or the kind of the property.
)");
}

TEST_F(TableReport, SpeaksTheLanguageOfTheUser) {
  House house;
  Resources::SetLanguage("de");
  const ReportScope scope = house.MakeScope({house.depth, house.share, house.label});
  EXPECT_EQ(MakeTable(scope, {0, 2}) + MakeFailureList(scope), R"(Element  Klasse         Depth   Share  Label
────────────────────────────────────────────
Wall 1   IFCWALL       4.00 m  0.75 m  thick
Wände 2  IFCWALL  undefiniert      #1  thin

1 weiteres Element wird nicht gezeigt.
#1: kein Wert; der Fehler dieser Nummer sagt, warum.
Fehler
#1 Share: Der Divisor ist null. Ändern Sie die Formel oder den Wert, durch den sie teilt.
    1 m / [Count] + [Width]
    ~~~^^^~~~~~~~
    1 Element: Wände 2
#2 Count: Die Quelle enthält einen Wert anderer Art als die Eigenschaft angibt (ganze Zahl). Ändern Sie den Wert dort oder die Art der Eigenschaft.
    1 Element: guid3
    Aus diesem Grund ohne Wert: Share
)");
}

TEST_F(TableReport, GroupsFailuresByTheirReason) {
  ReportModel model(std::vector<FakeSource::Element>(6));
  const PropertyIndex divisor = model.Define("Divisor", PropertyKind::Number);
  const PropertyIndex given = model.Define("Given", PropertyKind::Number);
  const PropertyIndex empty = model.Define("Empty");
  model.DefineFormula("Quotient", "1 / [Divisor]");
  model.DefineFormula("Root", "SQRT([Divisor])");
  model.DefineFormula("Sum", "[Given] + [Quotient]");
  model.DefineFormula("Whole", "[Empty]");
  model.DefineFormula("Large", "1e300 * 1e300");
  for (Host::ElementIndex i = 0; i < 6; ++i) model.SetNumber(divisor, i < 5 ? 0 : -1, i);
  model.table.SetApplies(given, 0, false);
  ASSERT_TRUE(model.SetNumber(given, 1, 1) && model.SetNumber(given, 1, 5));
  ASSERT_TRUE(model.SetNumber(empty, 1, 0));
  EXPECT_EQ(MakeFailureList(model.MakeScope()), R"(Errors
#1 Quotient: The divisor is zero. Change the formula or the value that it divides by.
    1 / [Divisor]
    ~^^^~~~~~~~~~
    5 elements: 1, 2, 3, …
    No value for this reason: Sum
#2 Root: The calculation has no result for these values, as with the square root of a negative number. Change the values.
    SQRT ( [Divisor] )
    ^^^^^^^~~~~~~~~~^^
    1 element: 6
#3 Sum: The value of a property in this formula is not available. Check that property, or remove it from the formula. Given does not apply to the element.
    [Given] + [Quotient]
    ^^^^^^^
    1 element: 1
#4 Whole: The value of a property in this formula is not available. Check that property, or remove it from the formula. Empty has no value yet.
    [Empty]
    ^^^^^^^
    5 elements: 2, 3, 4, …
#5 Large: The result is too large for a number or too long for a text. Change the values.
    1e300 * 1e300
    6 elements: 1, 2, 3, …
)");
}

TEST_F(TableReport, KeepsLinesStraightAndTerminalsUnharmed) {
  ReportModel model({{u"\u5899\u58C1 \U0001F3E0", u"A\nB\r\x1B[31m", u""},
                     {u"a\u0301e\u0301\u200B", u"\u202Eright\u2028left", u""},
                     {TW::UniString(u"\u0301\xD83D lone"), u"", u""},
                     {u"A name that takes more than the room that there is", u"IFCWALL\x7F\x9B", u""}});
  const PropertyIndex text = model.Define("Text\t\"<&>\"", PropertyKind::Text);
  const PropertyIndex number = model.Define("Number", PropertyKind::Number);
  const char16_t* texts[] = {u"\u2026", u"one\ntwo", u"\u5899\u5899\u5899\u5899\u5899\u5899\u5899\u5899", u""};
  for (Host::ElementIndex i = 0; i < 4; ++i) {
    model.table.SetInput(text, i, QX::ExpressionValue::FromString(texts[i]));
    model.SetNumber(number, i == 2 ? 1e20 : i, i);
  }
  EXPECT_EQ(MakeTable(model.MakeScope(), {40, 0}), R"(Element        Class       Text "<&>"
────────────────────────────────────────
墙壁 🏠        A B  [31m   …
áé​              right le…  one two
 � lone                    墙墙墙墙墙墙…
A name that …  IFCWALL

Element        Class       Number
─────────────────────────────────
墙壁 🏠        A B  [31m        0
áé​              right le…       1
 � lone                         …
A name that …  IFCWALL          3
)");
}

TEST_F(TableReport, IsThereWithoutRowsOrColumns) {
  ReportModel model(std::vector<FakeSource::Element>{});
  EXPECT_EQ(MakeTable(model.MakeScope()), "Element  Class\n──────────────\n");
  model.Define("Width", PropertyKind::Length);
  EXPECT_EQ(MakeTable(model.MakeScope()), "Element  Class  Width\n─────────────────────\n");
  EXPECT_EQ(MakeFailureList(model.MakeScope()), "");
  EXPECT_EQ(MakeSummaryText(model.MakeScope()),
            "Elements: 0   Values: 0   Undefined: 0   Not applicable: 0   Errors: 0\n");
}

TEST_F(TableReport, LabelsPropertiesSoThatNoneIsTakenForAnother) {
  SmallModel model;
  for (const char* name : {"Width", "A/Height", "B/Height", "Height", "A.Height"}) model.Define(name);
  std::string labels;
  for (const TW::UniString& label :
       Host::MakePropertyLabels(model.table.GetCatalog(), std::vector<PropertyIndex>{0, 1, 2, 3, 4})) {
    labels += label.ToUtf8() + "\n";
  }
  EXPECT_EQ(labels, "Width\nA.Height\nB.Height\nHeight\nA.Height AB000000-0000-0000-0000-000000000005\n");
}

}  // namespace
