#include "Diagnostic.hpp"

#include "Answer.hpp"
#include "EP/NormalizedParsingLocaleSettings.hpp"
#include "Excerpt.hpp"
#include "Host/NodeSpan.hpp"

namespace Command {
namespace {

// Notes where the pieces stand that a node itself puts into the text of a formula.
class PieceFinder final : public QX::IExpressionStringBuilder {
 public:
  PieceFinder(const EP::IParsingLocaleSettings& settings, const QX::ExpressionNode* source)
      : settings_(settings), source_(source) {}

  const EP::IParsingLocaleSettings& GetLocaleSettings() const override { return settings_; }
  void AppendString(const TW::UniString& text, const QX::ExpressionNode* node) override {
    const unsigned int end = length_ + text.GetLength();
    if (node == source_) pieces_.push_back({length_, end});
    length_ = end;
  }
  const std::vector<TW::Range<unsigned int>>& GetPieces() const { return pieces_; }

 private:
  EP::NormalizedParsingLocaleSettings settings_;
  const QX::ExpressionNode* source_;
  unsigned int length_ = 0;
  std::vector<TW::Range<unsigned int>> pieces_;
};

void AppendExcerpt(std::string& out, const TW::UniString& text, const Place& place) {
  const Excerpt excerpt = MakeExcerpt(text, place);
  out += "  " + excerpt.text + "\n";
  if (!excerpt.marks.empty()) out += "  " + excerpt.marks + "\n";
}

// Shows the node at fault in the formula as it is rendered.
void AppendRendered(std::string& out, const Evaluation& evaluation, const QX::ExpressionNode& source,
                    const PropertyNames& names, const Environment& environment) {
  const EP::IParsingLocaleSettings& settings = environment.GetSettings().renderLocale;
  const QX::ExpressionString text = evaluation.expression.GetExpressionString(settings);
  const ReplacedText shown = names.RestoreNames(text.GetFullString());
  PieceFinder finder(settings, &source);
  evaluation.expression.GetRoot()->BuildExpressionString(finder);
  Place place{shown.FromOriginal(Host::GetSpan(text, source)), {}};
  for (const auto& piece : finder.GetPieces()) place.core.push_back(shown.FromOriginal(piece));
  AppendExcerpt(out, shown.GetText(), place);
}

}  // namespace

void AppendDiagnostic(std::string& out, const Evaluation& evaluation, const TW::UniString& written,
                      const PropertyNames& names, const Environment& environment) {
  if (!evaluation.failure) {
    out += "error: The result is no number, or too large for one. Change the values.\n";
    return AppendExcerpt(out, written, {});
  }
  const Failure& failure = *evaluation.failure;
  out += "error: " + failure.message.ToUtf8() + "\n";
  if (failure.source != nullptr) return AppendRendered(out, evaluation, *failure.source, names, environment);
  if (failure.stage == Failure::Stage::Evaluation) return AppendExcerpt(out, written, {});
  AppendExcerpt(out, written, {failure.place, {failure.place}});
}

}  // namespace Command
