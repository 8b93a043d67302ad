#include "Host/SmallModel.hpp"

#include <gtest/gtest.h>

// Names in the texts of formulas, on the way in and out.

namespace {

using Host::FormulaErrorKind;
using Host::PropertyIndex;

std::string Show(const Host::FormulaError& error) {
  constexpr const char* Kinds[] = {"NoSuchProperty", "Syntax", "UnknownName", "AmbiguousName", "Cycle"};
  return std::string(Kinds[static_cast<unsigned int>(error.kind)]) + " " + std::to_string(error.range.begin) + ".." +
         std::to_string(error.range.end);
}

// Two heights, whose bare name is ambiguous; names full of signs; and two properties that share a full name.
struct Model : SmallModel {
  Model() {
    Define("Width");
    Define("Side area");
    Define("A/Height");
    Define("B/Height");
    Define("odd ] \\ \"name\"");
    Define("Pset: Größe");
    Define("Property:x");
    Define("A.B/C");
    Define("A/B.C");
    formula = Define("Formula");
  }
  PropertyIndex formula = 0;
};

TEST(FormulaNames, ComeOutAsTheyWentIn) {
  struct Row {
    const char* typed;
    const char* rendered;
  };
  const Row rows[] = {
      {"[Width]", "[Width]"},
      {"2*[Side area]+[Width]", "2 * [Side area] + [Width]"},
      {"[A.Height] - [B.Height]", "[A.Height] - [B.Height]"},
      {R"([odd \] \\ "name"] + 0)", R"([odd \] \\ "name"] + 0)"},
      {R"([odd \] \ "name"])", R"([odd \] \\ "name"])"},
      {"[Pset: Größe]", "[Pset: Größe]"},
      {"[Property:x]", "[Property:x]"},
      {"[Property:AB000000-0000-0000-0000-000000000001] * 2", "[Width] * 2"},
      {"[Property:{ab000000-0000-0000-0000-000000000001}]", "[Width]"},
      {"LEN(\"[Width] \\\" [None]\") + [Width]", "LEN ( \"[Width] \\\" [None]\" ) + [Width]"},
      {"5 \" + [Width] + 1 \"", "5 \" + [Width] + 1 \""},  // inches, and no text that would hide the name
      {"[B.C] + [C]", "[B.C] + [C]"},
  };
  for (const Row& row : rows) {
    Model model;
    const auto error = model.SetFormula(model.formula, row.typed);
    ASSERT_FALSE(error) << row.typed << ": " << error->message.ToUtf8();
    EXPECT_EQ(model.GetFormula(model.formula), row.rendered) << row.typed;
    // What is written can be read.
    ASSERT_FALSE(model.SetFormula(model.formula, row.rendered)) << row.typed;
    EXPECT_EQ(model.GetFormula(model.formula), row.rendered) << row.typed;
  }
}

TEST(FormulaNames, ErrorsLieInTheTextThatWasTyped) {
  struct Row {
    const char* typed;
    const char* error;
  };
  const Row rows[] = {
      {"[None]", "UnknownName 0..6"},
      {"1 + [Width] + [width]", "UnknownName 14..21"},
      {"[]", "UnknownName 0..2"},
      {"[A.Width]", "UnknownName 0..9"},
      {"[Property:00000000-0000-0000-0000-000000000001]", "UnknownName 0..47"},
      {"[Width] * [Height]", "AmbiguousName 10..18"},
      {"[A.B.C]", "AmbiguousName 0..7"},
      {"FOO(1) + [None]", "Syntax 0..3"},
      {"[None] + FOO(1)", "UnknownName 0..6"},
      {"[Width", "Syntax 0..1"},
      {"[Width] + [Side area", "Syntax 10..11"},
      {"[Width] [Width]", "Syntax 8..15"},
      {"[Width] + [Side area] + FOO([Width])", "Syntax 24..27"},
      {"[Width] + * [Width]", "Syntax 10..11"},
      {"[Width] +", "Syntax 9..9"},
      {"[Width]) + 1", "Syntax 7..8"},
      {"([Width] + [Side area]", "Syntax 22..22"},
      {"[Width] + \"x", "Syntax 10..11"},
      {"$ + [Width]", "Syntax 0..1"},
      {"[Width] + 5 parsec + [Width]", "Syntax 12..18"},
      {"", "Syntax 0..0"},
      {"[Width] + [Formula]", "Cycle 10..19"},
  };
  for (const Row& row : rows) {
    Model model;
    ASSERT_FALSE(model.SetFormula(model.formula, "[Width] * 3"));
    const auto error = model.SetFormula(model.formula, row.typed);
    ASSERT_TRUE(error) << row.typed;
    EXPECT_EQ(Show(*error), row.error) << row.typed;
    EXPECT_FALSE(error->message.IsEmpty()) << row.typed;
    EXPECT_EQ(model.GetFormula(model.formula), "[Width] * 3") << row.typed;
  }
}

TEST(FormulaNames, FollowTheSeparators) {
  Model model;
  model.settings = {',', ';', '.'};
  ASSERT_FALSE(model.SetFormula(model.formula, "MAX([Width]; 1,5)"));
  EXPECT_EQ(model.GetFormula(model.formula), "MAX ( [Width]; 1,5 )");
  model.settings = {'.', ',', 0};
  EXPECT_EQ(model.GetFormula(model.formula), "MAX ( [Width], 1.5 )");
}

TEST(FormulaNames, RenamingChangesNoFormula) {
  Model model;
  const PropertyIndex width = model.table.GetCatalog().FindByName(u"Width")[0];
  ASSERT_FALSE(model.SetFormula(model.formula, "[Width] + [A.Height] + [B.Height]"));
  const TW::UniString stored =
      model.table.FindFormula(model.formula)->GetExpressionString(model.settings).GetFullString();
  EXPECT_TRUE(model.table.Rename(width, u"Breite", u"Wand"));
  EXPECT_EQ(model.GetFormula(model.formula), "[Breite] + [A.Height] + [B.Height]");
  EXPECT_TRUE(model.table.Rename(model.table.GetCatalog().FindByName(u"B.Height")[0], u"Depth", {}));
  EXPECT_EQ(model.GetFormula(model.formula), "[Breite] + [Height] + [Depth]");
  EXPECT_TRUE(model.table.Rename(width, u"B.C", u"Other"));
  EXPECT_EQ(model.GetFormula(model.formula), "[Other.B.C] + [Height] + [Depth]");
  EXPECT_EQ(model.table.FindFormula(model.formula)->GetExpressionString(model.settings).GetFullString(), stored);

  EXPECT_FALSE(model.SetFormula(model.formula, "[Wand.Breite]") == std::nullopt) << "old names mean nothing";
  EXPECT_FALSE(model.table.Rename(width, {}, u"Wand"));
  EXPECT_FALSE(model.table.Rename(width, u"Side area", {}));
  EXPECT_FALSE(model.table.Rename(1000, u"New", {}));
  EXPECT_TRUE(model.table.Rename(width, u"B.C", u"Other")) << "the name that it has";
}

TEST(FormulaNames, FallBackToTheGuid) {
  Model model;
  model.DefineFormula("Sum", "[Property:AB000000-0000-0000-0000-000000000008] + [Width]");
  EXPECT_EQ(model.GetFormula(10), "[C] + [Width]");
  model.Define("C");  // now both names of the property mean another one too
  EXPECT_EQ(model.GetFormula(10), "[Property:AB000000-0000-0000-0000-000000000008] + [Width]");
  // A name that reads as a GUID cannot be written.
  EXPECT_TRUE(model.table.Rename(0, u"Property:AB000000-0000-0000-0000-000000000002", {}));
  EXPECT_EQ(model.GetFormula(10),
            "[Property:AB000000-0000-0000-0000-000000000008] + "
            "[Property:AB000000-0000-0000-0000-000000000001]");
}

TEST(FormulaNames, DefinitionsAreUnique) {
  Model model;
  const TW::Guid id = SmallModel::MakeId(99);
  EXPECT_FALSE(model.table.Define({TW::Guid(), u"New", {}, std::nullopt, {}}));
  EXPECT_FALSE(model.table.Define({id, {}, {}, std::nullopt, {}}));
  EXPECT_FALSE(model.table.Define({SmallModel::MakeId(1), u"New", {}, std::nullopt, {}}));
  EXPECT_FALSE(model.table.Define({id, u"Height", u"A", std::nullopt, {}}));
  EXPECT_EQ(model.table.GetCatalog().GetCount(), 10U);
  EXPECT_TRUE(model.table.Define({id, u"Height", {}, std::nullopt, {}}));
}

TEST(FormulaNames, CarryFormulasBetweenTables) {
  Model model;
  ASSERT_FALSE(model.SetFormula(model.formula, "[Width] + [B.Height] + [Side area]"));
  SmallModel other;
  other.Define("B/Height");
  other.Define("A/Height");
  other.Define("Width");
  QX::Expression carried = *model.table.FindFormula(model.formula);
  carried.RestorePropertyReferences(Host::NameGuidMapper(model.table.GetCatalog(), other.table.GetCatalog()));
  const TW::UniString text =
      Host::RenderWithNames(*carried.GetRoot(), other.settings, other.table.GetCatalog()).GetFullString();
  // The area has no counterpart and keeps its GUID, which means another property there.
  EXPECT_EQ(text.ToUtf8(), "[Width] + [B.Height] + [A.Height]");
}

}  // namespace
