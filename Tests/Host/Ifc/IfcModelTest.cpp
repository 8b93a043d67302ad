#include "Host/Ifc/IfcModel.hpp"
#include "IfcText.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <numbers>
#include <string>

namespace {

using Host::IfcKind;
using Host::IfcModel;
using Host::IfcValue;

IfcModel MakeModel(std::string_view data, std::string_view schema = "IFC4") {
  return IfcModel(Host::StepFile::FromText(IfcText::Wrap(data, schema)));
}

TEST(IfcModel, ReadsElements) {
  struct Row {
    const char* className;
    const char16_t* globalId;
    const char16_t* name;
    const char16_t* tag;
    const char16_t* type;
    const char16_t* storey;
  };
  const Row rows[] = {
      {"IFCWALL", u"wall1", u"Wall ä", u"T1", u"Brick", u"Ground"},
      {"IFCWALL", u"wall2", u"", u"T2", u"Own 'type'", u""},
      {"IFCDOOR", u"door", u"Door", u"", u"Brick", u"First"},
      {"IFCDOOR", u"part", u"Part", u"", u"", u"First"},
  };
  const IfcModel model = MakeModel(IfcText::House);
  ASSERT_EQ(model.GetElementCount(), std::size(rows));
  for (IfcModel::Element i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(model.GetClass(i), rows[i].className);
    EXPECT_EQ(model.GetGlobalId(i), TW::UniString(rows[i].globalId));
    EXPECT_EQ(model.GetName(i), TW::UniString(rows[i].name));
    EXPECT_EQ(model.GetTag(i), TW::UniString(rows[i].tag));
    EXPECT_EQ(model.GetTypeName(i), TW::UniString(rows[i].type));
    EXPECT_EQ(model.GetStorey(i), TW::UniString(rows[i].storey));
  }
}

struct ValueRow {
  IfcModel::Element element;
  const char16_t* path;
  IfcKind kind;
  double number;
  const char16_t* text = u"";
};

TEST(IfcModel, ReadsValuesInBaseUnits) {
  const ValueRow rows[] = {
      {0, u"Pset.A.Length", IfcKind::Length, 1.5},
      {0, u"Pset.A.Inches", IfcKind::Length, 0.0508},
      {0, u"Pset.A.Area", IfcKind::Area, 9.290304},
      {0, u"Pset.A.Square metres", IfcKind::Area, 100},
      {0, u"Pset.A.Volume", IfcKind::Volume, 0.25},
      {0, u"Pset.A.Angle", IfcKind::Angle, std::numbers::pi},
      {0, u"Pset.A.Real", IfcKind::Number, -0.0015},
      {0, u"Pset.A.Ratio", IfcKind::Number, 2},
      {0, u"Pset.A.Integer", IfcKind::Integer, -7},
      {0, u"Pset.A.Large", IfcKind::Number, 3e9},
      {0, u"Pset.A.Label", IfcKind::Text, 0, u"it's"},
      {0, u"Pset.A.Nothing", IfcKind::None, 0},
      {0, u"Pset.A.One", IfcKind::Text, 0, u"NEW"},
      {0, u"Pset.A.Several", IfcKind::Text, 0, u"NEW;OLD"},
      {0, u"Pset.A.List", IfcKind::Text, 0, u"1.5;2."},
      {0, u"Pset.A.Bounded", IfcKind::Length, 0.1016},
      {0, u"Pset.A.Wrong unit", IfcKind::Length, 1},
      {0, u"Pset.A.Second", IfcKind::Text, 0, u"of the type"},
      {0, u"FromType.Third", IfcKind::Integer, 3},
      {2, u"FromType.Third", IfcKind::Integer, 3},
      {2, u"Pset.A.Length", IfcKind::Length, 1.5},
      {2, u"Qto.Width", IfcKind::Length, 0.2},
      {2, u"Qto.Area", IfcKind::Area, 0.9290304},
      {2, u"Qto.Volume", IfcKind::Volume, 1},
      {2, u"Qto.Count", IfcKind::Integer, 4},
      {2, u"Qto.Weight", IfcKind::Number, 12.5},
      {2, u"Qto.Time", IfcKind::Number, 60},
      {2, u"Qto.Inches", IfcKind::Length, 0.254},
  };
  const IfcModel model = MakeModel(IfcText::House);
  for (const ValueRow& row : rows) {
    const auto key = model.FindKey(row.path);
    ASSERT_TRUE(key) << TW::UniString(row.path).ToUtf8();
    const TW::Optional<IfcValue> found = model.FindValue(row.element, *key);
    ASSERT_TRUE(found) << TW::UniString(row.path).ToUtf8();
    EXPECT_EQ(found->kind, row.kind) << TW::UniString(row.path).ToUtf8();
    EXPECT_DOUBLE_EQ(found->value.GetIntOrNumVariantValue(), row.number) << TW::UniString(row.path).ToUtf8();
    EXPECT_EQ(found->value.GetAsString(), TW::UniString(row.text));
    EXPECT_EQ(found->value.IsValid(), row.kind != IfcKind::None);
  }
}

TEST(IfcModel, ReadsLogicalValues) {
  const IfcModel model = MakeModel(IfcText::House);
  const IfcValue known = *model.FindValue(0, *model.FindKey(u"Pset.A.True"));
  const IfcValue unknown = *model.FindValue(0, *model.FindKey(u"Pset.A.Unknown"));
  EXPECT_EQ(known.kind, IfcKind::Logical);
  EXPECT_TRUE(known.value.GetAsBool());
  EXPECT_EQ(unknown.kind, IfcKind::Logical);
  EXPECT_TRUE(unknown.value.IsBool() && unknown.value.IsUserUndefined());
}

TEST(IfcModel, FindsOnlyWhatAnElementHas) {
  const IfcModel model = MakeModel(IfcText::House);
  for (const char16_t* path : {u"Pset.A", u"Nothing.Length", u"Pset.A.Reference", u"Qto.Complex", u"", u"."})
    EXPECT_FALSE(model.FindKey(path)) << TW::UniString(path).ToUtf8();
  EXPECT_FALSE(model.FindProperty(2, *model.FindKey(u"Pset.A.Real")));
  EXPECT_FALSE(model.FindProperty(1, *model.FindKey(u"FromType.Third")));
  const unsigned int counts[] = {28, 0, 10, 0};
  for (IfcModel::Element i = 0; i < 4; ++i) {
    unsigned int count = 0;
    model.ForEachProperty(i, [&](IfcModel::Key key, IfcModel::Place place) {
      EXPECT_EQ(model.FindProperty(i, key), place);
      ++count;
    });
    EXPECT_EQ(count, counts[i]) << i;
  }
}

TEST(IfcModel, TellsWhatIsMissing) {
  const std::string noUnits =
      "The project has no unit of length|The project has no unit of area|The project has no unit of volume|"
      "The project has no unit of angle";
  const std::pair<std::string, std::string> rows[] = {
      {std::string(IfcText::House), ""},
      {"", noUnits},
      {"#1=IFCRELDEFINESBYPROPERTIES('',$,$,$,(#7,#1),#8);",
       noUnits + "|line 7: #1: The instance refers to one that is "
                 "not there|line 7: #1: The instance refers to one that is not there"},
      {"#1=IFCRELDEFINESBYTYPE('',$,$,$,(#1%),#1);", noUnits + "|line 7: #1: The instance is broken"},
  };
  for (const auto& [data, messages] : rows) {
    EXPECT_EQ(IfcText::ShowMessages(MakeModel(data).GetMessages()), messages);
  }
  EXPECT_EQ(MakeModel(IfcText::House, "CONFIG_CONTROL_DESIGN").GetMessages().GetCount(), 1U);
}

}  // namespace
