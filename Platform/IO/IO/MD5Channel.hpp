#pragma once

#include "IO/Export.hpp"
#include "TW/Channel.hpp"
#include "TW/FixArray.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <cstdint>

namespace IO {

/// Forms the MD5 digest (RFC 1321) of everything that is written, and keeps nothing else of it. The digest tells
/// whether contents changed by accident; it is no protection against intent. Writing never fails. Bytes written inside
/// an open frame count from when the outermost frame is closed.
class IO_EXPORT MD5Channel final : public TW::OChannel {
 public:
  using Digest = TW::FixArray<std::uint8_t, 16>;

  /// Gives the digest of what has been written so far; writing may go on afterwards.
  Digest GetDigest() const;
  /// Gives the same digest as 32 hexadecimal characters in lower case.
  TW::UniString GetDigestText() const;

 protected:
  TW::ErrCode WriteRaw(const void* bytes, std::size_t count) override;

 private:
  static constexpr std::size_t BlockSize = 64;

  struct State {
    void Add(const std::uint8_t* bytes, std::size_t count);
    void AddBlock(const std::uint8_t* block);

    TW::FixArray<std::uint32_t, 4> words{0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476};
    std::uint64_t length = 0;  ///< in bytes
    TW::FixArray<std::uint8_t, BlockSize> pending{};
  };

  State state_;
};

}  // namespace IO
