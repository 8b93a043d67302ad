#include "TU/Angle.hpp"

#include "TU/NumberText.hpp"

#include <cmath>

namespace {

using TWUnit::AngleUnit;

constexpr unsigned int SecondsPerMinute = 60;
constexpr unsigned int SecondsPerDegree = 3600;

double RoundToStep(double degrees, double step) {
  if (!(step > 0) || !std::isfinite(step)) return degrees;
  const double count = std::round(degrees / step);
  // Against a step so fine, every angle is a multiple already.
  return std::isfinite(count) ? count * step : degrees;
}

bool IsZero(const TW::DecimalNumber& degrees, const TU::ScaledFraction& seconds) {
  return degrees.GetIntegerText() == TW::UniString(u"0") && seconds.whole == 0 &&
         seconds.decimals.find_first_not_of(u'0') == std::u16string::npos;
}

TUDisplayText DegreesMinutesSecondsText(double amount, const TU::NumberStyle& style) {
  TUDisplayText text;
  if (!std::isfinite(amount)) return text;
  TW::DecimalNumber degrees(amount);
  TU::ScaledFraction seconds = TU::ScaleFraction(degrees.GetFractionText(), SecondsPerDegree, style.decimals);
  if (seconds.whole == SecondsPerDegree) {
    degrees.RoundToDecimals(0);
    seconds.whole = 0;
  }
  TU::AppendSign(text, amount < 0, IsZero(degrees, seconds), style);
  text.Append(degrees.GetIntegerText());
  text.Append(u"°");
  text.Append(TW::UniString::FromInteger(seconds.whole / SecondsPerMinute));
  text.Append(TUMark::Prime);
  text.Append(TW::UniString::FromInteger(seconds.whole % SecondsPerMinute));
  text.Append(TU::DecimalsText(seconds, style));
  text.Append(TUMark::DoublePrime);
  return text;
}

TUDisplayText TextIn(AngleUnit unit, double degrees, const TU::NumberStyle& style) {
  const double amount = degrees / TWUnit::GetFactor(unit);
  switch (unit) {
    case AngleUnit::DecimalDegree:
      return TU::SimpleUnitText(amount, {u"°", false}, style);
    case AngleUnit::DegreeMinuteSecond:
      return DegreesMinutesSecondsText(amount, style);
    case AngleUnit::Gradian:
      return TU::SimpleUnitText(amount, {u"gon"}, style);
    case AngleUnit::Radian:
      return TU::SimpleUnitText(amount, {u"rad"}, style);
  }
  return {};
}

}  // namespace

TUConversionResult TUDecDeg2UString(double degrees, AngleUnit unit, const TW::UniString& format,
                                    unsigned short minimumLength, unsigned short decimals, bool writeMarker,
                                    bool dropTrailingZeros, const TUSeparators& separators, double step) {
  TU::NumberStyle style = TU::MakeNumberStyle(decimals, writeMarker, TWUnit::ShowSmallFives::Off, dropTrailingZeros,
                                              separators, TWUnit::SignHandling::MinusOnly);
  style.thousandSeparator = {};
  return {TextIn(unit, RoundToStep(degrees, step), style), format, minimumLength, u' '};
}
