#include "ModelDiagnostics.hpp"

namespace Command {
namespace {

std::string GetPlace(std::string_view path, const Host::FileProblem& problem) {
  std::string place(path);
  if (problem.line != 0) place += ":" + std::to_string(problem.line);
  if (problem.column != 0) place += ":" + std::to_string(problem.column);
  return place;
}

CommandText GetReason(TW::ErrCode error) {
  switch (error) {
    case TW::ErrDiskFull:
      return CommandText::DiskFull;
    case TW::ErrFileNotFound:
      return CommandText::NoFolder;
    case TW::ErrFileAccess:
      return CommandText::NotAllowed;
    case TW::ErrTooLong:
      return CommandText::NoNumbersLeft;
    default:
      return CommandText::Refused;
  }
}

}  // namespace

bool ModelDiagnostics::CheckFile(std::string_view path, const Host::FileProblems& problems) {
  for (const Host::FileProblem& problem : problems.GetList()) {
    if (!problem.isFatal && quiet_) continue;
    const CommandText degree = problem.isFatal ? CommandText::Error : CommandText::Warning;
    Write(GetPlace(path, problem) + ": " + MakeText(degree, problem.message) + "\n");
  }
  const std::size_t more = problems.GetCount() - problems.GetList().size();
  if (more != 0 && (problems.HasFatal() || !quiet_)) {
    Write(std::string(path) + ": " + MakeText(CommandText::MoreProblems, more) + "\n");
  }
  return !problems.HasFatal();
}

bool ModelDiagnostics::CheckWritten(std::string_view path, TW::ErrCode error) {
  if (error == TW::NoErr) return true;
  Error(MakeText(CommandText::NotWritten, path, MakeText(GetReason(error))));
  return false;
}

void ModelDiagnostics::Write(std::string_view lines) {
  call_.results.Flush();
  call_.diagnostics.GetBuffer() += lines;
  call_.diagnostics.Flush();
}

}  // namespace Command
