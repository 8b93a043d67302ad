#pragma once

#include "CommandEntry.hpp"
#include "CommandText.hpp"
#include "Host/Files/FileProblems.hpp"
#include "TW/ErrorCodes.hpp"

#include <string>
#include <string_view>

namespace Command {

/// Tells people what goes wrong in a run over a model. Results that wait are written first, so that both come in order.
class ModelDiagnostics {
 public:
  /// Keeps a reference.
  ModelDiagnostics(const Call& call, bool quiet) : call_(call), quiet_(quiet) {}

  /// Tells what is wrong with a file; what is not fatal only when people want to know. Gives whether it can be used.
  bool CheckFile(std::string_view path, const Host::FileProblems& problems);
  /// Gives whether a file was written, and tells when it was not.
  bool CheckWritten(std::string_view path, TW::ErrCode error);
  void Error(const std::string& sentence) { Write(MakeText(CommandText::Error, sentence) + "\n"); }
  void Warning(const std::string& sentence) {
    if (!quiet_) Write(MakeText(CommandText::Warning, sentence) + "\n");
  }
  /// Writes lines as they are.
  void Write(std::string_view lines);
  bool IsQuiet() const { return quiet_; }

 private:
  const Call& call_;
  bool quiet_;
};

}  // namespace Command
