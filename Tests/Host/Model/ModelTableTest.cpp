#include "Host/Model/CsvElements.hpp"
#include "Host/Model/ModelTable.hpp"
#include "Host/Rules/RulesDefinition.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

// One letter for the state of each element: `d`efined, `u`ndefined, `f`ailed, `a`bsent, `n`ot computed.
std::string ShowStates(const Host::PropertyTable& table, Host::PropertyIndex property) {
  std::string states;
  for (Host::ElementIndex element = 0; element < table.GetElementCount(); ++element) {
    states += "nafud"[static_cast<std::size_t>(table.GetStatus(property, element))];
  }
  return states;
}

TEST(ModelTable, TakesInputsWhereTheyApply) {
  const Host::RulesFile rules = Host::RulesFile::FromText(R"({"properties": [
{"name": "Width", "kind": "length", "from": ["w", "width"]},
{"name": "Of walls", "kind": "length", "from": "w", "appliesTo": ["IfcWall*"]},
{"name": "Of others", "kind": "text", "from": "@class", "appliesTo": ["*door", "ifcSlab"]},
{"name": "Constant", "kind": "integer", "value": 3, "appliesTo": ["*door"]},
{"name": "Nowhere", "kind": "text", "from": "none"},
{"name": "Doubled", "formula": "2 * [Width]", "appliesTo": ["*wall"]},
{"name": "Refused", "formula": "[None] * 2"}]})");
  ASSERT_FALSE(rules.GetProblems().HasFatal());
  const Host::CsvFile file = Host::CsvFile::FromText(
      "Class,w,width\nIFCWALL,1 m,9 m\nIfcWallPart,,2 m\nIFCDOOR,text,2 m\nIFCSLAB,,\n,1 m2,\n");
  const Host::CsvElements elements(file, rules.GetRules().locale);
  Host::PropertyTable table;
  Host::FileProblems problems;
  DefineProperties(rules, table, problems);
  EXPECT_EQ(problems.GetCount(), 1U);
  FillFromSource(table, rules.GetRules(), elements);
  table.Recalculate();
  const char* const states[] = {"ddfuf", "duaaa", "aadda", "aadaa", "uuuuu", "daaaa", "nnnnn"};
  for (Host::PropertyIndex property = 0; property < std::size(states); ++property) {
    EXPECT_EQ(ShowStates(table, property), states[property]) << table.GetCatalog().Get(property).name.ToUtf8();
  }
  EXPECT_DOUBLE_EQ(table.GetValue(0, 0).GetIntOrNumVariantValue(), 1);
  EXPECT_DOUBLE_EQ(table.GetValue(0, 1).GetIntOrNumVariantValue(), 2);
  EXPECT_DOUBLE_EQ(table.GetValue(5, 0).GetIntOrNumVariantValue(), 2);
}

}  // namespace
