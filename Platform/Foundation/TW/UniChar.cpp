#include "TW/UniChar.hpp"

#include <unicode/uchar.h>

namespace TW {

bool UniChar::IsWhiteSpace() const noexcept {
  if (code_ < 0x80) return code_ == u' ' || (code_ >= u'\t' && code_ <= u'\r');
  return u_isUWhiteSpace(code_) != 0;
}

bool UniChar::IsAlpha() const noexcept {
  if (code_ < 0x80) return (code_ >= u'a' && code_ <= u'z') || (code_ >= u'A' && code_ <= u'Z');
  return u_isalpha(code_) != 0;
}

bool UniChar::IsAlphaNumeric() const noexcept {
  if (code_ < 0x80) return IsAsciiDigit() || IsAlpha();
  return u_isalnum(code_) != 0;
}

}  // namespace TW
