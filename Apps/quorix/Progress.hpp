#pragma once

#include "CommandText.hpp"

#include <chrono>
#include <cstddef>

namespace Command {

/// Tells on standard error how far a long piece of work is, in one line that is wiped out in the end. Says nothing in
/// the first second, and nothing at all when standard error is no terminal.
class Progress {
 public:
  explicit Progress(bool wanted);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { Clear(); }

  /// Tells what is being done, and how much of it is done; a total of 0 is not known. Costs little when called often.
  void Tell(CommandText work, std::size_t done = 0, std::size_t total = 0);
  /// Wipes the line out.
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;

  bool wanted_;
  bool shown_ = false;
  Clock::time_point next_;  ///< when the line may be written again
};

}  // namespace Command
