#include "Host/Csv/CsvWriter.hpp"

#include "TW/UniString.hpp"

#include <algorithm>

namespace Host {
namespace {

constexpr char16_t ByteOrderMark = 0xFEFF;

// All separators count, for a reader finds out which one it is from what stands outside of quotation marks. Blanks at
// the ends would be lost in some programs.
bool NeedsQuotes(std::u16string_view text) {
  if (text.empty()) return false;
  if (text.front() == u' ' || text.back() == u' ' || text.front() == ByteOrderMark) return true;
  return text.find_first_of(u",;\t\"\r\n") != text.npos;
}

void AppendUtf8(std::string& out, std::u16string_view text) {
  const bool isAscii = std::ranges::all_of(text, [](char16_t unit) { return unit < 0x80; });
  if (!isAscii) {
    out += TW::UniString(text).ToUtf8();
    return;
  }
  for (const char16_t unit : text) out += static_cast<char>(unit);
}

void AppendQuoted(std::string& out, std::u16string_view text) {
  out += '"';
  for (std::size_t mark = text.find(u'"'); mark != text.npos; mark = text.find(u'"')) {
    AppendUtf8(out, text.substr(0, mark));
    out += "\"\"";
    text.remove_prefix(mark + 1);
  }
  AppendUtf8(out, text);
  out += '"';
}

}  // namespace

void CsvWriter::WriteCell(std::u16string_view text) {
  if (follows_) out_ += separator_;
  follows_ = true;
  isBlank_ = isBlank_ && text.empty();
  if (NeedsQuotes(text)) {
    AppendQuoted(out_, text);
  } else {
    AppendUtf8(out_, text);
  }
}

void CsvWriter::EndRow() {
  // Readers pass over rows in which nothing stands.
  if (isBlank_) out_ += "\"\"";
  out_ += '\n';
  follows_ = false;
  isBlank_ = true;
}

}  // namespace Host
