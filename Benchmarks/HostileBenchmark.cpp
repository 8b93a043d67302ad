#include "EP/Parser.hpp"
#include "EP/SyntaxErrorException.hpp"
#include "Host/Host.hpp"
#include "Host/Json/JsonDocument.hpp"
#include "Quorix/Expression.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/ExpressionSyntaxTreeBuilder.hpp"
#include "Quorix/KeywordFinder.hpp"
#include "TW/MemoryChannel.hpp"

#include <benchmark/benchmark.h>

#include <string>

/// Formulas that somebody wrote to do harm: long, wide, deep, or with parts that multiply. Time must grow with their
/// length and not faster, whether they are formulas or not. The figures stand in Docs/Limits.md.

namespace {

using Text = TW::UniString;

Text Repeat(unsigned int count, std::u16string_view part) {
  Text text;
  text.Reserve(count * part.size());
  for (unsigned int i = 0; i < count; ++i) text += part;
  return text;
}

Text Concatenate(std::initializer_list<std::u16string_view> parts) {
  Text text;
  for (const std::u16string_view part : parts) text += part;
  return text;
}

// Blocks of the deepest nesting, one after the other, with so many levels in all.
Text MakeBlocks(unsigned int levels, std::u16string_view opening, std::u16string_view closing) {
  constexpr unsigned int Depth = EP::MaximumNestingDepth;
  const Text block = Concatenate({Repeat(Depth, opening), u"1", Repeat(Depth, closing), u" + "});
  return Concatenate({Repeat(levels / Depth, block), u"1"});
}

struct Shape {
  const char* name;
  Text (*make)(unsigned int n);
};

const Shape Shapes[] = {
    {"sum of terms", [](unsigned int n) { return Concatenate({u"1", Repeat(n, u" + 1")}); }},
    {"sum that fails at its beginning", [](unsigned int n) { return Concatenate({u"1 / 0", Repeat(n, u" + 1")}); }},
    {"comparisons", [](unsigned int n) { return Concatenate({u"TRUE", Repeat(n, u" = TRUE")}); }},
    {"arguments of SUM", [](unsigned int n) { return Concatenate({u"SUM ( 1", Repeat(n, u", 1"), u" )"}); }},
    {"conditions of IFS",
     [](unsigned int n) { return Concatenate({u"IFS ( ", Repeat(n, u"FALSE, 1, "), u"TRUE, 2 )"}); }},
    {"arguments of CONCAT",
     [](unsigned int n) { return Concatenate({u"CONCAT ( \"a\"", Repeat(n, u", \"a long text\""), u" )"}); }},
    {"levels of brackets", [](unsigned int n) { return MakeBlocks(n, u"( ", u" )"); }},
    {"levels of IF", [](unsigned int n) { return MakeBlocks(n, u"IF ( TRUE, ", u", 2 )"); }},
    {"signs in runs", [](unsigned int n) { return MakeBlocks(n, u"- ", u""); }},
    {"open brackets", [](unsigned int n) { return Repeat(n, u"("); }},
    {"closing brackets", [](unsigned int n) { return Concatenate({u"1", Repeat(n, u")")}); }},
    {"signs and nothing else", [](unsigned int n) { return Repeat(n, u"-"); }},
    {"digits", [](unsigned int n) { return Repeat(n, u"7"); }},
    {"decimals", [](unsigned int n) { return Concatenate({u"0.", Repeat(n, u"7")}); }},
    {"digits of an exponent", [](unsigned int n) { return Concatenate({u"1e", Repeat(n, u"7")}); }},
    {"letters of a name", [](unsigned int n) { return Repeat(n, u"x"); }},
    {"letters of a function", [](unsigned int n) { return Concatenate({Repeat(n, u"x"), u"(1)"}); }},
    {"blanks", [](unsigned int n) { return Concatenate({Repeat(n, u" "), u"1"}); }},
    {"text with escapes", [](unsigned int n) { return Concatenate({u"\"", Repeat(n, u"\\\""), u"\""}); }},
    {"text without an end", [](unsigned int n) { return Concatenate({u"\"", Repeat(n, u"\\\"")}); }},
    {"reference with backslashes",
     [](unsigned int n) { return Concatenate({u"[Property:", Repeat(n, u"\\\\"), u"]"}); }},
    {"reference without an end", [](unsigned int n) { return Concatenate({u"[Property:", Repeat(n, u"\\]")}); }},
    {"opening brackets of references", [](unsigned int n) { return Repeat(n, u"[a"); }},
    {"quotation marks", [](unsigned int n) { return Repeat(n, u"\" "); }},
    {"repetitions of a text",
     [](unsigned int n) { return Concatenate({u"LEN ( REPT ( \"ab\", ", Text::FromInteger(n), u" ) )"}); }},
    {"occurrences to replace",
     [](unsigned int n) {
       return Concatenate({u"LEN ( SUBSTITUTE ( REPT ( \"ab\", ", Text::FromInteger(n), u" ), \"a\", \"xyz\" ) )"});
     }},
    {"search that nearly succeeds everywhere",
     [](unsigned int n) {
       const Text count = Text::FromInteger(n);
       return Concatenate(
           {u"FIND ( CONCAT ( REPT ( \"a\", ", count, u" ), \"b\" ), REPT ( \"a\", 2 * ", count, u" ) )"});
     }},
    {"parts to split",
     [](unsigned int n) {
       const Text count = Text::FromInteger(n);
       return Concatenate({u"SPLIT ( REPT ( \"a;\", ", count, u" ), \";\", ", count, u" )"});
     }},
    {"blanks to trim",
     [](unsigned int n) { return Concatenate({u"LEN ( TRIM ( REPT ( \" a \", ", Text::FromInteger(n), u" ) ) )"}); }},
    {"letters that grow in upper case",
     [](unsigned int n) {
       return Concatenate({u"LEN ( UPPER ( REPT ( \"\u00DF\", ", Text::FromInteger(n), u" ) ) )"});
     }},
};

class Environment final : public QX::IExpressionEvaluationEnv {
 public:
  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid&) const override {
    return QX::EvaluableStatus::Evaluable;
  }
  QX::ExpressionValue GetPropertyValue(const TW::Guid&) const override { return QX::ExpressionValue::FromInteger(1); }
  const QX::IExpressionUnitConverter& GetUnitConverter() const override { return settings_.converter; }
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override { return settings_.locale; }
  bool IsUserUndefinedPropagationEnabled() const override { return false; }

 private:
  Host::EvaluationSettings settings_;
};

// Reads, evaluates, renders, copies and destroys; what fails has ended.
void UseText(const Text& text, const Environment& environment) {
  QX::SyntaxTreeBuilder builder;
  try {
    const QX::Expression formula(
        EP::BoostGenerateSyntaxTree<QX::SyntaxTreeBuilder>(text, EP::IOLocaleSettings(), builder));
    benchmark::DoNotOptimize(formula.GetExpressionString(EP::IOLocaleSettings()).GetFullString());
    const QX::Expression copy(formula);
    benchmark::DoNotOptimize(copy.Evaluate(environment));
  } catch (const EP::SyntaxErrorException& error) {
    benchmark::DoNotOptimize(error.GetPosition());
  } catch (const QX::ExpressionSemanticException& error) {
    benchmark::DoNotOptimize(error.GetResIdx());
  }
}

void UseShape(benchmark::State& state, const Shape& shape) {
  const Text text = shape.make(static_cast<unsigned int>(state.range(0)));
  const Environment environment;
  for (auto _ : state) UseText(text, environment);
  state.SetComplexityN(state.range(0));
}

TW::Guid MakeId(unsigned int number) {
  TW::Guid::Bytes bytes{0x51};
  for (unsigned int i = 0; i < 4; ++i) bytes[15 - i] = static_cast<std::uint8_t>(number >> (8 * i));
  return TW::Guid(bytes);
}

// A formula of a table that names properties, known and unknown.
void SetFormulaOfTable(benchmark::State& state, Text (*make)(unsigned int n)) {
  Host::PropertyTable table;
  table.Define({MakeId(1), u"Result", {}, std::nullopt, {}});
  table.Define({MakeId(2), u"Width", {}, std::nullopt, {}});
  const Text text = make(static_cast<unsigned int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(table.SetFormula(0, text, EP::IOLocaleSettings()));
  state.SetComplexityN(state.range(0));
}

// Texts that double from property to property: forty levels beyond what a cell may hold.
void ComputeDoublingTexts(benchmark::State& state) {
  const auto levels = static_cast<unsigned int>(state.range(0));
  Host::PropertyTable table;
  table.AddElements(1);
  table.Define({MakeId(1), u"P0", {}, Host::PropertyKind::Text, {}});
  table.SetInput(0, 0, QX::ExpressionValue::FromString(u"x"));
  for (unsigned int level = 1; level <= levels; ++level) {
    const Text below = Text::Printf(u"[P%T]", Text::FromInteger(level - 1));
    table.Define({MakeId(level + 1), Text::Printf(u"P%T", Text::FromInteger(level)), {}, std::nullopt, {}});
    table.SetFormula(level, Text::Printf(u"CONCAT(%T, %T)", below, below), EP::IOLocaleSettings());
  }
  for (auto _ : state) {
    table.SetSettings({});
    benchmark::DoNotOptimize(table.Recalculate());
  }
}

void ReadJson(benchmark::State& state, std::string_view opening, std::string_view closing) {
  std::string text;
  for (std::int64_t i = 0; i < state.range(0); ++i) text += opening;
  text += "1";
  for (std::int64_t i = 0; i < state.range(0); ++i) text += closing;
  Host::JsonDocument document;
  for (auto _ : state) {
    document.Read(text);
    benchmark::ClobberMemory();
  }
  state.SetComplexityN(state.range(0));
}

template <class... Arguments>
void Register(const std::string& name, Arguments... arguments) {
  benchmark::RegisterBenchmark(name.c_str(), arguments...)
      ->RangeMultiplier(10)
      ->Range(1000, 100'000)
      ->Unit(benchmark::kMicrosecond)
      ->Complexity();
}

[[maybe_unused]] const bool registered = [] {
  for (const Shape& shape : Shapes) Register(shape.name, UseShape, shape);
  Register("known names", SetFormulaOfTable,
           [](unsigned int n) { return Concatenate({u"1", Repeat(n, u" + [Width]")}); });
  Register("unknown names", SetFormulaOfTable,
           [](unsigned int n) { return Concatenate({u"1", Repeat(n, u" + [Depth]")}); });
  Register("brackets of names without an end", SetFormulaOfTable, [](unsigned int n) { return Repeat(n, u"[\\]"); });
  Register("levels of JSON", ReadJson, std::string_view("["), std::string_view("]"));
  Register("levels of JSON objects", ReadJson, std::string_view("{\"a\":"), std::string_view("}"));
  benchmark::RegisterBenchmark("doubling texts", ComputeDoublingTexts)->Arg(20)->Arg(40)->Unit(benchmark::kMicrosecond);
  return true;
}();

}  // namespace
