#include "Host/Ifc/IfcModel.hpp"
#include "IfcText.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using Host::IfcKind;
using Host::IfcModel;

IfcModel MakeModel(const std::string& data) { return IfcModel(Host::StepFile::FromText(IfcText::Wrap(data))); }

// What stands for all instances but the unit of the project, which is #3.
constexpr const char* Frame =
    "#1=IFCPROJECT('p',$,$,$,$,$,$,$,#2);\n#2=IFCUNITASSIGNMENT((#3));\n#5=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);\n"
    "#6=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(0.3048),#5);\n#7=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'foot',#6);\n"
    "#8=IFCSIUNIT(*,.AREAUNIT.,.CENTI.,.SQUARE_METRE.);\n#9=IFCMASSUNIT();\n";

TEST(IfcUnits, AreReadFromTheirInstances) {
  struct Row {
    const char* unit;
    IfcKind kind;
    double factor;  // 0 for a unit that cannot be used
  };
  const Row rows[] = {
      {"#3=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);", IfcKind::Length, 1},
      {"#3=IFCSIUNIT(*,.LENGTHUNIT.,.KILO.,.METRE.);", IfcKind::Length, 1000},
      {"#3=IFCSIUNIT(*,.LENGTHUNIT.,.DECA.,.METRE.);", IfcKind::Length, 10},
      {"#3=IFCSIUNIT(*,.LENGTHUNIT.,.MICRO.,.METRE.);", IfcKind::Length, 1e-6},
      {"#3=IFCSIUNIT(*,.AREAUNIT.,.MILLI.,.SQUARE_METRE.);", IfcKind::Area, 1e-6},
      {"#3=IFCSIUNIT(*,.VOLUMEUNIT.,.CENTI.,.CUBIC_METRE.);", IfcKind::Volume, 1e-6},
      {"#3=IFCSIUNIT(*,.PLANEANGLEUNIT.,.MILLI.,.RADIAN.);", IfcKind::Angle, 1e-3},
      {"#3=IFCSIUNIT(*,.LENGTHUNIT.,.DOZEN.,.METRE.);", IfcKind::Length, 0},
      {"#3=IFCSIUNIT(*,.LENGTHUNIT.,'MILLI',.METRE.);", IfcKind::Length, 0},
      {"#3=IFCSIUNIT(*,.LENGTHUNIT.,$,'METRE');", IfcKind::Length, 0},
      {"#3=IFCSIUNIT(*,'LENGTHUNIT',$,.METRE.);", IfcKind::Length, 0},
      {"#3=IFCSIUNIT(*,.LENGTHUNIT.,$,.SQUARE_METRE.);", IfcKind::Length, 0},
      {"#3=IFCSIUNIT(*,.MASSUNIT.,.KILO.,.GRAM.);", IfcKind::Length, 0},
      {"#3=IFCSIUNIT(*,.LENGTHUNIT.);", IfcKind::Length, 0},
      {"#3=IFCMONETARYUNIT('EUR');", IfcKind::Length, 0},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'foot',#6);", IfcKind::Length, 0.3048},
      {"#3=IFCCONVERSIONBASEDUNITWITHOFFSET($,.LENGTHUNIT.,'foot',#6,1.);", IfcKind::Length, 0.3048},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'ell',#4);\n#4=IFCMEASUREWITHUNIT(0.5,#5);", IfcKind::Length, 0.5},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'yard',#4);\n#4=IFCMEASUREWITHUNIT(IFCREAL(3.),#7);", IfcKind::Length,
       0.9144},
      {"#3=IFCCONVERSIONBASEDUNIT($,.AREAUNIT.,'a hundred',#4);\n#4=IFCMEASUREWITHUNIT(IFCREAL(100.),#8);",
       IfcKind::Area, 0.01},
      {"#3=IFCCONVERSIONBASEDUNIT($,.AREAUNIT.,'of a length',#6);", IfcKind::Area, 0},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'own',#4);\n#4=IFCMEASUREWITHUNIT(IFCREAL(2.),#3);", IfcKind::Length,
       0},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'zero',#4);\n#4=IFCMEASUREWITHUNIT(IFCREAL(0.),#5);", IfcKind::Length,
       0},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'less',#4);\n#4=IFCMEASUREWITHUNIT(IFCREAL(-1.),#5);", IfcKind::Length,
       0},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'text',#4);\n#4=IFCMEASUREWITHUNIT(IFCLABEL('1'),#5);",
       IfcKind::Length, 0},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'huge',#4);\n#4=IFCMEASUREWITHUNIT(IFCREAL(1.E300),#10);\n"
       "#10=IFCSIUNIT(*,.LENGTHUNIT.,.EXA.,.METRE.);",
       IfcKind::Length, 0},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'of nothing',#4);\n#4=IFCMEASUREWITHUNIT(IFCREAL(1.),$);",
       IfcKind::Length, 0},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'of a mass',#4);\n#4=IFCMEASUREWITHUNIT(IFCREAL(1.),#9);",
       IfcKind::Length, 0},
      {"#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'without',$);", IfcKind::Length, 0},
      {"#3=IFCCONVERSIONBASEDUNIT($,.MASSUNIT.,'pound',#6);", IfcKind::Length, 0},
  };
  for (const Row& row : rows) {
    const IfcModel model = MakeModel(std::string(Frame) + row.unit + "\n");
    const bool isUsed = row.factor > 0;
    EXPECT_DOUBLE_EQ(model.GetUnits().GetFactor(row.kind), isUsed ? row.factor : 1) << row.unit;
    EXPECT_EQ(model.GetMessages().GetCount(), isUsed ? 3U : 4U) << row.unit;
  }
}

TEST(IfcUnits, AreThoseOfTheProject) {
  const std::string assignments =
      "#2=IFCUNITASSIGNMENT((#3,#8,#99,#4));\n#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"
      "#4=IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.);\n#6=IFCUNITASSIGNMENT((#4));\n"
      "#8=IFCSIUNIT(*,.MASSUNIT.,.KILO.,.GRAM.);\n";
  const std::pair<const char*, double> rows[] = {
      {"", 0.001},
      {"#9=IFCPROJECT('p',$,$,$,$,$,$,$,#2);\n", 0.001},
      {"#9=IFCPROJECT('p',$,$,$,$,$,$,$,#6);\n", 0.01},
      {"#9=IFCPROJECT('p',$,$,$,$,$,$,$,$);\n", 0.001},
      {"#9=IFCPROJECT('p',$,$,$,$,$,$,$,#4);\n", 0.001},
  };
  for (const auto& [project, factor] : rows) {
    EXPECT_DOUBLE_EQ(MakeModel(assignments + project).GetUnits().GetFactor(IfcKind::Length), factor) << project;
  }
}

}  // namespace
