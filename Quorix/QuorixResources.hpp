#pragma once

#include "Quorix/Export.hpp"
#include "TW/UniString.hpp"

namespace QX {

/// The handle of the library's resource file; below 1 when none is open, and the texts that are built in serve.
QX_EXPORT int GetQuorixResModule();

/// The text at `index` (from 1) of string list `listId` in the user's language; empty when there is none. Any thread
/// may ask; the text stays as long as the library is loaded.
QX_EXPORT const TW::UniString& GetResourceString(int listId, int index);

}  // namespace QX
