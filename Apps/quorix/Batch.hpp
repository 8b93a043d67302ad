#pragma once

#include "CommandEntry.hpp"
#include "Environment.hpp"
#include "Evaluation.hpp"
#include "Host/Json/JsonDocument.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <string>
#include <string_view>

namespace Command {

/// Answers requests in JSON, one line after the other, with memory that it uses again. The answer to any line at all is
/// one line of JSON, which tells a value or an error.
class Batch {
 public:
  /// Keeps references to both. Answers are appended to `answers`.
  Batch(const Settings& defaults, std::string& answers)
      : defaults_(defaults), answers_(answers), environment_(defaults) {}

  void AnswerLine(std::string_view line);
  /// Answers a line that was too long to be read.
  void RefuseLongLine();

  Status GetStatus() const { return status_; }

 private:
  void WriteLine(std::string_view line);
  void Refuse(std::string_view name, std::u16string_view message);
  void RefuseAfter(std::size_t before);
  void CutTo(std::size_t size);
  void WriteEvaluation();

  const Settings& defaults_;
  std::string& answers_;
  Host::JsonDocument document_;
  TW::UniString formula_;
  Environment environment_;
  Evaluation evaluation_;
  std::string_view id_;    ///< of the line that is being answered
  bool readable_ = false;  ///< whether that line is a request
  Status status_ = Status::Success;
};

}  // namespace Command
