#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <latch>
#include <string>
#include <thread>
#include <vector>

inline constexpr std::size_t ThreadCount = 8;

/// Runs `work(number of the thread)` on eight threads that begin at the same moment.
template <class Work>
void RunOnEightThreads(const Work& work) {
  std::latch start(ThreadCount);
  std::vector<std::jthread> threads;
  for (std::size_t i = 0; i < ThreadCount; ++i) {
    threads.emplace_back([&start, &work, i] {
      start.arrive_and_wait();
      work(i);
    });
  }
}

/// Expects that eight threads which ask at the same moment get the same answer, and one that is not empty.
template <class Ask>
void ExpectOneAnswer(const Ask& ask) {
  std::vector<std::string> answers(ThreadCount);
  RunOnEightThreads([&](std::size_t i) { answers[i] = ask(); });
  EXPECT_NE(answers.front(), "");
  for (const std::string& answer : answers) EXPECT_EQ(answer, answers.front());
}
