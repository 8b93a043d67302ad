#pragma once

#include <cstddef>

/// Memory that runs out when a test wants it to. The program replaces the global operator new and the memory functions
/// of ICU; what the system's library takes for itself is not counted.
namespace FailingMemory {

enum class Shortage {
  Once,     ///< one allocation fails
  ForGood,  ///< all that follow fail too
};

/// Lets the allocation after `count` others fail, on the calling thread, until `Allow`.
void FailAfter(std::size_t count, Shortage shortage);
void Allow();
/// Whether an allocation has failed since `FailAfter`.
bool HasFailed();

/// How many pieces of memory are in use.
std::ptrdiff_t GetLiveCount();

}  // namespace FailingMemory
