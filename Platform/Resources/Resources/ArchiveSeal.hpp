#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

/// The seal at the end of an archive of texts: it tells the archive's length and checksum, so that a file that was cut
/// or changed is known before ICU, which trusts what it reads, sees it. The library and the tool that seals share this
/// file; it needs the standard library alone.

namespace Resources {

/// What a seal says. Numbers are stored in the byte order of the machine, as in ICU's archives: one from a machine of
/// the other order is refused.
struct ArchiveSeal {
  std::uint64_t key = 0;       ///< tells archives of different texts apart, see `GetPackageName`
  std::uint64_t length = 0;    ///< bytes before the seal
  std::uint64_t checksum = 0;  ///< of those bytes, the key and the length
};

inline constexpr std::size_t SealSize = 32;
inline constexpr std::uint64_t MinimumArchiveLength = 64;  ///< what ICU reads of any archive to know it
inline constexpr std::uint64_t MaximumArchiveLength = std::uint64_t{64} << 20;
inline constexpr char SealMagic[] = "QxTexts1";

using SealBytes = std::array<unsigned char, SealSize>;

inline std::uint64_t ReadWord(const unsigned char* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof(word));
  return word;
}

/// Adds a word to a checksum. Each step is one to one, so that a change of any one word changes the result.
inline std::uint64_t AddToChecksum(std::uint64_t checksum, std::uint64_t word) {
  checksum = (checksum ^ word) * 0x9E3779B97F4A7C15U;
  return checksum ^ (checksum >> 32);
}

inline std::uint64_t GetChecksum(const unsigned char* bytes, std::size_t length) {
  std::uint64_t checksum = 0;
  const std::size_t whole = length - length % 8;
  for (std::size_t i = 0; i < whole; i += 8) checksum = AddToChecksum(checksum, ReadWord(bytes + i));
  unsigned char tail[8] = {};
  std::copy(bytes + whole, bytes + length, tail);
  return AddToChecksum(checksum, ReadWord(tail));
}

/// The seal for an archive.
inline ArchiveSeal MakeSeal(std::uint64_t key, const unsigned char* bytes, std::size_t length) {
  return {key, length, AddToChecksum(AddToChecksum(GetChecksum(bytes, length), key), length)};
}

inline bool IsSealOf(const ArchiveSeal& seal, const unsigned char* bytes, std::size_t length) {
  return length == seal.length && MakeSeal(seal.key, bytes, length).checksum == seal.checksum;
}

inline SealBytes WriteSeal(const ArchiveSeal& seal) {
  SealBytes bytes;
  std::memcpy(bytes.data(), SealMagic, 8);
  std::memcpy(bytes.data() + 8, &seal.key, 8);
  std::memcpy(bytes.data() + 16, &seal.length, 8);
  std::memcpy(bytes.data() + 24, &seal.checksum, 8);
  return bytes;
}

/// Reads a seal; false when the bytes are none or tell an impossible length.
inline bool ReadSeal(const SealBytes& bytes, ArchiveSeal& seal) {
  if (std::memcmp(bytes.data(), SealMagic, 8) != 0) return false;
  seal = {ReadWord(bytes.data() + 8), ReadWord(bytes.data() + 16), ReadWord(bytes.data() + 24)};
  return seal.length >= MinimumArchiveLength && seal.length <= MaximumArchiveLength;
}

/// The package under which ICU knows the archive. ICU keeps the first archive of a name for the life of the process,
/// whatever its folder; the key, which comes from the contents, gives every archive a name of its own. An archive that
/// is not sealed yet has key 0.
inline std::string GetPackageName(std::uint64_t key) {
  std::string name = "Quorix_";
  for (int shift = 60; shift >= 0; shift -= 4) name.push_back("0123456789abcdef"[key >> shift & 0xF]);
  return name;
}

}  // namespace Resources
