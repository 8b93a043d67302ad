#pragma once

#include "Quorix/Export.hpp"

/// Start-up and shut-down of the library. The loader calls both; a host that delays the start-up (see
/// `TW::IsImageStartDelayed`) calls `TWInitImage` itself, before it uses the library from other threads.

/// Finds the place of the library and opens its resource file there. Gives 0.
extern "C" QX_EXPORT int TWInitImage();
/// Drops the cached texts and closes the resource file. Also runs at the end of the process.
extern "C" QX_EXPORT void TWTermImage();
