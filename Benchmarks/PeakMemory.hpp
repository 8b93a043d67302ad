#pragma once

#include <cstddef>

/// Counts the bytes that the whole process holds by `new`.

/// The greatest count since the last reset.
std::size_t GetPeakMemory();
/// Begins anew, and gives the count of now.
std::size_t ResetPeakMemory();
