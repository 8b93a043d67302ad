#include "CommandEntry.hpp"
#include "CommonOptions.hpp"
#include "DisplayText.hpp"
#include "Session.hpp"

namespace Command {
namespace {

Status Run(const Call& call);

const CommandEntry entry("eval", "FORMULA...", "Shows the value of each formula, one line each", Run);

// Gives whether the formula has a value.
bool Show(std::string_view argument, bool json, Session& session, const Call& call) {
  const Session::Formula formula = session.Evaluate(argument);
  if (json) {
    session.WriteAnswer(formula);
  } else if (formula.HasValue()) {
    const TW::UniString text = GetTextForPeople(formula.evaluation.value, session.GetEnvironment());
    call.results.GetBuffer() += text.ToUtf8() + "\n";
  } else {
    session.WriteDiagnostic(formula);
  }
  return formula.HasValue();
}

Status Run(const Call& call) {
  CommonOptions common;
  OptionTable options;
  common.AddTo(options);
  const auto formulas = entry.Take(call, options);
  if (!formulas) return Status::Success;
  if (formulas->empty()) throw UsageError("The command 'eval' needs a formula.");
  common.LimitMemory();

  Session session(common, call);
  Status status = Status::Success;
  for (const std::string_view formula : *formulas) {
    if (!Show(formula, common.IsJson(), session, call)) status = Status::FormulaFailed;
  }
  return status;
}

}  // namespace
}  // namespace Command
