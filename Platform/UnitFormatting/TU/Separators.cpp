#include "TU/Separators.hpp"

namespace {

bool IsAbsent(const TW::UniString& text) { return text.IsEmpty() || (text.GetLength() == 1 && text[0] == u'\0'); }

}  // namespace

TUSeparators TUSeparators::Create(const TW::UniString& decimal, const TW::UniString& thousand) {
  TUSeparators separators;
  separators.decimal_ = IsAbsent(decimal) ? TW::UniString(u".") : decimal;
  if (!IsAbsent(thousand)) separators.thousand_ = thousand;
  return separators;
}
