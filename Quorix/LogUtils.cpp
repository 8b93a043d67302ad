#include "Quorix/LogUtils.hpp"

namespace QX {
namespace {

TW::UniString DescribeSeparator(unsigned short separator) {
  return TW::UniString::Printf(u"%T (charCode=%T)", TW::UniString(TW::UniChar(separator)),
                               TW::UniString::FromInteger(separator));
}

}  // namespace

TW::UniString LogUtils::GetLogMessageForLocaleSettings(const IEvaluationLocaleSettings& settings) {
  return TW::UniString::Printf(u"- Decimal separator: %T\n- List separator: %T\n- Thousand separator: %T",
                               DescribeSeparator(settings.GetDecimalSeparator()),
                               DescribeSeparator(settings.GetListSeparator()),
                               DescribeSeparator(settings.GetThousandSeparator()));
}

TW::UniString LogUtils::GetLogMessageForExpressionString(const TW::UniString& text) {
  TW::UniString codes;
  for (const char16_t unit : text) {
    if (!codes.IsEmpty()) codes.Append(u',');
    codes.Append(TW::UniString::FromInteger(unit));
  }
  return TW::UniString::Printf(u"\"%T\" (length=%T, charCodeArray={%T})", text,
                               TW::UniString::FromInteger(text.GetLength()), codes);
}

}  // namespace QX
