#include "BoundedMemory.hpp"
#include "Host/Csv/CsvFile.hpp"
#include "Host/Model/CsvElements.hpp"
#include "Host/Model/ModelTable.hpp"
#include "Host/PropertyTable.hpp"
#include "Host/Rules/RulesDefinition.hpp"
#include "Host/Rules/RulesFile.hpp"
#include "ProblemChecks.hpp"

#include <string>

// Rules as people write them, whole or broken, and what they give for a small model.

namespace {

using Host::PropertyRule;
using Host::RulesFile;

const char Model[] =
    "Class,Tag,Width,Height,Area,Text,Yes\n"
    "IfcWall,W-1,3 m,2.5 m,7 m2,brick,true\n"
    "IfcDoor,D-1,90 cm,210 cm,,,false\n"
    "IfcSlab,S-1,x,,1e999,\"a, b\",1\n";

void CheckRules(const RulesFile& file) {
  const Host::Rules& rules = file.GetRules();
  for (std::size_t i = 0; i < rules.properties.size(); ++i) {
    const PropertyRule& rule = rules.properties[i];
    if (rule.formula) {
      const std::size_t begin = file.FindFormulaUnit(i, 0);
      const std::size_t end = file.FindFormulaUnit(i, rule.formula->GetLength());
      Require(begin <= end && end <= file.GetText().size(), "a formula lies within the text");
    }
    if (file.GetProblems().HasFatal()) continue;
    const int origins = rule.formula.has_value() + !rule.sources.empty() + rule.constant.IsValid();
    Require(origins == 1, "a property has one origin");
    Require(rule.kind || rule.formula, "a property has a kind unless its formula decides");
  }
}

void CheckTable(const RulesFile& file) {
  const Host::Rules& rules = file.GetRules();
  const Host::CsvFile model = Host::CsvFile::FromText(Model);
  Host::PropertyTable table({QX::ExpressionUnitConverter(Host::EvaluationSettings().converter), rules.locale,
                             rules.isUndefinedPropagationEnabled});
  Host::FileProblems problems;
  DefineProperties(file, table, problems);
  CheckProblems(problems, file.GetText());
  // A formula that cannot be taken leaves a property without values.
  if (file.GetProblems().HasFatal() || problems.HasFatal()) return;
  Require(table.GetCatalog().GetCount() == rules.properties.size(), "each rule defines a property");
  const BoundedMemory shortage;
  FillFromSource(table, rules, Host::CsvElements(model, rules.locale));
  table.Recalculate();
  if (problems.HasFatal()) return;
  for (Host::PropertyIndex property = 0; property < rules.properties.size(); ++property) {
    for (Host::ElementIndex element = 0; element < table.GetElementCount(); ++element) {
      Require(table.GetStatus(property, element) != Host::CellStatus::NotComputed, "every cell is computed");
      table.GetFailureReport(property, element, rules.locale);
    }
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const RulesFile file = RulesFile::FromText(text);
  CheckProblems(file.GetProblems(), file.GetText());
  CheckRules(file);
  CheckTable(file);
  return 0;
}
