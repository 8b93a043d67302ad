#include "LineReader.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <unistd.h>

namespace Command {
namespace {

constexpr std::size_t InitialSize = std::size_t{256} * 1024;
constexpr std::size_t NotFound = static_cast<std::size_t>(-1);

std::string_view RemoveCarriageReturn(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

bool IsReadable(int descriptor) {
  pollfd poll = {descriptor, POLLIN, 0};
  return ::poll(&poll, 1, 0) != 0;
}

}  // namespace

LineReader::LineReader(int descriptor, std::function<void()> whenIdle, std::size_t longestLine)
    : descriptor_(descriptor), whenIdle_(std::move(whenIdle)), longestLine_(longestLine), buffer_(InitialSize) {}

LineReader::Outcome LineReader::Next(std::string_view& line) {
  for (;;) {
    if (const std::size_t end = FindLineEnd(); end != NotFound) {
      line = TakeLine(end);
      if (line.size() > longestLine_) return Outcome::TooLong;
      line = RemoveCarriageReturn(line);
      return Outcome::Line;
    }
    if (end_ - begin_ > longestLine_) return PassOverLine();
    if (!Fill()) break;
  }
  if (error_ != 0) return Outcome::Failed;
  if (begin_ == end_) return Outcome::End;
  // The last line may lack its end.
  line = {buffer_.data() + begin_, end_ - begin_};
  begin_ = scanned_ = end_;
  return Outcome::Line;
}

std::size_t LineReader::FindLineEnd() {
  const void* found = std::memchr(buffer_.data() + scanned_, '\n', end_ - scanned_);
  scanned_ = end_;
  return found == nullptr ? NotFound : static_cast<std::size_t>(static_cast<const char*>(found) - buffer_.data());
}

std::string_view LineReader::TakeLine(std::size_t end) {
  const std::string_view line(buffer_.data() + begin_, end - begin_);
  begin_ = scanned_ = end + 1;
  return line;
}

// Gives false at the end and when reading fails.
bool LineReader::Fill() {
  if (ended_) return false;
  MakeRoom();
  if (!IsReadable(descriptor_)) whenIdle_();
  ssize_t count = 0;
  do {
    count = ::read(descriptor_, buffer_.data() + end_, buffer_.size() - end_);
  } while (count < 0 && errno == EINTR);
  if (count < 0) error_ = errno;
  ended_ = count <= 0;
  if (count > 0) end_ += static_cast<std::size_t>(count);
  return !ended_;
}

void LineReader::MakeRoom() {
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    scanned_ -= begin_;
    begin_ = 0;
  }
  if (end_ == 0 && buffer_.size() > InitialSize) {
    // What one long line needed is given back.
    std::vector<char>(InitialSize).swap(buffer_);
  } else if (end_ == buffer_.size()) {
    buffer_.resize(std::min(2 * buffer_.size(), longestLine_ + InitialSize));
  }
}

LineReader::Outcome LineReader::PassOverLine() {
  std::size_t end = NotFound;
  do {
    begin_ = scanned_ = end_ = 0;
    if (!Fill()) return error_ != 0 ? Outcome::Failed : Outcome::TooLong;
    end = FindLineEnd();
  } while (end == NotFound);
  TakeLine(end);
  return Outcome::TooLong;
}

}  // namespace Command
