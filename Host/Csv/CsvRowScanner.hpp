#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Host {

/// What is wrong with the quotation marks of a row.
enum class CsvFault {
  None,
  TextAfterQuote,  ///< something follows a closing mark
  OpenQuote,       ///< a cell is not closed, or only by the marks of a later line
};

/// A row as it stands in the text.
struct CsvRow {
  /// Where each cell begins, and at last the position after the end of the last cell, plus one: what stands between
  /// two cells is one separator.
  std::vector<std::uint32_t> offsets;
  CsvFault fault = CsvFault::None;  ///< the first of the row
  std::size_t faultPosition = 0;

  std::size_t GetCellCount() const { return offsets.size() - 1; }
};

/// Cuts a text of fewer than 2^32 bytes into rows and cells after RFC 4180, in one pass. Lines end with LF, CR or both.
/// Rows in which nothing but blanks and separators stands are passed over. Quotation marks within a cell that does not
/// begin with one are what they are, as in `5"`. A cell that is not closed in its line and does not fit together with
/// what follows costs its line only: scanning goes on with the next one.
class CsvRowScanner {
 public:
  /// Keeps a view of the text. The separator is one of comma, semicolon and tab: the one that stands most often in the
  /// first row outside of quotation marks; among equals the tab, then the semicolon.
  explicit CsvRowScanner(std::string_view text);

  char GetSeparator() const { return separator_; }
  /// Gives false when there are no more rows.
  bool Next(CsvRow& row);

 private:
  bool IsLineEnd(std::size_t position) const;
  bool IsCellEnd(std::size_t position) const;
  std::size_t FindCellEnd(std::size_t position) const;
  std::size_t FindClosingQuote(std::size_t position) const;
  void PassLineEnd();
  void PassBlankRows(std::string_view blanks);
  void ReadQuotedCell(CsvRow& row);
  static void SetFault(CsvRow& row, CsvFault fault, std::size_t position);

  std::string_view text_;
  std::size_t position_ = 0;
  char separator_ = ',';
};

}  // namespace Host
