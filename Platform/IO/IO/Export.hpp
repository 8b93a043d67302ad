#pragma once

/// Marks what the input and output layer offers to users of the shared library.
#define IO_EXPORT __attribute__((visibility("default")))
