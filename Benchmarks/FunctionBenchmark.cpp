#include "BenchmarkHost.hpp"
#include "Quorix/Quorix.hpp"

#include <benchmark/benchmark.h>

/// What one call of each function costs: the first example of its help text, evaluated. What the arguments cost is part
/// of it; the first row is a number alone.

namespace {

using QX::Expression;

// The left side of the first example, which is written as FORMULA = RESULT on a line of its own.
TW::UniString FirstExampleOf(const TW::UniString& function) {
  const TW::UniString examples =
      QX::GetFunctionNodeRegistry().GetFunctionHelpString(function, QX::HelpType::Example, u',');
  const TW::UniString line = examples.Split(u"\n").front();
  const TW::Array<TW::UniString> sides = line.Split(u" = ");
  TW::UniString left = sides.front();
  for (std::size_t i = 1; i + 1 < sides.size(); ++i) left = left + u" = " + sides[i];
  return left;
}

void EvaluateText(benchmark::State& state, const TW::UniString& text) {
  const Expression expression = Expression::CreateFromIOString(text);
  const BenchmarkHost host;
  if (!expression.IsValid()) {
    state.SkipWithError("the formula was not understood");
    return;
  }
  for (auto _ : state) {
    QX::ExpressionValue value = expression.Evaluate(host);
    benchmark::DoNotOptimize(value);
  }
}

const bool registered = [] {
  benchmark::RegisterBenchmark("1", EvaluateText, TW::UniString(u"1"));
  QX::GetFunctionNodeRegistry().EnumerateRegisteredFunctions([](const TW::UniString& function) {
    const TW::UniString example = FirstExampleOf(function);
    benchmark::RegisterBenchmark(example.ToUtf8().c_str(), EvaluateText, example);
  });
  return true;
}();

}  // namespace
