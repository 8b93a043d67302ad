#include "DisplayText.hpp"

#include "Quorix/ExpressionValueToString.hpp"

#include <charconv>
#include <string>
#include <string_view>

namespace Command {
namespace {

TW::UniString ToText(unsigned short unit) { return TW::UniString(TW::UniChar(static_cast<char16_t>(unit))); }

std::string GetUnitText(const char* unit, int exponent) {
  if (exponent == 0) return "";
  return std::string(" ") + unit + (exponent == 1 ? "" : "^" + std::to_string(exponent));
}

TW::UniString GetBaseUnitText(const QX::ExpressionValue& value, const TW::UniString& decimalSeparator) {
  char digits[32];
  const auto [end, error] = std::to_chars(digits, digits + sizeof(digits), value.GetIntOrNumVariantValue());
  const TW::UniString number = TW::UniString::FromUtf8({digits, static_cast<std::size_t>(end - digits)});
  const QX::UnitExponents& exponents = value.GetUnitExponents();
  const std::string units =
      GetUnitText("m", exponents.GetLengthExponent()) + GetUnitText("rad", exponents.GetAngleExponent());
  return number.ReplaceAll(u".", decimalSeparator) + TW::UniString::FromUtf8(units);
}

}  // namespace

TW::Optional<TW::UniString> GetDisplayText(const QX::ExpressionValue& value, const Environment& environment) {
  const Settings& settings = environment.GetSettings();
  return QX::ConvertExpressionValueToString(value, environment.GetUnitConverter(), settings.locale, settings.markerMode,
                                            settings.minimumDecimals, settings.maximumDecimals);
}

TW::UniString GetTextForPeople(const QX::ExpressionValue& value, const Environment& environment) {
  if (!value.IsValid()) return {};
  if (auto text = GetDisplayText(value, environment)) return *std::move(text);
  return GetBaseUnitText(value, ToText(environment.GetSettings().locale.GetDecimalSeparator()));
}

}  // namespace Command
