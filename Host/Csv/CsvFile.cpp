#include "Host/Csv/CsvFile.hpp"

#include "Host/Csv/CsvRowScanner.hpp"
#include "Host/Files/Encoding.hpp"
#include "Host/Files/InputFile.hpp"
#include "Host/Texts/FileTexts.hpp"

#include <algorithm>
#include <limits>
#include <utility>

namespace Host {
namespace {

constexpr std::size_t LargestFile = std::numeric_limits<std::uint32_t>::max();

TW::UniString ToText(std::size_t number) { return TW::UniString::FromInteger(static_cast<long long>(number)); }

TW::UniString ReadCell(std::string_view source) {
  if (!source.starts_with('"')) return TW::UniString::FromUtf8(source);
  source = source.substr(1, source.size() - 2);
  if (source.find('"') == source.npos) return TW::UniString::FromUtf8(source);
  std::string cell;
  cell.reserve(source.size());
  for (std::size_t i = 0; i < source.size(); ++i) {
    cell += source[i];
    if (source[i] == '"') ++i;
  }
  return TW::UniString::FromUtf8(cell);
}

std::string_view GetCellSource(std::string_view text, const std::uint32_t* offset) {
  return text.substr(offset[0], offset[1] - 1 - offset[0]);
}

}  // namespace

/// Reads the text of a file object.
class CsvFileReader {
 public:
  explicit CsvFileReader(CsvFile& file) : file_(file), places_(file.text_) {}

  void Read() {
    if (!CheckText()) return;
    CsvRowScanner scanner(file_.text_);
    file_.separator_ = scanner.GetSeparator();
    CsvRow row;
    if (!scanner.Next(row)) return Add(0, MakeText(FileText::NoHeader), true);
    if (row.fault != CsvFault::None) return Add(row.faultPosition, MakeText(FileText::BadHeader), true);
    ReadNames(row);
    while (scanner.Next(row)) AddRow(row);
    file_.offsets_.shrink_to_fit();
  }

 private:
  bool CheckText() {
    const std::string_view text = file_.text_;
    const std::size_t nul = text.find('\0');
    if (nul != text.npos) Add(nul, MakeText(FileText::NulByte), true);
    const std::size_t wrong = FindInvalidUtf8(text);
    if (wrong != text.size()) Add(wrong, MakeText(FileText::NotUtf8), true);
    return !file_.problems_.HasFatal();
  }

  void Add(std::size_t position, TW::UniString message, bool isFatal) {
    const TextPlace place = places_.Find(position);
    file_.problems_.Add({place.line, place.column, std::move(message), isFatal});
  }

  void ReadNames(const CsvRow& row) {
    bool hasNameless = false;
    for (std::size_t i = 0; i < row.GetCellCount(); ++i) {
      TW::UniString name = ReadCell(GetCellSource(file_.text_, &row.offsets[i])).Trim();
      if (name.IsEmpty() && !std::exchange(hasNameless, true)) {
        Add(row.offsets[i], MakeText(FileText::NamelessColumn), false);
      }
      if (!name.IsEmpty() && !file_.columns_.Add(name, static_cast<CsvFile::Column>(i))) {
        Add(row.offsets[i], MakeText(FileText::DuplicateColumn, name), false);
      }
      file_.names_.push_back(std::move(name));
    }
  }

  void AddRow(const CsvRow& row) {
    if (row.fault != CsvFault::None) {
      const bool isOpen = row.fault == CsvFault::OpenQuote;
      return Add(row.faultPosition, MakeText(isOpen ? FileText::OpenQuote : FileText::TextAfterQuote), false);
    }
    const std::size_t columns = file_.names_.size();
    const std::size_t surplus = FindSurplus(row, columns);
    if (surplus < row.GetCellCount()) {
      return Add(row.offsets[surplus], MakeText(FileText::TooManyCells, ToText(columns)), false);
    }
    const std::size_t count = std::min(row.GetCellCount(), columns);
    if (count < columns) {
      Add(row.offsets[0], MakeText(FileText::TooFewCells, ToText(count), ToText(columns)), false);
    }
    file_.rows_.push_back(file_.offsets_.size());
    file_.offsets_.insert(file_.offsets_.end(), row.offsets.begin(),
                          row.offsets.begin() + static_cast<std::ptrdiff_t>(count + 1));
  }

  // The first cell beyond the columns that holds anything; none of the row when nothing does.
  std::size_t FindSurplus(const CsvRow& row, std::size_t columns) const {
    std::size_t cell = columns;
    while (cell < row.GetCellCount() && GetCellSource(file_.text_, &row.offsets[cell]).empty()) ++cell;
    return cell;
  }

  CsvFile& file_;
  TextPlaceFinder places_;
};

CsvFile CsvFile::Read(const std::string& path) {
  constexpr std::size_t Megabyte = std::size_t{1} << 20;
  std::string text;
  const FileReading reading = ReadWholeFile(path, LargestFile, text);
  if (reading == FileReading::Read) return FromText(std::move(text));
  CsvFile file;
  TW::UniString message = reading == FileReading::Unreadable
                              ? MakeText(FileText::Unreadable)
                              : MakeText(FileText::TooLarge, ToText(LargestFile / Megabyte));
  file.problems_.Add({0, 0, std::move(message), true});
  return file;
}

CsvFile CsvFile::FromText(std::string text) {
  CsvFile file;
  if (HasUtf16ByteOrderMark(text)) {
    const bool isWhole = ConvertUtf16ToUtf8(text, file.text_);
    if (!isWhole) {
      const TextPlace place = TextPlaceFinder(file.text_).Find(file.text_.size());
      file.problems_.Add({place.line, place.column, MakeText(FileText::NotUtf16), true});
      return file;
    }
  } else {
    if (text.starts_with(Utf8ByteOrderMark)) text.erase(0, Utf8ByteOrderMark.size());
    file.text_ = std::move(text);
  }
  CsvFileReader(file).Read();
  return file;
}

TW::Optional<CsvFile::Column> CsvFile::FindColumn(std::u16string_view name) const {
  const Column* column = columns_.Find(name);
  return column != nullptr ? TW::Optional<Column>(*column) : std::nullopt;
}

std::string_view CsvFile::GetSource(Row row, Column column) const {
  const std::size_t begin = rows_[row];
  const std::size_t end = row + std::size_t{1} < rows_.size() ? rows_[row + 1] : offsets_.size();
  const std::size_t cell = begin + column;
  if (cell + 1 >= end) return std::string_view(text_).substr(offsets_[end - 1] - 1, 0);
  return GetCellSource(text_, &offsets_[cell]);
}

TW::UniString CsvFile::GetCell(Row row, Column column) const { return ReadCell(GetSource(row, column)); }

TextPlace CsvFile::FindPlace(Row row, Column column) const {
  return TextPlaceFinder(text_).Find(static_cast<std::size_t>(GetSource(row, column).data() - text_.data()));
}

}  // namespace Host
