#include "ModelDiagnostics.hpp"

namespace Command {
namespace {

std::string GetPlace(std::string_view path, const Host::FileProblem& problem) {
  std::string place(path);
  if (problem.line != 0) place += ":" + std::to_string(problem.line);
  if (problem.column != 0) place += ":" + std::to_string(problem.column);
  return place;
}

std::string_view GetReason(TW::ErrCode error) {
  switch (error) {
    case TW::ErrDiskFull:
      return "there is no room left on the disk";
    case TW::ErrFileNotFound:
      return "its folder is not there";
    case TW::ErrFileAccess:
      return "it may not be written";
    case TW::ErrTooLong:
      return "the model has no numbers left for new instances";
    default:
      return "the system refused it";
  }
}

}  // namespace

bool ModelDiagnostics::CheckFile(std::string_view path, const Host::FileProblems& problems) {
  for (const Host::FileProblem& problem : problems.GetList()) {
    const std::string sentence =
        GetPlace(path, problem) + ": " + (problem.isFatal ? "error: " : "warning: ") + problem.message.ToUtf8() + "\n";
    if (problem.isFatal || !quiet_) Write(sentence);
  }
  const std::size_t more = problems.GetCount() - problems.GetList().size();
  if (more != 0 && (problems.HasFatal() || !quiet_)) {
    Write(std::string(path) + ": " + std::to_string(more) + " more problems are not shown.\n");
  }
  return !problems.HasFatal();
}

bool ModelDiagnostics::CheckWritten(std::string_view path, TW::ErrCode error) {
  if (error == TW::NoErr) return true;
  Error("The file '" + std::string(path) + "' was not written: " + std::string(GetReason(error)) + ".");
  return false;
}

void ModelDiagnostics::Write(std::string_view lines) {
  call_.results.Flush();
  call_.diagnostics.GetBuffer() += lines;
  call_.diagnostics.Flush();
}

}  // namespace Command
