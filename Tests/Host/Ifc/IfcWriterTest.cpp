#include "Host/Ifc/IfcGlobalId.hpp"
#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/IfcWriter.hpp"
#include "IfcText.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using Host::IfcAddedProperty;
using Host::IfcKind;
using Host::IfcModel;
using Host::IfcValue;
using QX::ExpressionValue;
using QX::UnitExponents;

class IfcWriter : public testing::Test {
 protected:
  void SetUp() override {
    const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
    folder_ = std::filesystem::temp_directory_path() / ("IfcWriterTest" + name);
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directory(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string Path(const char* name) const { return (folder_ / name).string(); }

  std::filesystem::path folder_;
};

IfcModel MakeHouse() { return IfcModel(Host::StepFile::FromText(IfcText::Wrap(IfcText::House))); }

ExpressionValue Quantity(double value, UnitExponents exponents) {
  return ExpressionValue::FromQuantity(value, exponents);
}

std::vector<IfcAddedProperty> MakeProperties(IfcModel::Element) {
  const ExpressionValue::UndefinedSelector undefined;
  return {
      {u"Takeoff", u"Länge", {IfcKind::Length, Quantity(1.5, UnitExponents::CreateLength())}},
      {u"It's", u"Area", {IfcKind::Area, Quantity(9.290304, UnitExponents::CreateArea())}},
      {u"Takeoff", u"Volume", {IfcKind::Volume, Quantity(1e-5, UnitExponents::CreateVolume())}},
      {u"Takeoff", u"Angle", {IfcKind::Angle, Quantity(1, UnitExponents::CreateAngle())}},
      {u"Takeoff", u"Number", {IfcKind::Number, ExpressionValue::FromNumber(1e300)}},
      {u"Takeoff", u"Integer", {IfcKind::Integer, ExpressionValue::FromInteger(-5)}},
      {u"Takeoff", u"Text", {IfcKind::Text, ExpressionValue::FromString(u"a'b\\ \U0001F600")}},
      {u"Takeoff", u"Logical", {IfcKind::Logical, ExpressionValue::FromBool(true)}},
      {u"Takeoff", u"False", {IfcKind::Logical, ExpressionValue::FromBool(false)}},
      {u"Takeoff", u"Unknown", {IfcKind::Logical, ExpressionValue::FromBool(undefined)}},
  };
}

TEST_F(IfcWriter, AddsWhatReadsBackTheSame) {
  const IfcModel model = MakeHouse();
  ASSERT_EQ(Host::WriteIfcModel(model, Path("out.ifc"), MakeProperties), TW::NoErr);
  const IfcModel written = IfcModel::Read(Path("out.ifc"));
  EXPECT_EQ(written.GetMessages().GetCount(), 0U);
  ASSERT_EQ(written.GetElementCount(), model.GetElementCount());
  for (IfcModel::Element i = 0; i < written.GetElementCount(); ++i) {
    EXPECT_EQ(written.GetGlobalId(i), model.GetGlobalId(i));
    for (const IfcAddedProperty& property : MakeProperties(i)) {
      const auto key = written.FindKey(property.set + u"." + property.name);
      ASSERT_TRUE(key) << property.name.ToUtf8();
      const IfcValue value = written.FindValue(i, *key).value_or(IfcValue());
      EXPECT_EQ(value.kind, property.value.kind) << property.name.ToUtf8();
      EXPECT_EQ(value.value.GetAsString(), property.value.value.GetAsString());
      EXPECT_EQ(value.value.GetAsBool(), property.value.value.GetAsBool());
      EXPECT_EQ(value.value.IsUserUndefined(), property.value.value.IsUserUndefined());
      const double number = property.value.value.GetIntOrNumVariantValue();
      EXPECT_NEAR(value.value.GetIntOrNumVariantValue(), number, 1e-15 * std::abs(number)) << property.name.ToUtf8();
    }
  }
}

TEST_F(IfcWriter, GivesTheSameFileAgain) {
  ASSERT_EQ(Host::WriteIfcModel(MakeHouse(), Path("first.ifc"), MakeProperties), TW::NoErr);
  const IfcModel first = IfcModel::Read(Path("first.ifc"));
  ASSERT_EQ(Host::WriteIfcModel(first, Path("second.ifc"), MakeProperties), TW::NoErr);
  EXPECT_EQ(IfcModel::Read(Path("second.ifc")).GetFile().GetText(), first.GetFile().GetText());
  // Taking everything back leaves what was there before, even in the file that is read.
  ASSERT_EQ(Host::WriteIfcModel(first, Path("first.ifc"), [](auto) { return std::vector<IfcAddedProperty>(); }),
            TW::NoErr);
  EXPECT_EQ(IfcModel::Read(Path("first.ifc")).GetFile().GetText(), IfcText::Wrap(IfcText::House));
}

TEST_F(IfcWriter, WritesTheTextThatTheSchemaWants) {
  const char* rows[] = {
      "IFCPROPERTYSINGLEVALUE('L\\X2\\00E4\\X0\\nge',$,IFCLENGTHMEASURE(1500.),$);",
      "IFCPROPERTYSINGLEVALUE('Area',$,IFCAREAMEASURE(100.),$);",
      "IFCPROPERTYSINGLEVALUE('Number',$,IFCREAL(1.E+300),$);",
      "IFCPROPERTYSINGLEVALUE('Integer',$,IFCINTEGER(-5),$);",
      "IFCPROPERTYSINGLEVALUE('Logical',$,IFCBOOLEAN(.T.),$);",
      "IFCPROPERTYSET('2gVWL20n94I_SRXp$OUo2g',$,'Takeoff',$,(",
      ",$,'It''s',$,(#108));",
  };
  ASSERT_EQ(Host::WriteIfcModel(MakeHouse(), Path("out.ifc"), MakeProperties), TW::NoErr);
  const IfcModel written = IfcModel::Read(Path("out.ifc"));
  for (const char* row : rows) EXPECT_NE(written.GetFile().GetText().find(row), std::string_view::npos) << row;
}

TEST_F(IfcWriter, GivesNoValueToWhatTheUnitMakesTooLarge) {
  const auto makeHuge = [](auto) {
    return std::vector<IfcAddedProperty>{
        {u"Set", u"Huge", {IfcKind::Length, Quantity(1e307, UnitExponents::CreateLength())}}};
  };
  ASSERT_EQ(Host::WriteIfcModel(MakeHouse(), Path("out.ifc"), makeHuge), TW::NoErr);
  const IfcModel written = IfcModel::Read(Path("out.ifc"));
  EXPECT_EQ(written.FindValue(0, *written.FindKey(u"Set.Huge")).value_or(IfcValue()).kind, IfcKind::None);
  EXPECT_NE(written.GetFile().GetText().find("IFCPROPERTYSINGLEVALUE('Huge',$,$,$);"), std::string_view::npos);
}

TEST_F(IfcWriter, TakesBackWhatItAddedToAFileWithOtherLineEnds) {
  ASSERT_EQ(Host::WriteIfcModel(MakeHouse(), Path("first.ifc"), MakeProperties), TW::NoErr);
  const auto withReturns = [](std::string_view text) {
    std::string changed;
    for (const char byte : text) changed += byte == '\n' ? std::string("\r\n") : std::string(1, byte);
    return changed;
  };
  const std::string added(IfcModel::Read(Path("first.ifc")).GetFile().GetText());
  const IfcModel first(Host::StepFile::FromText(withReturns(added)));
  ASSERT_EQ(Host::WriteIfcModel(first, Path("out.ifc"), [](auto) { return std::vector<IfcAddedProperty>(); }),
            TW::NoErr);
  EXPECT_EQ(IfcModel::Read(Path("out.ifc")).GetFile().GetText(), withReturns(IfcText::Wrap(IfcText::House)));
}

TEST_F(IfcWriter, LeavesNothingBehindWhenItFails) {
  std::filesystem::create_directory(folder_ / "taken");
  EXPECT_EQ(Host::WriteIfcModel(MakeHouse(), Path("taken"), MakeProperties), TW::ErrWriteFailed);
  EXPECT_EQ(Host::WriteIfcModel(MakeHouse(), Path("nowhere/out.ifc"), MakeProperties), TW::ErrFileNotFound);
  EXPECT_EQ(Host::WriteIfcModel(IfcModel::Read("/nowhere"), Path("out.ifc"), MakeProperties), TW::ErrRefused);
  EXPECT_THROW(Host::WriteIfcModel(MakeHouse(), Path("out.ifc"),
                                   [](auto) -> std::vector<IfcAddedProperty> { throw std::bad_alloc(); }),
               std::bad_alloc);
  const auto entries = std::filesystem::directory_iterator(folder_);
  EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST_F(IfcWriter, TakesBrokenModels) {
  ASSERT_EQ(Host::WriteIfcModel(MakeHouse(), Path("out.ifc"), MakeProperties), TW::NoErr);
  const std::string text(IfcModel::Read(Path("out.ifc")).GetFile().GetText());
  for (std::size_t at = 130; at < text.size(); at += 17) {
    std::string changed = text;
    changed[at] = "';(#="[at % 5];
    for (const std::string& broken : {text.substr(0, at), changed}) {
      const IfcModel model(Host::StepFile::FromText(broken));
      EXPECT_EQ(Host::WriteIfcModel(model, Path("again.ifc"), MakeProperties), TW::NoErr);
    }
  }
}

TEST(IfcGlobalId, IsTheDigestInTheDigitsOfTheSchema) {
  EXPECT_EQ(Host::MakeIfcGlobalId(""), "3K7OpPZm2o1Ec02PZi_49_");
  EXPECT_EQ(Host::MakeIfcGlobalId("wall1\nTakeoff"), "2gVWL20n94I_SRXp$OUo2g");
}

}  // namespace
