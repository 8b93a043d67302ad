#include "TreePrinter.hpp"

#include "Answer.hpp"
#include "Host/Json/ValueJson.hpp"

#include <algorithm>

namespace Command {
namespace {

using Row = std::vector<std::string>;

// Deeper nodes say how deep they are instead.
constexpr unsigned int DeepestIndentation = 20;
constexpr std::size_t LongestValue = 60;
constexpr std::size_t Gap = 2;

std::string Print(TW::Range<unsigned int> range) {
  return std::to_string(range.begin) + ".." + std::to_string(range.end);
}

std::string GetNodeCell(const Host::NodeFacts& facts) {
  std::string cell(2 * std::size_t{std::min(facts.depth, DeepestIndentation)}, ' ');
  if (facts.depth > DeepestIndentation) cell += "(" + std::to_string(facts.depth) + ") ";
  return cell += facts.node->GetClassInfo()->GetName();
}

void Align(std::vector<Row>& rows, std::size_t column) {
  std::size_t width = 0;
  for (const Row& row : rows) width = std::max(width, row[column].size());
  for (Row& row : rows) row[column].resize(width + Gap, ' ');
}

void WritePlace(Host::JsonWriter& writer, const Host::NodeFacts& facts) {
  writer.WriteKey("begin");
  writer.WriteInteger(facts.range.begin);
  writer.WriteKey("end");
  writer.WriteInteger(facts.range.end);
  writer.WriteKey("span");
  writer.BeginArray();
  writer.WriteInteger(facts.span.begin);
  writer.WriteInteger(facts.span.end);
  writer.EndArray();
}

}  // namespace

TreePrinter::TreePrinter(const Evaluation& evaluation, const Environment& environment)
    : environment_(environment),
      text_(evaluation.expression.GetExpressionString(environment.GetSettings().renderLocale)),
      nodes_(Host::ListNodes(*evaluation.expression.GetRoot(), text_, environment)) {}

void TreePrinter::AppendTable(std::string& out, const PropertyNames& names) {
  shown_ = names.RestoreNames(text_.GetFullString());
  out += shown_.GetText().ToUtf8() + "\n\n";
  std::vector<Row> rows{{"Node", "Version", "Range", "Value"}};
  for (const Host::NodeFacts& facts : nodes_) rows.push_back(MakeRow(facts));
  for (std::size_t column = 0; column + 1 < rows.front().size(); ++column) Align(rows, column);
  for (const Row& row : rows) {
    for (const std::string& cell : row) out += cell;
    out += '\n';
  }
}

void TreePrinter::AppendJson(std::string& out) const {
  Host::JsonWriter writer(out);
  writer.BeginObject();
  writer.WriteKey("text");
  writer.WriteText(text_.GetFullString());
  writer.WriteKey("nodes");
  writer.BeginArray();
  for (const Host::NodeFacts& facts : nodes_) WriteNode(writer, facts);
  writer.EndArray();
  writer.EndObject();
  out += '\n';
}

Row TreePrinter::MakeRow(const Host::NodeFacts& facts) const {
  return {GetNodeCell(facts), std::to_string(facts.node->GetIntroductionVersion()),
          Print(shown_.FromOriginal(facts.range)), GetValueCell(facts)};
}

std::string TreePrinter::GetValueCell(const Host::NodeFacts& facts) const {
  if (facts.failure) {
    const Failure failure = DescribeException(facts.failure);
    std::string name = failure.name.ToUtf8();
    const QX::ExpressionNode* source = failure.source;
    if (source == facts.node || source == nullptr) return name;
    return name + " at " + Print(shown_.FromOriginal(text_.GetNodeRange(source)));
  }
  if (!facts.value.IsValid()) return "invalid";
  const TW::UniString text = environment_.GetDisplay().Make(facts.value);
  return text.GetLength() <= LongestValue ? text.ToUtf8() : text.Substring(0, LongestValue).ToUtf8() + "...";
}

void TreePrinter::WriteNode(Host::JsonWriter& writer, const Host::NodeFacts& facts) const {
  writer.BeginObject();
  writer.WriteKey("class");
  writer.WriteName(facts.node->GetClassInfo()->GetName());
  writer.WriteKey("depth");
  writer.WriteInteger(facts.depth);
  writer.WriteKey("version");
  writer.WriteInteger(facts.node->GetIntroductionVersion());
  WritePlace(writer, facts);
  WriteOutcome(writer, facts);
  writer.EndObject();
}

void TreePrinter::WriteOutcome(Host::JsonWriter& writer, const Host::NodeFacts& facts) const {
  if (!facts.failure) {
    writer.WriteKey("value");
    Host::WriteValue(writer, facts.value);
    return WriteDisplay(writer, facts.value, environment_);
  }
  writer.WriteKey("error");
  const Failure failure = DescribeException(facts.failure);
  if (failure.source == facts.node) return WriteFailure(writer, failure, text_);
  // The nodes above the one at fault only name the failure.
  writer.BeginObject();
  writer.WriteKey("name");
  writer.WriteText(failure.name);
  writer.EndObject();
}

}  // namespace Command
