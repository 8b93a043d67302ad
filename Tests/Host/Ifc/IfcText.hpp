#pragma once

#include "Host/Ifc/StepMessages.hpp"

#include <string>
#include <string_view>

/// Texts of small models.

namespace IfcText {

inline std::string Wrap(std::string_view data, std::string_view schema = "IFC4") {
  std::string text = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_SCHEMA(('";
  text += schema;
  text += "'));\nENDSEC;\nDATA;\n";
  text += data;
  return text + "ENDSEC;\nEND-ISO-10303-21;\n";
}

/// The first sentence of each message after its line, with bars between.
inline std::string ShowMessages(const Host::StepMessages& messages) {
  std::string shown;
  for (const Host::StepMessage& message : messages.GetList()) {
    const std::string text = message.GetMessage().ToUtf8();
    if (!shown.empty()) shown += "|";
    if (message.line != 0) shown += "line " + std::to_string(message.line) + ": ";
    shown += text.substr(0, text.find('.'));
  }
  return shown;
}

/// Two walls and a door in two storeys, with properties of every kind, a type that two of them share, and units in
/// millimetres, square feet and degrees.
inline constexpr std::string_view House = R"(
#1=IFCPROJECT('project',$,'House',$,$,$,$,$,#2);
#2=IFCUNITASSIGNMENT((#3,#4,#7,#10));
#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);
#4=IFCCONVERSIONBASEDUNIT(#5,.AREAUNIT.,'square foot',#6);
#5=IFCDIMENSIONALEXPONENTS(2,0,0,0,0,0,0);
#6=IFCMEASUREWITHUNIT(IFCAREAMEASURE(0.09290304),#8);
#7=IFCSIUNIT(*,.VOLUMEUNIT.,.DECI.,.CUBIC_METRE.);
#8=IFCSIUNIT(*,.AREAUNIT.,$,.SQUARE_METRE.);
#9=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);
#10=IFCCONVERSIONBASEDUNIT(#11,.PLANEANGLEUNIT.,'DEGREE',#12);
#11=IFCDIMENSIONALEXPONENTS(0,0,0,0,0,0,0);
#12=IFCMEASUREWITHUNIT(IFCPLANEANGLEMEASURE(0.017453292519943295),#9);
#13=IFCCONVERSIONBASEDUNIT(#5,.LENGTHUNIT.,'inch',#14);
#14=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(25.4),#3);
#20=IFCBUILDINGSTOREY('storey1',$,'Ground',$,$,$,$,'Long',.ELEMENT.,0.);
#21=IFCBUILDINGSTOREY('storey2',$,'First',$,$,$,$,$,.ELEMENT.,3000.);
#30=IFCWALL('wall1',$,'Wall \X2\00E4\X0\',$,'Own type',#99,$,'T1',$);
#31= ifcwall ( 'wall2' , $ , /* no name; */ $ , $ , 'Own ''type''' , $ ,
  $ , 'T2' , $ ) ;
#32=IFCDOOR('door',$,'Door',$,$,$,$,$,2000.,900.);
#33=IFCDOOR('part',$,'Part',$,$,$,$,$,$,$);
#34=IFCSPACE('space',$,'Room',$,$,$,$,'Kitchen',.ELEMENT.,.INTERNAL.,$);
#40=IFCWALLTYPE('type',$,'Brick',$,$,(#51,#52),$,'TT',$,.SOLIDWALL.);
#50=IFCPROPERTYSET('s1',$,'Pset.A',$,(#60,#61,#62,#63,#64,#65,#66,#67,#68,#69,#70,#71,#72,#73,#74,#75,#76,#77,#78,#79));
#51=IFCPROPERTYSET('s2',$,'Pset.A',$,(#60,#80));
#52=IFCPROPERTYSET('s3',$,'FromType',$,(#81));
#53=IFCELEMENTQUANTITY('q1',$,'Qto',$,$,(#90,#91,#92,#93,#94,#95,#96,#97));
#54=IFCDOORLININGPROPERTIES('l1',$,$,$,$,$,$,$,$,$,$,$,$,$,$);
#60=IFCPROPERTYSINGLEVALUE('Length',$,IFCLENGTHMEASURE(1500.),$);
#61=IFCPROPERTYSINGLEVALUE('Inches',$,IFCPOSITIVELENGTHMEASURE(2.),#13);
#62=IFCPROPERTYSINGLEVALUE('Area',$,IFCAREAMEASURE(100.),$);
#63=IFCPROPERTYSINGLEVALUE('Square metres',$,IFCAREAMEASURE(100.),#8);
#64=IFCPROPERTYSINGLEVALUE('Volume',$,IFCVOLUMEMEASURE(250.),$);
#65=IFCPROPERTYSINGLEVALUE('Angle',$,IFCPLANEANGLEMEASURE(180),$);
#66=IFCPROPERTYSINGLEVALUE('Real',$,IFCREAL(-1.5E-3),$);
#67=IFCPROPERTYSINGLEVALUE('Ratio',$,IFCRATIOMEASURE(2),$);
#68=IFCPROPERTYSINGLEVALUE('Integer',$,IFCINTEGER(-7),$);
#69=IFCPROPERTYSINGLEVALUE('Large',$,IFCINTEGER(3000000000),$);
#70=IFCPROPERTYSINGLEVALUE('Label',$,IFCLABEL('it''s'),$);
#71=IFCPROPERTYSINGLEVALUE('True',$,IFCBOOLEAN(.T.),$);
#72=IFCPROPERTYSINGLEVALUE('Unknown',$,IFCLOGICAL(.U.),$);
#73=IFCPROPERTYSINGLEVALUE('Nothing',$,$,$);
#74=IFCPROPERTYENUMERATEDVALUE('One',$,(IFCLABEL('NEW')),$);
#75=IFCPROPERTYENUMERATEDVALUE('Several',$,(IFCLABEL('NEW'),IFCLABEL('OLD')),$);
#76=IFCPROPERTYLISTVALUE('List',$,(IFCREAL(1.5),IFCREAL(2.)),$);
#77=IFCPROPERTYBOUNDEDVALUE('Bounded',$,IFCLENGTHMEASURE(9.),IFCLENGTHMEASURE(1.),#13,IFCLENGTHMEASURE(4.));
#78=IFCPROPERTYREFERENCEVALUE('Reference',$,$,#3);
#79=IFCPROPERTYSINGLEVALUE('Wrong unit',$,IFCLENGTHMEASURE(1000.),#8);
#80=IFCPROPERTYSINGLEVALUE('Second',$,IFCLABEL('of the type'),$);
#81=IFCPROPERTYSINGLEVALUE('Third',$,IFCINTEGER(3),$);
#90=IFCQUANTITYLENGTH('Width',$,$,200.,$);
#91=IFCQUANTITYAREA('Area',$,$,10.);
#92=IFCQUANTITYVOLUME('Volume',$,$,1000.);
#93=IFCQUANTITYCOUNT('Count',$,$,4.);
#94=IFCQUANTITYWEIGHT('Weight',$,$,12.5);
#95=IFCQUANTITYTIME('Time',$,$,60);
#96=IFCQUANTITYLENGTH('Inches',$,#13,10);
#97=IFCPHYSICALCOMPLEXQUANTITY('Complex',$,(#90),'layer',$,$);
#100=IFCRELDEFINESBYPROPERTIES('r1',$,$,$,(#30),#50);
#101=IFCRELDEFINESBYPROPERTIES('r2',$,$,$,(#30,#32,#1),IFCPROPERTYSETDEFINITIONSET((#53,#54)));
#102=IFCRELDEFINESBYTYPE('r3',$,$,$,(#30,#32),#40);
#103=IFCRELCONTAINEDINSPATIALSTRUCTURE('r4',$,$,$,(#30),#34);
#104=IFCRELCONTAINEDINSPATIALSTRUCTURE('r5',$,$,$,(#32),#21);
#105=IFCRELAGGREGATES('r6',$,$,$,#32,(#33));
#106=IFCRELAGGREGATES('r7',$,$,$,#20,(#34));
#107=IFCRELAGGREGATES('r8',$,$,$,#31,(#31));
)";

}  // namespace IfcText
