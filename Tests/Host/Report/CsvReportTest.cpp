#include "Host/Report/CsvReport.hpp"
#include "ReportModel.hpp"

#include <gtest/gtest.h>

namespace {

std::string MakeCsv(const Host::ReportScope& scope) {
  return Collect([&](const Host::ReportSink& sink) { Host::WriteCsvReport(scope, sink); });
}

TEST(CsvReport, HoldsEveryKindOfCell) {
  House house;
  EXPECT_EQ(MakeCsv(house.MakeScope()), R"(GlobalId,Class,Name,Width,Depth,Count,Area,Share,Total,Label
guid1,IFCWALL,Wall 1,0.50 m,4.00 m,4,2.00 m²,0.75 m,1.50 m,thick
guid2,IFCWALL,Wände 2,0.25 m,,0,,#ExpressionDivisionByZero,#ExpressionPropertyEvaluationFailed,thin
guid3,IFCDOOR,,1.00 m,,#WrongKind,,#ExpressionPropertyEvaluationFailed,#ExpressionPropertyEvaluationFailed,
)");
}

TEST(CsvReport, QuotesNamesAndFollowsTheLocale) {
  ReportModel model({{u"a \"b\"\n<&>;", u"IFCWALL", TW::UniString(u"\xD83D")}});
  const Host::PropertyIndex number = model.Define("x, y", Host::PropertyKind::Number);
  ASSERT_TRUE(model.SetNumber(number, 1.5));
  EXPECT_EQ(MakeCsv(model.MakeScope()), "GlobalId,Class,Name,\"x, y\"\n\uFFFD,IFCWALL,\"a \"\"b\"\"\n<&>;\",1.5\n");
  const Host::DisplayText german(Host::DisplaySettings(), QX::EvaluationLocaleSettings(u',', u';', u'.'));
  const Host::ReportScope scope{model.table, model.source, german, {0}, {number}};
  EXPECT_EQ(MakeCsv(scope), "GlobalId;Class;Name;\"x, y\"\n\uFFFD;IFCWALL;\"a \"\"b\"\"\n<&>;\";\"1,5\"\n");
}

}  // namespace
