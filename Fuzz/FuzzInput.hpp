#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// What the fuzzers share: their input cut into choices and text, and the check that ends the program.

/// Cuts an input into a line of choices and the text after it, so that inputs can be written and read in an editor. A
/// character of the first line is a choice, counted from the digit 0; a line that is too short leaves choices at 0. An
/// input of one line has no choices.
class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size) : text_(reinterpret_cast<const char*>(data), size) {
    const std::size_t end = text_.find('\n');
    if (end == text_.npos) return;
    choices_ = text_.substr(0, end);
    text_.remove_prefix(end + 1);
  }

  std::string_view GetText() const { return text_; }

  /// Takes the next choice, a number below `count`.
  unsigned int Choose(unsigned int count) {
    if (choices_.empty()) return 0;
    const auto digit = static_cast<unsigned char>(choices_.front() - '0');
    choices_.remove_prefix(1);
    return digit % count;
  }

  bool ChooseYes() { return Choose(2) == 1; }

  template <class Choice, std::size_t Count>
  const Choice& ChooseFrom(const Choice (&choices)[Count]) {
    return choices[Choose(Count)];
  }

 private:
  std::string_view text_;
  std::string_view choices_;
};

/// Ends the program, for a fuzzer to note, unless what must hold does.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "This does not hold: %s\n", what);
  std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
