#pragma once

#include "Localization/RawCatalog.hpp"
#include "TW/ErrorCodes.hpp"

#include <string_view>

namespace Localization {

/// Reads a catalog in its text form (PO). Gives `ErrFileFormat` for a line that breaks the grammar or a message that is
/// not complete, and `ErrCharacterSet` for an unknown character set.
TW::ErrCode ReadPoCatalog(std::string_view bytes, RawCatalog& catalog);

}  // namespace Localization
