#pragma once

#include "Environment.hpp"
#include "Evaluation.hpp"
#include "PropertyNames.hpp"
#include "ReplacedText.hpp"

#include <string>

namespace Command {

/// Appends a diagnostic for people: what is wrong, the formula, and the place. `formula` is the text that was
/// evaluated, whose original is what the person wrote.
void AppendDiagnostic(std::string& out, const Evaluation& evaluation, const TW::UniString& written,
                      const ReplacedText& formula, const PropertyNames& names, const Environment& environment);

}  // namespace Command
