#include "Localization/CharacterSet.hpp"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

#include <algorithm>
#include <cstdint>
#include <new>
#include <string>
#include <utility>

namespace Localization {
namespace {

// What the grammar of a catalog is written with; a set that shows it otherwise cannot be that of a catalog.
constexpr char Grammar[] = "#, fuzzy msgctxt msgid_plural msgstr[0123456789] \"charset=\"\n";
constexpr char16_t GrammarText[] = u"#, fuzzy msgctxt msgid_plural msgstr[0123456789] \"charset=\"\n";

std::string FindName(std::string_view header) {
  constexpr std::string_view Mark = "charset=";
  const std::size_t at = header.find(Mark);
  if (at == std::string_view::npos) return {};
  const std::string_view rest = header.substr(at + Mark.size());
  return std::string(rest.substr(0, rest.find_first_of(" \t\r\n;")));
}

// Left to itself, a converter turns some broken sequences into a control character.
void U_CALLCONV WriteReplacement(const void*, UConverterToUnicodeArgs* arguments, const char*, std::int32_t,
                                 UConverterCallbackReason reason, UErrorCode* status) {
  if (reason > UCNV_IRREGULAR) return;
  constexpr UChar Replacement = 0xFFFD;
  *status = U_ZERO_ERROR;
  ucnv_cbToUWriteUChars(arguments, &Replacement, 1, 0, status);
}

TW::UniString DecodeWith(UConverter* converter, std::string_view bytes) {
  const auto length = static_cast<std::int32_t>(bytes.size());
  std::u16string units(bytes.size(), u'\0');
  UErrorCode status = U_ZERO_ERROR;
  std::int32_t needed = ucnv_toUChars(converter, units.data(), length, bytes.data(), length, &status);
  if (status == U_BUFFER_OVERFLOW_ERROR) {
    status = U_ZERO_ERROR;
    units.resize(static_cast<std::size_t>(needed));
    needed = ucnv_toUChars(converter, units.data(), needed, bytes.data(), length, &status);
  }
  if (U_FAILURE(status)) throw std::bad_alloc();
  units.resize(static_cast<std::size_t>(needed));
  return TW::UniString(std::move(units));
}

}  // namespace

void CharacterSet::Closer::operator()(UConverter* converter) const { ucnv_close(converter); }

TW::ErrCode CharacterSet::ChooseByHeader(std::string_view header) {
  const std::string name = FindName(header);
  if (!name.empty() && name != "CHARSET") return Choose(name.c_str());
  converter_.reset();
  return TW::NoErr;
}

TW::ErrCode CharacterSet::Choose(const char* name) {
  UErrorCode status = U_ZERO_ERROR;
  // Only the name that the converters' own list gives is opened: any other may be looked for among the system's files.
  const char* listed = ucnv_getAlias(name, 0, &status);
  if (U_FAILURE(status) || listed == nullptr) return TW::ErrCharacterSet;
  Converter opened(ucnv_open(listed, &status));
  if (status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  ucnv_setToUCallBack(opened.get(), WriteReplacement, nullptr, nullptr, nullptr, &status);
  if (U_FAILURE(status)) return TW::ErrCharacterSet;
  const UConverterType type = ucnv_getType(opened.get());
  if (type == UCNV_UTF8 || type == UCNV_US_ASCII) {
    opened.reset();
  } else if (DecodeWith(opened.get(), Grammar) != TW::UniString(GrammarText)) {
    return TW::ErrCharacterSet;
  }
  converter_ = std::move(opened);
  return TW::NoErr;
}

std::size_t CharacterSet::GetConvertedLength(std::string_view bytes) const {
  const char* next = bytes.data();
  UErrorCode status = U_ZERO_ERROR;
  ucnv_resetToUnicode(converter_.get());
  ucnv_getNextUChar(converter_.get(), &next, bytes.data() + bytes.size(), &status);
  return std::max<std::size_t>(1, static_cast<std::size_t>(next - bytes.data()));
}

TW::UniString CharacterSet::Decode(std::string_view bytes) const {
  return converter_ == nullptr ? TW::UniString::FromUtf8(bytes) : DecodeWith(converter_.get(), bytes);
}

}  // namespace Localization
