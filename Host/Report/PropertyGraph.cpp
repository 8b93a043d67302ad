#include "Host/Report/PropertyGraph.hpp"

#include "Host/Screen/ScreenText.hpp"
#include "Host/TableTexts.hpp"

#include <algorithm>
#include <cstddef>

namespace Host {
namespace {

constexpr std::size_t LongestName = 28;
constexpr std::size_t LongestKind = 34;
constexpr std::size_t LongestFormula = 32;

std::vector<PropertyIndex> CollectProperties(const ReportScope& scope) {
  std::vector<bool> isReached(scope.table.GetCatalog().GetCount());
  std::vector<PropertyIndex> reached;
  const auto reach = [&](PropertyIndex property) {
    if (isReached[property]) return;
    isReached[property] = true;
    reached.push_back(property);
  };
  for (const PropertyIndex property : scope.properties) reach(property);
  // The list grows meanwhile. NOLINTNEXTLINE(modernize-loop-convert)
  for (std::size_t i = 0; i < reached.size(); ++i) {
    for (const PropertyIndex precedent : scope.table.GetGraph().GetPrecedents(reached[i])) reach(precedent);
  }
  return reached;
}

TW::UniString Shorten(const TW::UniString& text, std::size_t columns) {
  return TW::UniString::FromUtf8(MakeScreenText(text, columns).text);
}

}  // namespace

PropertyGraph MakePropertyGraph(const ReportScope& scope) {
  const DependencyGraph& dependencies = scope.table.GetGraph();
  PropertyGraph graph;
  graph.properties = CollectProperties(scope);
  std::ranges::sort(graph.properties, {}, [&](PropertyIndex property) { return dependencies.GetRank(property); });
  std::vector<unsigned int> nodes(scope.table.GetCatalog().GetCount());
  for (const PropertyIndex property : graph.properties) {
    const auto node = static_cast<unsigned int>(graph.layers.size());
    nodes[property] = node;
    unsigned int layer = 0;
    for (const PropertyIndex precedent : dependencies.GetPrecedents(property)) {
      layer = std::max(layer, graph.layers[nodes[precedent]] + 1);
      graph.edges.push_back({nodes[precedent], node});
    }
    graph.layers.push_back(layer);
  }
  return graph;
}

PropertyBox MakePropertyBox(const ReportScope& scope, PropertyIndex property) {
  const PropertyDefinition& definition = scope.table.GetCatalog().Get(property);
  TW::UniString kind = definition.kind ? MakeKindText(*definition.kind) : TW::UniString();
  if (!kind.IsEmpty() && !definition.group.IsEmpty()) kind += u" \u00B7 ";
  kind += definition.group;
  const TW::UniString formula = scope.table.GetFormulaText(property, scope.display.GetLocale());
  return {Shorten(definition.name, LongestName), Shorten(kind, LongestKind), Shorten(formula, LongestFormula)};
}

}  // namespace Host
