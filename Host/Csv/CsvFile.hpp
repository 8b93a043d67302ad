#pragma once

#include "Host/Files/FileProblems.hpp"
#include "Host/Files/TextPlace.hpp"
#include "TW/HashTable.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Host {

/// A table in a CSV file, in UTF-8 or in UTF-16 with a byte order mark, whose first row names the columns. It keeps the
/// text of the file and where cells begin, and reads a cell when it is asked for; any number of threads may ask.
///
/// A row with too few cells is used, one with too many or with wrong quotation marks is left out; each is a problem
/// that is not fatal. So are a column without name and a second column of a name, which cannot be found. With a fatal
/// problem there are no rows.
class CsvFile {
 public:
  using Row = std::uint32_t;
  using Column = std::uint32_t;

  /// Reads the file at a path, in the encoding of the system.
  static CsvFile Read(const std::string& path);
  static CsvFile FromText(std::string text);

  /// How many rows there are, the names not counted.
  Row GetRowCount() const { return static_cast<Row>(rows_.size()); }
  Column GetColumnCount() const { return static_cast<Column>(names_.size()); }
  /// The name of a column without the blanks at its ends.
  const TW::UniString& GetName(Column column) const { return names_[column]; }
  TW::Optional<Column> FindColumn(std::u16string_view name) const;
  char GetSeparator() const { return separator_; }

  /// What a cell holds; empty where the row ends before the column.
  TW::UniString GetCell(Row row, Column column) const;
  /// Where a cell stands. Takes time by the length of the file.
  TextPlace FindPlace(Row row, Column column) const;

  const FileProblems& GetProblems() const { return problems_; }

 private:
  friend class CsvFileReader;

  // What stands in the text for a cell, quotation marks included.
  std::string_view GetSource(Row row, Column column) const;

  std::string text_;
  char separator_ = ',';
  std::vector<TW::UniString> names_;
  TW::HashTable<TW::UniString, Column> columns_;
  std::vector<std::uint32_t> offsets_;  ///< those of the rows one after the other, as a scanner gives them
  std::vector<std::size_t> rows_;       ///< where the offsets of each row begin
  FileProblems problems_;
};

}  // namespace Host
