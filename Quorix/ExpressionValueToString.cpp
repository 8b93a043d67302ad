#include "Quorix/ExpressionValueToString.hpp"

#include "TW/DynamicValue.hpp"

namespace QX {

TW::Optional<TW::UniString> ConvertExpressionValueToString(const ExpressionValue& value,
                                                           const IExpressionUnitConverter& converter,
                                                           const IEvaluationLocaleSettings& locale,
                                                           TWUnit::UnitMarkerMode markerMode,
                                                           unsigned int minimumDecimals, unsigned int maximumDecimals) {
  if (!value.IsValid()) return std::nullopt;
  if (!value.IsUserUndefined() && !value.GetUnitExponents().IsNonUnit()) {
    return converter.SIToString(value, locale, markerMode);
  }
  const TW::DynamicValueConversionRules rules(minimumDecimals, maximumDecimals,
                                              TW::UniString(TW::UniChar(locale.GetListSeparator())),
                                              TW::UniString(TW::UniChar(locale.GetDecimalSeparator())));
  return value.CloneContainedVariant()->ToDisplayText(rules);
}

}  // namespace QX
