#pragma once

/// Marks what the unit formatting layer offers to users of the shared library.
#define TU_EXPORT __attribute__((visibility("default")))
