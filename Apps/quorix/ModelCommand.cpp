#include "CommandEntry.hpp"
#include "CommandText.hpp"
#include "CommonOptions.hpp"
#include "ModelInput.hpp"
#include "ModelOptions.hpp"
#include "ModelOutput.hpp"

namespace Command {
namespace {

Status Run(const Call& call);

const CommandEntry entry("model", "RULES", "Computes the properties of rules for the elements of a building model",
                         Run);

Status Run(const Call& call) {
  CommonOptions common;
  ModelOptions model;
  OptionTable options;
  model.AddTo(options);
  common.AddTo(options);
  const auto operands = entry.Take(call, options);
  if (!operands) return Status::Success;
  if (operands->size() != 1) throw UsageError(MakeText(CommandText::OneFileWanted, entry.GetName()));
  const std::string rulesPath(operands->front());
  model.Check(rulesPath);
  common.LimitMemory();

  ModelDiagnostics diagnostics(call, model.quiet);
  Progress progress(!model.quiet);
  ModelInput input(model, common, diagnostics);
  if (!input.Read(rulesPath, progress)) return Status::Unusable;
  return ModelOutput(input, model, diagnostics, call).Give(common.IsJson());
}

}  // namespace
}  // namespace Command
