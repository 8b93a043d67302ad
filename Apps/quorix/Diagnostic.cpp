#include "Diagnostic.hpp"

#include "Answer.hpp"
#include "CommandText.hpp"
#include "Host/FormulaText.hpp"
#include "Host/NodeSpan.hpp"
#include "Host/Screen/Excerpt.hpp"
#include "Suggestion.hpp"

namespace Command {
namespace {

constexpr std::string_view Indentation = "  ";

// Shows the node at fault in the formula as it is rendered.
void AppendRendered(std::string& out, const Evaluation& evaluation, const QX::ExpressionNode& source,
                    const PropertyNames& names, const Environment& environment) {
  const EP::IParsingLocaleSettings& settings = environment.GetSettings().renderLocale;
  const QX::ExpressionString text = evaluation.expression.GetExpressionString(settings);
  const ReplacedText shown = names.RestoreNames(text.GetFullString());
  const auto pieces = Host::FindPieces(*evaluation.expression.GetRoot(), source, settings, {});
  Host::ExcerptPlace place{shown.FromOriginal(Host::GetSpan(text, source)), {}};
  for (const auto& piece : pieces) place.core.push_back(shown.FromOriginal(piece));
  Host::AppendExcerpt(out, Indentation, shown.GetText(), place);
}

// A question after the word that may have been meant by one that the language does not know.
std::string SuggestFor(const Failure& failure, const TW::UniString& written) {
  using Reason = EP::SyntaxErrorReason;
  const bool isWord = failure.name == GetReasonName(Reason::UnknownFunction) ||
                      failure.name == GetReasonName(Reason::UnknownIdentifier);
  if (failure.stage != Failure::Stage::Syntax || !isWord) return {};
  return SuggestOfLanguage(written.Substring(failure.place.begin, failure.place.GetLength()));
}

}  // namespace

void AppendDiagnostic(std::string& out, const Evaluation& evaluation, const TW::UniString& written,
                      const PropertyNames& names, const Environment& environment) {
  if (!evaluation.failure) {
    out += MakeText(CommandText::Error, MakeText(CommandText::NoResult)) + "\n";
    return Host::AppendExcerpt(out, Indentation, written, {});
  }
  const Failure& failure = *evaluation.failure;
  out += MakeText(CommandText::Error, failure.message) + SuggestFor(failure, written) + "\n";
  if (failure.source != nullptr) return AppendRendered(out, evaluation, *failure.source, names, environment);
  if (failure.stage == Failure::Stage::Evaluation) return Host::AppendExcerpt(out, Indentation, written, {});
  Host::AppendExcerpt(out, Indentation, written, {failure.place, {failure.place}});
}

}  // namespace Command
