#pragma once

#include "Environment.hpp"
#include "Evaluation.hpp"
#include "Host/Json/JsonWriter.hpp"
#include "Host/NodeList.hpp"
#include "PropertyNames.hpp"
#include "Quorix/ExpressionString.hpp"

#include <string>
#include <vector>

namespace Command {

/// Shows the tree of a formula that could be read.
class TreePrinter {
 public:
  /// Keeps a reference to `environment`.
  TreePrinter(const Evaluation& evaluation, const Environment& environment);

  /// Appends the text of the formula and a row for each node, for people; `names` stand for GUIDs in it.
  void AppendTable(std::string& out, const PropertyNames& names);
  /// Appends a line of JSON.
  void AppendJson(std::string& out) const;

 private:
  std::vector<std::string> MakeRow(const Host::NodeFacts& facts) const;
  std::string GetValueCell(const Host::NodeFacts& facts) const;
  void WriteNode(Host::JsonWriter& writer, const Host::NodeFacts& facts) const;
  void WriteOutcome(Host::JsonWriter& writer, const Host::NodeFacts& facts) const;

  const Environment& environment_;
  QX::ExpressionString text_;
  std::vector<Host::NodeFacts> nodes_;
  ReplacedText shown_;
};

}  // namespace Command
