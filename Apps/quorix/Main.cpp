#include "CommandEntry.hpp"
#include "CommandText.hpp"
#include "Suggestion.hpp"

#include <csignal>
#include <cstring>
#include <exception>
#include <new>
#include <unistd.h>

namespace Command {
namespace {

void AppendHelp(std::string& out) {
  out += "Usage: quorix COMMAND [OPTION...] ...\nEvaluates formulas with checked units.\n\nCommands:\n";
  for (const CommandEntry* command : GetCommands()) {
    std::string usage = "  " + std::string(command->GetName()) + " " + std::string(command->GetOperands());
    usage.resize(std::max<std::size_t>(usage.size() + 2, 22), ' ');
    out += usage + std::string(command->GetSummary()) + "\n";
  }
  out +=
      "\nEvery command explains its options with --help.\n"
      "Exit status: 0 all formulas evaluated, 1 at least one failed, 2 the arguments or a file could not be used.\n";
}

const CommandEntry& FindCommand(std::string_view name) {
  std::vector<TW::UniString> names;
  for (const CommandEntry* command : GetCommands()) {
    if (command->GetName() == name) return *command;
    names.push_back(TW::UniString::FromUtf8(command->GetName()));
  }
  throw UsageError(MakeText(CommandText::NoCommand, name) + Suggest(TW::UniString::FromUtf8(name), names));
}

Status Dispatch(const Call& call) {
  if (call.arguments.empty()) throw UsageError(MakeText(CommandText::WhichCommand));
  const std::string_view first = call.arguments.front();
  if (first == "--help" || first == "-h") {
    AppendHelp(call.results.GetBuffer());
    return Status::Success;
  }
  if (first == "--version") {
    call.results.GetBuffer() += "quorix " QX_VERSION "\n";
    return Status::Success;
  }
  return FindCommand(first).Run({call.arguments.subspan(1), call.results, call.diagnostics});
}

Status Run(const Call& call) {
  std::string& complaint = call.diagnostics.GetBuffer();
  try {
    return Dispatch(call);
  } catch (const UsageError& error) {
    complaint.append("quorix: ")
        .append(error.what())
        .append("\n")
        .append(MakeText(CommandText::HowCalled))
        .append("\n");
  } catch (const std::bad_alloc&) {
    complaint.append("quorix: There is not enough memory.\n");
  } catch (const std::exception& exception) {
    complaint.append("quorix: ").append(exception.what()).append("\n");
  }
  return Status::Unusable;
}

// Results that nobody received count as a file that could not be used.
Status Finish(Status status, Output& results, Output& diagnostics) {
  results.Flush();
  if (results.GetError() != 0) {
    const std::string_view reason = std::strerror(results.GetError());
    diagnostics.GetBuffer().append("quorix: ").append(MakeText(CommandText::ResultsNotWritten, reason)).append("\n");
    status = Status::Unusable;
  }
  diagnostics.Flush();
  return status;
}

}  // namespace
}  // namespace Command

int main(int argc, char** argv) {
  // A reader that went away is told of by the failure to write.
  std::signal(SIGPIPE, SIG_IGN);
  const std::vector<std::string_view> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  Command::Output results(STDOUT_FILENO);
  Command::Output diagnostics(STDERR_FILENO);
  const Command::Status status = Command::Run({arguments, results, diagnostics});
  return static_cast<int>(Command::Finish(status, results, diagnostics));
}
