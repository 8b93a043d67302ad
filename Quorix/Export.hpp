#pragma once

/// Marks what the formula library offers to its users.
#define QX_EXPORT __attribute__((visibility("default")))
