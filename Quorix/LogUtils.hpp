#pragma once

#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/Export.hpp"
#include "TW/UniString.hpp"

namespace QX {

/// Texts for logs, in which the codes of characters can be seen: for finding out why a formula reads differently
/// elsewhere.
class QX_EXPORT LogUtils {
 public:
  LogUtils() = delete;

  /// Three lines, one for each separator with its code.
  static TW::UniString GetLogMessageForLocaleSettings(const IEvaluationLocaleSettings& settings);
  /// The text in quotation marks, its length and the codes of all its units.
  static TW::UniString GetLogMessageForExpressionString(const TW::UniString& text);
};

}  // namespace QX
