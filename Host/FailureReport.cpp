#include "Host/FailureReport.hpp"

#include "Host/FormulaText.hpp"
#include "Host/NodeSpan.hpp"
#include "Host/TableTexts.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

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

TW::UniString MakeMessage(const Failure& failure, TW::Optional<PropertyKind> kind, bool hasFormula) {
  if (failure.kind == FailureKind::Evaluation) return FindExceptionTexts(failure.resourceIndex).message;
  if (failure.kind == FailureKind::InvalidResult) return MakeText(TableText::ResultTooLarge);
  const TableText text = hasFormula ? TableText::WrongResult : TableText::WrongInput;
  return MakeText(text, kind ? MakeKindText(*kind) : TW::UniString());
}

}  // namespace

FailureReport ReportFailure(const Failure& failure, const QX::Expression& expression, TW::Optional<PropertyKind> kind,
                            const PropertyCatalog& catalog, const EP::IParsingLocaleSettings& settings) {
  FailureReport report{failure.kind, {}, failure.resourceIndex, {}, {}, {}, {}};
  report.name = GetFailureName(failure);
  report.message = MakeMessage(failure, kind, expression.IsValid());
  if (!expression.IsValid()) return report;
  const QX::ExpressionString text = RenderWithNames(*expression.GetRoot(), settings, catalog);
  report.formula = text.GetFullString();
  // The whole formula is at fault where no node is.
  report.range = failure.node != nullptr ? text.GetNodeRange(failure.node) : TextRange{0, report.formula.GetLength()};
  report.span = failure.node != nullptr ? GetSpan(text, *failure.node) : report.range;
  return report;
}

TW::UniString GetFailureName(const Failure& failure) {
  if (failure.kind == FailureKind::Evaluation) return FindExceptionTexts(failure.resourceIndex).name;
  return failure.kind == FailureKind::InvalidResult ? u"InvalidResult" : u"WrongKind";
}

}  // namespace Host
