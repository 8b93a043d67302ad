#include "Output.hpp"

#include <cerrno>
#include <unistd.h>

namespace Command {
namespace {

constexpr std::size_t LargeSize = std::size_t{64} * 1024;
// A buffer that one huge answer blew up is given back.
constexpr std::size_t KeptSize = std::size_t{1024} * 1024;

// Gives the number of the failure, or 0.
int WriteAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno != EINTR) return errno;
    if (written > 0) text.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

}  // namespace

void Output::FlushWhenLarge() {
  if (buffer_.size() >= LargeSize) Flush();
}

void Output::Flush() {
  if (error_ == 0) error_ = WriteAll(descriptor_, buffer_);
  buffer_.clear();
  if (buffer_.capacity() > KeptSize) std::string().swap(buffer_);
}

}  // namespace Command
