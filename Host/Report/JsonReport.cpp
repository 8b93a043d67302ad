#include "Host/Report/JsonReport.hpp"

#include "Host/Json/FailureJson.hpp"
#include "Host/Json/ValueJson.hpp"
#include "Host/Report/FailureReports.hpp"
#include "Host/Report/Labels.hpp"
#include "Host/Report/SinkBuffer.hpp"

namespace Host {
namespace {

void WriteMember(JsonWriter& writer, std::string_view key, const TW::UniString& text) {
  writer.WriteKey(key);
  writer.WriteText(text);
}

class Printer {
 public:
  Printer(const ReportScope& scope, const ReportSink& sink)
      : scope_(scope),
        labels_(MakePropertyLabels(scope.table.GetCatalog(), scope.properties)),
        reports_(scope),
        buffer_(sink),
        writer_(buffer_.GetText()) {}

  void Print(const Summary& summary) {
    writer_.BeginObject();
    PrintArray("properties", scope_.properties.size(), [&](std::size_t i) { PrintProperty(i); });
    PrintArray("elements", scope_.elements.size(), [&](std::size_t i) { PrintElement(scope_.elements[i]); });
    writer_.BreakLine();
    writer_.WriteKey("summary");
    WriteSummary(summary, writer_);
    writer_.EndObject();
    buffer_.GetText() += '\n';
    buffer_.Flush();
  }

 private:
  template <class PrintItem>
  void PrintArray(std::string_view key, std::size_t count, PrintItem&& print) {
    writer_.BreakLine();
    writer_.WriteKey(key);
    writer_.BeginArray();
    for (std::size_t i = 0; i < count; ++i) {
      writer_.BreakLine();
      print(i);
      buffer_.FlushIfFull();
    }
    writer_.EndArray();
  }

  void PrintProperty(std::size_t place) {
    const PropertyIndex property = scope_.properties[place];
    const PropertyDefinition& definition = scope_.table.GetCatalog().Get(property);
    writer_.BeginObject();
    WriteMember(writer_, "name", labels_[place]);
    WriteMember(writer_, "id", definition.id.ToUniString());
    if (!definition.group.IsEmpty()) WriteMember(writer_, "group", definition.group);
    if (definition.kind) WriteMember(writer_, "kind", TW::UniString(GetKindName(*definition.kind)));
    if (scope_.table.HasFormula(property)) {
      WriteMember(writer_, "formula", scope_.table.GetFormulaText(property, scope_.display.GetLocale()));
    }
    writer_.EndObject();
  }

  void PrintElement(ElementIndex element) {
    writer_.BeginObject();
    WriteMember(writer_, "globalId", scope_.source.GetAttribute(element, ElementAttribute::GlobalId));
    WriteMember(writer_, "class", scope_.source.GetAttribute(element, ElementAttribute::Class));
    WriteMember(writer_, "name", scope_.source.GetAttribute(element, ElementAttribute::Name));
    writer_.WriteKey("values");
    writer_.BeginObject();
    for (std::size_t i = 0; i < labels_.size(); ++i) PrintCell(labels_[i], scope_.properties[i], element);
    writer_.EndObject();
    writer_.EndObject();
  }

  void PrintCell(const TW::UniString& label, PropertyIndex property, ElementIndex element) {
    const CellStatus status = scope_.table.GetStatus(property, element);
    if (status == CellStatus::Absent) return;
    writer_.WriteKey(label.GetView());
    if (status != CellStatus::Failed) return WriteValue(writer_, scope_.table.GetValue(property, element));
    writer_.BeginObject();
    writer_.WriteKey("error");
    PrintFailure(reports_.Get(property, element));
    writer_.EndObject();
  }

  void PrintFailure(const FailureReport& report) {
    FailureFacts facts{"evaluation", report.name, report.resourceIndex, report.message};
    if (!report.formula.IsEmpty()) {
      facts.place = report.range;
      facts.span = report.span;
    }
    WriteFailure(writer_, facts);
  }

  const ReportScope& scope_;
  std::vector<TW::UniString> labels_;
  FailureReports reports_;
  SinkBuffer buffer_;
  JsonWriter writer_;
};

}  // namespace

void WriteJsonReport(const ReportScope& scope, const Summary& summary, const ReportSink& sink) {
  Printer(scope, sink).Print(summary);
}

}  // namespace Host
