#pragma once

/// Marks what the resource layer offers to users of the shared library.
#define RESOURCES_EXPORT __attribute__((visibility("default")))
