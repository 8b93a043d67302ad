#pragma once

#include "Localization/RawCatalog.hpp"
#include "TW/ErrorCodes.hpp"

#include <string_view>

namespace Localization {

/// Tells whether a file begins like a compiled catalog (MO) of either byte order.
bool IsMoCatalog(std::string_view bytes);

/// Reads a compiled catalog. Gives `ErrFileFormat` when it breaks the format, or when its texts, which may overlap, are
/// longer in all than the file; gives `ErrCharacterSet` for an unknown character set.
TW::ErrCode ReadMoCatalog(std::string_view bytes, RawCatalog& catalog);

}  // namespace Localization
