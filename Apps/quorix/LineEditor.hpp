#pragma once

#include "Completion.hpp"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace Command {

/// Lets a person edit lines on the terminal of standard input, with the lines of earlier times at hand. There is at
/// most one.
class LineEditor {
 public:
  /// `complete` is asked with what stands before the cursor.
  explicit LineEditor(std::function<Completion(const TW::UniString& beforeCursor)> complete);
  LineEditor(const LineEditor&) = delete;
  LineEditor& operator=(const LineEditor&) = delete;
  /// Keeps the lines for the next time.
  ~LineEditor();

  /// Reads a line, without its end; false when the person ends the input. `line` is good until the next call.
  bool Next(std::string_view& line);

 private:
  class Terminal;
  std::unique_ptr<Terminal> terminal_;
};

}  // namespace Command
