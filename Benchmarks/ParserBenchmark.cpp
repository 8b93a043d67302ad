#include "EP/Parser.hpp"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <utility>

namespace {

// The cheapest node there can be, so that what is measured is the parser and the making of a tree.
class PlainNode final : public EP::SyntaxTreeNode {
 protected:
  TW::ErrCode ReadSelf(TW::IChannel&) override { return TW::ErrRefused; }
  TW::ErrCode WriteSelf(TW::OChannel&) const override { return TW::ErrRefused; }
};

class PlainBuilder final : public EP::ISyntaxTreeBuilder {
 public:
  using NodeType = PlainNode;
  using Node = TW::Ref<EP::SyntaxTreeNode>;

  Node CreateIntegerNode(int, TW::UniString) override { return TW::MakeRef<PlainNode>(); }
  Node CreateNumberNode(double, TW::UniString, const EP::LocalizedNumberString&) override {
    return TW::MakeRef<PlainNode>();
  }
  Node CreateFractionalInchNode(EP::FractionalInch) override { return TW::MakeRef<PlainNode>(); }
  Node CreateQuotedStringNode(const TW::UniString&) override { return TW::MakeRef<PlainNode>(); }
  Node CreateReferenceNode(const TW::UniString&, const TW::UniString&) override { return TW::MakeRef<PlainNode>(); }
  Node CreateIdentifierNode(const TW::UniString&) override { return TW::MakeRef<PlainNode>(); }
  Node CreatePrefixOperatorNode(const TW::UniString&) override { return TW::MakeRef<PlainNode>(); }
  Node CreateBinaryOperatorNode(const TW::UniString&) override { return TW::MakeRef<PlainNode>(); }
  Node CreateFunctionNode(const TW::UniString&) override { return TW::MakeRef<PlainNode>(); }
  Node CreateParenthesizedNode() override { return TW::MakeRef<PlainNode>(); }
  bool IsValidUnitMarker(const TW::UniString&) override { return true; }
};

TW::UniString MakeArithmetic() { return u"(a + b * 2) / (c - 1.5) ^ 2"; }

TW::UniString MakeConditional() {
  return u"IF([Property:1AF5C228-7607-4175-9B78-A1779295614E] > 2.5 m, IF(width >= 100 cm, \"wide\", \"tall\"), "
         u"IF(AND(height < 5 1/2\", NOT(open)), \"low\", CONCAT(\"h=\", STR(height, 2))))";
}

TW::UniString MakeSum() {
  TW::UniString sum = u"1";
  for (int term = 2; term <= 1000; ++term) {
    sum += u" + ";
    sum += TW::UniString::FromInteger(term);
  }
  return sum;
}

void CountText(benchmark::State& state, const TW::UniString& text) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * text.GetLength() * 2);
}

// Parsing and destroying the tree.
void Parse(benchmark::State& state, const TW::UniString& text) {
  PlainBuilder builder;
  const EP::IOLocaleSettings settings;
  for (auto _ : state) benchmark::DoNotOptimize(EP::BoostGenerateSyntaxTree(text, settings, builder));
  CountText(state, text);
}

void Tokenize(benchmark::State& state, const TW::UniString& text) {
  const EP::IOLocaleSettings settings;
  for (auto _ : state) {
    EP::Tokenizer tokenizer(text, settings);
    while (tokenizer.Next().kind != EP::TokenKind::End) {
    }
    benchmark::DoNotOptimize(tokenizer);
  }
  CountText(state, text);
}

BENCHMARK_CAPTURE(Parse, Arithmetic, MakeArithmetic());
BENCHMARK_CAPTURE(Parse, Conditional, MakeConditional());
BENCHMARK_CAPTURE(Parse, SumOf1000Terms, MakeSum());
BENCHMARK_CAPTURE(Tokenize, Conditional, MakeConditional());
BENCHMARK_CAPTURE(Tokenize, SumOf1000Terms, MakeSum());

}  // namespace
