#include "Host/Report/GraphLayout.hpp"
#include "Host/Report/GraphReport.hpp"
#include "ReportModel.hpp"
#include "Resources/Language.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using Host::GraphEdge;
using Host::GraphLayout;

std::string MakeDot(const Host::ReportScope& scope) {
  Resources::SetLanguage("en");
  return Collect([&](const Host::ReportSink& sink) { Host::WriteDotGraph(scope, sink); });
}

std::string MakeSvg(const Host::ReportScope& scope) {
  Resources::SetLanguage("en");
  return Collect([&](const Host::ReportSink& sink) { Host::WriteSvgGraph(scope, sink); });
}

std::size_t CountOf(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(DotGraph, HoldsWhatTheChosenPropertiesNeed) {
  House house;
  EXPECT_EQ(MakeDot(house.MakeScope({house.total, house.area})), R"--(digraph properties {
  rankdir=LR;
  node [shape=box, style=filled];
  p0 [label="Width\nlength", fillcolor="#e3eefa"];
  p1 [label="Depth\nlength", fillcolor="#e3eefa"];
  p2 [label="Count\nwhole number", fillcolor="#e3eefa"];
  p3 [label="Area\nTakeoff\n[Width] * [Depth]", fillcolor="#fff6dd"];
  p4 [label="Share\nlength\n1 m / [Count] + [Width]", fillcolor="#fff6dd"];
  p5 [label="Total\n2 * [Share]", fillcolor="#fff6dd"];
  p0 -> p3;
  p1 -> p3;
  p2 -> p4;
  p0 -> p4;
  p4 -> p5;
}
)--");
}

TEST(Graphs, EscapeNames) {
  ReportModel model(std::vector<FakeSource::Element>{});
  struct Row {
    std::u16string name;
    const char* dot;
    const char* svg;
  };
  const Row rows[] = {
      {u"\"a\" \\n \\", R"("\"a\" \\n \\")", R"(>&quot;a&quot; \n \<)"},
      {u"<&amp;>", R"("<&amp;amp;>")", ">&lt;&amp;amp;&gt;<"},
      {u"]]>\n\r\t\u0001x", R"("]]>    x")", ">]]&gt;    x<"},
      {u"\uFFFE\uFFFF\xD83D", "\"\uFFFE\uFFFF\uFFFD\"", ">\uFFFD\uFFFD\uFFFD<"},
      {u"\u5899\U0001F3E0", "\"\u5899\U0001F3E0\"", ">\u5899\U0001F3E0<"},
      {u"a name that is longer than any box", "\"a name that is longer than \u2026\"",
       ">a name that is longer than \u2026<"},
  };
  for (unsigned int i = 0; i < std::size(rows); ++i) {
    ASSERT_TRUE(model.table.Define({SmallModel::MakeId(i + 1), TW::UniString(rows[i].name), {}, {}, {}}));
  }
  const std::string dot = MakeDot(model.MakeScope());
  const std::string svg = MakeSvg(model.MakeScope());
  for (const Row& row : rows) {
    EXPECT_EQ(CountOf(dot, std::string("[label=") + row.dot + ","), 1U) << row.dot << '\n' << dot;
    EXPECT_EQ(CountOf(svg, std::string(row.svg) + "/text>"), 1U) << row.svg << '\n' << svg;
  }
}

TEST(SvgGraph, DrawsEachBoxAndArrowOnce) {
  House house;
  const std::string svg = MakeSvg(house.MakeScope());
  EXPECT_EQ(CountOf(svg, "<rect class=\"input\""), 3U);
  EXPECT_EQ(CountOf(svg, "<rect class=\"formula\""), 4U);
  EXPECT_EQ(CountOf(svg, "<path class=\"arrow\""), 6U);
  EXPECT_EQ(CountOf(svg, "<path d="), 0U) << "no arrow is longer than from layer to layer";
  EXPECT_EQ(CountOf(svg, "<title>Share = 1 m / [Count] + [Width]</title>"), 1U);
  EXPECT_EQ(CountOf(svg, "<g>"), CountOf(svg, "</g>"));
  EXPECT_TRUE(svg.ends_with("</svg>\n"));
  house.DefineFormula("Sum", "[Total] + [Width]");
  EXPECT_EQ(CountOf(MakeSvg(house.MakeScope()), "<path d="), 1U);
  ReportModel empty(std::vector<FakeSource::Element>{});
  EXPECT_TRUE(MakeSvg(empty.MakeScope()).ends_with("</svg>\n"));
}

TEST(GraphLayout, KeepsNodesApart) {
  std::mt19937 random(1);
  for (unsigned int count : {1U, 2U, 10U, 300U}) {
    std::vector<unsigned int> layers;
    std::vector<GraphEdge> edges;
    for (unsigned int node = 0; node < count; ++node) {
      layers.push_back(0);
      for (unsigned int i = random() % 4; i > 0 && node > 0; --i) {
        const auto from = static_cast<unsigned int>(random() % node);
        edges.push_back({from, node});
        layers[node] = std::max(layers[node], layers[from] + 1);
      }
    }
    const GraphLayout::Sizes sizes{10, 2, 1};
    const GraphLayout layout(layers, edges, sizes);
    const unsigned int last = *std::ranges::max_element(layers);
    // The stretches that nodes and ways take in each layer.
    std::vector<std::vector<std::pair<double, double>>> taken(last + 1);
    const auto take = [&](unsigned int layer, double middle, double height) {
      taken[layer].push_back({middle - height / 2, middle + height / 2});
    };
    for (unsigned int node = 0; node < count; ++node) {
      take(layers[node], layout.GetMiddle(node), sizes.node);
      for (unsigned int step = 1; step <= layout.GetWayLength(node); ++step) {
        take(layers[node] + step, layout.GetWayMiddle(node, step), sizes.way);
      }
    }
    for (auto& stretches : taken) {
      std::ranges::sort(stretches);
      EXPECT_GE(stretches.front().first, -1e-6);
      EXPECT_LE(stretches.back().second, layout.GetHeight() + 1e-6);
      for (std::size_t i = 1; i < stretches.size(); ++i) {
        EXPECT_GE(stretches[i].first, stretches[i - 1].second + sizes.gap - 1e-6);
      }
    }
    for (const GraphEdge& edge : edges) {
      EXPECT_GE(layout.GetWayLength(edge.from), layers[edge.to] - layers[edge.from] - 1);
    }
  }
}

TEST(GraphLayout, TakesNoMoreRoomThanTheGraph) {
  constexpr unsigned int Count = 4'000;
  std::vector<unsigned int> layers;
  std::vector<GraphEdge> edges;
  for (unsigned int node = 0; node < Count; ++node) {
    layers.push_back(node);
    // All are used by the last, so that all their ways together would be quadratic.
    if (node > 0) edges.push_back({node - 1, node});
    if (node + 2 < Count) edges.push_back({node, Count - 1});
  }
  const GraphLayout layout(layers, edges, {});
  std::size_t points = 0;
  for (unsigned int node = 0; node < Count; ++node) points += layout.GetWayLength(node);
  EXPECT_LE(points, 10 * (layers.size() + edges.size()));
  EXPECT_GE(layout.GetHeight(), 1);
}

}  // namespace
