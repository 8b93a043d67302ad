#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/IfcText.hpp"
#include "Host/Ifc/IfcWriter.hpp"
#include "Resources/TemporaryFolder.hpp"

#include <gtest/gtest.h>

// The limits of building models, from both sides.

namespace {

using Host::IfcModel;
using Host::StepProblem;

IfcModel MakeModel(std::string_view data) { return IfcModel(Host::StepFile::FromText(IfcText::Wrap(data))); }

std::string Number(std::uint64_t number) { return std::to_string(number); }

bool Complains(const IfcModel& model, StepProblem problem) {
  for (const Host::StepMessage& message : model.GetMessages().GetList()) {
    if (message.problem == problem) return true;
  }
  return false;
}

// A wall with one property.
std::string MakeWall(const std::string& value) {
  return "#1=IFCWALL('1',$,'Wall',$,$,$,$,$,$);\n#2=IFCPROPERTYSINGLEVALUE('P',$," + value +
         ",$);\n#3=IFCPROPERTYSET('3',$,'S',$,(#2));\n#4=IFCRELDEFINESBYPROPERTIES('4',$,$,$,(#1),#3);\n";
}

TEST(IfcLimits, OfNumbersOfInstances) {
  const std::string greatest = Number(UINT64_MAX);
  EXPECT_FALSE(Complains(MakeModel("#" + greatest + "=IFCWALL('1',$,$,$,$,$,$,$,$);\n"), StepProblem::IdTooLarge));
  EXPECT_TRUE(Complains(MakeModel("#18446744073709551616=IFCWALL('1',$,$,$,$,$,$,$,$);\n"), StepProblem::IdTooLarge));
}

TEST(IfcLimits, OfNumbersThatAWriterMayGoOnFrom) {
  const TemporaryFolder folder;
  const auto add = [](IfcModel::Element) {
    return std::vector<Host::IfcAddedProperty>{
        {u"Set", u"Property", {Host::IfcKind::Number, QX::ExpressionValue::FromNumber(1)}}};
  };
  const std::string path = folder.GetFilePath("out.ifc");
  const std::string model = MakeWall("IFCREAL(1.)") + "#";
  const std::string last = "=IFCPROJECT('p',$,$,$,$,$,$,$,$);\n";
  EXPECT_EQ(WriteIfcModel(MakeModel(model + Number(UINT64_MAX / 2) + last), path, add), TW::NoErr);
  EXPECT_EQ(WriteIfcModel(MakeModel(model + Number(UINT64_MAX / 2 + 1) + last), path, add), TW::ErrTooLong);
}

TEST(IfcLimits, OfMessagesThatAreKept) {
  for (const std::size_t count : {std::size_t{100}, std::size_t{101}}) {
    std::string data;
    for (std::size_t i = 0; i < count; ++i) data += "#1=IFCWALL('1',$,$,$,$,$,$,$,$);\n";
    const IfcModel model = MakeModel("#1=IFCWALL('1',$,$,$,$,$,$,$,$);\n" + data);
    const auto& messages = model.GetMessages();
    EXPECT_LE(messages.GetList().size(), 100U);
    EXPECT_GE(messages.GetCount(), count);
  }
}

TEST(IfcLimits, OfTheLengthOfAKeyword) {
  for (const std::size_t length : {std::size_t{256}, std::size_t{257}, std::size_t{100'000}}) {
    const IfcModel model = MakeModel("#9=" + std::string(length, 'A') + "();\n" + MakeWall("IFCREAL(1.)"));
    EXPECT_EQ(model.GetElementCount(), 1U);
    const auto place = model.GetFile().GetIndex().Find(9);
    ASSERT_TRUE(place);
    EXPECT_EQ(model.GetFile().GetClass(*place) != Host::StepClasses::None, length <= 256) << length;
  }
}

TEST(IfcLimits, OfTheNumberOfClasses) {
  std::string data = MakeWall("IFCREAL(1.)");
  for (unsigned int i = 0; i < 40'000; ++i) data += "#" + Number(i + 10) + "=IFCCLASS" + Number(i) + "();\n";
  const IfcModel model = MakeModel(data);
  EXPECT_EQ(model.GetElementCount(), 1U);
  const auto& file = model.GetFile();
  EXPECT_NE(file.GetClass(*file.GetIndex().Find(10)), Host::StepClasses::None);
  EXPECT_EQ(file.GetClass(*file.GetIndex().Find(40'009)), Host::StepClasses::None);
}

// Walls in walls, the outermost in a storey.
TEST(IfcLimits, OfPartsInParts) {
  constexpr unsigned int Walls = 40;
  std::string data = "#1=IFCBUILDINGSTOREY('s',$,'Ground',$,$,$,$,$,$,$);\n";
  const std::string set = "#2=IFCPROPERTYSINGLEVALUE('P',$,IFCREAL(1.),$);\n#3=IFCPROPERTYSET('3',$,'S',$,(#2));\n";
  data += set;
  for (unsigned int i = 0; i < Walls; ++i) {
    const std::string wall = "#" + Number(100 + i);
    data += wall + "=IFCWALL('" + Number(i) + "',$,$,$,$,$,$,$,$);\n";
    data += "#" + Number(200 + i) + "=IFCRELDEFINESBYPROPERTIES('a" + Number(i) + "',$,$,$,(" + wall + "),#3);\n";
    data += i == 0 ? "#300=IFCRELCONTAINEDINSPATIALSTRUCTURE('r',$,$,$,(#100),#1);\n"
                   : "#" + Number(300 + i) + "=IFCRELAGGREGATES('r',$,$,$,#" + Number(99 + i) + ",(" + wall + "));\n";
  }
  const IfcModel model = MakeModel(data);
  ASSERT_EQ(model.GetElementCount(), Walls);
  for (unsigned int i = 0; i < Walls; ++i) {
    EXPECT_EQ(model.GetStorey(i), TW::UniString(i < 32 ? u"Ground" : u"")) << i;
  }
}

// Units that are defined by each other.
TEST(IfcLimits, OfUnitsInUnits) {
  for (unsigned int levels = 1; levels < 12; ++levels) {
    std::string data =
        MakeWall("IFCLENGTHMEASURE(1.)") + "#5=IFCPROJECT('p',$,$,$,$,$,$,$,#6);\n#6=IFCUNITASSIGNMENT((#10));\n";
    for (unsigned int i = 0; i < levels; ++i) {
      const std::string unit = Number(10 + 2 * i);
      const std::string measure = Number(11 + 2 * i);
      data += "#" + unit + "=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'u',#" + measure + ");\n";
      data += "#" + measure + "=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(2.),#" + Number(12 + 2 * i) + ");\n";
    }
    data += "#" + Number(10 + 2 * levels) + "=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);\n";
    EXPECT_EQ(Complains(MakeModel(data), StepProblem::NoLengthUnit), levels > 7) << levels;
  }
}

TEST(IfcLimits, OfListsThatRelateManyToMany) {
  const auto relate = [](unsigned int count) {
    std::string data = "#1=IFCPROPERTYSINGLEVALUE('P',$,IFCREAL(1.),$);\n";
    std::string walls;
    std::string sets;
    for (unsigned int i = 0; i < count; ++i) {
      const std::string wall = "#" + Number(1000 + i);
      const std::string set = "#" + Number(2000 + i);
      data += wall + "=IFCWALL('" + Number(i) + "',$,$,$,$,$,$,$,$);\n";
      data += set + "=IFCPROPERTYSET('s',$,'S" + Number(i) + "',$,(#1));\n";
      walls += (i == 0 ? "" : ",") + wall;
      sets += (i == 0 ? "" : ",") + set;
    }
    return data + "#3=IFCRELDEFINESBYPROPERTIES('r',$,$,$,(" + walls + "),IFCPROPERTYSETDEFINITIONSET((" + sets +
           ")));\n";
  };
  EXPECT_FALSE(Complains(MakeModel(relate(16)), StepProblem::BrokenInstance));
  EXPECT_TRUE(Complains(MakeModel(relate(17)), StepProblem::BrokenInstance));
}

TEST(IfcLimits, OfTheLengthOfALabel) {
  const TemporaryFolder folder;
  const std::string path = folder.GetFilePath("out.ifc");
  for (const unsigned int length : {255U, 256U}) {
    const auto add = [length](IfcModel::Element) {
      return std::vector<Host::IfcAddedProperty>{
          {u"Set", u"P", {Host::IfcKind::Text, QX::ExpressionValue::FromString(TW::UniString(length, u'x'))}}};
    };
    ASSERT_EQ(WriteIfcModel(MakeModel(MakeWall("IFCREAL(1.)")), path, add), TW::NoErr);
    EXPECT_EQ(ReadFile(path).find("IFCTEXT(") != std::string::npos, length > 255);
  }
}

}  // namespace
