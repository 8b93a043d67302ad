#pragma once

#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/Export.hpp"
#include "Quorix/ExpressionUnitConverter.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

namespace QX {

/// Gives the text that shows a result: quantities with a unit as `converter` shows them, and everything else as dynamic
/// values show themselves, numbers with at least `minimumDecimals` decimals and rounded to `maximumDecimals`. Nothing
/// for an invalid value and for a defined quantity that `converter` does not show.
QX_EXPORT TW::Optional<TW::UniString> ConvertExpressionValueToString(
    const ExpressionValue& value, const IExpressionUnitConverter& converter, const IEvaluationLocaleSettings& locale,
    TWUnit::UnitMarkerMode markerMode, unsigned int minimumDecimals, unsigned int maximumDecimals);

}  // namespace QX
