#include "Quorix/EvaluationLocaleSettings.hpp"

#include "TW/SystemSymbols.hpp"

namespace QX {

SystemLocaleSettings::SystemLocaleSettings()
    : EvaluationLocaleSettings(TW::GetDecimalSymbol(), TW::GetListSeparatorSymbol(), TW::GetDigitGroupingSymbol()) {}

}  // namespace QX
