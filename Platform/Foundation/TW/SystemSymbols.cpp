#include "TW/SystemSymbols.hpp"

#include <unicode/uloc.h>
#include <unicode/unum.h>
#include <unicode/ures.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>
#include <string_view>

namespace TW {
namespace {

struct ResourceCloser {
  void operator()(UResourceBundle* bundle) const { ures_close(bundle); }
};

struct FormatCloser {
  void operator()(UNumberFormat* format) const { unum_close(format); }
};

using Format = std::unique_ptr<UNumberFormat, FormatCloser>;

bool IsNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
}

// Without charset and modifier; empty when the rest is no name to ask for.
std::string GetBareName(const char* localeName) {
  std::string_view name = localeName == nullptr ? std::string_view() : localeName;
  name = name.substr(0, name.find_first_of(".@"));
  const bool valid = name.size() < ULOC_FULLNAME_CAPACITY && std::all_of(name.begin(), name.end(), IsNameCharacter);
  return valid && name != "C" && name != "POSIX" ? std::string(name) : std::string();
}

// An unknown language would be answered with the locale that the process started with.
bool IsKnownLocale(const std::string& name) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<UResourceBundle, ResourceCloser> bundle(ures_open(nullptr, name.c_str(), &status));
  if (status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  return U_SUCCESS(status) && status != U_USING_DEFAULT_WARNING;
}

bool ReadSymbol(const Format& format, UNumberFormatSymbol symbol, unsigned short& unit) {
  UErrorCode status = U_ZERO_ERROR;
  UChar text[2] = {};
  if (unum_getSymbol(format.get(), symbol, text, 2, &status) != 1 || U_FAILURE(status)) return false;
  unit = text[0];
  return true;
}

const char* GetEnvironmentLocale() {
  for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"})
    if (const char* name = std::getenv(variable); name != nullptr && *name != '\0') return name;
  return nullptr;
}

}  // namespace

SystemSymbols ReadSystemSymbols(const char* localeName) {
  const std::string name = GetBareName(localeName);
  if (name.empty() || !IsKnownLocale(name)) return SystemSymbols();
  UErrorCode status = U_ZERO_ERROR;
  const Format format(unum_open(UNUM_DECIMAL, nullptr, 0, name.c_str(), nullptr, &status));
  if (status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  if (U_FAILURE(status)) return SystemSymbols();

  SystemSymbols symbols;
  if (!ReadSymbol(format, UNUM_DECIMAL_SEPARATOR_SYMBOL, symbols.decimal)) return SystemSymbols();
  if (!ReadSymbol(format, UNUM_GROUPING_SEPARATOR_SYMBOL, symbols.digitGrouping)) return SystemSymbols();
  symbols.listSeparator = symbols.decimal == ',' ? u';' : u',';
  return symbols;
}

unsigned short GetDecimalSymbol() { return ReadSystemSymbols(GetEnvironmentLocale()).decimal; }
unsigned short GetListSeparatorSymbol() { return ReadSystemSymbols(GetEnvironmentLocale()).listSeparator; }
unsigned short GetDigitGroupingSymbol() { return ReadSystemSymbols(GetEnvironmentLocale()).digitGrouping; }

}  // namespace TW
