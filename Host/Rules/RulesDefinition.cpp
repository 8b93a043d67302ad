#include "Host/Rules/RulesDefinition.hpp"

#include <utility>

namespace Host {

void DefineProperties(const RulesFile& file, PropertyTable& table, FileProblems& problems) {
  const std::vector<PropertyRule>& rules = file.GetRules().properties;
  for (const PropertyRule& rule : rules) table.Define({rule.id, rule.name, rule.group, rule.kind, rule.classPatterns});
  if (!file.HasSeparators()) return;
  TextPlaceFinder places(file.GetText());
  for (PropertyIndex property = 0; property < rules.size(); ++property) {
    if (!rules[property].formula) continue;
    auto error = table.SetFormula(property, *rules[property].formula, file.GetRules().locale);
    if (!error) continue;
    const TextPlace place = places.Find(file.FindFormulaUnit(property, error->range.begin));
    problems.Add({place.line, place.column, std::move(error->message), true});
  }
  problems.SortByPlace();
}

}  // namespace Host
