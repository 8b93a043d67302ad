#include "TW/Guid.hpp"

namespace TW {
namespace {

constexpr std::size_t PlainLength = 36;
constexpr char Digits[] = "0123456789ABCDEF";

constexpr bool IsDashPosition(std::size_t position) {
  return position == 8 || position == 13 || position == 18 || position == 23;
}

constexpr int HexValue(unsigned int unit) {
  if (unit >= '0' && unit <= '9') return static_cast<int>(unit - '0');
  const unsigned int lower = unit | 0x20U;
  if (lower >= 'a' && lower <= 'f') return static_cast<int>(lower - 'a' + 10);
  return -1;
}

template <class View>
bool Parse(View text, Guid::Bytes& bytes) {
  if (text.size() == PlainLength + 2 && text.front() == '{' && text.back() == '}') text = text.substr(1, PlainLength);
  if (text.size() != PlainLength) return false;
  std::size_t position = 0;
  for (std::uint8_t& byte : bytes) {
    if (IsDashPosition(position)) {
      if (text[position] != '-') return false;
      ++position;
    }
    const int high = HexValue(static_cast<unsigned int>(text[position++]));
    const int low = HexValue(static_cast<unsigned int>(text[position++]));
    if (high < 0 || low < 0) return false;
    byte = static_cast<std::uint8_t>(high * 16 + low);
  }
  return true;
}

}  // namespace

Guid::Guid(std::string_view text) noexcept {
  Bytes bytes;
  if (Parse(text, bytes)) bytes_ = bytes;
}

ErrCode Guid::ConvertFromString(std::u16string_view text) noexcept {
  if (text.empty()) {
    *this = Guid();
    return ErrGuidEmpty;
  }
  Bytes bytes;
  if (!Parse(text, bytes)) return ErrGuidFormat;
  bytes_ = bytes;
  return NoErr;
}

UniString Guid::ToUniString() const {
  std::u16string text;
  text.reserve(PlainLength);
  for (const std::uint8_t byte : bytes_) {
    if (IsDashPosition(text.size())) text.push_back(u'-');
    text.push_back(static_cast<char16_t>(Digits[byte >> 4]));
    text.push_back(static_cast<char16_t>(Digits[byte & 15]));
  }
  return UniString(std::move(text));
}

}  // namespace TW
