#include "Host/Ifc/IfcModel.hpp"
#include "IfcText.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using Host::IfcKind;
using Host::IfcModel;
using Host::IfcValue;

// The value of one property or quantity, the instance #9, in a model of millimetres.
IfcValue Read(const std::string& property) {
  const IfcModel model(Host::StepFile::FromText(
      IfcText::Wrap("#1=IFCPROJECT('p',$,$,$,$,$,$,$,#2);\n#2=IFCUNITASSIGNMENT((#3));\n"
                    "#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n#4=IFCSIUNIT(*,.LENGTHUNIT.,.EXA.,.METRE.);\n"
                    "#5=IFCWALL('w',$,$,$,$,$,$,$);\n#6=IFCRELDEFINESBYPROPERTIES('r',$,$,$,(#5),#7);\n"
                    "#7=IFCPROPERTYSET('s',$,'S',$,(#9));\n#9=" +
                    property + ";\n")));
  const auto key = model.FindKey(u"S.P");
  EXPECT_TRUE(key) << property;
  return key ? model.FindValue(0, *key).value_or(IfcValue()) : IfcValue();
}

struct Row {
  const char* text;
  IfcKind kind;
  double number = 0;
  const char16_t* content = u"";
};

void Expect(const Row& row, const std::string& property) {
  const IfcValue found = Read(property);
  EXPECT_EQ(found.kind, row.kind) << property;
  EXPECT_EQ(found.value.IsValid(), row.kind != IfcKind::None) << property;
  EXPECT_DOUBLE_EQ(found.value.GetIntOrNumVariantValue(), row.number) << property;
  EXPECT_EQ(found.value.GetAsString(), TW::UniString(row.content)) << property;
}

TEST(IfcPropertyReader, ReadsSingleValues) {
  const Row rows[] = {
      {"IFCLENGTHMEASURE(2.),$", IfcKind::Length, 0.002},
      {"IFCPOSITIVELENGTHMEASURE(2),$", IfcKind::Length, 0.002},
      {"IFCNONNEGATIVELENGTHMEASURE(2.),#3", IfcKind::Length, 0.002},
      {"IFCLENGTHMEASURE(2.),#99", IfcKind::Length, 0.002},
      {"IFCPOSITIVEPLANEANGLEMEASURE(1.),$", IfcKind::Angle, 1},
      {"IFCPLANEANGLEMEASURE(1.),#3", IfcKind::Angle, 1},
      {"IFCLENGTHMEASURE(1.E300),#4", IfcKind::None},
      {"IFCLENGTHMEASURE(1.E400),$", IfcKind::None},
      {"IFCREAL(1.E-400),$", IfcKind::Number, 0},
      {"IFCTHERMALTRANSMITTANCEMEASURE(0.2),$", IfcKind::Number, 0.2},
      {"IFCCOUNTMEASURE(3.),$", IfcKind::Integer, 3},
      {"IFCCOUNTMEASURE(2.5),$", IfcKind::Number, 2.5},
      {"IFCINTEGER(2147483647),$", IfcKind::Integer, 2147483647},
      {"IFCINTEGER(2147483648),$", IfcKind::Number, 2147483648},
      {"IFCINTEGER(-2147483648),$", IfcKind::Integer, -2147483648.0},
      {"IFCINTEGER(-2147483649),$", IfcKind::Number, -2147483649.0},
      {"IFCINTEGER(+5),$", IfcKind::Integer, 5},
      {"IFCINTEGER(--5),$", IfcKind::None},
      {"IFCINTEGER(5-5),$", IfcKind::None},
      {"IFCREAL(1.5.),$", IfcKind::None},
      // Values without a type are of the kind that they are written in.
      {"7,$", IfcKind::Integer, 7},
      {"7.,$", IfcKind::Number, 7},
      {"'text',$", IfcKind::Text, 0, u"text"},
      {".NOTDEFINED.,$", IfcKind::Text, 0, u"NOTDEFINED"},
      {"IFCLENGTHMEASURE('2'),$", IfcKind::Text, 0, u"2"},
      {"IFCLENGTHMEASURE($),$", IfcKind::None},
      {"IFCLENGTHMEASURE(),$", IfcKind::None},
      {"IFCLENGTHMEASURE((1.)),$", IfcKind::None},
      {"IFCBINARY(\"0F\"),$", IfcKind::None},
      {"#3,$", IfcKind::None},
      {"*,$", IfcKind::None},
      {"(IFCREAL(1.)),$", IfcKind::None},
  };
  for (const Row& row : rows) Expect(row, "IFCPROPERTYSINGLEVALUE('P',$," + std::string(row.text) + ")");
  EXPECT_FALSE(Read("IFCPROPERTYSINGLEVALUE('P',$,IFCBOOLEAN(.F.),$)").value.GetAsBool());
  EXPECT_EQ(Read("IFCPROPERTYSINGLEVALUE('P',$,.F.,$)").kind, IfcKind::Logical);
}

TEST(IfcPropertyReader, ReadsSeveralValuesAndQuantities) {
  const Row rows[] = {
      {"IFCPROPERTYENUMERATEDVALUE('P',$,(),$)", IfcKind::None},
      {"IFCPROPERTYENUMERATEDVALUE('P',$,$,$)", IfcKind::None},
      {"IFCPROPERTYENUMERATEDVALUE('P',$,IFCLABEL('a'),$)", IfcKind::None},
      {"IFCPROPERTYENUMERATEDVALUE('P',$,(%),$)", IfcKind::None},
      {"IFCPROPERTYENUMERATEDVALUE('P',$,('a',IFCLABEL('b'),.C.,IFCINTEGER(4)),$)", IfcKind::Text, 0, u"a;b;C;4"},
      {"IFCPROPERTYLISTVALUE('P',$,(IFCLENGTHMEASURE(2.)),$)", IfcKind::Length, 0.002},
      {"IFCPROPERTYLISTVALUE('P',$,(IFCLENGTHMEASURE(2.)),#4)", IfcKind::Length, 2e18},
      {"IFCPROPERTYBOUNDEDVALUE('P',$,IFCREAL(9.),IFCREAL(1.),$,IFCREAL(4.))", IfcKind::Number, 4},
      {"IFCPROPERTYBOUNDEDVALUE('P',$,IFCREAL(9.),IFCREAL(1.),$,$)", IfcKind::None},
      {"IFCPROPERTYBOUNDEDVALUE('P',$,IFCREAL(9.),IFCREAL(1.),$)", IfcKind::None},
      {"IFCQUANTITYLENGTH('P',$,$,IFCLENGTHMEASURE(2.),$)", IfcKind::Length, 0.002},
      {"IFCQUANTITYLENGTH('P',$,#4,2,$)", IfcKind::Length, 2e18},
      {"IFCQUANTITYLENGTH('P',$,$,$,$)", IfcKind::None},
      {"IFCQUANTITYCOUNT('P',$,$,2.5,$)", IfcKind::Number, 2.5},
      {"IFCQUANTITYNUMBER('P',$,$,2,$)", IfcKind::Number, 2},
  };
  for (const Row& row : rows) Expect(row, row.text);
}

}  // namespace
