#include "TU/NumberText.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace TU {
namespace {

constexpr TW::UniChar SmallFive = u'\u2075';

TW::UniString WithSeparator(std::u16string_view decimals, const NumberStyle& style) {
  return decimals.empty() ? TW::UniString() : TW::UniString(style.decimalSeparator) + decimals;
}

// Adds one to the last digit; gives what is carried out at the front.
unsigned int Increment(std::u16string& digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != u'9') {
      ++digits[i];
      return 0;
    }
    digits[i] = u'0';
  }
  return 1;
}

}  // namespace

NumberStyle MakeNumberStyle(unsigned int decimals, bool writeMarker, TWUnit::ShowSmallFives showSmallFives,
                            bool dropTrailingZeros, const TUSeparators& separators, TWUnit::SignHandling signHandling) {
  return {.decimals = std::min(decimals, TW::DecimalNumber::MaximumDecimals),
          .writeMarker = writeMarker,
          .showSmallFives = showSmallFives,
          .dropTrailingZeros = dropTrailingZeros,
          .signHandling = signHandling,
          .decimalSeparator = separators.GetDecimal(),
          .thousandSeparator = separators.GetThousand()};
}

RoundedNumber Round(double amount, const NumberStyle& style) {
  TW::DecimalNumber number(amount);
  if (style.showSmallFives == TWUnit::ShowSmallFives::On) {
    TW::DecimalNumber finer = number;
    finer.RoundToDecimals(style.decimals + 1);
    const TW::UniString digits = finer.GetFractionText();
    if (digits.GetLength() == style.decimals + 1 && digits[style.decimals] == u'5') return {finer, true};
  }
  number.RoundToDecimals(style.decimals);
  return {number, false};
}

ScaledFraction ScaleFraction(std::u16string_view digits, unsigned int factor, unsigned int decimals) {
  ScaledFraction scaled{0, std::u16string(digits)};
  for (std::size_t i = digits.size(); i-- > 0;) {
    scaled.whole += static_cast<unsigned int>(digits[i] - u'0') * factor;
    scaled.decimals[i] = static_cast<char16_t>(u'0' + scaled.whole % 10);
    scaled.whole /= 10;
  }
  const bool up = decimals < digits.size() && scaled.decimals[decimals] >= u'5';
  scaled.decimals.resize(decimals, u'0');
  if (up) scaled.whole += Increment(scaled.decimals);
  return scaled;
}

TW::UniString DecimalsText(const RoundedNumber& rounded, const NumberStyle& style) {
  TW::UniString digits = rounded.number.GetFractionText(style.dropTrailingZeros ? 0 : style.decimals);
  // Zeros before a small five stay, whatever the style: without them it would stand for more.
  if (rounded.smallFive) digits = digits.Substring(0, style.decimals);
  TW::UniString text = WithSeparator(digits, style);
  if (rounded.smallFive) text.Append(SmallFive);
  return text;
}

TW::UniString DecimalsText(const ScaledFraction& fraction, const NumberStyle& style) {
  std::u16string_view digits = fraction.decimals;
  if (style.dropTrailingZeros) digits = digits.substr(0, digits.find_last_not_of(u'0') + 1);
  return WithSeparator(digits, style);
}

void AppendSign(TUDisplayText& text, bool negative, bool zero, const NumberStyle& style) {
  if (zero || style.signHandling == TWUnit::SignHandling::NoSign) return;
  if (negative) {
    text.Append(TUMark::Minus);
  } else if (style.signHandling == TWUnit::SignHandling::PlusAndMinus) {
    text.Append(u"+");
  }
}

TUDisplayText SimpleUnitText(double amount, const UnitMarker& marker, const NumberStyle& style) {
  TUDisplayText text;
  if (!std::isfinite(amount)) return text;
  const RoundedNumber rounded = Round(amount, style);
  AppendSign(text, rounded.number.IsNegative(), rounded.number.IsZero(), style);
  text.Append(rounded.number.GetIntegerText(style.thousandSeparator));
  text.Append(DecimalsText(rounded, style));
  if (style.writeMarker) {
    if (marker.gap) text.Append(TUMark::MarkerGap);
    text.Append(marker.text);
  }
  return text;
}

}  // namespace TU
