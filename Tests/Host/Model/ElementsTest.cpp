#include "Host/Ifc/IfcText.hpp"
#include "Host/Model/CsvElements.hpp"
#include "Host/Model/ElementSearch.hpp"
#include "Host/Model/IfcElements.hpp"
#include "Host/Model/InputReader.hpp"
#include "Host/Problems.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

using Host::ElementAttribute;
using Host::ElementSource;
using Host::PropertyKind;
using Value = TW::Optional<QX::ExpressionValue>;

const QX::EvaluationLocaleSettings Settings{u'.', u',', u','};

// `-` for nothing, `!` for an invalid value.
std::string Show(const Value& value) {
  if (!value) return "-";
  if (!value->IsValid()) return "!";
  if (value->IsUserUndefined()) return "undefined";
  if (value->IsString()) return value->GetAsString().ToUtf8();
  if (value->IsBool()) return value->GetAsBool() ? "TRUE" : "FALSE";
  std::ostringstream number;
  number << value->GetIntOrNumVariantValue();
  return number.str();
}

Host::IfcModel MakeHouse() { return Host::IfcModel(Host::StepFile::FromText(IfcText::Wrap(IfcText::House))); }

TEST(IfcElements, ReadWhatFitsTheKind) {
  struct Row {
    Host::ElementIndex element;
    const char16_t* source;
    PropertyKind kind;
    const char* value;
  };
  const Row rows[] = {
      {0, u"Pset.A.Length", PropertyKind::Length, "1.5"},  {0, u"Pset.A.Length", PropertyKind::Number, "!"},
      {0, u"Pset.A.Length", PropertyKind::Area, "!"},      {0, u"Pset.A.Length", PropertyKind::Text, "!"},
      {0, u"Pset.A.Integer", PropertyKind::Integer, "-7"}, {0, u"Pset.A.Integer", PropertyKind::Number, "-7"},
      {0, u"Pset.A.Ratio", PropertyKind::Integer, "2"},    {0, u"Pset.A.Real", PropertyKind::Integer, "!"},
      {0, u"Pset.A.Large", PropertyKind::Integer, "!"},    {0, u"Pset.A.Label", PropertyKind::Text, "it's"},
      {0, u"Pset.A.Label", PropertyKind::Length, "!"},     {0, u"Pset.A.True", PropertyKind::Logical, "TRUE"},
      {0, u"Pset.A.True", PropertyKind::Text, "!"},        {0, u"Pset.A.Unknown", PropertyKind::Logical, "undefined"},
      {0, u"Pset.A.Nothing", PropertyKind::Text, "-"},     {1, u"Pset.A.Length", PropertyKind::Length, "-"},
      {2, u"Qto.Width", PropertyKind::Length, "0.2"},      {2, u"FromType.Third", PropertyKind::Integer, "3"},
      {2, u"Pset.A.Real", PropertyKind::Number, "-"},
  };
  const Host::IfcModel model = MakeHouse();
  const Host::IfcElements elements(model);
  for (const Row& row : rows) {
    const auto source = elements.FindSource(row.source);
    ASSERT_TRUE(source) << TW::UniString(row.source).ToUtf8();
    EXPECT_EQ(Show(elements.Read(row.element, *source, row.kind)), row.value) << TW::UniString(row.source).ToUtf8();
  }
  EXPECT_FALSE(elements.FindSource(u"Length"));
  EXPECT_FALSE(elements.FindSource(u"@name"));
}

TEST(IfcElements, HaveAttributes) {
  const Host::IfcModel model = MakeHouse();
  const Host::IfcElements elements(model);
  ASSERT_EQ(elements.GetCount(), 4U);
  const char16_t* const expected[] = {u"IFCWALL", u"Wall \u00E4", u"wall1", u"Brick", u"Ground", u"T1"};
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(elements.GetAttribute(0, static_cast<ElementAttribute>(i)), TW::UniString(expected[i])) << i;
  }
}

TEST(IfcElements, TellTheProblemsOfTheFile) {
  Resources::SetLanguage("en");
  const Host::IfcModel broken(Host::StepFile::FromText(IfcText::Wrap("#1=IFCRELDEFINESBYTYPE('',$,$,$,(#1%),#1);\n")));
  ExpectProblems(Host::IfcElements(broken).GetProblems(),
                 {"0:0 The project has no unit of length.", "0:0 The project has no unit of area.",
                  "0:0 The project has no unit of volume.", "0:0 The project has no unit of angle.",
                  "7:0 #1: The instance is broken."},
                 "a broken relation");
  EXPECT_FALSE(Host::IfcElements(broken).GetProblems().HasFatal());
  const Host::IfcModel nothing(Host::StepFile::FromText("no model"));
  EXPECT_TRUE(Host::IfcElements(nothing).GetProblems().HasFatal());
}

TEST(ElementSearch, PrefersTheIdToTheNameToTheTag) {
  const Host::CsvFile file = Host::CsvFile::FromText(
      "GlobalId,Name,Tag\nid0,door,T0\nid1,wall,T1\nid2,wall,door\nid3,id0,wall\nid4,Wall,T1\n");
  const Host::CsvElements elements(file, Settings);
  const std::pair<const char16_t*, std::vector<Host::ElementIndex>> rows[] = {
      {u"id0", {0}},   {u"id3", {3}}, {u"wall", {1, 2}}, {u"door", {0}},
      {u"T1", {1, 4}}, {u"T0", {0}},  {u"none", {}},     {u"ID0", {}},
  };
  for (const auto& [text, found] : rows) {
    EXPECT_EQ(Host::FindElements(elements, text), found) << TW::UniString(text).ToUtf8();
  }
}

TEST(InputReader, TakesTheFirstSourceThatTheElementHas) {
  const Host::CsvFile file =
      Host::CsvFile::FromText("Name,Tag,a,b\nn,t,1 m,2 m\nn,,,2 m\nn,t,wrong,2 m\n,t,,\n7,,  ,wrong\n");
  const Host::CsvElements elements(file, Settings);
  struct Row {
    PropertyKind kind;
    std::vector<TW::UniString> sources;
    std::vector<std::string> values;   // of each element
    std::vector<std::string> origins;  // the source that each value is from
  };
  const Row rows[] = {
      {PropertyKind::Length, {u"a", u"b"}, {"1", "2", "!", "-", "!"}, {"a", "b", "a", "-", "b"}},
      {PropertyKind::Length, {u"b", u"a"}, {"2", "2", "2", "-", "!"}, {"b", "b", "b", "-", "b"}},
      {PropertyKind::Length, {u"none", u"b"}, {"2", "2", "2", "-", "!"}, {"b", "b", "b", "-", "b"}},
      {PropertyKind::Length, {u"none"}, {"-", "-", "-", "-", "-"}, {"-", "-", "-", "-", "-"}},
      {PropertyKind::Text, {u"@tag", u"@name"}, {"t", "n", "t", "t", "7"}, {"@tag", "@name", "@tag", "@tag", "@name"}},
      {PropertyKind::Text, {u"@storey", u"a"}, {"1 m", "-", "wrong", "-", "  "}, {"a", "-", "a", "-", "a"}},
      {PropertyKind::Integer, {u"@name"}, {"!", "!", "!", "-", "!"}, {"@name", "@name", "@name", "-", "@name"}},
  };
  for (const Row& row : rows) {
    Host::PropertyRule rule;
    rule.kind = row.kind;
    rule.sources = row.sources;
    const Host::InputReader reader(rule, elements);
    for (Host::ElementIndex element = 0; element < file.GetRowCount(); ++element) {
      const std::string where = row.sources[0].ToUtf8() + " of " + std::to_string(element);
      EXPECT_EQ(Show(reader.Read(element)), row.values[element]) << where;
      const TW::UniString* const origin = reader.FindOrigin(element);
      EXPECT_EQ(origin == nullptr ? "-" : origin->ToUtf8(), row.origins[element]) << where;
    }
  }
}

}  // namespace
