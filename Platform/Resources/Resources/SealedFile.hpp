#pragma once

#include "Resources/ArchiveSeal.hpp"
#include "TW/Optional.hpp"

#include <cstdlib>
#include <memory>
#include <string>

namespace Resources {

/// Bytes that live until somebody frees them.
using HeapBytes = std::unique_ptr<unsigned char, decltype(&std::free)>;

/// An archive whose seal has been found right, in memory of its own, aligned as ICU needs it.
struct SealedArchive {
  ArchiveSeal seal;
  HeapBytes bytes;
};

/// Reads the archive in a file; nothing when there is none, or its seal is wrong. Takes memory only once the file has
/// the length that its seal tells.
TW::Optional<SealedArchive> ReadSealedFile(const std::string& path);

/// Copies the sealed archive in a piece of memory; nothing when its seal is wrong.
TW::Optional<SealedArchive> CopySealedArchive(const unsigned char* bytes, std::size_t length);

}  // namespace Resources
