#include "Progress.hpp"

#include "Output.hpp"

#include <algorithm>
#include <string>
#include <unistd.h>

namespace Command {
namespace {

constexpr std::chrono::seconds Patience{1};
constexpr std::chrono::milliseconds Interval{100};
constexpr std::string_view ClearLine = "\r\x1b[K";

void Write(std::string_view text) {
  Output output(STDERR_FILENO);
  output.GetBuffer() = text;
  output.Flush();
}

}  // namespace

Progress::Progress(bool wanted) : wanted_(wanted && ::isatty(STDERR_FILENO) != 0), next_(Clock::now() + Patience) {}

void Progress::Tell(CommandText work, std::size_t done, std::size_t total) {
  if (!wanted_ || Clock::now() < next_) return;
  std::string line(ClearLine);
  line += MakeText(work);
  if (total != 0) line += " " + std::to_string(std::min(done, total) * 100 / total) + " %";
  Write(line);
  shown_ = true;
  next_ = Clock::now() + Interval;
}

void Progress::Clear() {
  if (shown_) Write(ClearLine);
  shown_ = false;
}

}  // namespace Command
