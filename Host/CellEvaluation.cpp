#include "Host/CellEvaluation.hpp"

#include "Quorix/ExpressionSemanticExceptions.hpp"

#include <exception>
#include <utility>

namespace Host {

CellResult EvaluateCell(const QX::Expression& formula, const QX::IExpressionEvaluationEnv& environment,
                        TW::Optional<PropertyKind> kind) {
  try {
    QX::ExpressionValue value = formula.Evaluate(environment);
    const bool isTooLong = value.IsString() && value.GetAsString().GetLength() > environment.GetLongestText();
    if (!value.IsValid() || isTooLong) return {{}, Failure{nullptr, 0, FailureKind::InvalidResult}};
    if (kind && !FitToKind(value, *kind)) return {{}, Failure{nullptr, 0, FailureKind::WrongKind}};
    return {std::move(value), std::nullopt};
  } catch (const QX::ExpressionTextTooLongException& failure) {
    return {{}, Failure{failure.GetSource(), 0, FailureKind::InvalidResult}};
  } catch (const QX::ExpressionSemanticException& failure) {
    return {{}, Failure{failure.GetSource(), failure.GetResIdx(), FailureKind::Evaluation}};
  } catch (const std::exception&) {
    // A text may grow beyond the memory; that is the trouble of this cell alone.
    const short resourceIndex = QX::ExpressionInternalErrorException(nullptr).GetResIdx();
    return {{}, Failure{nullptr, resourceIndex, FailureKind::Evaluation}, true};
  }
}

}  // namespace Host
