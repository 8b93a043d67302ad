#pragma once

#include "Resources/Export.hpp"
#include "TW/UniString.hpp"

#include <string>
#include <string_view>

/// Localized texts, addressed by the id of a list and an index from 1. They come from a resource file, an archive of
/// texts that the build has made and sealed, and where the file lacks one, from the texts that are built into the
/// library. A text that a language lacks is taken from the language without its region, and at last from the root.
/// Any thread may call anything here.

namespace Resources {

/// Opens the resource file at a path in the system's encoding, or that of this version of the library, such as
/// `Quorix-0.dat`, in the folder at that path. Gives a handle from 1, or -1 when there is no file that could be one.
/// Cheap: the file is read at the first look-up, and one that turns out to be broken then stands for a file without
/// texts.
RESOURCES_EXPORT int OpenResourceFile(const std::string& path);

/// Gives a handle back and drops the texts that were read for it, but for those of a `StringCache`, which keeps them
/// until it ends. Any other handle is ignored.
RESOURCES_EXPORT void CloseResourceFile(int moduleHandle);

/// Makes the file under a handle the one from which the library itself takes its texts; any handle below 1 means that
/// there is none. Gives the handle that was set before. The library does this when it starts and ends.
RESOURCES_EXPORT int SetProcessModule(int moduleHandle);

/// The handle that was set last, and at first -1.
RESOURCES_EXPORT int GetProcessModule();

/// The text at `index` of list `listId` in the language of the process; empty when there is none. A handle under which
/// no file is open gives the built-in texts.
RESOURCES_EXPORT TW::UniString GetIndString(int listId, int index, int moduleHandle);

/// The same in the language of a tag (see `SetLanguage`).
RESOURCES_EXPORT TW::UniString GetIndString(int listId, int index, int moduleHandle, std::string_view languageTag);

}  // namespace Resources
