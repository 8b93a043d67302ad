#include "Host/Csv/CsvFile.hpp"
#include "Host/Model/CsvElements.hpp"
#include "Host/Model/ModelTable.hpp"
#include "Host/Report/CellReport.hpp"
#include "Host/Report/CsvReport.hpp"
#include "Host/Report/FailureList.hpp"
#include "Host/Report/GraphReport.hpp"
#include "Host/Report/JsonReport.hpp"
#include "Host/Report/TableReport.hpp"
#include "Host/Rules/RulesDefinition.hpp"
#include "Shortage.hpp"

#include <numeric>

namespace {

using Host::CsvFile;
using Host::FileProblems;
using Host::PropertyTable;
using Host::RulesFile;

// Everything that rules may hold, and a property of each outcome.
const std::string GoodRules = R"json({
  "locale": {"decimal": ",", "list": ";", "thousand": "."},
  "properties": [
    {"name": "Width of the wall", "group": "Sizes", "kind": "length", "from": ["Breadth", "Width"]},
    {"name": "Height of the wall", "group": "Sizes", "kind": "length", "from": "Height"},
    {"name": "Tag", "kind": "text", "from": "Tag", "appliesTo": ["IfcWall*", "IfcDoor"]},
    {"name": "Rate of the material", "kind": "number", "value": "12,5"},
    {"name": "Face", "formula": "[Width of the wall] * [Height of the wall]"},
    {"name": "Cost", "formula": "IF([Face] > 1 m2; [Face] / 1 m2 * [Rate of the material]; 0)"
},
    {"name": "Label", "formula": "CONCAT([Tag]; \": \"; STR([Cost]))"},
    {"name": "Slenderness", "formula": "[Height of the wall] / [Width of the wall]"}
  ]
})json";

const std::string BadRules = R"json({
  "colour": "red",
  "properties": [
    {"name": "Width of the wall", "kind": "breadth"},
    {"name": "Width of the wall", "kind": "length", "from": "Width"},
    {"name": "Sum of everything", "formula": "1 + + [Who would know this]"}
  ]
})json";

const std::string Elements =
    "Class;Name;Tag;Width;Height\n"
    "IfcWall;A wall of the cellar;W-1;3 m;2,5 m\n"
    "IfcDoor;\"A door; of glass\";D-1;0 m;2,1 m\n"
    "IfcSlab;The slab;S-1;wide;2,1 m\n"
    "IfcWallStandardCase;;W-2;;2,1 m\n";

std::string Show(const FileProblems& problems) {
  std::string text;
  for (const Host::FileProblem& problem : problems.GetList()) {
    text += std::to_string(problem.line) + ":" + std::to_string(problem.column) + " " + problem.message.ToUtf8() + "\n";
  }
  return text;
}

// A run over rules and elements, as people start it.
struct ModelRun {
  explicit ModelRun(const std::string& rulesText)
      : rules(RulesFile::FromText(rulesText)), csv(CsvFile::FromText(Elements)) {
    DefineProperties(rules, table, problems);
    if (!rules.GetProblems().HasFatal() && !problems.HasFatal()) {
      FillFromSource(table, rules.GetRules(), source);
      table.Recalculate();
    }
  }

  Host::ReportScope MakeScope() const {
    Host::ReportScope scope{table, source, display, {}, {}};
    scope.elements.resize(table.GetElementCount());
    std::iota(scope.elements.begin(), scope.elements.end(), 0U);
    scope.properties.resize(table.GetCatalog().GetCount());
    std::iota(scope.properties.begin(), scope.properties.end(), 0U);
    return scope;
  }

  RulesFile rules;
  CsvFile csv;
  FileProblems problems;
  PropertyTable table{Host::EvaluationSettings{.locale = rules.GetRules().locale}};
  Host::CsvElements source{csv, rules.GetRules().locale};
  Host::DisplayText display{Host::DisplaySettings(), rules.GetRules().locale};
};

OperationRow MakeRun(const std::string& name, const std::string& rules) {
  return {name, [rules] {
            return Operation{[rules] {
              ModelRun run(rules);
              // A cell that found no memory has failed, and is computed the next time.
              FailingMemory::Allow();
              run.table.Recalculate();
              std::string text = Show(run.rules.GetProblems()) + Show(run.csv.GetProblems()) + Show(run.problems);
              Host::WriteJsonReport(run.MakeScope(), Host::MakeSummary(run.MakeScope()),
                                    [&](std::string_view piece) { text += piece; });
              return text;
            }};
          }};
}

TEST(ModelMemory, RunsEndWithEverythingOrWithoutMemory) {
  ASSERT_NE(MakeRun("", BadRules).make().run().find("Who would know this"), std::string::npos);
  ASSERT_NE(MakeRun("", GoodRules).make().run().find("W-1: 93,75"), std::string::npos);
  ExpectToSurviveShortage({MakeRun("good rules", GoodRules), MakeRun("bad rules", BadRules)});
}

TEST(ModelMemory, BrokenTablesAreRefusedOrWithoutMemory) {
  const auto makeRead = [](const std::string& name, const std::string& text) {
    return OperationRow{name, [text] {
                          return Operation{[text] {
                            const CsvFile file = CsvFile::FromText(text);
                            return std::to_string(file.GetRowCount()) + "\n" + Show(file.GetProblems());
                          }};
                        }};
  };
  ExpectToSurviveShortage({
      makeRead("a ragged row", "Class;Name\nIfcWall;A wall;too much\nIfcDoor\n"),
      makeRead("an open quotation mark", "Class;Name\nIfcWall;\"A wall of the cellar\n"),
      makeRead("a column twice", "Class;Name;Name\nIfcWall;A wall;Another\n"),
      makeRead("not UTF-8", "Class;Name\nIfcWall;A w\xFFll\n"),
  });
}

TEST(ModelMemory, ReportsAreWrittenWholeOrEndWithoutMemory) {
  using Write = std::function<void(const Host::ReportScope&, const Host::ReportSink&)>;
  const auto run = std::make_shared<ModelRun>(GoodRules);
  const auto makeReport = [run](const std::string& name, const Write& write) {
    return OperationRow{name, [run, write] {
                          const auto scope = std::make_shared<Host::ReportScope>(run->MakeScope());
                          return Operation{[scope, write] {
                            std::string text;
                            write(*scope, [&](std::string_view piece) { text += piece; });
                            return text;
                          }};
                        }};
  };
  const Host::OriginText origin = [](Host::PropertyIndex, Host::ElementIndex) { return TW::UniString(u"a source"); };
  ExpectToSurviveShortage({
      makeReport("a table",
                 [](const Host::ReportScope& scope, const Host::ReportSink& sink) {
                   Host::FailureGroups failures(scope);
                   Host::WriteTable(scope, failures, {.columns = 60, .maximumElements = 3}, sink);
                   Host::WriteFailureList(scope, failures, sink);
                   Host::WriteSummary(Host::MakeSummary(scope), sink);
                 }),
      makeReport("CSV", Host::WriteCsvReport),
      makeReport("a graph", Host::WriteDotGraph),
      makeReport("a drawing", Host::WriteSvgGraph),
      makeReport("an explanation",
                 [origin](const Host::ReportScope& scope, const Host::ReportSink& sink) {
                   for (const Host::ElementIndex element : scope.elements)
                     Host::WriteCellReport(scope, 6, element, origin, sink);
                 }),
  });
}

}  // namespace
