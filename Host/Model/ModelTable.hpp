#pragma once

#include "Host/Model/ElementSource.hpp"
#include "Host/PropertyTable.hpp"
#include "Host/Rules/Rules.hpp"

namespace Host {

/// Gives a table the elements of a source, with the values that the properties of `rules` have there. The table holds
/// the properties of the rules, in their order and nothing else.
///
/// A property that does not apply to the class of an element is absent there. An input is user undefined where the
/// element has none of its sources, and has failed where the source holds something of another kind. A property whose
/// formula was refused gets no values.
void FillFromSource(PropertyTable& table, const Rules& rules, const ElementSource& source);

}  // namespace Host
