#include "Host/NodeList.hpp"

#include "Quorix/ExpressionNodes/ExpressionBinaryOpNode.hpp"

#include <algorithm>

namespace Host {
namespace {

// A node that is still to be listed.
struct Waiting {
  const QX::ExpressionNode* node;
  std::size_t parent;
  unsigned int depth;
};

std::vector<NodeFacts> ListTree(const QX::ExpressionNode& root) {
  std::vector<NodeFacts> nodes;
  std::vector<Waiting> waiting{{&root, 0, 0}};
  while (!waiting.empty()) {
    const Waiting next = waiting.back();
    waiting.pop_back();
    const std::size_t place = nodes.size();
    NodeFacts& facts = nodes.emplace_back();
    facts.node = next.node;
    facts.parent = next.parent;
    facts.depth = next.depth;
    for (unsigned int i = next.node->GetChildCount(); i > 0; --i) {
      waiting.push_back({next.node->GetChild(i - 1), place, next.depth + 1});
    }
  }
  return nodes;
}

// Every node comes before its children, so that going backwards finds each one's span complete.
void FindRanges(std::vector<NodeFacts>& nodes, const QX::ExpressionString& text) {
  for (NodeFacts& facts : nodes) facts.span = facts.range = text.GetNodeRange(facts.node);
  for (std::size_t i = nodes.size() - 1; i > 0; --i) {
    TW::Range<unsigned int>& span = nodes[nodes[i].parent].span;
    span = {std::min(span.begin, nodes[i].span.begin), std::max(span.end, nodes[i].span.end)};
  }
}

template <class Evaluation>
void Attempt(NodeFacts& facts, Evaluation&& evaluate) {
  try {
    facts.value = evaluate();
  } catch (...) {
    facts.failure = std::current_exception();
  }
}

// The left operand, which comes next in the list, has its value already: chains of operators are not evaluated anew
// from every link.
void EvaluateOperator(const QX::ExpressionBinaryOpNode& node, NodeFacts& facts, const NodeFacts& left,
                      const QX::IExpressionEvaluationEnv& environment) {
  if (left.failure) {
    facts.failure = left.failure;
    return;
  }
  Attempt(facts, [&] { return node.EvaluateInternal(environment, left.value, facts.node->GetChild(1)); });
}

void EvaluateNodes(std::vector<NodeFacts>& nodes, const QX::IExpressionEvaluationEnv& environment) {
  for (std::size_t i = nodes.size(); i > 0; --i) {
    NodeFacts& facts = nodes[i - 1];
    if (const auto* binary = dynamic_cast<const QX::ExpressionBinaryOpNode*>(facts.node)) {
      EvaluateOperator(*binary, facts, nodes[i], environment);
    } else {
      // The analyzer takes the failed cast for a null pointer. NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage)
      Attempt(facts, [&] { return facts.node->Evaluate(environment); });
    }
  }
}

}  // namespace

std::vector<NodeFacts> ListNodes(const QX::ExpressionNode& root, const QX::ExpressionString& text,
                                 const QX::IExpressionEvaluationEnv& environment) {
  std::vector<NodeFacts> nodes = ListTree(root);
  FindRanges(nodes, text);
  EvaluateNodes(nodes, environment);
  return nodes;
}

}  // namespace Host
