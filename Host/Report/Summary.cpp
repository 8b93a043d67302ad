#include "Host/Report/Summary.hpp"

#include "Host/Report/FailureReports.hpp"
#include "Host/Report/ReportTexts.hpp"
#include "Host/Screen/ScreenText.hpp"
#include "TW/HashTable.hpp"

#include <algorithm>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

namespace Host {
namespace {

class Counter {
 public:
  explicit Counter(const ReportScope& scope) : scope_(scope), reports_(scope) {}

  Summary Count() {
    summary_.elements = scope_.elements.size();
    for (const ElementIndex element : scope_.elements) {
      for (const PropertyIndex property : scope_.properties) Add(property, element);
    }
    AddErrors();
    return std::move(summary_);
  }

 private:
  void Add(PropertyIndex property, ElementIndex element) {
    switch (scope_.table.GetStatus(property, element)) {
      case CellStatus::Defined:
        ++summary_.values;
        break;
      case CellStatus::Undefined:
        ++summary_.undefined;
        break;
      case CellStatus::Failed:
        AddFailure(reports_.FindNumber(property, element));
        break;
      default:
        ++summary_.absent;
    }
  }

  void AddFailure(std::size_t number) {
    ++summary_.failed;
    if (number >= counts_.size()) counts_.resize(number + 1);
    ++counts_[number];
  }

  // Failures that are told in the same words are of one kind.
  void AddErrors() {
    TW::HashTable<TW::UniString, std::size_t> places;
    for (std::size_t i = 0; i < counts_.size(); ++i) {
      const FailureReport& report = reports_.Get(i);
      const TW::UniString kind = report.name + u"\n" + report.message;
      if (places.Add(kind, summary_.errors.size())) {
        summary_.errors.push_back({report.name, report.resourceIndex, report.message, 0});
      }
      summary_.errors[places.Get(kind)].count += counts_[i];
    }
    std::ranges::sort(summary_.errors, [](const SummaryError& left, const SummaryError& right) {
      if (left.count != right.count) return left.count > right.count;
      return std::tie(left.name, left.message) < std::tie(right.name, right.message);
    });
  }

  const ReportScope& scope_;
  FailureReports reports_;
  Summary summary_;
  std::vector<std::size_t> counts_;  // by the number of the report
};

void WriteCount(JsonWriter& writer, std::string_view key, std::size_t count) {
  writer.WriteKey(key);
  writer.WriteInteger(static_cast<long long>(count));
}

}  // namespace

Summary MakeSummary(const ReportScope& scope) { return Counter(scope).Count(); }

void WriteSummary(const Summary& summary, const ReportSink& sink) {
  const TW::UniString counts =
      MakeText(ReportText::Summary, MakeNumberText(summary.elements), MakeNumberText(summary.values),
               MakeNumberText(summary.undefined), MakeNumberText(summary.absent), MakeNumberText(summary.failed));
  sink(counts.ToUtf8() + "\n");
  for (const SummaryError& error : summary.errors) {
    const TW::UniString line = MakeNumberText(error.count) + u" × " + error.name + u": " + error.message;
    sink("  " + MakeScreenText(line, std::numeric_limits<std::size_t>::max()).text + "\n");
  }
}

void WriteSummary(const Summary& summary, JsonWriter& writer) {
  writer.BeginObject();
  WriteCount(writer, "elements", summary.elements);
  WriteCount(writer, "values", summary.values);
  WriteCount(writer, "undefined", summary.undefined);
  WriteCount(writer, "absent", summary.absent);
  WriteCount(writer, "failed", summary.failed);
  writer.WriteKey("errors");
  writer.BeginArray();
  for (const SummaryError& error : summary.errors) {
    writer.BeginObject();
    writer.WriteKey("name");
    writer.WriteText(error.name);
    if (error.index != 0) WriteCount(writer, "index", static_cast<std::size_t>(error.index));
    writer.WriteKey("message");
    writer.WriteText(error.message);
    WriteCount(writer, "count", error.count);
    writer.EndObject();
  }
  writer.EndArray();
  writer.EndObject();
}

}  // namespace Host
