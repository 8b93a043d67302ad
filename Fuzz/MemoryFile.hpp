#pragma once

#include "FuzzInput.hpp"

#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

/// A file in memory, which goes with the program, however that ends.
class MemoryFile {
 public:
  MemoryFile() : descriptor_(memfd_create("fuzz", MFD_CLOEXEC)) { Require(descriptor_ >= 0, "a file in memory"); }
  ~MemoryFile() { close(descriptor_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::string GetPath() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

  void Replace(std::string_view bytes) {
    Require(ftruncate(descriptor_, 0) == 0, "the file can be emptied");
    const ssize_t written = pwrite(descriptor_, bytes.data(), bytes.size(), 0);
    Require(written == static_cast<ssize_t>(bytes.size()), "the file can be written");
  }

 private:
  int descriptor_;
};
