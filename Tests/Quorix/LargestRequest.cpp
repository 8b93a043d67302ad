#include "Quorix/LargestRequest.hpp"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

// The operators stand apart from all that calls them, since compilers that see both take them for a mismatch.

namespace {

std::atomic<std::size_t> largestRequest = 0;

}  // namespace

void ForgetLargestRequest() { largestRequest = 0; }

std::size_t GetLargestRequest() { return largestRequest; }

void* operator new(std::size_t size) {
  for (std::size_t largest = largestRequest; size > largest;) {
    if (largestRequest.compare_exchange_weak(largest, size)) break;
  }
  if (void* memory = std::malloc(std::max<std::size_t>(size, 1))) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
