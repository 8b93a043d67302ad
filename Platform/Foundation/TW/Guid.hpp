#pragma once

#include "TW/ErrorCodes.hpp"
#include "TW/Export.hpp"
#include "TW/UniString.hpp"

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string_view>

namespace TW {

/// A globally unique identifier of 16 bytes, held in the order in which its text shows them. The default is the null
/// GUID, whose bytes are all zero.
class TW_EXPORT Guid {
 public:
  using Bytes = std::array<std::uint8_t, 16>;

  constexpr Guid() noexcept = default;
  explicit constexpr Guid(const Bytes& bytes) noexcept : bytes_(bytes) {}
  /// Reads the text of a GUID that the program itself contains; a text that is none leaves the null GUID.
  explicit Guid(std::string_view text) noexcept;

  /// Reads 32 hexadecimal digits of either case in groups of 8-4-4-4-12, with or without braces around them.
  /// Gives `ErrGuidEmpty` for an empty text and makes this the null GUID; gives `ErrGuidFormat` for any other text that
  /// is no GUID and leaves this unchanged.
  ErrCode ConvertFromString(std::u16string_view text) noexcept;
  /// 36 characters in upper case, without braces.
  UniString ToUniString() const;

  bool IsNull() const noexcept { return *this == Guid(); }
  const Bytes& GetBytes() const noexcept { return bytes_; }

  friend auto operator<=>(const Guid&, const Guid&) noexcept = default;

 private:
  Bytes bytes_{};
};

}  // namespace TW

/// @cond
template <>
struct std::hash<TW::Guid> {
  std::size_t operator()(const TW::Guid& guid) const noexcept {
    std::uint64_t halves[2];
    std::memcpy(halves, guid.GetBytes().data(), sizeof(halves));
    const std::uint64_t mixed = (halves[0] ^ (halves[1] * 0x9E3779B97F4A7C15U)) * 0xBF58476D1CE4E5B9U;
    return static_cast<std::size_t>(mixed ^ (mixed >> 32));
  }
};
/// @endcond
