#include "Quorix/UnitFormat.hpp"

#include <cstdint>

namespace QX {
namespace {

constexpr double DegreesPerRadian = 57.29577951308232;

template <class Unit>
void WriteUnitData(IO::MD5Channel& channel, const UnitData<Unit>& data) {
  channel.WriteInt32(static_cast<std::int32_t>(data.unit));
  channel.WriteInt32(data.decimals);
}

}  // namespace

TW::UniString TUConversionResultToString(TUConversionResult& result, TWUnit::UnitMarkerMode markerMode) {
  return markerMode == TWUnit::UnitMarkerMode::Formatted ? result.GetFormattedValue()
                                                         : result.GetLegacyFormattedValue();
}

void LengthFormat::WriteCheckSum(IO::MD5Channel& channel) const {
  channel.WriteInt32(static_cast<std::int32_t>(data_.unit));
  channel.WriteInt32(data_.decimals);
  channel.WriteInt32(data_.denominator);
}

TW::UniString LengthFormat::NumberToString(double value, TWUnit::UnitMarkerMode markerMode,
                                           const TW::UniString& decimalSeparator,
                                           const TW::UniString& thousandSeparator) const {
  TUConversionResult result =
      TUM2UString(value, data_.unit, {}, 0, data_.decimals, data_.denominator, true, TWUnit::ShowSmallFives::Off, 0,
                  false, TUSeparators::Create(decimalSeparator, thousandSeparator), TWUnit::SignHandling::MinusOnly);
  return TUConversionResultToString(result, markerMode);
}

void AreaFormat::WriteCheckSum(IO::MD5Channel& channel) const { WriteUnitData(channel, data_); }

TW::UniString AreaFormat::NumberToString(double value, TWUnit::UnitMarkerMode markerMode,
                                         const TW::UniString& decimalSeparator,
                                         const TW::UniString& thousandSeparator) const {
  TUConversionResult result =
      TUM22UString(value, data_.unit, {}, 0, data_.decimals, true, TWUnit::ShowSmallFives::Off, false,
                   TUSeparators::Create(decimalSeparator, thousandSeparator), TWUnit::SignHandling::MinusOnly);
  return TUConversionResultToString(result, markerMode);
}

void VolumeFormat::WriteCheckSum(IO::MD5Channel& channel) const { WriteUnitData(channel, data_); }

TW::UniString VolumeFormat::NumberToString(double value, TWUnit::UnitMarkerMode markerMode,
                                           const TW::UniString& decimalSeparator,
                                           const TW::UniString& thousandSeparator) const {
  TUConversionResult result =
      TUM32UString(value, data_.unit, {}, 0, data_.decimals, true, TWUnit::ShowSmallFives::Off, false,
                   TUSeparators::Create(decimalSeparator, thousandSeparator), TWUnit::SignHandling::MinusOnly);
  return TUConversionResultToString(result, markerMode);
}

void AngleFormat::WriteCheckSum(IO::MD5Channel& channel) const { WriteUnitData(channel, data_); }

TW::UniString AngleFormat::NumberToString(double value, TWUnit::UnitMarkerMode markerMode,
                                          const TW::UniString& decimalSeparator) const {
  TUConversionResult result = TUDecDeg2UString(value * DegreesPerRadian, data_.unit, {}, 0, data_.decimals, true, false,
                                               TUSeparators::Create(decimalSeparator, {}));
  return TUConversionResultToString(result, markerMode);
}

}  // namespace QX
