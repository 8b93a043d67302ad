#include "CommandEntry.hpp"
#include "CommandText.hpp"
#include "CommonOptions.hpp"
#include "Session.hpp"

namespace Command {
namespace {

Status Run(const Call& call);

const CommandEntry entry("tree", "FORMULA", "Shows the tree of a formula, with the value of each node", Run);

Status Run(const Call& call) {
  CommonOptions common;
  OptionTable options;
  common.AddTo(options);
  const auto operands = entry.Take(call, options);
  if (!operands) return Status::Success;
  if (operands->size() != 1) throw UsageError(MakeText(CommandText::OneFormulaWanted, entry.GetName()));
  common.LimitMemory();

  Session session(common, call);
  const Session::Formula formula = session.Evaluate(operands->front());
  session.ShowTree(formula, common.IsJson());
  return formula.HasValue() ? Status::Success : Status::FormulaFailed;
}

}  // namespace
}  // namespace Command
