#pragma once

#include "Host/Cell.hpp"
#include "Host/ElementEnvironment.hpp"
#include "Host/PropertyKind.hpp"
#include "Quorix/Expression.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Optional.hpp"

namespace Host {

/// What a formula gives: a value, or the reason why there is none.
struct CellResult {
  QX::ExpressionValue value;
  TW::Optional<Failure> failure;
  bool hasLackedMemory = false;  ///< the failure may be gone another time
};

/// Evaluates a formula for an element. The result is to be of a kind if one is given, and texts are bounded as in the
/// cells of a table. Throws nothing that the formula does.
CellResult EvaluateCell(const QX::Expression& formula, const ElementEnvironment& environment,
                        TW::Optional<PropertyKind> kind);

}  // namespace Host
