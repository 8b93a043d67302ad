#pragma once

#include "TW/Export.hpp"

namespace TW {

/// The symbols with which a locale writes numbers and lists, each one 16-bit code unit. The defaults are those of the
/// locale "C".
struct SystemSymbols {
  unsigned short decimal = '.';
  unsigned short listSeparator = ',';
  unsigned short digitGrouping = ',';

  friend bool operator==(const SystemSymbols&, const SystemSymbols&) = default;
};

/// Gives the symbols of a locale named as in the environment, such as `de_AT.UTF-8@euro`; what follows a full stop or
/// an at sign has no bearing. Names that are null, empty, broken or of an unknown language, `C` and `POSIX`, and
/// locales with a symbol longer than one unit give the symbols of "C". Lists are separated by `;` where the decimal
/// symbol is `,`, and by
/// `,` elsewhere.
TW_EXPORT SystemSymbols ReadSystemSymbols(const char* localeName);

/// Each reads the user's locale anew from the first of the environment's LC_ALL, LC_NUMERIC and LANG that is not empty.
/// They may be called from any thread while none changes the environment.
TW_EXPORT unsigned short GetDecimalSymbol();
TW_EXPORT unsigned short GetListSeparatorSymbol();
TW_EXPORT unsigned short GetDigitGroupingSymbol();

}  // namespace TW
