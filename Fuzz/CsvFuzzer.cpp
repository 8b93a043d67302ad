#include "Host/Csv/CsvFile.hpp"
#include "Host/Csv/CsvWriter.hpp"
#include "Host/Model/CsvElements.hpp"
#include "ProblemChecks.hpp"

#include <string>

// Tables in CSV files: read, written and read again, and taken for the elements of a model.

namespace {

using Host::CsvFile;
using Host::PropertyKind;

std::string WriteAgain(const CsvFile& file) {
  std::string text;
  Host::CsvWriter writer(text, file.GetSeparator());
  for (CsvFile::Column column = 0; column < file.GetColumnCount(); ++column) writer.WriteCell(file.GetName(column));
  writer.EndRow();
  for (CsvFile::Row row = 0; row < file.GetRowCount(); ++row) {
    for (CsvFile::Column column = 0; column < file.GetColumnCount(); ++column) {
      writer.WriteCell(file.GetCell(row, column));
    }
    writer.EndRow();
  }
  return text;
}

void CheckSame(const CsvFile& file, const CsvFile& again) {
  Require(again.GetColumnCount() == file.GetColumnCount(), "what was written has the same columns");
  Require(again.GetRowCount() == file.GetRowCount(), "what was written has the same rows");
  for (CsvFile::Column column = 0; column < file.GetColumnCount(); ++column) {
    Require(again.GetName(column) == file.GetName(column), "what was written has the same names");
    for (CsvFile::Row row = 0; row < file.GetRowCount(); ++row) {
      Require(again.GetCell(row, column) == file.GetCell(row, column), "what was written has the same cells");
    }
  }
}

void ReadElements(const CsvFile& file) {
  const Host::CsvElements elements(file, {',', ';', '.'});
  for (CsvFile::Column column = 0; column < file.GetColumnCount(); ++column) {
    const auto source = elements.FindSource(file.GetName(column));
    if (!source) continue;
    for (Host::ElementIndex element = 0; element < elements.GetCount(); ++element) {
      elements.GetAttribute(element, Host::ElementAttribute::Class);
      for (const PropertyKind kind : {PropertyKind::Number, PropertyKind::Integer, PropertyKind::Length,
                                      PropertyKind::Angle, PropertyKind::Text, PropertyKind::Logical}) {
        auto value = elements.Read(element, *source, kind);
        Require(!value || !value->IsValid() || FitToKind(*value, kind), "a value is of the kind asked for");
      }
    }
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const CsvFile file = CsvFile::FromText(text);
  CheckProblems(file.GetProblems(), text);
  if (file.GetProblems().HasFatal()) {
    Require(file.GetRowCount() == 0, "a table with a fatal problem has no rows");
    return 0;
  }
  if (file.GetRowCount() > 0) file.FindPlace(file.GetRowCount() - 1, 0);
  CheckSame(file, CsvFile::FromText(WriteAgain(file)));
  ReadElements(file);
  return 0;
}
