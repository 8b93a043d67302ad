#include "Host/Report/GraphLayout.hpp"
#include "Host/Report/GraphReport.hpp"
#include "Host/Report/PropertyGraph.hpp"
#include "Host/Report/SinkBuffer.hpp"
#include "Host/Screen/ScreenText.hpp"

#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

namespace Host {
namespace {

constexpr double BoxWidth = 240;
constexpr double BoxHeight = 60;
constexpr double LayerWidth = 330;
constexpr double Margin = 20;
constexpr double LineHeight = 16;
constexpr double TextIndentation = 10;
constexpr GraphLayout::Sizes Sizes{BoxHeight, 10, 16};
constexpr std::size_t LongestTitle = 2000;

constexpr std::string_view Head = R"( font-family="Helvetica, Arial, 'DejaVu Sans', sans-serif">
<style>
rect { stroke-width: 1 }
.input { fill: #e3eefa; stroke: #5b86b5 }
.formula { fill: #fff6dd; stroke: #b58f3c }
.name { font-size: 13px; font-weight: bold }
.kind { font-size: 11px; fill: #555 }
.text { font-size: 11px; font-family: 'DejaVu Sans Mono', Menlo, Consolas, monospace }
path { fill: none; stroke: #667; stroke-width: 1.2 }
.arrow { marker-end: url(#tip) }
</style>
<defs><marker id="tip" viewBox="0 0 8 8" refX="7" refY="4" markerWidth="8" markerHeight="8" orient="auto">)"
                                  R"(<polygon points="0,0.5 8,4 0,7.5" fill="#667"/></marker></defs>
<rect width="100%" height="100%" fill="#fff"/>
)";

void AppendNumber(std::string& out, double number) {
  char digits[32];
  // Tenths of a pixel are enough.
  const auto [end, error] = std::to_chars(digits, digits + sizeof(digits), std::round(number * 10) / 10);
  out.append(digits, end);
}

std::string_view FindEntity(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    default:
      return {};
  }
}

// There are no control characters in `text`.
void AppendEscaped(std::string& out, std::string_view text) {
  // What XML allows nowhere.
  constexpr std::string_view FirstNoncharacter = "\xEF\xBF\xBE";
  constexpr std::string_view SecondNoncharacter = "\xEF\xBF\xBF";
  constexpr std::string_view Replacement = "\xEF\xBF\xBD";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view three = text.substr(i, Replacement.size());
    const std::string_view entity = FindEntity(text[i]);
    if (three == FirstNoncharacter || three == SecondNoncharacter) {
      out += Replacement;
      i += Replacement.size() - 1;
    } else if (!entity.empty()) {
      out += entity;
    } else {
      out += text[i];
    }
  }
}

void AppendAttribute(std::string& out, std::string_view name, double value) {
  out.append(" ").append(name).append("=\"");
  AppendNumber(out, value);
  out += '"';
}

class Drawing {
 public:
  Drawing(const ReportScope& scope, const ReportSink& sink)
      : scope_(scope), graph_(MakePropertyGraph(scope)), layout_(graph_.layers, graph_.edges, Sizes), buffer_(sink) {}

  void Draw() {
    DrawHead();
    for (unsigned int node = 0; node < graph_.properties.size(); ++node) DrawWay(node);
    for (const GraphEdge& edge : graph_.edges) DrawArrow(edge);
    for (unsigned int node = 0; node < graph_.properties.size(); ++node) DrawBox(node);
    Out() += "</svg>\n";
    buffer_.Flush();
  }

 private:
  struct Point {
    double x;
    double y;
  };

  std::string& Out() { return buffer_.GetText(); }

  void DrawHead() {
    unsigned int last = 0;
    for (const unsigned int layer : graph_.layers) last = std::max(last, layer);
    const double width = last * LayerWidth + BoxWidth + 2 * Margin;
    const double height = layout_.GetHeight() + 2 * Margin;
    Out() += R"(<?xml version="1.0" encoding="UTF-8"?>)"
             "\n"
             R"(<svg xmlns="http://www.w3.org/2000/svg")";
    AppendAttribute(Out(), "width", width);
    AppendAttribute(Out(), "height", height);
    Out() += Head;
  }

  double GetLeft(unsigned int layer) const { return Margin + layer * LayerWidth; }
  Point GetEntry(unsigned int node) const { return {GetLeft(graph_.layers[node]), Margin + layout_.GetMiddle(node)}; }
  // Where the way of a node leaves the layer so many to the right of its own.
  Point GetExit(unsigned int node, unsigned int step) const {
    const double y = step == 0 ? layout_.GetMiddle(node) : layout_.GetWayMiddle(node, step);
    return {GetLeft(graph_.layers[node] + step) + BoxWidth, Margin + y};
  }

  void AppendPoint(const Point& point) {
    AppendNumber(Out(), point.x);
    Out() += ',';
    AppendNumber(Out(), point.y);
  }
  void AppendCurve(const Point& from, const Point& to) {
    const double middle = (from.x + to.x) / 2;
    Out() += 'C';
    AppendPoint({middle, from.y});
    Out() += ' ';
    AppendPoint({middle, to.y});
    Out() += ' ';
    AppendPoint(to);
  }

  // Drawn once however many arrows use it.
  void DrawWay(unsigned int node) {
    const unsigned int length = layout_.GetWayLength(node);
    if (length == 0) return;
    Out() += "<path d=\"M";
    AppendPoint(GetExit(node, 0));
    for (unsigned int step = 1; step <= length; ++step) {
      const Point exit = GetExit(node, step);
      AppendCurve(GetExit(node, step - 1), {exit.x - BoxWidth, exit.y});
      Out() += 'H';
      AppendNumber(Out(), exit.x);
    }
    Out() += "\"/>\n";
    buffer_.FlushIfFull();
  }

  void DrawArrow(const GraphEdge& edge) {
    const unsigned int between = graph_.layers[edge.to] - graph_.layers[edge.from] - 1;
    const Point from = GetExit(edge.from, std::min(between, layout_.GetWayLength(edge.from)));
    Out() += "<path class=\"arrow\" d=\"M";
    AppendPoint(from);
    AppendCurve(from, GetEntry(edge.to));
    Out() += "\"/>\n";
    buffer_.FlushIfFull();
  }

  void DrawBox(unsigned int node) {
    const PropertyIndex property = graph_.properties[node];
    const PropertyBox box = MakePropertyBox(scope_, property);
    const Point left = GetEntry(node);
    const double top = left.y - BoxHeight / 2;
    Out() += "<g><title>";
    AppendEscaped(Out(), MakeScreenText(MakeTitle(property), LongestTitle).text);
    Out() += "</title><rect class=\"";
    Out() += box.formula.IsEmpty() ? "input\"" : "formula\"";
    AppendAttribute(Out(), "x", left.x);
    AppendAttribute(Out(), "y", top);
    AppendAttribute(Out(), "width", BoxWidth);
    AppendAttribute(Out(), "height", BoxHeight);
    Out() += " rx=\"4\"/>";
    double y = top + 3;
    DrawText("name", {left.x, y += LineHeight}, box.name);
    if (!box.kind.IsEmpty()) DrawText("kind", {left.x, y += LineHeight}, box.kind);
    if (!box.formula.IsEmpty()) DrawText("text", {left.x, y + LineHeight}, box.formula);
    Out() += "</g>\n";
    buffer_.FlushIfFull();
  }

  TW::UniString MakeTitle(PropertyIndex property) const {
    const TW::UniString formula = scope_.table.GetFormulaText(property, scope_.display.GetLocale());
    const TW::UniString& name = scope_.table.GetCatalog().Get(property).name;
    return formula.IsEmpty() ? name : name + u" = " + formula;
  }

  void DrawText(std::string_view className, const Point& place, const TW::UniString& text) {
    Out().append("<text class=\"").append(className).append("\"");
    AppendAttribute(Out(), "x", place.x + TextIndentation);
    AppendAttribute(Out(), "y", place.y);
    Out() += '>';
    AppendEscaped(Out(), text.ToUtf8());
    Out() += "</text>";
  }

  const ReportScope& scope_;
  PropertyGraph graph_;
  GraphLayout layout_;
  SinkBuffer buffer_;
};

}  // namespace

void WriteSvgGraph(const ReportScope& scope, const ReportSink& sink) { Drawing(scope, sink).Draw(); }

}  // namespace Host
