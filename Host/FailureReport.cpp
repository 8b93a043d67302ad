#include "Host/FailureReport.hpp"

#include "Host/FormulaText.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

#include <algorithm>

namespace Host {
namespace {

using TextRange = TW::Range<unsigned int>;

struct ExceptionTexts {
  TW::UniString name;
  TW::UniString message;
};

template <class Exception>
bool GetTextsOf(short resourceIndex, ExceptionTexts& texts) {
  const Exception exception(nullptr);
  if (exception.GetResIdx() != resourceIndex) return false;
  texts = {exception.GetName(), exception.ToString()};
  return true;
}

// A cell keeps the index of the message only, which is another for every class.
template <class... Exceptions>
ExceptionTexts FindTexts(short resourceIndex) {
  ExceptionTexts texts;
  static_cast<void>((GetTextsOf<Exceptions>(resourceIndex, texts) || ...));
  return texts;
}

ExceptionTexts FindExceptionTexts(short resourceIndex) {
  return FindTexts<QX::ExpressionInternalErrorException, QX::ExpressionInvalidArgumentNumber,
                   QX::ExpressionEqualsOperatorArgumentTypesMismatch, QX::ExpressionIncompatibleArgumentDimensions,
                   QX::ExpressionDifferentIfBranchTypes, QX::ExpressionInvalidNonUnitNumberType,
                   QX::ExpressionInvalidQuantityType, QX::ExpressionInvalidStringType, QX::ExpressionInvalidBoolType,
                   QX::ExpressionInvalidAngleType, QX::ExpressionOutOfDomainOfMathematicalFunction,
                   QX::ExpressionZeroOrPositiveWholeNumberExpected, QX::ExpressionWholeNumberExpected,
                   QX::ExpressionDivisionByZero, QX::ExpressionPositiveWholeNumberExpected,
                   QX::ExpressionTooMuchDigitsRequested, QX::ExpressionCannotConvertToNumber,
                   QX::ExpressionPropertyEvaluationFailed>(resourceIndex);
}

ExceptionTexts FindTextsOf(const Failure& failure, const PropertyDefinition* definition) {
  switch (failure.kind) {
    case FailureKind::Evaluation:
      return FindExceptionTexts(failure.resourceIndex);
    case FailureKind::InvalidResult:
      return {u"InvalidResult", u"The result is too large for a number."};
    default:
      break;
  }
  const bool hasKind = definition != nullptr && definition->kind;
  const TW::UniString kind(hasKind ? GetKindName(*definition->kind) : std::u16string_view());
  return {u"WrongKind", TW::UniString::Printf(u"The result is not of the kind %T.", kind)};
}

// A node that wrote nothing itself does not widen the span.
TextRange FindSpan(const QX::ExpressionNode& node, const QX::ExpressionString& text) {
  TextRange span = text.GetNodeRange(&node);
  node.EnumerateRecursive([&](const QX::ExpressionNode* below) {
    if (!text.HasNodeRange(below)) return;
    const TextRange range = text.GetNodeRange(below);
    span = {std::min(span.begin, range.begin), std::max(span.end, range.end)};
  });
  return span;
}

}  // namespace

FailureReport ReportFailure(const Failure& failure, const QX::Expression& expression, PropertyIndex property,
                            const PropertyCatalog& catalog, const EP::IParsingLocaleSettings& settings) {
  FailureReport report{failure.kind, {}, failure.resourceIndex, {}, {}, {}, {}};
  ExceptionTexts texts = FindTextsOf(failure, &catalog.Get(property));
  report.name = std::move(texts.name);
  report.message = std::move(texts.message);
  if (!expression.IsValid()) return report;
  const QX::ExpressionString text = RenderWithNames(*expression.GetRoot(), settings, catalog);
  report.formula = text.GetFullString();
  // The whole formula is at fault where no node is.
  report.range = failure.node != nullptr ? text.GetNodeRange(failure.node) : TextRange{0, report.formula.GetLength()};
  report.span = failure.node != nullptr ? FindSpan(*failure.node, text) : report.range;
  return report;
}

TW::UniString GetFailureName(const Failure& failure) { return FindTextsOf(failure, nullptr).name; }

}  // namespace Host
