#include "Host/Files/Encoding.hpp"

#include <unicode/utf16.h>

#include <algorithm>

namespace Host {
namespace {

constexpr std::string_view BigEndianMark = "\xFE\xFF";
constexpr std::string_view LittleEndianMark = "\xFF\xFE";

class UnitReader {
 public:
  explicit UnitReader(std::string_view text) : text_(text), low_(text.starts_with(LittleEndianMark) ? 0 : 1) {}

  bool IsAtEnd() const { return position_ == text_.size(); }
  bool Next(char16_t& unit) {
    if (position_ + 1 >= text_.size()) return false;
    const auto low = static_cast<unsigned char>(text_[position_ + low_]);
    const auto high = static_cast<unsigned char>(text_[position_ + 1 - low_]);
    unit = static_cast<char16_t>(high << 8 | low);
    position_ += 2;
    return true;
  }

 private:
  std::string_view text_;
  std::size_t low_;
  std::size_t position_ = 2;
};

char ContinuationByte(char32_t code, unsigned int shift) { return static_cast<char>(0x80 | ((code >> shift) & 0x3F)); }

bool IsWithin(char byte, unsigned int least, unsigned int greatest) {
  const auto value = static_cast<unsigned char>(byte);
  return least <= value && value <= greatest;
}

// The length of the character with which the text begins, or 0 when none does. After some first bytes the second one
// must not make an overlong form, a surrogate or a code beyond the last.
std::size_t GetCharacterLength(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (text.size() < length) return 0;
  const unsigned int least = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned int greatest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (!IsWithin(text[1], least, greatest)) return 0;
  const auto continues = [](char byte) { return IsWithin(byte, 0x80, 0xBF); };
  return std::ranges::all_of(text.substr(2, length - 2), continues) ? length : 0;
}

}  // namespace

void AppendUtf8(std::string& out, char32_t code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
    return;
  }
  if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += ContinuationByte(code, 6);
  } else {
    out += static_cast<char>(0xF0 | (code >> 18));
    out += ContinuationByte(code, 12);
    out += ContinuationByte(code, 6);
  }
  out += ContinuationByte(code, 0);
}

std::size_t FindInvalidUtf8(std::string_view text) {
  std::size_t position = 0;
  while (position < text.size()) {
    const std::size_t length = GetCharacterLength(text.substr(position));
    if (length == 0) return position;
    position += length;
  }
  return position;
}

bool HasUtf16ByteOrderMark(std::string_view text) {
  return text.starts_with(BigEndianMark) || text.starts_with(LittleEndianMark);
}

bool ConvertUtf16ToUtf8(std::string_view text, std::string& utf8) {
  utf8.clear();
  utf8.reserve(text.size() / 2);
  UnitReader reader(text);
  while (!reader.IsAtEnd()) {
    char16_t lead = 0;
    char16_t trail = 0;
    if (!reader.Next(lead)) return false;
    if (!U16_IS_SURROGATE(lead)) {
      AppendUtf8(utf8, lead);
      continue;
    }
    if (!U16_IS_SURROGATE_LEAD(lead) || !reader.Next(trail) || !U16_IS_TRAIL(trail)) return false;
    AppendUtf8(utf8, static_cast<char32_t>(U16_GET_SUPPLEMENTARY(lead, trail)));
  }
  return true;
}

}  // namespace Host
