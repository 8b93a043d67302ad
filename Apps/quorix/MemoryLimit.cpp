#include "MemoryLimit.hpp"

#include <sys/resource.h>

namespace Command {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define QX_HAS_SHADOW_MEMORY 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#define QX_HAS_SHADOW_MEMORY 1
#endif
#endif

#ifdef QX_HAS_SHADOW_MEMORY
void LimitAddressSpace(unsigned long long) {}
#else
void LimitAddressSpace(unsigned long long bytes) {
  rlimit limit{};
  if (::getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur <= bytes) return;
  limit.rlim_cur = bytes;
  ::setrlimit(RLIMIT_AS, &limit);
}
#endif

}  // namespace Command
