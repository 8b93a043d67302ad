#include "FailingMemory.hpp"

#include <unicode/uclean.h>

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace FailingMemory {
namespace {

constexpr std::size_t Never = std::numeric_limits<std::size_t>::max();

constinit std::atomic<std::ptrdiff_t> liveCount{0};
constinit thread_local std::size_t allowed = Never;
constinit thread_local bool failed = false;
constinit thread_local Shortage kind = Shortage::Once;

bool MayAllocate() {
  if (allowed == Never) return true;
  if (allowed > 0) {
    --allowed;
    return true;
  }
  failed = true;
  if (kind == Shortage::Once) allowed = Never;
  return false;
}

void* Allocate(std::size_t size) {
  if (!MayAllocate()) return nullptr;
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory != nullptr) ++liveCount;
  return memory;
}

void* AllocateAligned(std::size_t size, std::size_t alignment) {
  if (!MayAllocate()) return nullptr;
  void* memory = std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
  if (memory != nullptr) ++liveCount;
  return memory;
}

void Free(void* memory) {
  if (memory == nullptr) return;
  --liveCount;
  std::free(memory);
}

void* OrThrow(void* memory) {
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void* AllocateForIcu(const void*, std::size_t size) { return Allocate(size); }
void FreeForIcu(const void*, void* memory) { Free(memory); }
void* ReallocateForIcu(const void*, void* memory, std::size_t size) {
  if (memory == nullptr) return Allocate(size);
  return MayAllocate() ? std::realloc(memory, size) : nullptr;
}

bool TakeOverIcu() {
  UErrorCode error = U_ZERO_ERROR;
  u_setMemoryFunctions(nullptr, AllocateForIcu, ReallocateForIcu, FreeForIcu, &error);
  return U_SUCCESS(error) != 0;
}

// Before the first test; what ICU has allocated by then comes from the same heap.
[[maybe_unused]] const bool hasTakenOverIcu = TakeOverIcu();

}  // namespace

void FailAfter(std::size_t count, Shortage shortage) {
  failed = false;
  kind = shortage;
  allowed = count;
}

void Allow() { allowed = Never; }
bool HasFailed() { return failed; }
std::ptrdiff_t GetLiveCount() { return liveCount; }

}  // namespace FailingMemory

using namespace FailingMemory;

void* operator new(std::size_t size) { return OrThrow(Allocate(size)); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return OrThrow(AllocateAligned(size, static_cast<std::size_t>(alignment)));
}
void operator delete(void* memory) noexcept { Free(memory); }
void operator delete(void* memory, std::size_t) noexcept { Free(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { Free(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { Free(memory); }
