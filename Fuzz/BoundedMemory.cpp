#include "BoundedMemory.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

std::size_t largestRequest = SIZE_MAX;

}  // namespace

BoundedMemory::BoundedMemory() { largestRequest = std::size_t{1} << 20; }
BoundedMemory::~BoundedMemory() { largestRequest = SIZE_MAX; }

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return size <= largestRequest ? std::malloc(size > 0 ? size : 1) : nullptr;
}
void* operator new(std::size_t size) {
  if (void* memory = operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
