#include "Host/Report/SkippedParts.hpp"

#include "Quorix/ExpressionNodes/ExpressionLogicalFunctionNodes.hpp"

#include <cstddef>

namespace Host {
namespace {

enum class Choice { None, And, Or, Xor, If, Ifs };

Choice FindChoice(const QX::ExpressionNode& node, bool evaluatesAll) {
  if (dynamic_cast<const QX::ExpressionIfFunctionNode*>(&node) != nullptr) return Choice::If;
  if (dynamic_cast<const QX::ExpressionIfsFunctionNode*>(&node) != nullptr) return Choice::Ifs;
  if (evaluatesAll) return Choice::None;
  if (dynamic_cast<const QX::ExpressionAndFunctionNode*>(&node) != nullptr) return Choice::And;
  if (dynamic_cast<const QX::ExpressionOrFunctionNode*>(&node) != nullptr) return Choice::Or;
  return dynamic_cast<const QX::ExpressionXorFunctionNode*>(&node) != nullptr ? Choice::Xor : Choice::None;
}

// A call while its arguments are looked at one after another.
class Call {
 public:
  Call(const QX::ExpressionNode& node, bool evaluatesAll)
      : choice_(FindChoice(node, evaluatesAll)), last_(node.GetChildCount() - 1) {}

  // To be asked for each argument in order.
  bool Skips(const NodeFacts& argument) {
    const unsigned int index = next_++;
    switch (choice_) {
      case Choice::None:
        return false;
      case Choice::If:
        return index == 0 ? Decide(argument, IsTrueOrUndefined(argument) ? 1 : 2) : index != taken_;
      case Choice::Ifs:
        return index % 2 == 0 ? SkipsCondition(argument, index) : SkipsValue(index);
      default:
        return SkipsOperand(argument);
    }
  }

 private:
  static constexpr unsigned int Nothing = ~0U;

  static bool IsBool(const NodeFacts& argument) { return argument.failure == nullptr && argument.value.IsBool(); }
  static bool IsTrueOrUndefined(const NodeFacts& argument) {
    return argument.value.IsUserUndefined() || argument.value.GetAsBool();
  }

  // The argument itself was needed.
  bool Decide(const NodeFacts& condition, unsigned int taken) {
    isDecided_ = true;
    // Without a logical value the call fails, and takes nothing.
    taken_ = IsBool(condition) ? taken : Nothing;
    return false;
  }

  bool SkipsCondition(const NodeFacts& condition, unsigned int index) {
    if (isDecided_) return true;
    return !IsBool(condition) || IsTrueOrUndefined(condition) ? Decide(condition, index + 1) : false;
  }
  // The last value serves where no condition holds.
  bool SkipsValue(unsigned int index) const { return isDecided_ ? index != taken_ : index != last_; }

  bool SkipsOperand(const NodeFacts& operand) {
    if (isDecided_) return true;
    isDecided_ = !IsBool(operand) || EndsOperands(operand.value);
    return false;
  }
  bool EndsOperands(const QX::ExpressionValue& value) const {
    if (choice_ == Choice::Xor) return value.IsUserUndefined();
    return !value.IsUserUndefined() && value.GetAsBool() == (choice_ == Choice::Or);
  }

  Choice choice_;
  unsigned int last_;
  unsigned int next_ = 0;
  unsigned int taken_ = Nothing;
  bool isDecided_ = false;
};

}  // namespace

std::vector<bool> FindSkippedParts(const std::vector<NodeFacts>& nodes, bool evaluatesAll) {
  std::vector<Call> calls;
  std::vector<bool> isSkipped(nodes.size());
  calls.reserve(nodes.size());
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    calls.emplace_back(*nodes[i].node, evaluatesAll);
    if (i == 0) continue;
    const std::size_t parent = nodes[i].parent;
    const bool skips = calls[parent].Skips(nodes[i]);
    isSkipped[i] = isSkipped[parent] || skips;
  }
  return isSkipped;
}

}  // namespace Host
