#pragma once

#include <cstddef>

/// Watches over all memory that the program asks for.

void ForgetLargestRequest();
/// The largest piece that any thread asked for since then, in bytes.
std::size_t GetLargestRequest();
