#include "Host/Display/DisplayText.hpp"
#include "Host/Model/CsvElements.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

namespace {

using Host::CsvElements;
using Host::CsvFile;
using Host::ElementAttribute;
using Host::PropertyKind;

const QX::EvaluationLocaleSettings German{u',', u';', u'.'};

TEST(CsvElements, HaveAttributes) {
  const CsvFile file = CsvFile::FromText("@globalid,CLASS,tag,Name,class\n1,IfcWall,T,Wall,other\n2\n");
  const CsvElements elements(file, German);
  ASSERT_EQ(elements.GetCount(), 2U);
  EXPECT_EQ(elements.GetAttribute(0, ElementAttribute::Class), u"IfcWall");
  EXPECT_EQ(elements.GetAttribute(0, ElementAttribute::GlobalId), u"1");
  EXPECT_EQ(elements.GetAttribute(0, ElementAttribute::Name), u"Wall");
  EXPECT_EQ(elements.GetAttribute(0, ElementAttribute::Tag), u"T");
  EXPECT_EQ(elements.GetAttribute(0, ElementAttribute::Storey), u"");
  EXPECT_EQ(elements.GetAttribute(1, ElementAttribute::Class), u"");
  EXPECT_TRUE(elements.FindSource(u"class"));
  EXPECT_FALSE(elements.FindSource(u"Class"));
}

TEST(CsvElements, ReadLiterals) {
  struct Row {
    const char* cell;
    PropertyKind kind;
    const char* value;  // `-` for nothing, `!` for an invalid value
  };
  const Row rows[] = {
      {"\"3,5 m\"", PropertyKind::Length, "3,50\u00A0m"},
      {"-50 cm", PropertyKind::Length, "−0,50\u00A0m"},
      {"50", PropertyKind::Length, "!"},
      {"0", PropertyKind::Length, "!"},
      {"3.5 m", PropertyKind::Length, "!"},
      {"2 m", PropertyKind::Area, "!"},
      {"2 m2", PropertyKind::Area, "2,00\u00A0m²"},
      {"", PropertyKind::Length, "-"},
      {"  ", PropertyKind::Length, "-"},
      {"12", PropertyKind::Number, "12"},
      {"\"1,25\"", PropertyKind::Number, "1,25"},
      {"\"12,0\"", PropertyKind::Integer, "12"},
      {"\"12,5\"", PropertyKind::Integer, "!"},
      {"true", PropertyKind::Logical, "TRUE"},
      {"ja", PropertyKind::Logical, "!"},
      {"12", PropertyKind::Text, "12"},
      {"=1+1", PropertyKind::Text, "=1+1"},
      {"  ", PropertyKind::Text, "  "},
      {"1+1", PropertyKind::Number, "!"},
      {"[a]", PropertyKind::Number, "!"},
  };
  const Host::DisplayText display({}, German);
  for (const Row& row : rows) {
    const CsvFile file = CsvFile::FromText(std::string("x,a\nx,") + row.cell);
    const CsvElements elements(file, German);
    const auto value = elements.Read(0, *elements.FindSource(u"a"), row.kind);
    const std::string shown = !value ? "-" : !value->IsValid() ? "!" : display.Make(*value).ToUtf8();
    EXPECT_EQ(shown, row.value) << row.cell;
  }
}

}  // namespace
