#include "Host/Csv/CsvRowScanner.hpp"

#include <algorithm>

namespace Host {
namespace {

// The one that wins a tie comes first.
constexpr std::string_view Separators = "\t;,";
constexpr std::string_view LineEnds = "\r\n";

char FindSeparator(std::string_view text) {
  std::size_t counts[Separators.size()] = {};
  bool isQuoted = false;
  for (const char byte : text) {
    if (byte == '"') isQuoted = !isQuoted;
    if (isQuoted) continue;
    if (LineEnds.find(byte) != LineEnds.npos) break;
    const std::size_t separator = Separators.find(byte);
    if (separator != Separators.npos) ++counts[separator];
  }
  const std::size_t* const most = std::ranges::max_element(counts);
  return *most == 0 ? ',' : Separators[static_cast<std::size_t>(most - counts)];
}

}  // namespace

CsvRowScanner::CsvRowScanner(std::string_view text) : text_(text) {
  PassBlankRows(" \t;,");
  separator_ = FindSeparator(text_.substr(position_));
}

bool CsvRowScanner::Next(CsvRow& row) {
  const char blanks[] = {' ', '\t', separator_};
  PassBlankRows({blanks, sizeof(blanks)});
  if (position_ == text_.size()) return false;
  row.offsets.clear();
  row.fault = CsvFault::None;
  while (true) {
    row.offsets.push_back(static_cast<std::uint32_t>(position_));
    if (position_ < text_.size() && text_[position_] == '"') {
      ReadQuotedCell(row);
    } else {
      position_ = FindCellEnd(position_);
    }
    if (IsLineEnd(position_)) break;
    ++position_;
  }
  row.offsets.push_back(static_cast<std::uint32_t>(position_ + 1));
  PassLineEnd();
  return true;
}

bool CsvRowScanner::IsLineEnd(std::size_t position) const {
  return position == text_.size() || text_[position] == '\n' || text_[position] == '\r';
}

bool CsvRowScanner::IsCellEnd(std::size_t position) const {
  return IsLineEnd(position) || text_[position] == separator_;
}

std::size_t CsvRowScanner::FindCellEnd(std::size_t position) const {
  while (!IsCellEnd(position)) ++position;
  return position;
}

std::size_t CsvRowScanner::FindClosingQuote(std::size_t position) const {
  while (true) {
    const std::size_t mark = text_.find('"', position);
    if (mark == text_.npos || !text_.substr(mark + 1).starts_with('"')) return mark;
    position = mark + 2;
  }
}

void CsvRowScanner::PassLineEnd() {
  if (position_ == text_.size()) return;
  position_ += text_.substr(position_).starts_with("\r\n") ? 2 : 1;
}

void CsvRowScanner::PassBlankRows(std::string_view blanks) {
  while (position_ < text_.size()) {
    const std::size_t end = std::min(text_.find_first_not_of(blanks, position_), text_.size());
    if (!IsLineEnd(end)) return;
    position_ = end;
    PassLineEnd();
  }
}

// A mark that is not closed takes in everything up to the next one that stands alone. Scanning that again costs no more
// than twice the length of the text in all: in between only pairs of marks stand, which close where they open.
void CsvRowScanner::ReadQuotedCell(CsvRow& row) {
  const std::size_t opening = position_;
  const std::size_t closing = FindClosingQuote(opening + 1);
  if (closing != text_.npos && IsCellEnd(closing + 1)) {
    position_ = closing + 1;
    return;
  }
  const std::size_t lineEnd = std::min(text_.find_first_of(LineEnds, opening), text_.size());
  if (lineEnd < closing) {
    SetFault(row, CsvFault::OpenQuote, opening);
    position_ = lineEnd;
  } else {
    SetFault(row, CsvFault::TextAfterQuote, closing + 1);
    position_ = FindCellEnd(closing + 1);
  }
}

void CsvRowScanner::SetFault(CsvRow& row, CsvFault fault, std::size_t position) {
  if (row.fault != CsvFault::None) return;
  row.fault = fault;
  row.faultPosition = position;
}

}  // namespace Host
