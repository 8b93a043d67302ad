#pragma once

#include "Host/Files/FileProblems.hpp"
#include "Host/PropertyTable.hpp"
#include "Host/Rules/RulesFile.hpp"

namespace Host {

/// Defines the properties of rules, inputs and formulas, in a table that has none, in the order of the file. Each
/// formula that cannot be taken makes one problem, at its place in the file, and leaves its property an input; those of
/// an unusable file are looked at too, unless it is the separators that are wrong.
void DefineProperties(const RulesFile& file, PropertyTable& table, FileProblems& problems);

}  // namespace Host
