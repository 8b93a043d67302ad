#pragma once

#include "Host/Ifc/StepScan.hpp"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace Host {

/// Finds the ends of statements, one after the other: the semicolons outside texts and comments. Goes through the text
/// once, however many statements are asked for.
class StepStatements {
 public:
  explicit StepStatements(std::string_view text)
      : text_(text),
        semicolon_(FindStepByte(text, ';', 0)),
        quote_(FindStepByte(text, '\'', 0)),
        slash_(FindStepByte(text, '/', 0)) {}

  /// The position of the semicolon that ends a statement of which `at` is outside texts and comments, or the end of the
  /// text. Positions must not decrease from call to call.
  std::size_t FindEnd(std::size_t at) {
    while (true) {
      MoveTo(at);
      const std::size_t special = std::min(quote_, slash_);
      if (semicolon_ < special || special == text_.size()) return semicolon_;
      at = special == quote_ ? std::min(FindStepByte(text_, '\'', quote_ + 1) + 1, text_.size()) : PassSlash();
    }
  }

 private:
  void MoveTo(std::size_t at) {
    if (semicolon_ < at) semicolon_ = FindStepByte(text_, ';', at);
    if (quote_ < at) quote_ = FindStepByte(text_, '\'', at);
    if (slash_ < at) slash_ = FindStepByte(text_, '/', at);
  }

  std::size_t PassSlash() const { return IsStepComment(text_, slash_) ? SkipStepComment(text_, slash_) : slash_ + 1; }

  std::string_view text_;
  std::size_t semicolon_;  ///< the first at or after the last position asked for; likewise the others
  std::size_t quote_;
  std::size_t slash_;
};

}  // namespace Host
