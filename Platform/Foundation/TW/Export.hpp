#pragma once

/// Marks what the foundation layer offers to users of the shared library.
#define TW_EXPORT __attribute__((visibility("default")))
