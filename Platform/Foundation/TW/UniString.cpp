#include "TW/UniString.hpp"

#include "TW/TextSearch.hpp"

#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <charconv>
#include <limits>
#include <new>

namespace TW {
namespace {

constexpr UChar32 ReplacementCharacter = 0xFFFD;

bool IsAscii(std::u16string_view text) {
  char16_t seen = 0;
  for (const char16_t unit : text) seen = static_cast<char16_t>(seen | unit);
  return seen < 0x80;
}

bool IsAscii(std::string_view text) {
  unsigned char seen = 0;
  for (const char unit : text) seen = static_cast<unsigned char>(seen | static_cast<unsigned char>(unit));
  return seen < 0x80;
}

void CheckLength(std::size_t length) {
  if (length > std::numeric_limits<unsigned int>::max()) throw std::bad_alloc();
}

// The conversions of the library count in 32-bit signed integers.
std::int32_t ConvertibleLength(std::size_t length) {
  if (length > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()) / 3) throw std::bad_alloc();
  return static_cast<std::int32_t>(length);
}

// Calls `fill` with room for `expected` units and, should that be too little, once more with as much as it asks for.
template <class Fill>
std::u16string FillBuffer(std::size_t expected, Fill&& fill) {
  std::u16string buffer(expected, u'\0');
  UErrorCode status = U_ZERO_ERROR;
  std::int32_t needed = fill(buffer.data(), static_cast<std::int32_t>(buffer.size()), &status);
  if (status == U_BUFFER_OVERFLOW_ERROR) {
    status = U_ZERO_ERROR;
    buffer.resize(static_cast<std::size_t>(needed));
    needed = fill(buffer.data(), needed, &status);
  }
  if (U_FAILURE(status)) throw std::bad_alloc();
  buffer.resize(static_cast<std::size_t>(needed));
  return buffer;
}

using CaseMapping = std::int32_t (*)(UChar*, std::int32_t, const UChar*, std::int32_t, const char*, UErrorCode*);

std::u16string MapCase(std::u16string_view text, CaseMapping map) {
  const std::int32_t length = ConvertibleLength(text.size());
  return FillBuffer(text.size(), [&](UChar* buffer, std::int32_t capacity, UErrorCode* error) {
    return map(buffer, capacity, text.data(), length, "", error);
  });
}

}  // namespace

UniString UniString::FromUtf8(std::string_view text) {
  std::u16string units;
  if (IsAscii(text)) {
    units.assign(text.begin(), text.end());
    CheckLength(units.size());
    return UniString(std::move(units));
  }
  const std::int32_t length = ConvertibleLength(text.size());
  units.resize(text.size());
  std::int32_t written = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strFromUTF8WithSub(units.data(), length, &written, text.data(), length, ReplacementCharacter, nullptr, &status);
  if (U_FAILURE(status)) throw std::bad_alloc();
  units.resize(static_cast<std::size_t>(written));
  return UniString(std::move(units));
}

std::string UniString::ToUtf8() const {
  if (IsAscii(GetView())) {
    std::string bytes(units_.size(), '\0');
    std::transform(units_.begin(), units_.end(), bytes.begin(), [](char16_t unit) { return static_cast<char>(unit); });
    return bytes;
  }
  const std::int32_t length = ConvertibleLength(units_.size());
  std::string bytes(units_.size() * 3, '\0');
  std::int32_t written = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strToUTF8WithSub(bytes.data(), static_cast<std::int32_t>(bytes.size()), &written, units_.data(), length,
                     ReplacementCharacter, nullptr, &status);
  if (U_FAILURE(status)) throw std::bad_alloc();
  bytes.resize(static_cast<std::size_t>(written));
  return bytes;
}

UniString UniString::FromInteger(long long value) {
  char digits[24];
  const auto end = std::to_chars(digits, digits + sizeof(digits), value).ptr;
  return UniString(std::u16string(digits, end));
}

UniString UniString::Printf(const UniString& format, std::initializer_list<UniString> arguments) {
  UniString text;
  auto argument = arguments.begin();
  const std::u16string_view view = format.GetView();
  for (std::size_t i = 0; i < view.size(); ++i) {
    const char16_t next = view[i] == u'%' && i + 1 < view.size() ? view[i + 1] : u'\0';
    if (next == u'T') {
      if (argument != arguments.end()) text.Append(*argument++);
      ++i;
    } else {
      text.Append(UniChar(view[i]));
      if (next == u'%') ++i;
    }
  }
  return text;
}

void UniString::Append(std::u16string_view text) {
  CheckLength(units_.size() + text.size());
  units_.append(text);
}

void UniString::Append(UniChar unit) {
  CheckLength(units_.size() + 1);
  units_.push_back(unit.GetCode());
}

UniString UniString::Substring(unsigned int start, unsigned int count) const {
  if (start >= units_.size()) return UniString();
  return UniString(GetView().substr(start, count));
}

void UniString::SetSubstring(unsigned int start, unsigned int count, std::u16string_view text) {
  const std::size_t begin = std::min<std::size_t>(start, units_.size());
  const std::size_t replaced = std::min<std::size_t>(count, units_.size() - begin);
  CheckLength(units_.size() - replaced + text.size());
  units_.replace(begin, replaced, text);
}

UniString UniString::ToUpperCase() const {
  if (!IsAscii(GetView())) return UniString(MapCase(GetView(), u_strToUpper));
  UniString upper = *this;
  for (char16_t& unit : upper.units_) {
    if (unit >= u'a' && unit <= u'z') unit = static_cast<char16_t>(unit - u'a' + u'A');
  }
  return upper;
}

UniString UniString::ToLowerCase() const {
  if (!IsAscii(GetView())) return UniString(MapCase(GetView(), u_strToLower));
  UniString lower = *this;
  for (char16_t& unit : lower.units_) {
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit - u'A' + u'a');
  }
  return lower;
}

UniString UniString::ToNormalizationFormC() const {
  if (IsAscii(GetView())) return *this;
  UErrorCode status = U_ZERO_ERROR;
  const UNormalizer2* normalizer = unorm2_getNFCInstance(&status);
  if (U_FAILURE(status)) throw std::bad_alloc();
  const std::int32_t length = ConvertibleLength(units_.size());
  return UniString(FillBuffer(units_.size(), [&](UChar* buffer, std::int32_t capacity, UErrorCode* error) {
    return unorm2_normalize(normalizer, units_.data(), length, buffer, capacity, error);
  }));
}

UniString UniString::Trim() const {
  std::size_t begin = 0;
  std::size_t end = units_.size();
  while (begin < end && UniChar(units_[begin]).IsWhiteSpace()) ++begin;
  while (end > begin && UniChar(units_[end - 1]).IsWhiteSpace()) --end;
  return UniString(GetView().substr(begin, end - begin));
}

void UniString::Find(std::u16string_view text, const std::function<void(unsigned int)>& visit) const {
  if (text.empty()) return;
  const TextSearch search(text);
  for (std::size_t at = search.FindIn(units_, 0); at != TextSearch::NotFound;
       at = search.FindIn(units_, at + text.size())) {
    visit(static_cast<unsigned int>(at));
  }
}

Optional<unsigned int> UniString::FindFirst(std::u16string_view text, unsigned int start) const {
  if (start > units_.size()) return std::nullopt;
  if (text.empty()) return start;
  const std::size_t at = TextSearch(text).FindIn(units_, start);
  if (at == TextSearch::NotFound) return std::nullopt;
  return static_cast<unsigned int>(at);
}

Array<UniString> UniString::Split(std::u16string_view separator) const {
  Array<UniString> parts;
  unsigned int begin = 0;
  Find(separator, [&](unsigned int position) {
    parts.push_back(Substring(begin, position - begin));
    begin = position + static_cast<unsigned int>(separator.size());
  });
  parts.push_back(Substring(begin, GetLength() - begin));
  return parts;
}

UniString UniString::ReplaceAll(std::u16string_view oldText, std::u16string_view newText) const {
  std::size_t occurrences = 0;
  Find(oldText, [&](unsigned int) { ++occurrences; });
  if (occurrences == 0) return *this;

  UniString replaced;
  const std::size_t kept = units_.size() - occurrences * oldText.size();
  if (newText.size() > std::numeric_limits<unsigned int>::max() / occurrences) throw std::bad_alloc();
  replaced.Reserve(kept + occurrences * newText.size());
  std::size_t begin = 0;
  Find(oldText, [&](unsigned int position) {
    replaced.Append(GetView().substr(begin, position - begin));
    replaced.Append(newText);
    begin = position + oldText.size();
  });
  replaced.Append(GetView().substr(begin));
  return replaced;
}

int UniString::Compare(std::u16string_view other, CaseComparison comparison) const {
  int order = 0;
  if (comparison == CaseComparison::CaseSensitive) {
    order = GetView().compare(other);
  } else {
    UErrorCode status = U_ZERO_ERROR;
    order = u_strCaseCompare(units_.data(), ConvertibleLength(units_.size()), other.data(),
                             ConvertibleLength(other.size()), U_FOLD_CASE_DEFAULT, &status);
    if (U_FAILURE(status)) throw std::bad_alloc();
  }
  return (order > 0) - (order < 0);
}

}  // namespace TW
