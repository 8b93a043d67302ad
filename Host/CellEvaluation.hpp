#pragma once

#include "Host/Cell.hpp"
#include "Host/PropertyKind.hpp"
#include "Quorix/Expression.hpp"
#include "Quorix/ExpressionEvaluationEnv.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Optional.hpp"

namespace Host {

/// What a formula gives: a value, or the reason why there is none.
struct CellResult {
  QX::ExpressionValue value;
  TW::Optional<Failure> failure;
  bool hasLackedMemory = false;  ///< whether there may be a value once there is more memory
};

/// Evaluates a formula, whose result is to be of a kind if one is given, and no longer a text than the environment
/// allows. Throws nothing that the formula does.
CellResult EvaluateCell(const QX::Expression& formula, const QX::IExpressionEvaluationEnv& environment,
                        TW::Optional<PropertyKind> kind);

}  // namespace Host
