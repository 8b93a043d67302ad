#pragma once

#include "TW/Export.hpp"

#include <string>

/// What the loader knows of the shared library that code belongs to.

extern "C" {
/// A host that wants to start a library itself, later than the loader does, defines this function and answers true for
/// as long as the library's start is to wait. `imageName` is the file name of the library. The loader asks before the
/// host's own static objects are made.
TW_EXPORT bool TWDelayImageStart(const char* imageName) __attribute__((weak));
}

namespace TW {

/// Whether the host wants the start of the named library to wait.
TW_EXPORT bool IsImageStartDelayed(const std::string& imageName);

/// The absolute path, with links followed, of the file that the code or data at `address` was loaded from; empty when
/// the loader does not know it. A library that was loaded by a relative path must ask before the process changes its
/// folder.
TW_EXPORT std::string FindImagePath(const void* address);

}  // namespace TW
