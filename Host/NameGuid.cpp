#include "Host/NameGuid.hpp"

#include "IO/MD5Channel.hpp"

#include <algorithm>

namespace Host {

TW::Guid MakeNameGuid(const TW::UniString& name) {
  IO::MD5Channel channel;
  channel.WriteString(name.ToNormalizationFormC());
  const IO::MD5Channel::Digest digest = channel.GetDigest();
  TW::Guid::Bytes bytes;
  std::copy(digest.begin(), digest.end(), bytes.begin());
  // The marks of a GUID that is made from a name by this digest.
  bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x30);
  bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);
  return TW::Guid(bytes);
}

}  // namespace Host
