#include "Host/Json/ValueJson.hpp"
#include "Host/NameGuid.hpp"
#include "Host/Problems.hpp"
#include "Host/Rules/RulesFile.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

namespace {

using Host::PropertyRule;
using Host::RulesFile;

std::string WithProperty(const std::string& property) { return "{\"properties\": [\n" + property + "]}"; }

std::string ShowValue(const QX::ExpressionValue& value) {
  std::string json;
  Host::JsonWriter writer(json);
  Host::WriteValue(writer, value);
  return json;
}

TEST(RulesFile, ReadsEverything) {
  const RulesFile file = RulesFile::FromText(
      "\xEF\xBB\xBF"
      R"({
    "units": {"length": {"unit": "mm", "decimals": 0}},
    "locale": {"decimal": ",", "list": ";", "thousand": ""}, "decimals": [1, 3], "propagation": true,
    "properties": [
      {"name": "Width", "kind": "length", "from": ["A.Width", "@tag"], "id": "{01234567-89ab-cdef-0123-456789abcdef}"},
      {"name": "Class", "kind": "text", "from": "@class"},
      {"formula": "[Width] * 1,5", "name": "Größe", "group": "Takeoff", "appliesTo": ["IfcWall*", "IfcSlab"]},
      {"name": "Größe", "value": "2,5 m", "kind": "length"}]})");
  ExpectProblems(file.GetProblems(), {}, "a file without fault");
  const Host::Rules& rules = file.GetRules();
  EXPECT_EQ(rules.locale.GetDecimalSeparator(), u',');
  EXPECT_EQ(rules.locale.GetThousandSeparator(), 0);
  EXPECT_EQ(rules.display.units.length.unit, TWUnit::LengthUnit::Millimeter);
  EXPECT_EQ(rules.display.units.length.decimals, 0);
  EXPECT_EQ(rules.display.minimumDecimals, 1U);
  EXPECT_EQ(rules.display.maximumDecimals, 3U);
  EXPECT_TRUE(rules.isUndefinedPropagationEnabled);
  ASSERT_EQ(rules.properties.size(), 4U);
  EXPECT_EQ(rules.properties[0].id, TW::Guid("01234567-89AB-CDEF-0123-456789ABCDEF"));
  EXPECT_EQ(rules.properties[0].sources, (std::vector<TW::UniString>{u"A.Width", u"@tag"}));
  EXPECT_EQ(rules.properties[1].sources, (std::vector<TW::UniString>{u"@class"}));
  EXPECT_EQ(rules.properties[2].formula, TW::UniString(u"[Width] * 1,5"));
  EXPECT_EQ(rules.properties[2].classPatterns, (std::vector<TW::UniString>{u"IfcWall*", u"IfcSlab"}));
  EXPECT_FALSE(rules.properties[2].kind);
  EXPECT_EQ(ShowValue(rules.properties[3].constant), R"({"kind": "number", "value": 2.5, "length": 1, "angle": 0})");
  // Derived ids follow the name and the group alone.
  EXPECT_EQ(rules.properties[1].id, Host::MakeNameGuid(u"Class"));
  EXPECT_EQ(rules.properties[1].id.ToUniString().ToUtf8()[14], '3');
  EXPECT_NE(rules.properties[2].id, rules.properties[3].id);
}

TEST(RulesFile, TellsEverythingThatIsWrong) {
  struct Row {
    std::string text;
    std::vector<std::string> problems;
  };
  const std::string fine = R"({"name": "A", "kind": "text", "from": "a"})";
  const Row rows[] = {
      // The file.
      {"", {"1:1 The file is empty."}},
      {"{\n \"a\": caf\xE9}", {"2:10 This is no text in UTF-8."}},
      {"\n [1,\n ?]", {"3:2 A value is missing here."}},
      {"{\n\t\"ü\" 1}", {"2:6 A colon is missing here."}},
      {"{\"a\": 1,}", {"1:9 A key is missing here."}},
      {"{\"a\": 1\r\n\"b\": 2}", {"2:1 A comma or a closing brace is missing"}},
      {"[1 2]", {"1:4 A comma or a closing square bracket is missing"}},
      {"[\"a\\d\"]", {"1:4 The backslash and what follows it"}},
      {"[\"a\n\"]", {"1:4 The text is not closed before the line ends."}},
      {"[1.]", {"1:4 The number lacks digits"}},
      {"{} {}", {"1:4 Something stands behind the end"}},
      {"[]", {"1:1 The rules must be an object"}},
      {"{}", {"1:1 There are no properties."}},
      {"{\"properties\": []}", {"1:16 There are no properties."}},
      {"{\"properties\": {}}", {"1:16 \"properties\" must be an array of properties."}},
      // Settings, all at once.
      {"{\"properties\": [" + fine + R"(],
"local": 1, "zzz": 2, "properties": [)" +
           fine + R"(],
"units": {"length": {"unit": "km", "decimals": 1.5, "denominator": 0, "decimal": 2}, "area": 1,
  "volume": {"unit": 3, "denominator": 8}, "weight": 1},
"decimals": [1, -1], "propagation": "yes",
"locale": {"decimal": "..", "list": "", "thousand": 1, "group": ""}})",
       {"2:1 There is no key \"local\" here. Is it meant to be \"locale\"? The keys are: locale, units, decimals,",
        "2:13 There is no key \"zzz\" here. The keys are: locale,",
        "2:23 The key \"properties\" stands here a second time.", "3:30 The unit of \"length\" must be one of m, dm,",
        "3:48 \"decimals\" must be a whole number from 0 to 65535.",
        "3:68 \"denominator\" must be a whole number from 1 to 128.",
        "3:71 There is no key \"decimal\" here. Is it meant to be \"decimals\"?",
        "3:94 \"area\" must be an object with a unit.", "4:22 \"unit\" must be the name of a unit.",
        "4:25 There is no key \"denominator\" here. The keys are: unit, decimals.",
        "4:44 There is no key \"weight\" here.", "5:17 \"decimals\" must be a whole number from 0 to 4294967295.",
        "5:37 \"propagation\" must be true or false.", "6:23 \"decimal\" must be one character.",
        "6:37 \"list\" must be one character.", "6:53 \"thousand\" must be one character.",
        "6:56 There is no key \"group\" here."}},
      {"{\"properties\": [" + fine + "], \"locale\": 1, \"units\": [], \"decimals\": [1]}",
       {"1:72 \"locale\" must be an object of separators.", "1:84 \"units\" must be an object of units.",
        "1:100 \"decimals\" must be two whole numbers"}},
      {"{\"properties\": [" + fine + "], \"locale\": {\"decimal\": \",\"}}",
       {"1:72 The decimal separator is the same as another one."}},
      // Properties.
      {WithProperty("3"), {"2:1 A property must be an object"}},
      {WithProperty(R"({"kind": "text", "from": "a"})"), {"2:1 The property has no name."}},
      {WithProperty(R"({"name": "", "kind": "text", "from": "a"})"), {"2:10 \"name\" must be a text"}},
      {WithProperty(R"({"name": 3, "group": [], "kind": "text", "from": "a"})"),
       {"2:10 \"name\" must be a text", "2:22 \"group\" must be a text"}},
      {WithProperty(R"({"name": "A", "kind": "Text", "from": "a"})"),
       {"2:23 There is no such kind. The kinds are: number, integer, length, area, volume, angle, text, logical."}},
      {WithProperty(R"({"name": "A", "from": "a"})"), {"2:1 The property has no kind."}},
      {WithProperty(R"({"name": "A", "kind": "text"})"), {"2:1 It is not said where the values come from."}},
      {WithProperty(R"({"name": "A", "kind": "text", "value": "x", "formula": "1", "from": "a"})"),
       {"2:69 Only one of the keys"}},
      {WithProperty(R"({"name": "A", "kind": "text", "from": []})"), {"2:39 \"from\" must be a text or an array"}},
      {WithProperty(R"({"name": "A", "kind": "text", "from": ["b", "", 1]})"),
       {"2:45 \"from\" must be a text or an array", "2:49 \"from\" must be a text or an array"}},
      {WithProperty(R"({"name": "A", "kind": "text", "from": "@clas"})"),
       {"2:39 Elements have no @clas. Use one of @class, @name, @globalId,"}},
      {WithProperty(R"({"name": "A", "formula": "", "appliesTo": []})"),
       {"2:26 \"formula\" must be a text", "2:43 \"appliesTo\" must be an array of texts"}},
      {WithProperty(R"({"name": "A", "formula": "1", "appliesTo": "IfcWall"})"),
       {"2:44 \"appliesTo\" must be an array"}},
      {WithProperty(R"({"name": "A", "formula": "1", "appliesTo": ["a", "\u00fc", ""]})"),
       {"2:60 \"appliesTo\" must be"}},
      {WithProperty(R"({"name": "A", "formula": "1", "id": "0123"})"), {"2:37 This is no GUID."}},
      {WithProperty(R"({"name": "A", "formula": "1", "id": "00000000-0000-0000-0000-000000000000"})"),
       {"2:37 This is no GUID."}},
      {WithProperty(R"({"name": "A", "formula": "1", "Formula": "2"})"),
       {"2:31 There is no key \"Formula\" here. Is it meant to be \"formula\"?"}},
      {WithProperty(
           R"({"name": "A", "formula": "1"}, {"name": "A", "formula": "1"}, {"name": "A", "group": "G", "formula": "1"})"),
       {"2:41 There is a property \"A\" before."}},
      {WithProperty(R"({"name": "A", "formula": "1", "id": "01234567-89ab-cdef-0123-456789abcdef"},
{"name": "B", "formula": "1", "id": "01234567-89AB-CDEF-0123-456789ABCDEF"})"),
       {"3:37 The property has the same id as \"A\"."}},
      {WithProperty(R"({"name": "\u00e9", "formula": "1"}, {"name": "e\u0301", "formula": "1"})"),
       {"2:46 The property has the same id as \"é\"."}},
  };
  Resources::SetLanguage("en");
  for (const Row& row : rows) {
    const RulesFile file = RulesFile::FromText(row.text);
    EXPECT_TRUE(file.GetProblems().HasFatal()) << row.text;
    ExpectProblems(file.GetProblems(), row.problems, row.text);
  }
}

TEST(RulesFile, ReadsConstants) {
  struct Row {
    const char* kind;
    const char* json;
    const char* value;  // null when the constant is refused
  };
  const Row rows[] = {
      {"logical", "true", R"({"kind": "logical", "value": true})"},
      {"logical", "\"false\"", R"({"kind": "logical", "value": false})"},
      {"logical", "1", nullptr},
      {"text", "\"3.5 m\"", R"({"kind": "text", "value": "3.5 m"})"},
      {"text", "\"\"", R"({"kind": "text", "value": ""})"},
      {"text", "1", nullptr},
      {"length", "-2.5", R"({"kind": "number", "value": -2.5, "length": 1, "angle": 0})"},
      {"length", "\"-50 cm\"", R"({"kind": "number", "value": -0.5, "length": 1, "angle": 0})"},
      {"length", "\"50\"", nullptr},
      {"length", "\"1 m2\"", nullptr},
      {"length", "\"[Width]\"", nullptr},
      {"length", "\"1 m + 1 m\"", nullptr},
      {"angle", "\"180 D\"", R"({"kind": "number", "value": 3.141592653589793, "length": 0, "angle": 1})"},
      {"integer", "3.0", R"({"kind": "integer", "value": 3})"},
      {"integer", "3.5", nullptr},
      {"integer", "1e300", nullptr},
      {"number", "3", R"({"kind": "number", "value": 3, "length": 0, "angle": 0})"},
      {"number", "null", nullptr},
      {"number", "[]", nullptr},
  };
  for (const Row& row : rows) {
    const std::string property =
        std::string(R"({"name": "A", "kind": ")") + row.kind + R"(", "value": )" + row.json + "}";
    const RulesFile file = RulesFile::FromText(WithProperty(property));
    EXPECT_EQ(file.GetProblems().HasFatal(), row.value == nullptr) << property;
    if (row.value == nullptr || file.GetProblems().HasFatal()) continue;
    EXPECT_EQ(ShowValue(file.GetRules().properties[0].constant), row.value) << property;
  }
}

TEST(RulesFile, CountsWhatItDoesNotKeep) {
  std::string text = "{\"properties\": [";
  for (int i = 0; i < 1000; ++i) text += "1,\n";
  const RulesFile file = RulesFile::FromText(text + "2]}");
  EXPECT_EQ(file.GetProblems().GetCount(), 1001U);
  EXPECT_EQ(file.GetProblems().GetList().back().line, 100U);
}

TEST(RulesFile, CannotBeReadFromNowhere) {
  Resources::SetLanguage("en");
  for (const char* path : {"/nowhere/rules.json", "/"}) {
    ExpectProblems(RulesFile::Read(path).GetProblems(), {"0:0 The file cannot be read."}, path);
  }
}

}  // namespace
