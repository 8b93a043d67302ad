#include "Quorix/ExpressionUnitConverter.hpp"

namespace QX {

TW::Optional<TW::UniString> IExpressionUnitConverter::SIToString(const ExpressionValue& value,
                                                                 const IEvaluationLocaleSettings& locale,
                                                                 TWUnit::UnitMarkerMode markerMode) const {
  if (value.IsUserUndefined() || !value.CanConvertToQuantity()) return std::nullopt;
  const TW::UniString decimal{TW::UniChar(locale.GetDecimalSeparator())};
  const TW::UniString thousand{TW::UniChar(locale.GetThousandSeparator())};
  const Quantity quantity = value.ConvertToQuantity();
  const double amount = quantity.GetNumericValue();

  TW::UniString text;
  if (quantity.IsAngle()) {
    text = GetAngleUnitInfo().NumberToString(amount, markerMode, decimal);
  } else if (quantity.IsLength()) {
    text = GetLengthUnitInfo().NumberToString(amount, markerMode, decimal, thousand);
  } else if (quantity.IsArea()) {
    text = GetAreaUnitInfo().NumberToString(amount, markerMode, decimal, thousand);
  } else if (quantity.IsVolume()) {
    text = GetVolumeUnitInfo().NumberToString(amount, markerMode, decimal, thousand);
  }
  if (text.IsEmpty()) return std::nullopt;
  return text;
}

}  // namespace QX
