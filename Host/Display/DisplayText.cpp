#include "Host/Display/DisplayText.hpp"

#include "Quorix/ExpressionValueToString.hpp"

#include <charconv>
#include <string>
#include <string_view>

namespace Host {
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

TW::Optional<TW::UniString> DisplayText::Find(const QX::ExpressionValue& value) const {
  return QX::ConvertExpressionValueToString(value, converter_, locale_, settings_.markerMode, settings_.minimumDecimals,
                                            settings_.maximumDecimals);
}

TW::UniString DisplayText::Make(const QX::ExpressionValue& value) const {
  if (!value.IsValid()) return {};
  if (auto text = Find(value)) return *std::move(text);
  return GetBaseUnitText(value, ToText(locale_.GetDecimalSeparator()));
}

}  // namespace Host
