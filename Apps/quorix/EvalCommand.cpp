#include "Answer.hpp"
#include "CommandEntry.hpp"
#include "CommonOptions.hpp"
#include "Diagnostic.hpp"
#include "DisplayText.hpp"

namespace Command {
namespace {

Status Run(const Call& call);

const CommandEntry entry("eval", "FORMULA...", "Shows the value of each formula, one line each", Run);

class Evaluator {
 public:
  Evaluator(const CommonOptions& options, const Call& call)
      : call_(call), json_(options.IsJson()), environment_(options.GetUserSettings()) {
    options.SetProperties(environment_, names_);
  }

  void Evaluate(std::string_view argument) {
    const TW::UniString written = TW::UniString::FromUtf8(argument);
    const ReplacedText formula = names_.ReplaceNames(written, environment_.GetLocaleSettings());
    Evaluation evaluation = Command::Evaluate(formula.GetText(), environment_);
    if (!HasValue(evaluation)) status_ = Status::FormulaFailed;
    if (json_) return WriteJson(evaluation, formula);
    if (HasValue(evaluation)) return WriteText(evaluation.value);
    call_.results.Flush();
    AppendDiagnostic(call_.diagnostics.GetBuffer(), evaluation, written, formula, names_, environment_);
    call_.diagnostics.Flush();
  }

  Status GetStatus() const { return status_; }

 private:
  static bool HasValue(const Evaluation& evaluation) { return !evaluation.failure && evaluation.value.IsValid(); }

  void WriteText(const QX::ExpressionValue& value) {
    call_.results.GetBuffer() += GetTextForPeople(value, environment_).ToUtf8() + "\n";
  }

  void WriteJson(Evaluation& evaluation, const ReplacedText& formula) {
    if (evaluation.failure) evaluation.failure->place = formula.ToOriginal(evaluation.failure->place);
    JsonWriter writer(call_.results.GetBuffer());
    WriteAnswer(writer, {}, evaluation, environment_);
    call_.results.GetBuffer() += '\n';
  }

  const Call& call_;
  bool json_;
  Environment environment_;
  PropertyNames names_;
  Status status_ = Status::Success;
};

Status Run(const Call& call) {
  CommonOptions common;
  OptionTable options;
  common.AddTo(options);
  const auto formulas = entry.Take(call, options);
  if (!formulas) return Status::Success;
  if (formulas->empty()) throw UsageError("The command 'eval' needs a formula.");
  common.LimitMemory();
  Evaluator evaluator(common, call);
  for (const std::string_view formula : *formulas) evaluator.Evaluate(formula);
  return evaluator.GetStatus();
}

}  // namespace
}  // namespace Command
