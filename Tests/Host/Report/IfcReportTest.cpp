#include "Host/Ifc/IfcText.hpp"
#include "Host/Model/IfcElements.hpp"
#include "Host/Report/IfcReport.hpp"
#include "ReportModel.hpp"
#include "Resources/Language.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using Host::IfcKind;
using Host::IfcModel;

class IfcReport : public testing::Test {
 protected:
  void SetUp() override {
    Resources::SetLanguage("en");
    folder_ = std::filesystem::temp_directory_path() / "IfcReportTest";
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directory(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }
  std::string Path(const char* name) const { return (folder_ / name).string(); }

  std::filesystem::path folder_;
};

TEST_F(IfcReport, AddsWhatFormulasComputed) {
  const IfcModel model(Host::StepFile::FromText(IfcText::Wrap(IfcText::House)));
  const Host::IfcElements source(model);
  SmallModel rules;
  const Host::PropertyIndex width = rules.Define("Width", Host::PropertyKind::Length);
  const char* formulas[][2] = {{"Length", "[Width] * 2"},
                               {"Takeoff/Area", "[Width] * 3 m"},
                               {"Takeoff/Moment", "[Width] ^ 4"},
                               {"Takeoff/Angle", "90 D"},
                               {"Count", "LEN(\"abc\")"},
                               {"It's \"<&>\"\n/\U0001F3E0", "CONCAT(\"a'b\", \"\\\\\")"},
                               {"Is wide", "[Width] > 1 m"},
                               {"Unknown", "[Hidden] * 2"},
                               {"Broken", "1 / ([Width] - [Width])"},
                               {"Not chosen", "1"}};
  rules.Define("Hidden", Host::PropertyKind::Volume);
  std::vector<Host::PropertyIndex> properties{width};
  for (const auto& [name, formula] : formulas) properties.push_back(rules.DefineFormula(name, formula));
  properties.pop_back();
  rules.table.AddElements(source.GetCount());
  for (Host::ElementIndex i = 0; i < source.GetCount(); ++i) {
    rules.table.SetInput(width, i, QX::ExpressionValue::FromQuantity(2, QX::UnitExponents::CreateLength()));
  }
  rules.table.Recalculate();
  const Host::DisplayText display(Host::DisplaySettings(), rules.settings);
  const Host::ReportScope scope{rules.table, source, display, {0, 2}, properties};

  ASSERT_EQ(Host::WriteIfcReport(scope, model, Path("first.ifc")), TW::NoErr);
  const IfcModel first = IfcModel::Read(Path("first.ifc"));
  struct Row {
    const char16_t* path;
    IfcKind kind;
    double number;
    const char16_t* text;
  };
  const Row rows[] = {
      {u"Quorix.Length", IfcKind::Length, 4, u""},      {u"Takeoff.Area", IfcKind::Area, 6, u""},
      {u"Takeoff.Moment", IfcKind::Text, 0, u"16 m^4"}, {u"Takeoff.Angle", IfcKind::Angle, 1.5707963267948966, u""},
      {u"Quorix.Count", IfcKind::Integer, 3, u""},      {u"It's \"<&>\"\n.\U0001F3E0", IfcKind::Text, 0, u"a'b\\"},
      {u"Quorix.Is wide", IfcKind::Logical, 0, u""},    {u"Quorix.Unknown", IfcKind::None, 0, u""},
  };
  for (const Row& row : rows) {
    const auto key = first.FindKey(row.path);
    ASSERT_TRUE(key) << TW::UniString(row.path).ToUtf8();
    const Host::IfcValue value = first.FindValue(2, *key).value_or(Host::IfcValue());
    EXPECT_EQ(value.kind, row.kind) << TW::UniString(row.path).ToUtf8();
    EXPECT_NEAR(value.value.GetIntOrNumVariantValue(), row.number, 1e-12);
    EXPECT_EQ(value.value.GetAsString(), row.text);
    EXPECT_EQ(value.value.GetAsBool(), row.kind == IfcKind::Logical);
    EXPECT_FALSE(first.FindValue(1, *key)) << "the element is not chosen";
  }
  for (const char16_t* path : {u"Quorix.Width", u"Quorix.Broken", u"Quorix.Not chosen"}) {
    const auto key = first.FindKey(path);
    EXPECT_FALSE(key && first.FindValue(2, *key)) << TW::UniString(path).ToUtf8();
  }

  ASSERT_EQ(Host::WriteIfcReport(scope, first, Path("second.ifc")), TW::NoErr);
  EXPECT_EQ(IfcModel::Read(Path("second.ifc")).GetFile().GetText(), first.GetFile().GetText());
}

}  // namespace
