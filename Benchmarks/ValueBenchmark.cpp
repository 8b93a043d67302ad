#include "AllocationCounter.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "Quorix/Quantity.hpp"
#include "TW/DynamicValue.hpp"

#include <benchmark/benchmark.h>

#include <memory>

/// What making, copying and adding values costs. The peer holds its content as a polymorphic object on the heap.

namespace {

using QX::ExpressionValue;
using QX::Quantity;

constexpr QX::UnitExponents Length = QX::UnitExponents::CreateLength();

void AddQuantities(benchmark::State& state) {
  const AllocationsPerIteration allocations(state);
  Quantity sum(0.0, Length);
  Quantity step(0.25, Length);
  for (auto _ : state) {
    benchmark::DoNotOptimize(step);
    Quantity::Add(sum, step, sum);
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(AddQuantities);

void AddValues(benchmark::State& state) {
  const AllocationsPerIteration allocations(state);
  ExpressionValue sum = ExpressionValue::FromQuantity(0.0, Length);
  ExpressionValue step = ExpressionValue::FromQuantity(0.25, Length);
  for (auto _ : state) {
    benchmark::DoNotOptimize(step);
    Quantity result;
    Quantity::Add(sum.ConvertToQuantity(), step.ConvertToQuantity(), result);
    sum = ExpressionValue::FromQuantity(result);
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(AddValues);

void CopyValue(benchmark::State& state, const ExpressionValue& value) {
  const AllocationsPerIteration allocations(state);
  for (auto _ : state) {
    ExpressionValue copy = value;
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK_CAPTURE(CopyValue, Number, ExpressionValue::FromNumber(1.5));
BENCHMARK_CAPTURE(CopyValue, Logical, ExpressionValue::FromBool(true));
BENCHMARK_CAPTURE(CopyValue, TextOfSeven, ExpressionValue::FromString(u"1234567"));
BENCHMARK_CAPTURE(CopyValue, TextOfEight, ExpressionValue::FromString(u"12345678"));

void CloneDynamicNumber(benchmark::State& state) {
  const AllocationsPerIteration allocations(state);
  const TW::NumValue value(1.5);
  for (auto _ : state) {
    std::unique_ptr<TW::DynamicValue> copy = value.Clone();
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(CloneDynamicNumber);

void MakeNumber(benchmark::State& state) {
  const AllocationsPerIteration allocations(state);
  double number = 1.5;
  for (auto _ : state) {
    benchmark::DoNotOptimize(number);
    ExpressionValue value = ExpressionValue::FromNumber(number);
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(MakeNumber);

void MakeNumberWithUnit(benchmark::State& state) {
  const AllocationsPerIteration allocations(state);
  const TW::UniString marker(u"cm");
  for (auto _ : state) {
    ExpressionValue value = ExpressionValue::FromNumericValueAndUnitMarker(50, marker);
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(MakeNumberWithUnit);

}  // namespace
