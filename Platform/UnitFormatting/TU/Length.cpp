#include "TU/Length.hpp"

#include "TU/NumberText.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <utility>

namespace {

using TWUnit::LengthUnit;

constexpr unsigned int InchesPerFoot = 12;

/// Inches without a sign, rounded: the whole ones, and the text of the fraction or decimals behind them.
struct InchParts {
  TW::DecimalNumber whole;
  TW::UniString rest;
  bool zero;
};

/// How a length is written: the style of its numbers, and the finest fraction of an inch.
struct LengthStyle {
  TU::NumberStyle number;
  unsigned int denominator;
};

InchParts FractionalInches(double inches, const LengthStyle& style) {
  InchParts parts{TW::DecimalNumber(inches), {}, false};
  const unsigned int numerator = TU::ScaleFraction(parts.whole.GetFractionText(), style.denominator, 0).whole;
  if (numerator == style.denominator) {
    parts.whole.RoundToDecimals(0);
  } else if (numerator != 0) {
    const unsigned int divisor = std::gcd(numerator, style.denominator);
    parts.rest = TW::UniString::Printf(u" %T/%T", TW::UniString::FromInteger(numerator / divisor),
                                       TW::UniString::FromInteger(style.denominator / divisor));
  }
  parts.zero = parts.rest.IsEmpty() && parts.whole.GetIntegerText() == TW::UniString(u"0");
  return parts;
}

InchParts DecimalInches(double inches, const LengthStyle& style) {
  const TU::RoundedNumber rounded = TU::Round(inches, style.number);
  return {rounded.number, TU::DecimalsText(rounded, style.number), rounded.number.IsZero()};
}

// Below 2^64, which 12 times 2^53 is.
std::uint64_t ToInteger(const TW::UniString& digits) {
  std::uint64_t value = 0;
  for (const char16_t digit : digits) value = value * 10 + static_cast<std::uint64_t>(digit - u'0');
  return value;
}

/// Feet without a sign, and the inches beside them.
struct FeetParts {
  TW::DecimalNumber feet;
  std::uint64_t wholeInches;
  InchParts inches;
};

using InchSplitter = InchParts (*)(double inches, const LengthStyle& style);

FeetParts SplitFeet(double feet, double inches, InchSplitter split, const LengthStyle& style) {
  // A double this large has no room for inches, and the inches might not even be finite.
  constexpr double LeastWhole = 0x1p53;
  if (feet >= LeastWhole) {
    FeetParts parts{TW::DecimalNumber(feet), 0, split(0, style)};
    parts.inches.zero = false;
    return parts;
  }
  InchParts parts = split(inches, style);
  const std::uint64_t whole = ToInteger(parts.whole.GetIntegerText());
  const std::uint64_t wholeFeet = whole / InchesPerFoot;
  return {TW::DecimalNumber(static_cast<double>(wholeFeet)), whole % InchesPerFoot, std::move(parts)};
}

TUDisplayText FeetAndInchesText(double meters, InchSplitter split, const LengthStyle& style) {
  TUDisplayText text;
  const double feet = std::fabs(meters) / TWUnit::GetFactor(LengthUnit::DecimalFoot);
  if (!std::isfinite(feet)) return text;
  const double inches = std::fabs(meters) / TWUnit::GetFactor(LengthUnit::DecimalInch);
  const FeetParts parts = SplitFeet(feet, inches, split, style);
  TU::AppendSign(text, meters < 0, parts.inches.zero, style.number);
  text.Append(parts.feet.GetIntegerText(style.number.thousandSeparator));
  text.Append(TUMark::Prime);
  text.Append(u"-");
  text.Append(TW::UniString::FromInteger(static_cast<long long>(parts.wholeInches)));
  text.Append(parts.inches.rest);
  text.Append(TUMark::DoublePrime);
  return text;
}

TUDisplayText FractionalInchText(double amount, const LengthStyle& style) {
  TUDisplayText text;
  if (!std::isfinite(amount)) return text;
  const InchParts parts = FractionalInches(std::fabs(amount), style);
  TU::AppendSign(text, amount < 0, parts.zero, style.number);
  text.Append(parts.whole.GetIntegerText(style.number.thousandSeparator));
  text.Append(parts.rest);
  if (style.number.writeMarker) text.Append(TUMark::DoublePrime);
  return text;
}

TUDisplayText TextIn(LengthUnit unit, double meters, const LengthStyle& style) {
  const double amount = meters / TWUnit::GetFactor(unit);
  switch (unit) {
    case LengthUnit::Meter:
      return TU::SimpleUnitText(amount, {u"m"}, style.number);
    case LengthUnit::Decimeter:
      return TU::SimpleUnitText(amount, {u"dm"}, style.number);
    case LengthUnit::Centimeter:
      return TU::SimpleUnitText(amount, {u"cm"}, style.number);
    case LengthUnit::Millimeter:
      return TU::SimpleUnitText(amount, {u"mm"}, style.number);
    case LengthUnit::FootFractionalInch:
      return FeetAndInchesText(meters, FractionalInches, style);
    case LengthUnit::FootDecimalInch:
      return FeetAndInchesText(meters, DecimalInches, style);
    case LengthUnit::DecimalFoot:
      return TU::SimpleUnitText(amount, {u"ft"}, style.number);
    case LengthUnit::FractionalInch:
      return FractionalInchText(amount, style);
    case LengthUnit::DecimalInch:
      return TU::SimpleUnitText(amount, {u"in"}, style.number);
  }
  return {};
}

}  // namespace

TUConversionResult TUM2UString(double meters, LengthUnit unit, const TW::UniString& format,
                               unsigned short minimumLength, unsigned short decimals, unsigned short denominator,
                               bool writeMarker, TWUnit::ShowSmallFives showSmallFives, TW::UniChar fill,
                               bool dropTrailingZeros, const TUSeparators& separators,
                               TWUnit::SignHandling signHandling) {
  constexpr unsigned int FinestDenominator = 128;
  const LengthStyle style{
      TU::MakeNumberStyle(decimals, writeMarker, showSmallFives, dropTrailingZeros, separators, signHandling),
      std::clamp<unsigned int>(denominator, 1, FinestDenominator)};
  return {TextIn(unit, meters, style), format, minimumLength, fill};
}
