#include "TW/DynamicValue.hpp"

#include "TW/DecimalNumber.hpp"

#include <algorithm>
#include <cmath>

namespace TW {
namespace {

UniString GetNumberText(double value, const DynamicValueConversionRules& rules) {
  if (!std::isfinite(value)) return UniString();
  DecimalNumber number(value);
  number.RoundToDecimals(rules.GetMaximumDecimals());
  const UniString digits = number.GetUnsignedText(rules.GetMinimumDecimals(), rules.GetDecimalSeparator());
  return number.IsNegative() ? UniString(u"-") + digits : digits;
}

}  // namespace

DynamicValueConversionRules::DynamicValueConversionRules(unsigned int minimumDecimals, unsigned int maximumDecimals,
                                                         const UniString& listSeparator,
                                                         const UniString& decimalSeparator)
    : minimumDecimals_(minimumDecimals),
      maximumDecimals_(std::max(minimumDecimals, maximumDecimals)),
      listSeparator_(listSeparator),
      decimalSeparator_(decimalSeparator) {}

DynamicValue::~DynamicValue() = default;

UniString DynamicValue::ToDisplayText(const DynamicValueConversionRules& rules) const {
  return IsUserUndefined() ? UniString(u"Undefined") : GetContentText(rules);
}

UniString IntValue::GetContentText(const DynamicValueConversionRules& rules) const {
  return GetNumberText(Get(), rules);
}

UniString NumValue::GetContentText(const DynamicValueConversionRules& rules) const {
  return GetNumberText(Get(), rules);
}

UniString StringValue::GetContentText(const DynamicValueConversionRules&) const { return Get(); }

UniString BoolValue::GetContentText(const DynamicValueConversionRules&) const { return Get() ? u"TRUE" : u"FALSE"; }

}  // namespace TW
