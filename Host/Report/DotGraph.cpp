#include "Host/Report/GraphReport.hpp"
#include "Host/Report/PropertyGraph.hpp"
#include "Host/Report/SinkBuffer.hpp"

#include <string>

namespace Host {
namespace {

constexpr std::string_view InputColor = "#e3eefa";
constexpr std::string_view FormulaColor = "#fff6dd";

// Readers of labels know escapes and the entities of HTML. There are no line breaks in `text`.
void AppendEscaped(std::string& out, const TW::UniString& text) {
  for (const char character : text.ToUtf8()) {
    if (character == '"' || character == '\\') out += '\\';
    out += character;
    if (character == '&') out += "amp;";
  }
}

void AppendLine(std::string& out, const TW::UniString& text) {
  if (text.IsEmpty()) return;
  out += "\\n";
  AppendEscaped(out, text);
}

void AppendNode(std::string& out, std::size_t node, const PropertyBox& box) {
  out += "  p" + std::to_string(node) + " [label=\"";
  AppendEscaped(out, box.name);
  AppendLine(out, box.kind);
  AppendLine(out, box.formula);
  out.append("\", fillcolor=\"").append(box.formula.IsEmpty() ? InputColor : FormulaColor).append("\"];\n");
}

}  // namespace

void WriteDotGraph(const ReportScope& scope, const ReportSink& sink) {
  const PropertyGraph graph = MakePropertyGraph(scope);
  SinkBuffer buffer(sink);
  std::string& out = buffer.GetText();
  out += "digraph properties {\n  rankdir=LR;\n  node [shape=box, style=filled];\n";
  for (std::size_t i = 0; i < graph.properties.size(); ++i) {
    AppendNode(out, i, MakePropertyBox(scope, graph.properties[i]));
    buffer.FlushIfFull();
  }
  for (const GraphEdge& edge : graph.edges) {
    out += "  p" + std::to_string(edge.from) + " -> p" + std::to_string(edge.to) + ";\n";
    buffer.FlushIfFull();
  }
  out += "}\n";
  buffer.Flush();
}

}  // namespace Host
