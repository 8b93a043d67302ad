#pragma once

#include "TW/Export.hpp"

#include <compare>

namespace TW {

/// One 16-bit code unit of a text. A unit of a surrogate pair is neither white space nor alphanumeric.
class TW_EXPORT UniChar {
 public:
  constexpr UniChar() noexcept = default;
  constexpr UniChar(char16_t code) noexcept : code_(code) {}

  constexpr char16_t GetCode() const noexcept { return code_; }

  /// Whether the unit has Unicode's White_Space property.
  bool IsWhiteSpace() const noexcept;
  /// Whether the unit is a letter or a decimal digit of any script.
  bool IsAlphaNumeric() const noexcept;
  /// Whether the unit is a letter of any script.
  bool IsAlpha() const noexcept;
  /// Whether the unit is one of the digits 0 to 9.
  constexpr bool IsAsciiDigit() const noexcept { return code_ >= u'0' && code_ <= u'9'; }

  friend constexpr auto operator<=>(UniChar, UniChar) noexcept = default;

 private:
  char16_t code_ = 0;
};

}  // namespace TW
