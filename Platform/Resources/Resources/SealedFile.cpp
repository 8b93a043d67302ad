#include "Resources/SealedFile.hpp"

#include <algorithm>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Resources {
namespace {

class File {
 public:
  // Not to block: the path may lead to a pipe.
  explicit File(const std::string& path) : descriptor_(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
  ~File() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  std::uint64_t GetLength() const {
    struct stat status;
    if (descriptor_ < 0 || fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) return 0;
    return static_cast<std::uint64_t>(status.st_size);
  }

  bool Read(std::uint64_t position, unsigned char* bytes, std::size_t count) const {
    while (count > 0) {
      const ssize_t read = pread(descriptor_, bytes, count, static_cast<off_t>(position));
      if (read <= 0) return false;
      bytes += read;
      position += static_cast<std::uint64_t>(read);
      count -= static_cast<std::size_t>(read);
    }
    return true;
  }

 private:
  int descriptor_;
};

// `read(position, bytes, count)` copies from the sealed archive.
template <class Reader>
TW::Optional<SealedArchive> ReadSealedArchive(std::uint64_t sealedLength, const Reader& read) {
  if (sealedLength < SealSize) return {};
  const std::uint64_t length = sealedLength - SealSize;
  SealBytes sealBytes;
  ArchiveSeal seal;
  if (!read(length, sealBytes.data(), SealSize) || !ReadSeal(sealBytes, seal) || seal.length != length) return {};

  const auto size = static_cast<std::size_t>(length);
  HeapBytes bytes(static_cast<unsigned char*>(std::malloc(size)), &std::free);
  if (!bytes) throw std::bad_alloc();
  if (!read(0, bytes.get(), size) || !IsSealOf(seal, bytes.get(), size)) return {};
  return SealedArchive{seal, std::move(bytes)};
}

}  // namespace

TW::Optional<SealedArchive> ReadSealedFile(const std::string& path) {
  const File file(path);
  return ReadSealedArchive(file.GetLength(), [&file](std::uint64_t position, unsigned char* bytes, std::size_t count) {
    return file.Read(position, bytes, count);
  });
}

TW::Optional<SealedArchive> CopySealedArchive(const unsigned char* bytes, std::size_t length) {
  return ReadSealedArchive(length, [bytes](std::uint64_t position, unsigned char* copy, std::size_t count) {
    std::copy_n(bytes + position, count, copy);
    return true;
  });
}

}  // namespace Resources
