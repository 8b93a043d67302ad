#pragma once

/// Marks what the parser layer offers to users of the shared library.
#define EP_EXPORT __attribute__((visibility("default")))
