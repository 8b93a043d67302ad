#pragma once

#include "TW/ErrorCodes.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <memory>
#include <string_view>

struct UConverter;

namespace Localization {

/// The character set in which a catalog is written: UTF-8 until another one is chosen. ASCII counts as UTF-8. An object
/// belongs to one thread at a time.
class CharacterSet {
 public:
  /// Takes the set that a catalog's header names after `charset=`; a header without a name and the name CHARSET of an
  /// unfilled template mean UTF-8. Gives `ErrCharacterSet` for a set that is not known or in which the ASCII characters
  /// do not stand for themselves.
  TW::ErrCode ChooseByHeader(std::string_view header);

  /// Gives the count of bytes of the first character of `bytes`, which must not be empty. In UTF-8 every byte counts as
  /// one, since no part of a longer character can be taken for an ASCII character there.
  std::size_t GetCharacterLength(std::string_view bytes) const {
    return converter_ == nullptr || static_cast<unsigned char>(bytes[0]) < 0x80 ? 1 : GetConvertedLength(bytes);
  }
  /// Reads a text; what is broken becomes U+FFFD.
  TW::UniString Decode(std::string_view bytes) const;

 private:
  struct Closer {
    void operator()(UConverter* converter) const;
  };
  using Converter = std::unique_ptr<UConverter, Closer>;

  TW::ErrCode Choose(const char* name);
  std::size_t GetConvertedLength(std::string_view bytes) const;

  Converter converter_;  ///< none for UTF-8
};

}  // namespace Localization
