#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Command {

/// Text on its way to a file descriptor, which it does not own. The first failure sticks: later text is dropped.
class Output {
 public:
  explicit Output(int descriptor) : descriptor_(descriptor) {}
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  /// What waits to be written; a caller may append to it, and cut off again what it appended.
  std::string& GetBuffer() { return buffer_; }
  /// Writes what waits when there is much of it.
  void FlushWhenLarge();
  /// Writes what waits.
  void Flush();

  /// The system's number of the first failure, or 0.
  int GetError() const { return error_; }

 private:
  int descriptor_;
  int error_ = 0;
  std::string buffer_;
};

}  // namespace Command
