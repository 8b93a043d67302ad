#include "Host/Report/GraphReport.hpp"
#include "ReportModel.hpp"

#include <gtest/gtest.h>

#include <fstream>

namespace {

TEST(GraphReport, Tries) {
  ReportModel model(std::vector<FakeSource::Element>(1));
  unsigned seed = 7;
  const auto next = [&](std::size_t n) {
    seed = seed * 1664525 + 1013904223;
    return (seed >> 8) % n;
  };
  std::vector<std::string> names;
  for (int i = 0; i < 12; ++i) {
    names.push_back("Input width " + std::to_string(i));
    model.Define(names.back(), Host::PropertyKind::Length);
  }
  for (int i = 0; i < 45; ++i) {
    std::string f = "[" + names[next(names.size())] + "] * 2";
    for (std::size_t k = next(3); k > 0; --k)
      f += " + [" + names[names.size() - 1 - next(std::min<std::size_t>(14, names.size()))] + "]";
    names.push_back("Computed quantity " + std::to_string(i));
    model.DefineFormula("Takeoff/" + names.back(), f, Host::PropertyKind::Length);
  }
  std::ofstream("/tmp/report_graph.svg") << Collect(
      [&](const Host::ReportSink& sink) { Host::WriteSvgGraph(model.MakeScope(), sink); });
  House house;
  std::ofstream("/tmp/report_house.svg") << Collect(
      [&](const Host::ReportSink& sink) { Host::WriteSvgGraph(house.MakeScope(), sink); });
  std::cout << Collect([&](const Host::ReportSink& sink) { Host::WriteDotGraph(house.MakeScope(), sink); });
}

}  // namespace
