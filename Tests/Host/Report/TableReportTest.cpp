#include "Host/Report/FailureList.hpp"
#include "Host/Report/Summary.hpp"
#include "Host/Report/TableReport.hpp"
#include "ReportModel.hpp"
#include "Resources/Language.hpp"

#include <gtest/gtest.h>

namespace {

std::string MakeTable(const Host::ReportScope& scope, const Host::TableLimits& limits = {}) {
  Host::FailureGroups failures(scope);
  return Collect([&](const Host::ReportSink& sink) { Host::WriteTable(scope, failures, limits, sink); });
}

std::string MakeFailureList(const Host::ReportScope& scope) {
  return Collect(
      [&](const Host::ReportSink& sink) { Host::WriteFailureList(scope, Host::FailureGroups(scope), sink); });
}

std::string MakeSummaryText(const Host::ReportScope& scope) {
  const Host::Summary summary = Host::MakeSummary(scope);
  return Collect([&](const Host::ReportSink& sink) { Host::WriteSummary(summary, sink); });
}

TEST(TableReport, Tries) {
  House house;
  const Host::ReportScope scope = house.MakeScope();
  for (const char* language : {"en", "de", "fr"}) {
    Resources::SetLanguage(language);
    std::cout << MakeTable(scope) << '\n'
              << MakeTable(scope, {40, 2}) << '\n'
              << MakeFailureList(scope) << '\n'
              << MakeSummaryText(scope) << '\n';
  }
}

}  // namespace
