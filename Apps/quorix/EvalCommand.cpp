#include "CommandEntry.hpp"
#include "CommandText.hpp"
#include "CommonOptions.hpp"
#include "Session.hpp"

namespace Command {
namespace {

Status Run(const Call& call);

const CommandEntry entry("eval", "FORMULA...", "Shows the value of each formula, one line each", Run);

Status Run(const Call& call) {
  CommonOptions common;
  OptionTable options;
  common.AddTo(options);
  const auto formulas = entry.Take(call, options);
  if (!formulas) return Status::Success;
  if (formulas->empty()) throw UsageError(MakeText(CommandText::FormulaMissing, entry.GetName()));
  common.LimitMemory();

  Session session(common, call);
  Status status = Status::Success;
  for (const std::string_view argument : *formulas) {
    const Session::Formula formula = session.Evaluate(argument);
    session.Show(formula, common.IsJson());
    if (!formula.HasValue()) status = Status::FormulaFailed;
  }
  return status;
}

}  // namespace
}  // namespace Command
