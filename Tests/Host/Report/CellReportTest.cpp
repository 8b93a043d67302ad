#include "Host/Report/CellReport.hpp"
#include "ReportModel.hpp"

#include <gtest/gtest.h>

namespace {

std::string Explain(ReportModel& model, Host::PropertyIndex property, Host::ElementIndex element) {
  const Host::ReportScope scope = model.MakeScope();
  const auto origin = [&](Host::PropertyIndex input, Host::ElementIndex) {
    return u"Set." + model.table.GetCatalog().Get(input).name;
  };
  return Collect([&](const Host::ReportSink& sink) { Host::WriteCellReport(scope, property, element, origin, sink); });
}

TEST(CellReport, Tries) {
  House house;
  house.DefineFormula("Much", "1e300*1e300");
  house.DefineFormula("Uses label", "CONCAT([Label], \"x\")");
  for (unsigned i = 0; i < 2; ++i)
    for (auto p : {house.total, house.area, house.label, house.width, house.depth, house.label + 1})
      std::cout << Explain(house, p, i) << "\n--------------\n";
  std::cout << Explain(house, house.label, 2) << "\n------\n"
            << Explain(house, house.count, 2) << "\n------\n"
            << Explain(house, house.label + 2, 2);
}

}  // namespace
