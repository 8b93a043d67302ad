#pragma once

#include "Host/Report/ReportScope.hpp"

#include <cstddef>
#include <string>

namespace Host {

/// Collects the text of a report and hands it on in pieces, so that it is never held as a whole. Keeps a reference to
/// the sink.
class SinkBuffer {
 public:
  explicit SinkBuffer(const ReportSink& sink) : sink_(sink) {}
  SinkBuffer(const SinkBuffer&) = delete;
  SinkBuffer& operator=(const SinkBuffer&) = delete;

  /// What is still to be handed on.
  std::string& GetText() { return text_; }
  /// Hands the text on when there is enough of it.
  void FlushIfFull() {
    if (text_.size() >= Enough) Flush();
  }
  /// To be called at the end.
  void Flush() {
    if (!text_.empty()) sink_(text_);
    text_.clear();
  }

 private:
  static constexpr std::size_t Enough = 65'536;

  const ReportSink& sink_;
  std::string text_;
};

}  // namespace Host
