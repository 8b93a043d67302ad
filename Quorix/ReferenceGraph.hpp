#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/ExpressionEvaluationEnv.hpp"
#include "TW/Array.hpp"
#include "TW/Guid.hpp"
#include "TW/HashSet.hpp"

namespace QX {

/// Searches the graph of properties, depth first from each start property in order, for a cycle. The host is asked once
/// for each property reached; time and memory are linear in what is reached, and no depth needs stack.
///
/// When there is a cycle, `cyclePath`, unless it is null, receives the way from the start property into it, ending with
/// the property that closes it (A, B, C, A; or S, A, B, A from a start outside it), placed before what the array held.
QX_EXPORT bool FindCycleInReferenceGraph(const IExpressionReferenceResolver& resolver,
                                         const TW::HashSet<TW::Guid>& startProperties, TW::Array<TW::Guid>* cyclePath);

}  // namespace QX
