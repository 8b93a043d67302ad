#include "CommandEntry.hpp"
#include "CommonOptions.hpp"
#include "Session.hpp"
#include "TreePrinter.hpp"

namespace Command {
namespace {

Status Run(const Call& call);

const CommandEntry entry("tree", "FORMULA", "Shows the tree of a formula, with the value of each node", Run);

void PrintTree(const Session& session, const Session::Formula& formula, bool json, std::string& out) {
  TreePrinter printer(formula.evaluation, session.GetEnvironment());
  if (json) return printer.AppendJson(out);
  printer.AppendTable(out, session.GetNames());
}

Status Run(const Call& call) {
  CommonOptions common;
  OptionTable options;
  common.AddTo(options);
  const auto operands = entry.Take(call, options);
  if (!operands) return Status::Success;
  if (operands->size() != 1) throw UsageError("The command 'tree' needs one formula.");
  common.LimitMemory();

  Session session(common, call);
  const Session::Formula formula = session.Evaluate(operands->front());
  if (formula.evaluation.expression.IsValid()) {
    PrintTree(session, formula, common.IsJson(), call.results.GetBuffer());
  } else if (common.IsJson()) {
    session.WriteAnswer(formula);
  }
  if (formula.HasValue()) return Status::Success;
  if (!common.IsJson()) session.WriteDiagnostic(formula);
  return Status::FormulaFailed;
}

}  // namespace
}  // namespace Command
