#include "TU/ConversionResult.hpp"

#include <algorithm>
#include <utility>

TUConversionResult::TUConversionResult(TUDisplayText text, const TW::UniString& format, unsigned int minimumLength,
                                       TW::UniChar fill)
    : text_(std::move(text)),
      format_(format),
      minimumLength_(std::min(minimumLength, MaximumMinimumLength)),
      fill_(fill == u'\0' ? TW::UniChar(u' ') : fill) {}

TW::UniString TUConversionResult::GetValue(TWUnit::UnitMarkerMode mode) const {
  if (text_.IsEmpty()) return {};
  TW::UniString text = text_.Layout(mode);
  const unsigned int length = text.GetLength();
  if (length < minimumLength_) text = TW::UniString(minimumLength_ - length, fill_) + text;
  return format_.IsEmpty() ? text : TW::UniString::Printf(format_, text);
}
