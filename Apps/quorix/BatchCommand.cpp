#include "Batch.hpp"
#include "CommandText.hpp"
#include "CommonOptions.hpp"
#include "LineReader.hpp"

#include <unistd.h>

namespace Command {
namespace {

Status Run(const Call& call);

const CommandEntry entry("batch", "", "Answers requests in JSON, one a line, from standard input", Run);

Status ReadLines(const Settings& defaults, const Call& call) {
  Batch batch(defaults, call.results.GetBuffer());
  LineReader reader(STDIN_FILENO, [&call] { call.results.Flush(); });
  std::string_view line;
  LineReader::Outcome outcome = reader.Next(line);
  for (; outcome == LineReader::Outcome::Line || outcome == LineReader::Outcome::TooLong; outcome = reader.Next(line)) {
    if (outcome == LineReader::Outcome::Line) {
      batch.AnswerLine(line);
    } else {
      batch.RefuseLongLine();
    }
    call.results.FlushWhenLarge();
    if (call.results.GetError() != 0) break;
  }
  if (outcome != LineReader::Outcome::Failed) return batch.GetStatus();
  return RefuseInput(call, reader.GetError());
}

Status Run(const Call& call) {
  CommonOptions common;
  OptionTable options;
  common.AddTo(options);
  const auto operands = entry.Take(call, options);
  if (!operands) return Status::Success;
  if (!operands->empty()) throw UsageError(MakeText(CommandText::NoFormulaWanted, entry.GetName()));
  if (common.HasProperties()) throw UsageError(MakeText(CommandText::PropertiesInRequests, entry.GetName()));
  common.LimitMemory();
  return ReadLines(common.GetSettings({}), call);
}

}  // namespace
}  // namespace Command
