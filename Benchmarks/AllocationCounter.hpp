#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>

/// Counts what the whole process takes from the heap by `new`.

std::size_t GetAllocationCount();

/// Reports the allocations of a benchmark per iteration, from its making to its end.
class AllocationsPerIteration {
 public:
  explicit AllocationsPerIteration(benchmark::State& state) : state_(state), before_(GetAllocationCount()) {}
  ~AllocationsPerIteration() {
    const auto count = static_cast<double>(GetAllocationCount() - before_);
    state_.counters["allocations"] = benchmark::Counter(count, benchmark::Counter::kAvgIterations);
  }
  AllocationsPerIteration(const AllocationsPerIteration&) = delete;
  AllocationsPerIteration& operator=(const AllocationsPerIteration&) = delete;

 private:
  benchmark::State& state_;
  std::size_t before_;
};
