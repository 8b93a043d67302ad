#include "Quorix/Quorix.hpp"
#include "TW/MemoryChannel.hpp"

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <muParser.h>
#include <string>

/// Reading, rendering, storing and copying formulas, and what they take of the heap, beside muParser where it does the
/// same.

namespace {

using QX::Expression;

const char16_t* const Arithmetic =
    u"([Property:00000000-0000-0000-0000-000000000001] + [Property:00000000-0000-0000-0000-000000000002] * 2) / "
    u"([Property:00000000-0000-0000-0000-000000000003] - 1.5) ^ 2";
const char16_t* const Conditions = u"IF(1 > 2, IF(3 > 4, \"a\", \"b\"), IF(5 m > 600 cm, CONCAT(\"c\", \"d\"), \"e\"))";

TW::UniString SumOfTerms(int count) {
  TW::UniString text(u"1");
  for (int i = 1; i < count; ++i) text += u"+1";
  return text;
}

TW::Ref<QX::ExpressionNode> Parse(const TW::UniString& text) {
  QX::SyntaxTreeBuilder builder;
  return EP::BoostGenerateSyntaxTree<QX::SyntaxTreeBuilder>(text, EP::IOLocaleSettings(), builder);
}

std::size_t CountNodes(const Expression& expression) {
  std::size_t count = 0;
  expression.GetRoot()->EnumerateRecursive([&count](const QX::ExpressionNode*) { ++count; });
  return count;
}

void ReportPerNode(benchmark::State& state, const Expression& expression) {
  state.counters["nodes"] = static_cast<double>(CountNodes(expression));
  state.counters["per_node"] =
      benchmark::Counter(static_cast<double>(CountNodes(expression)),
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void ParseText(benchmark::State& state, const TW::UniString& text) {
  for (auto _ : state) benchmark::DoNotOptimize(Parse(text));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * text.GetLength() * 2);
}
BENCHMARK_CAPTURE(ParseText, Arithmetic, TW::UniString(Arithmetic));
BENCHMARK_CAPTURE(ParseText, Conditions, TW::UniString(Conditions));
BENCHMARK_CAPTURE(ParseText, SumOf1000, SumOfTerms(1000));

void ParseByMuParser(benchmark::State& state, const std::string& text) {
  double a = 2;
  double b = 3;
  double c = 5;
  for (auto _ : state) {
    mu::Parser parser;
    parser.DefineVar("a", &a);
    parser.DefineVar("b", &b);
    parser.DefineVar("c", &c);
    parser.SetExpr(text);
    benchmark::DoNotOptimize(parser.Eval());
  }
}
BENCHMARK_CAPTURE(ParseByMuParser, Arithmetic, "(a + b * 2) / (c - 1.5) ^ 2");
BENCHMARK_CAPTURE(ParseByMuParser, SumOf1000, SumOfTerms(1000).ToUtf8());

void Render(benchmark::State& state, const TW::UniString& text) {
  const Expression expression(Parse(text));
  const EP::IOLocaleSettings settings;
  for (auto _ : state) benchmark::DoNotOptimize(expression.GetExpressionString(settings));
  ReportPerNode(state, expression);
}
BENCHMARK_CAPTURE(Render, Arithmetic, TW::UniString(Arithmetic));
BENCHMARK_CAPTURE(Render, SumOf1000, SumOfTerms(1000));

void Store(benchmark::State& state, const TW::UniString& text) {
  const Expression expression(Parse(text));
  std::size_t size = 0;
  for (auto _ : state) {
    TW::MemoryOChannel channel;
    expression.Write(channel);
    size = channel.GetBytes().size();
  }
  ReportPerNode(state, expression);
  state.counters["bytes"] = static_cast<double>(size);
}
BENCHMARK_CAPTURE(Store, Arithmetic, TW::UniString(Arithmetic));

void ReadStored(benchmark::State& state, const TW::UniString& text) {
  const Expression expression(Parse(text));
  TW::MemoryOChannel channel;
  expression.Write(channel);
  for (auto _ : state) {
    Expression read;
    TW::MemoryIChannel stored(channel.GetBytes());
    benchmark::DoNotOptimize(read.Read(stored));
  }
  ReportPerNode(state, expression);
}
BENCHMARK_CAPTURE(ReadStored, Arithmetic, TW::UniString(Arithmetic));

void Copy(benchmark::State& state, const TW::UniString& text) {
  const Expression expression(Parse(text));
  for (auto _ : state) benchmark::DoNotOptimize(Expression(expression));
  ReportPerNode(state, expression);
}
BENCHMARK_CAPTURE(Copy, Arithmetic, TW::UniString(Arithmetic));

// What many equal formulas take of the heap, each.
void MemoryOfFormula(benchmark::State& state, const TW::UniString& text) {
  constexpr std::size_t Count = 1000;
  for (auto _ : state) {
    std::vector<Expression> expressions(Count);
    const std::size_t before = mallinfo2().uordblks;
    for (Expression& expression : expressions) expression = Expression(Parse(text));
    state.counters["bytes"] = static_cast<double>(mallinfo2().uordblks - before) / Count;
  }
}
BENCHMARK_CAPTURE(MemoryOfFormula, Arithmetic, TW::UniString(Arithmetic));
BENCHMARK_CAPTURE(MemoryOfFormula, Conditions, TW::UniString(Conditions));

// Each property refers to the next.
class ChainOfProperties final : public QX::IExpressionReferenceResolver {
 public:
  explicit ChainOfProperties(std::uint32_t length) : length_(length) {}
  static TW::Guid MakeId(std::uint32_t number) {
    TW::Guid::Bytes bytes{};
    for (std::size_t i = 0; i < 4; ++i) bytes[i] = static_cast<std::uint8_t>(number >> (8 * i));
    return TW::Guid(bytes);
  }
  TW::HashSet<TW::Guid> GetDirectReferences(const TW::Guid& propertyId) const override {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) number |= std::uint32_t{propertyId.GetBytes()[i]} << (8 * i);
    TW::HashSet<TW::Guid> references;
    if (number + 1 < length_) references.Add(MakeId(number + 1));
    return references;
  }

 private:
  std::uint32_t length_;
};

void SearchCycleInChain(benchmark::State& state) {
  const ChainOfProperties chain(static_cast<std::uint32_t>(state.range(0)));
  TW::HashSet<TW::Guid> start;
  start.Add(ChainOfProperties::MakeId(0));
  for (auto _ : state) benchmark::DoNotOptimize(QX::FindCycleInReferenceGraph(chain, start, nullptr));
}
BENCHMARK(SearchCycleInChain)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

}  // namespace
