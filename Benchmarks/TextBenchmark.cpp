#include "AllocationCounter.hpp"
#include "Quorix/QuorixResources.hpp"
#include "TW/DecimalNumber.hpp"
#include "TW/Guid.hpp"
#include "TW/UniString.hpp"

#include <benchmark/benchmark.h>
#include <unicode/ustring.h>

#include <cstdio>
#include <cstdlib>
#include <string>

/// Texts, GUIDs, numbers as text, and the texts of the resources, each beside a call that does the same elsewhere.

namespace {

using TW::UniString;

void UpperCase(benchmark::State& state, const UniString& text) {
  for (auto _ : state) {
    UniString upper = text.ToUpperCase();
    benchmark::DoNotOptimize(upper);
  }
}
BENCHMARK_CAPTURE(UpperCase, TenAsciiLetters, UniString(u"multiplier"));
BENCHMARK_CAPTURE(UpperCase, TenLetters, UniString(u"größenlehr"));

void UpperCaseByUnicodeLibrary(benchmark::State& state) {
  const UniString text(u"multiplier");
  for (auto _ : state) {
    char16_t buffer[32];
    UErrorCode status = U_ZERO_ERROR;
    benchmark::DoNotOptimize(u_strToUpper(buffer, 32, text.GetView().data(), 10, "", &status));
    benchmark::DoNotOptimize(buffer);
  }
}
BENCHMARK(UpperCaseByUnicodeLibrary);

void ParseGuid(benchmark::State& state) {
  const UniString text(u"1AF5C228-7607-4175-9B78-A1779295614E");
  TW::Guid guid;
  for (auto _ : state) {
    benchmark::DoNotOptimize(guid.ConvertFromString(text));
    benchmark::DoNotOptimize(guid);
  }
}
BENCHMARK(ParseGuid);

constexpr double SampleNumber = 1234.56789;

void NumberToText(benchmark::State& state) {
  double number = SampleNumber;
  for (auto _ : state) {
    benchmark::DoNotOptimize(number);
    TW::DecimalNumber decimal(number);
    decimal.RoundToDecimals(3);
    UniString text = decimal.GetUnsignedText(3, u".");
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(NumberToText);

void NumberToTextByC(benchmark::State& state) {
  double number = SampleNumber;
  for (auto _ : state) {
    benchmark::DoNotOptimize(number);
    char buffer[64];
    std::snprintf(buffer, sizeof(buffer), "%.3f", number);
    UniString text = UniString::FromUtf8(buffer);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(NumberToTextByC);

void TextToNumber(benchmark::State& state) {
  const std::string text = "1234.56789";
  double number = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(TW::ReadDecimalNumber(text, number));
    benchmark::DoNotOptimize(number);
  }
}
BENCHMARK(TextToNumber);

void TextToNumberByC(benchmark::State& state) {
  const std::string text = "1234.56789";
  for (auto _ : state) {
    double number = std::strtod(text.c_str(), nullptr);
    benchmark::DoNotOptimize(number);
  }
}
BENCHMARK(TextToNumberByC);

void CachedResourceString(benchmark::State& state) {
  const AllocationsPerIteration allocations(state);
  int index = 1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(QX::GetResourceString(106, index));
    index = index % 18 + 1;
  }
}
BENCHMARK(CachedResourceString);

}  // namespace
