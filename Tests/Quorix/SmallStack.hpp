#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <pthread.h>

/// Sanitizers make the frames of functions several times as large.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr std::size_t SmallStackSize = std::size_t{1024} * 1024;
#else
inline constexpr std::size_t SmallStackSize = std::size_t{256} * 1024;
#endif

/// Runs on a thread whose stack is so small that any recursion along a long formula overflows it.
inline void RunOnSmallStack(const std::function<void()>& body) {
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, SmallStackSize), 0);
  pthread_t thread;
  const auto run = [](void* argument) -> void* {
    (*static_cast<const std::function<void()>*>(argument))();
    return nullptr;
  };
  ASSERT_EQ(pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&body)), 0);
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}
