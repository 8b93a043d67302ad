#include "Session.hpp"

#include "Answer.hpp"
#include "Diagnostic.hpp"
#include "Host/Json/JsonWriter.hpp"
#include "TreePrinter.hpp"

namespace Command {

Session::Session(const CommonOptions& options, const Call& call)
    : call_(call), environment_(options.GetUserSettings()) {
  options.SetProperties(environment_, names_);
}

Session::Formula Session::Evaluate(std::string_view argument) {
  Formula formula;
  formula.written = TW::UniString::FromUtf8(argument);
  formula.text = names_.ReplaceNames(formula.written, environment_.GetLocaleSettings());
  formula.evaluation = Command::Evaluate(formula.text.GetText(), environment_);
  // Places count in what the person wrote.
  auto& failure = formula.evaluation.failure;
  if (failure) failure->place = formula.text.ToOriginal(failure->place);
  return formula;
}

void Session::Show(const Formula& formula, bool json) {
  if (json) return WriteAnswer(formula);
  if (!formula.HasValue()) return WriteDiagnostic(formula);
  call_.results.GetBuffer() += environment_.GetDisplay().Make(formula.evaluation.value).ToUtf8() + "\n";
}

void Session::ShowTree(const Formula& formula, bool json) {
  const bool hasTree = formula.evaluation.expression.IsValid();
  if (json && !hasTree) return WriteAnswer(formula);
  if (hasTree) {
    TreePrinter printer(formula.evaluation, environment_);
    if (json) return printer.AppendJson(call_.results.GetBuffer());
    printer.AppendTable(call_.results.GetBuffer(), names_);
  }
  if (!formula.HasValue()) WriteDiagnostic(formula);
}

void Session::WriteAnswer(const Formula& formula) {
  Host::JsonWriter writer(call_.results.GetBuffer());
  Command::WriteAnswer(writer, {}, formula.evaluation, environment_);
  call_.results.GetBuffer() += '\n';
}

void Session::WriteDiagnostic(const Formula& formula) {
  call_.results.Flush();
  AppendDiagnostic(call_.diagnostics.GetBuffer(), formula.evaluation, formula.written, names_, environment_);
  call_.diagnostics.Flush();
}

}  // namespace Command
