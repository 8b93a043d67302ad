#include "PeakMemory.hpp"

#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::atomic<std::size_t> used{0};
std::atomic<std::size_t> peak{0};

void Count(void* memory) {
  const std::size_t size = malloc_usable_size(memory);
  const std::size_t now = used.fetch_add(size) + size;
  for (std::size_t before = peak.load(); before < now && !peak.compare_exchange_weak(before, now);) {
  }
}

}  // namespace

std::size_t GetPeakMemory() { return peak; }

std::size_t ResetPeakMemory() {
  peak = used.load();
  return peak;
}

void* operator new(std::size_t size) {
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  Count(memory);
  return memory;
}

void operator delete(void* memory) noexcept {
  if (memory != nullptr) used -= malloc_usable_size(memory);
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
