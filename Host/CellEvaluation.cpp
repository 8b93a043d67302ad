#include "Host/CellEvaluation.hpp"

#include "Host/PropertyTable.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

#include <exception>
#include <utility>

namespace Host {
namespace {

CellResult MakeFailed(const QX::ExpressionNode* node, short resourceIndex, FailureKind kind) {
  return {{}, Failure{node, resourceIndex, kind}, false};
}

CellResult CheckResult(QX::ExpressionValue value, TW::Optional<PropertyKind> kind) {
  const bool isTooLong = value.IsString() && value.GetAsString().GetLength() > PropertyTable::LongestText;
  if (!value.IsValid() || isTooLong) return MakeFailed(nullptr, 0, FailureKind::InvalidResult);
  if (kind && !FitToKind(value, *kind)) return MakeFailed(nullptr, 0, FailureKind::WrongKind);
  return {std::move(value), std::nullopt, false};
}

}  // namespace

CellResult EvaluateCell(const QX::Expression& formula, const ElementEnvironment& environment,
                        TW::Optional<PropertyKind> kind) {
  try {
    return CheckResult(formula.Evaluate(environment), kind);
  } catch (const QX::ExpressionTextTooLongException& failure) {
    return MakeFailed(failure.GetSource(), 0, FailureKind::InvalidResult);
  } catch (const QX::ExpressionSemanticException& failure) {
    CellResult result = MakeFailed(failure.GetSource(), failure.GetResIdx(), FailureKind::Evaluation);
    result.hasLackedMemory = environment.HasLackedMemory();
    return result;
  } catch (const std::exception&) {
    // A text may grow beyond the memory; that is the trouble of this cell alone.
    const short resourceIndex = QX::ExpressionInternalErrorException(nullptr).GetResIdx();
    CellResult result = MakeFailed(nullptr, resourceIndex, FailureKind::Evaluation);
    result.hasLackedMemory = true;
    return result;
  }
}

}  // namespace Host
