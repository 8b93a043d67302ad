#pragma once

#include "Quorix/ExpressionEvaluationEnv.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionString.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Range.hpp"

#include <cstddef>
#include <exception>
#include <vector>

namespace Host {

/// What is known of a node of a formula's tree.
struct NodeFacts {
  const QX::ExpressionNode* node = nullptr;
  std::size_t parent = 0;  ///< its place in the list; that of the root is its own
  unsigned int depth = 0;
  TW::Range<unsigned int> range = {};  ///< of its own pieces in the text
  TW::Range<unsigned int> span = {};   ///< of everything below it too
  QX::ExpressionValue value;
  std::exception_ptr failure;  ///< what was thrown in place of a value, or null
};

/// The nodes below and including `root`, each before its children, with the value of each. `text` is where the tree was
/// rendered. Takes time in proportion to their number, times how deeply they are nested beside chains of operators.
std::vector<NodeFacts> ListNodes(const QX::ExpressionNode& root, const QX::ExpressionString& text,
                                 const QX::IExpressionEvaluationEnv& environment);

}  // namespace Host
