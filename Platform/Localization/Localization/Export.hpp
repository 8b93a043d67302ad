#pragma once

/// Marks what the localization layer offers to users of the shared library.
#define LOCALIZATION_EXPORT __attribute__((visibility("default")))
