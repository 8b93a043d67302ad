#pragma once

#include "Environment.hpp"
#include "Evaluation.hpp"
#include "PropertyNames.hpp"

#include <string>

namespace Command {

/// Appends a diagnostic for people: what is wrong, the formula, and the place. `written` is the text that places of
/// syntax count in; `names` stand for GUIDs in the formula.
void AppendDiagnostic(std::string& out, const Evaluation& evaluation, const TW::UniString& written,
                      const PropertyNames& names, const Environment& environment);

}  // namespace Command
