#include "AllocationCounter.hpp"
#include "BenchmarkHost.hpp"
#include "Quorix/Quorix.hpp"

#include <benchmark/benchmark.h>

#include <cctype>
#include <cmath>
#include <libqalculate/qalculate.h>
#include <muParser.h>
#include <string>

/// Evaluating formulas whose properties a host answers from an array, beside muParser, which knows plain doubles only.

namespace {

using QX::Expression;
using QX::ExpressionValue;

// Puts references in the place of the names A, B and C.
Expression Parse(const std::string& formula) {
  TW::UniString text;
  for (std::size_t i = 0; i < formula.size(); ++i) {
    const char character = formula[i];
    const bool inWord =
        (i > 0 && std::isalpha(formula[i - 1]) != 0) || (i + 1 < formula.size() && std::isalpha(formula[i + 1]) != 0);
    if (character >= 'A' && character <= 'C' && !inWord) {
      text += u"[Property:00000000-0000-0000-0000-00000000000";
      text += TW::UniString::FromInteger(character - 'A' + 1);
      text += u"]";
    } else {
      text.Append(static_cast<char16_t>(character));
    }
  }
  return Expression::CreateFromIOString(text);
}

void Evaluate(benchmark::State& state, const std::string& formula) {
  const Expression expression = Parse(formula);
  const BenchmarkHost host;
  if (!expression.IsValid()) {
    state.SkipWithError("the formula was not understood");
    return;
  }
  const AllocationsPerIteration allocations(state);
  for (auto _ : state) {
    ExpressionValue value = expression.Evaluate(host);
    benchmark::DoNotOptimize(value);
  }
}

double RoundToDigits(double value, double digits) {
  const double scale = std::pow(10.0, digits);
  return std::round(value * scale) / scale;
}

void EvaluateByMuParser(benchmark::State& state, const std::string& formula) {
  mu::Parser parser;
  double a = 2.0;
  double b = 3.0;
  double c = 5.0;
  parser.DefineVar("A", &a);
  parser.DefineVar("B", &b);
  parser.DefineVar("C", &c);
  parser.DefineFun("ROUND", RoundToDigits);
  parser.SetExpr(formula);
  parser.Eval();
  for (auto _ : state) {
    benchmark::DoNotOptimize(a);
    double value = parser.Eval();
    benchmark::DoNotOptimize(value);
  }
}

const char* const Arithmetic = "(A + B * 2) / (C - 1.5) ^ 2";

// An evaluator that knows units; the formula is parsed beforehand, as it is for the others.
void EvaluateByQalculate(benchmark::State& state, const std::string& formula) {
  static Calculator* const calculator = [] {
    auto* made = new Calculator();
    made->loadGlobalDefinitions();
    return made;
  }();
  const MathStructure parsed = calculator->parse(formula);
  const EvaluationOptions options;
  for (auto _ : state) {
    benchmark::DoNotOptimize(calculator->calculate(parsed, options));
  }
}

BENCHMARK_CAPTURE(Evaluate, Arithmetic, Arithmetic);
BENCHMARK_CAPTURE(EvaluateByMuParser, Arithmetic, Arithmetic);
BENCHMARK_CAPTURE(Evaluate, Functions, "ROUND(SQRT(A*A + B*B), 3) + MIN(A, B, C) * MAX(A, B) - ABS(C)");
BENCHMARK_CAPTURE(EvaluateByMuParser, Functions, "ROUND(sqrt(A*A + B*B), 3) + min(A, B, C) * max(A, B) - abs(C)");
BENCHMARK_CAPTURE(Evaluate, Conditions, "IF(A > B, IF(C > 0, A, B), C) + IF(A < 10, 1, 2)");
BENCHMARK_CAPTURE(EvaluateByMuParser, Conditions, "(A > B ? (C > 0 ? A : B) : C) + (A < 10 ? 1 : 2)");
BENCHMARK_CAPTURE(Evaluate, Units, "2 m * 50 cm + 3 m2");
BENCHMARK_CAPTURE(EvaluateByQalculate, Units, "2 m * 50 cm + 3 m^2");
BENCHMARK_CAPTURE(
    Evaluate, Texts,
    "CONCAT(LEFT(\"concrete\", 3), \"-\", UPPER(MID(\"concrete\", 2, 4)), \"-\", STR(LEN(\"concrete\"), 0))");

}  // namespace
