#include "EP/LocalizedNumberString.hpp"

#include "TW/DecimalNumber.hpp"

#include <algorithm>
#include <utility>

namespace EP {

LocalizedNumberString::LocalizedNumberString(std::string number) noexcept : number_(std::move(number)) {}

TW::UniString LocalizedNumberString::GetNumberString(unsigned short decimalSeparator) const {
  std::u16string text(number_.begin(), number_.end());
  std::replace(text.begin(), text.end(), u'.', static_cast<char16_t>(decimalSeparator));
  return TW::UniString(std::move(text));
}

TW::ErrCode LocalizedNumberString::Read(TW::IChannel& channel) {
  TW::UniString text;
  if (const TW::ErrCode error = channel.ReadString(text); error != TW::NoErr) return error;
  std::string number;
  number.reserve(text.GetLength());
  for (const char16_t unit : text) {
    if (unit >= 0x80) return TW::ErrRefused;
    number.push_back(static_cast<char>(unit));
  }
  double value = 0;
  if (TW::ReadDecimalNumber(number, value) != TW::NumberReading::Read) return TW::ErrRefused;
  number_ = std::move(number);
  return TW::NoErr;
}

TW::ErrCode LocalizedNumberString::Write(TW::OChannel& channel) const {
  return channel.WriteString(GetNumberString(u'.'));
}

}  // namespace EP
