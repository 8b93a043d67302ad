#include "Session.hpp"

#include "Answer.hpp"
#include "Diagnostic.hpp"
#include "JsonWriter.hpp"

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

void Session::WriteAnswer(const Formula& formula) {
  JsonWriter writer(call_.results.GetBuffer());
  Command::WriteAnswer(writer, {}, formula.evaluation, environment_);
  call_.results.GetBuffer() += '\n';
}

void Session::WriteDiagnostic(const Formula& formula) {
  call_.results.Flush();
  AppendDiagnostic(call_.diagnostics.GetBuffer(), formula.evaluation, formula.written, names_, environment_);
  call_.diagnostics.Flush();
}

}  // namespace Command
