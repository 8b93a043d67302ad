#include "CommandEntry.hpp"
#include "CommandText.hpp"
#include "CommonOptions.hpp"
#include "Environment.hpp"
#include "VocabularyPrinter.hpp"

namespace Command {
namespace {

Status Run(const Call& call);

const CommandEntry entry("functions", "[NAME]", "Lists the functions, operators, constants and units, or explains one",
                         Run);

Status Run(const Call& call) {
  CommonOptions common;
  OptionTable options;
  common.AddTo(options);
  const auto operands = entry.Take(call, options);
  if (!operands) return Status::Success;
  if (operands->size() > 1) throw UsageError(MakeText(CommandText::OneFunctionWanted, entry.GetName()));
  common.LimitMemory();

  std::string& out = call.results.GetBuffer();
  if (operands->empty()) {
    AppendVocabulary(out, common.IsJson());
  } else {
    AppendWordHelp(out, operands->front(), common.IsJson(), Environment(common.GetUserSettings()));
  }
  return Status::Success;
}

}  // namespace
}  // namespace Command
