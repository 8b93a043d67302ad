#include "Host/Model/CsvElements.hpp"
#include "Host/Model/ModelTable.hpp"
#include "Host/Problems.hpp"
#include "Host/Rules/RulesDefinition.hpp"

#include <gtest/gtest.h>

namespace {

using Host::RulesFile;

// Puts formulas into properties A, B and so on, one a line.
std::string MakeRules(const std::vector<std::string>& formulas) {
  std::string text = "{\"properties\": [\n";
  char name = 'A';
  for (const std::string& formula : formulas) {
    text += std::string(name == 'A' ? "" : ",\n") + "{\"name\": \"" + name + "\", \"formula\": \"" + formula + "\"}";
    ++name;
  }
  return text + "\n]}";
}

TEST(RulesDefinition, TellsWhichFormulasAreWrongAndWhere) {
  struct Row {
    std::vector<std::string> formulas;
    std::vector<std::string> problems;
  };
  // A formula begins in column 27.
  const Row rows[] = {
      {{"[C] + 1", "2", "[B]"}, {}},
      {{"1 +", "FOO(1)", "[None] * 2", "[A] + [B] + [C]", "3"},
       {"2:30 The formula ends too early.", "3:27 ", "4:27 There is no property [None]."}},
      {{"[B]", "[C] + 1", "1 + [A]"}, {"4:31 The property would depend on itself: [C] → [A] → [B] → [C]."}},
      {{"[A]"}, {"2:27 The property would depend on itself: [A] → [A]."}},
      {{"[A]", "[B]"}, {"2:27 ", "3:27 "}},
      // Escapes take more characters in the file than in the formula.
      {{R"(LEN(\"a\") + [X])"}, {"2:40 There is no property [X]."}},
      {{R"(LEN(\"\u00fcü\uD83D\uDE00😀\") + [X])"}, {"2:59 There is no property [X]."}},
      {{R"(\t1\/1 + [\\])"}, {"2:36 This reference is not closed."}},
      {{R"(1 +\n)"}, {"2:32 The formula ends too early."}},
  };
  Resources::SetLanguage("en");
  for (const Row& row : rows) {
    const std::string text = MakeRules(row.formulas);
    const RulesFile file = RulesFile::FromText(text);
    ASSERT_FALSE(file.GetProblems().HasFatal()) << text;
    Host::PropertyTable table;
    Host::FileProblems problems;
    DefineProperties(file, table, problems);
    ExpectProblems(problems, row.problems, text);
    EXPECT_EQ(table.GetCatalog().GetCount(), row.formulas.size()) << text;
  }
}

TEST(RulesDefinition, LooksAtTheFormulasOfABrokenFile) {
  const RulesFile file = RulesFile::FromText(R"({"properties": [
{"name": "A", "kind": "size", "from": "a"},
{"name": "B", "formula": "1", "id": "0c9d2d27-6d9a-4e65-a2ff-6a3b0f1e6a11"},
{"name": "C", "formula": "1", "id": "0c9d2d27-6d9a-4e65-a2ff-6a3b0f1e6a11"},
{"name": "D", "formula": "[A] + [B] + [C] + [X]"}]})");
  Host::FileProblems problems = file.GetProblems();
  Host::PropertyTable table;
  DefineProperties(file, table, problems);
  Resources::SetLanguage("en");
  ExpectProblems(problems, {"2:23 ", "4:37 ", "5:45 There is no property [X]."}, "a broken file");

  const RulesFile separators = RulesFile::FromText(
      R"json({"locale": {"list": ".."}, "properties": [{"name": "A", "formula": "SUM(1; 2)"}]})json");
  Host::FileProblems none;
  Host::PropertyTable other;
  DefineProperties(separators, other, none);
  EXPECT_EQ(none.GetCount(), 0U) << "with other separators the formula may be right";
}

TEST(RulesDefinition, TakesTheExample) {
  const RulesFile file = RulesFile::Read(QX_EXAMPLE_MODEL "/takeoff.json");
  Host::FileProblems problems = file.GetProblems();
  Host::PropertyTable table;
  DefineProperties(file, table, problems);
  ExpectProblems(problems, {}, "the rules");

  const Host::CsvFile csv = Host::CsvFile::Read(QX_EXAMPLE_MODEL "/house.csv");
  ExpectProblems(csv.GetProblems(), {}, "the table");
  Host::FillFromSource(table, file.GetRules(), Host::CsvElements(csv, file.GetRules().locale));
  table.Recalculate();
  const Host::PropertyIndex volume = table.GetCatalog().FindByName(u"Net volume")[0];
  EXPECT_NEAR(table.GetValue(volume, 0).GetIntOrNumVariantValue(), 18.33 * 0.365, 1e-9);
}

TEST(RulesDefinition, SpeaksGerman) {
  Resources::SetLanguage("de");
  const RulesFile file = RulesFile::FromText(
      R"({"properties": [{"name": "A", "formula": "[X]", "appliesTo": 1}, {"nam": "B", "formula": "1"}]})");
  Host::FileProblems problems = file.GetProblems();
  Host::PropertyTable table;
  DefineProperties(file, table, problems);
  ExpectProblems(
      problems,
      {"1:43 Es gibt keine Eigenschaft [X].", "1:62 „appliesTo“ muss ein Array von Texten sein, die nicht leer sind.",
       "1:66 Die Eigenschaft hat keinen Namen.",
       "1:67 Den Schlüssel „nam“ gibt es hier nicht. Ist „name“ gemeint? Die Schlüssel sind: name, group,"},
      "a German file");
  Resources::SetLanguage("en");
}

}  // namespace
