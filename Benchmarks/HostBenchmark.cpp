#include "Host/Host.hpp"

#include <benchmark/benchmark.h>

#include <memory>

/// The property table: whole models, single changes, and long chains.

namespace {

using Host::PropertyIndex;
using Host::PropertyKind;
using QX::ExpressionValue;

const EP::IOLocaleSettings Settings;

TW::Guid MakeId(unsigned int number) {
  TW::Guid::Bytes bytes{0x51};
  for (unsigned int i = 0; i < 4; ++i) bytes[15 - i] = static_cast<std::uint8_t>(number >> (8 * i));
  return TW::Guid(bytes);
}

// Defines properties with numbered GUIDs.
PropertyIndex Define(Host::PropertyTable& table, const TW::UniString& name, TW::Optional<PropertyKind> kind) {
  return *table.Define({MakeId(table.GetCatalog().GetCount() + 1), name, {}, kind, {}});
}

void SetFormula(benchmark::State& state, Host::PropertyTable& table, PropertyIndex property, std::u16string_view text) {
  if (const auto error = table.SetFormula(property, text, Settings))
    state.SkipWithError(error->message.ToUtf8().c_str());
}

struct FormulaRow {
  const char16_t* name;
  PropertyKind kind;
  const char16_t* formula;
};

constexpr FormulaRow Formulas[] = {
    {u"Area", PropertyKind::Area, u"[Length] * [Height]"},
    {u"Volume", PropertyKind::Volume, u"[Area] * [Width]"},
    {u"Openings", PropertyKind::Area, u"[Count] * 0.9 m * 2.1 m"},
    {u"Net area", PropertyKind::Area, u"[Area] - [Openings]"},
    {u"Net volume", PropertyKind::Volume, u"[Net area] * [Width]"},
    {u"Perimeter", PropertyKind::Length, u"2 * ([Length] + [Height])"},
    {u"Slenderness", PropertyKind::Number, u"[Height] / [Width]"},
    {u"Thick", PropertyKind::Logical, u"[Width] >= 24 cm"},
    {u"Share", PropertyKind::Number, u"[Net area] / [Area]"},
    {u"Plaster", PropertyKind::Volume, u"2 * [Net area] * 15 mm"},
    {u"Bricks", PropertyKind::Number, u"[Net volume] / (24 cm * 11.5 cm * 7.1 cm)"},
    {u"Cost", PropertyKind::Number, u"[Bricks] * 0.8 + [Net area] / 1 m2 * 12.5"},
};

void FillInputs(Host::PropertyTable& table, PropertyIndex first) {
  const auto length = [](double metres) {
    return ExpressionValue::FromQuantity(metres, QX::UnitExponents::CreateLength());
  };
  for (Host::ElementIndex element = 0; element < table.GetElementCount(); ++element) {
    table.SetInput(first, element, length(2.0 + element % 97 * 0.1));
    table.SetInput(first + 1, element, length(2.5 + element % 13 * 0.05));
    table.SetInput(first + 2, element, length(0.115 + element % 5 * 0.05));
    table.SetInput(first + 3, element, ExpressionValue::FromInteger(static_cast<int>(element % 2)));
  }
}

void ComputeModel(benchmark::State& state) {
  Host::PropertyTable table;
  const PropertyIndex first = Define(table, u"Length", PropertyKind::Length);
  Define(table, u"Height", PropertyKind::Length);
  Define(table, u"Width", PropertyKind::Length);
  Define(table, u"Count", PropertyKind::Integer);
  for (const FormulaRow& row : Formulas) Define(table, row.name, row.kind);
  for (unsigned int i = 0; i < std::size(Formulas); ++i) SetFormula(state, table, first + 4 + i, Formulas[i].formula);
  table.AddElements(static_cast<Host::ElementIndex>(state.range(0)));
  FillInputs(table, first);
  table.Recalculate();
  std::size_t cells = 0;
  for (auto _ : state) {
    table.SetSettings(Host::EvaluationSettings());  // makes everything pending
    cells += table.Recalculate();
  }
  const auto status = table.GetStatus(table.GetCatalog().GetCount() - 1, table.GetElementCount() - 1);
  if (status != Host::CellStatus::Defined) state.SkipWithError("the formulas have no value");
  state.SetItemsProcessed(static_cast<std::int64_t>(cells));
}

// Ten cells that depend on one input of one element among many.
void ChangeInput(benchmark::State& state) {
  Host::PropertyTable table;
  const PropertyIndex input = Define(table, u"P0", PropertyKind::Number);
  for (unsigned int i = 1; i <= 10; ++i) {
    const TW::UniString before = TW::UniString::FromInteger(i - 1);
    const PropertyIndex property =
        Define(table, TW::UniString(u"P") + TW::UniString::FromInteger(i), PropertyKind::Number);
    SetFormula(state, table, property, TW::UniString(u"[P") + before + u"] + [P0] * 2");
  }
  table.AddElements(100000);
  table.Recalculate();
  double value = 0;
  std::size_t cells = 0;
  for (auto _ : state) {
    table.SetInput(input, 50000, ExpressionValue::FromNumber(++value));
    cells += table.Recalculate();
  }
  if (cells != 10 * static_cast<std::size_t>(state.iterations())) state.SkipWithError("other than ten cells");
}

PropertyIndex BuildChain(benchmark::State& state, Host::PropertyTable& table, unsigned int count) {
  const PropertyIndex root = Define(table, u"P0", PropertyKind::Number);
  TW::UniString formula = u"[P0] + 1";
  for (unsigned int i = 1; i <= count; ++i) {
    TW::UniString name(u"P");
    name += TW::UniString::FromInteger(i);
    const PropertyIndex property = Define(table, name, PropertyKind::Number);
    SetFormula(state, table, property, formula);
    formula = TW::UniString(u"[") + name + u"] + 1";
  }
  return root;
}

void BuildChain(benchmark::State& state) {
  for (auto _ : state) {
    auto table = std::make_unique<Host::PropertyTable>();
    table->AddElements(1);
    BuildChain(state, *table, static_cast<unsigned int>(state.range(0)));
    state.PauseTiming();  // for the destruction
    table.reset();
    state.ResumeTiming();
  }
}

void RecomputeChain(benchmark::State& state) {
  Host::PropertyTable table;
  table.AddElements(1);
  const auto count = static_cast<unsigned int>(state.range(0));
  const PropertyIndex root = BuildChain(state, table, count);
  table.Recalculate();
  double value = 0;
  for (auto _ : state) {
    table.SetInput(root, 0, ExpressionValue::FromNumber(++value));
    if (table.Recalculate() != count) state.SkipWithError("the chain was not computed");
  }
  if (table.GetValue(count, 0).GetIntOrNumVariantValue() != value + count) state.SkipWithError("wrong value");
}

BENCHMARK(ComputeModel)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(ChangeInput)->Unit(benchmark::kMicrosecond);
BENCHMARK(BuildChain)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(RecomputeChain)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
