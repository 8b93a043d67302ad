#pragma once

#include "Host/Display/DisplaySettings.hpp"
#include "Quorix/EvaluationLocaleSettings.hpp"

namespace Command {

/// How formulas are read, evaluated and shown.
struct Settings {
  QX::EvaluationLocaleSettings locale{u'.', u',', u','};
  QX::EvaluationLocaleSettings renderLocale{u'.', u',', u','};  ///< for the text of a formula in answers
  Host::DisplaySettings display;
  bool propagateUndefined = false;
};

}  // namespace Command
