#include "Host/Ifc/IfcGlobalId.hpp"

#include "IO/MD5Channel.hpp"

namespace Host {

// The digest is a number of 128 bits, written with 64 digits, the first of which holds two bits.
std::string MakeIfcGlobalId(std::string_view text) {
  constexpr std::string_view Digits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";
  constexpr unsigned int DigitBits = 6;
  IO::MD5Channel channel;
  channel.WriteBytes(text.data(), text.size());
  std::string id;
  unsigned int bits = 0;
  unsigned int count = 4;
  for (const unsigned int byte : channel.GetDigest()) {
    bits = (bits << 8 | byte) & 0xFFFF;
    for (count += 8; count >= DigitBits; count -= DigitBits) id += Digits[bits >> (count - DigitBits) & 0x3F];
  }
  return id;
}

}  // namespace Host
