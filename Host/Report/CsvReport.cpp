#include "Host/Report/CsvReport.hpp"

#include "Host/Csv/CsvWriter.hpp"
#include "Host/Report/FailureReports.hpp"
#include "Host/Report/Labels.hpp"
#include "Host/Report/SinkBuffer.hpp"

#include <string_view>

namespace Host {
namespace {

struct Attribute {
  ElementAttribute attribute;
  std::u16string_view heading;
};

// The headings are the same in all languages, so that programs find them.
constexpr Attribute Attributes[] = {
    {ElementAttribute::GlobalId, u"GlobalId"}, {ElementAttribute::Class, u"Class"}, {ElementAttribute::Name, u"Name"}};

char ChooseSeparator(const ReportScope& scope) {
  return scope.display.GetLocale().GetListSeparator() == u';' ? ';' : ',';
}

class Printer {
 public:
  Printer(const ReportScope& scope, const ReportSink& sink)
      : scope_(scope), reports_(scope), buffer_(sink), writer_(buffer_.GetText(), ChooseSeparator(scope)) {}

  void Print() {
    for (const Attribute& attribute : Attributes) writer_.WriteCell(attribute.heading);
    for (const TW::UniString& label : MakePropertyLabels(scope_.table.GetCatalog(), scope_.properties)) {
      writer_.WriteCell(label);
    }
    writer_.EndRow();
    for (const ElementIndex element : scope_.elements) PrintElement(element);
    buffer_.Flush();
  }

 private:
  void PrintElement(ElementIndex element) {
    for (const Attribute& attribute : Attributes) {
      writer_.WriteCell(scope_.source.GetAttribute(element, attribute.attribute));
    }
    for (const PropertyIndex property : scope_.properties) writer_.WriteCell(MakeCellText(property, element));
    writer_.EndRow();
    buffer_.FlushIfFull();
  }

  TW::UniString MakeCellText(PropertyIndex property, ElementIndex element) {
    switch (scope_.table.GetStatus(property, element)) {
      case CellStatus::Defined:
        return scope_.display.Make(scope_.table.GetValue(property, element));
      case CellStatus::Failed:
        return u"#" + reports_.Get(property, element).name;
      default:
        return {};
    }
  }

  const ReportScope& scope_;
  FailureReports reports_;
  SinkBuffer buffer_;
  CsvWriter writer_;
};

}  // namespace

void WriteCsvReport(const ReportScope& scope, const ReportSink& sink) { Printer(scope, sink).Print(); }

}  // namespace Host
