#pragma once

#include <string>
#include <string_view>

namespace Host {

/// Appends rows of cells to a text in UTF-8, in a form that `CsvFile` and spreadsheets read: cells are put in quotation
/// marks where they must be, and lines end with LF. The first row holds the names of the columns. Cells are written as
/// they are, also where a spreadsheet might take them for formulas; a lone surrogate becomes U+FFFD.
class CsvWriter {
 public:
  /// Keeps a reference to `out`. The separator is a comma, a semicolon or a tab.
  explicit CsvWriter(std::string& out, char separator = ',') : out_(out), separator_(separator) {}

  void WriteCell(std::u16string_view text);
  /// Ends a row, which has at least one cell.
  void EndRow();

 private:
  std::string& out_;
  char separator_;
  bool follows_ = false;  ///< whether a cell stands in the row
  bool isBlank_ = true;   ///< whether all cells of the row are empty
};

}  // namespace Host
