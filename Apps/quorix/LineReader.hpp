#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace Command {

/// Cuts what comes from a file descriptor into lines, which end with LF or CR LF. Memory grows with the longest line
/// that it gives, never beyond the longest that it allows.
class LineReader {
 public:
  static constexpr std::size_t DefaultLongestLine = std::size_t{64} * 1024 * 1024;

  enum class Outcome {
    Line,
    TooLong,  ///< a line longer than allowed, which was passed over
    End,
    Failed,  ///< the system could not read; `GetError` says why
  };

  /// Does not own `descriptor`. `whenIdle` is called whenever there is nothing more to read at once. Lines may have so
  /// many bytes as `longestLine`, without their end.
  LineReader(int descriptor, std::function<void()> whenIdle, std::size_t longestLine = DefaultLongestLine);

  /// Reads the next line, without its end. `line` is good until the next call.
  Outcome Next(std::string_view& line);

  /// The system's number of the failure.
  int GetError() const { return error_; }

 private:
  std::size_t FindLineEnd();
  bool Fill();
  void MakeRoom();
  Outcome PassOverLine();
  std::string_view TakeLine(std::size_t end);

  int descriptor_;
  std::function<void()> whenIdle_;
  std::size_t longestLine_;
  int error_ = 0;
  bool ended_ = false;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;    ///< where the next line begins in the buffer
  std::size_t scanned_ = 0;  ///< no line ends between `begin_` and this
  std::size_t end_ = 0;      ///< where the bytes that were read end
};

}  // namespace Command
