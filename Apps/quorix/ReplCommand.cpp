#include "CommandEntry.hpp"
#include "CommandText.hpp"
#include "CommonOptions.hpp"
#include "LineReader.hpp"
#include "Repl.hpp"

#ifdef QX_LINE_EDITOR
#include "LineEditor.hpp"
#endif

#include <unistd.h>

namespace Command {
namespace {

Status Run(const Call& call);

const CommandEntry entry("repl", "", "Evaluates the formulas that you type, one after the other", Run);

#ifdef QX_LINE_EDITOR
bool IsTerminal() { return ::isatty(STDIN_FILENO) == 1 && ::isatty(STDOUT_FILENO) == 1; }

// What a person got wrong on the way says nothing about how the conversation ended.
Status Converse(Repl& repl, const Call& call) {
  call.results.GetBuffer() += MakeText(CommandText::Greeting) + "\n";
  call.results.Flush();
  LineEditor editor([&repl](const TW::UniString& beforeCursor) { return repl.Complete(beforeCursor); });
  std::string_view line;
  while (editor.Next(line) && repl.Take(line)) call.results.Flush();
  return Status::Success;
}
#endif

Status ReadLines(Repl& repl, const Call& call) {
  LineReader reader(STDIN_FILENO, [&call] { call.results.Flush(); });
  for (std::string_view line;;) {
    switch (reader.Next(line)) {
      case LineReader::Outcome::Line:
        if (!repl.Take(line) || call.results.GetError() != 0) return repl.GetStatus();
        break;
      case LineReader::Outcome::TooLong:
        repl.Refuse(MakeText(CommandText::LineTooLong));
        break;
      case LineReader::Outcome::End:
        return repl.GetStatus();
      case LineReader::Outcome::Failed:
        return RefuseInput(call, reader.GetError());
    }
  }
}

Status Run(const Call& call) {
  CommonOptions common;
  OptionTable options;
  common.AddTo(options);
  const auto operands = entry.Take(call, options);
  if (!operands) return Status::Success;
  if (!operands->empty()) throw UsageError(MakeText(CommandText::NoFormulaWanted, entry.GetName()));
  common.LimitMemory();

  Repl repl(common, options, call);
#ifdef QX_LINE_EDITOR
  if (IsTerminal()) return Converse(repl, call);
#endif
  return ReadLines(repl, call);
}

}  // namespace
}  // namespace Command
