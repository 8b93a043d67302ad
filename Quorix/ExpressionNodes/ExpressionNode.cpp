#include "Quorix/ExpressionNodes/ExpressionNode.hpp"

#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "TW/Array.hpp"

namespace QX {
namespace {

template <class Node>
struct Step {
  Node* node;
  unsigned int next;
};

// The child count is asked again at every step, since a visitor may add children.
template <class Node, class Visit>
void Enumerate(Node* root, const Visit& visit) {
  TW::Array<Step<Node>> path;
  visit(root);
  path.push_back({root, 0});
  while (!path.empty()) {
    Step<Node>& step = path.back();
    if (step.next >= step.node->GetChildCount()) {
      path.pop_back();
      continue;
    }
    Node* child = step.node->GetChild(step.next++);
    if (child == nullptr) continue;
    visit(child);
    path.push_back({child, 0});
  }
}

}  // namespace

TW::ClassInfo ExpressionNode::classInfo("ExpressionNode", "{98E985B1-1B52-4399-87D6-9C2D701CFBBB}", 1,
                                        &EP::SyntaxTreeNode::classInfo);

const TW::ClassInfo* ExpressionNode::GetClassInfo() const { return &classInfo; }

VersionNumber ExpressionNode::GetIntroductionVersion() const { return 1; }

void ExpressionNode::CollectReferences(IExpressionReferenceCollector&) const {}

void ExpressionNode::RestorePropertyReferences(const IGuidMapper&) {}

void ExpressionNode::Translate(Localization::PoDictionary&, const TW::UniString&) {}

Quantity ExpressionNode::EvaluateQuantity(const IExpressionEvaluationEnv& env, const ExpressionNode* source) const {
  return RequireQuantity(Evaluate(env), source);
}

void ExpressionNode::EnumerateRecursive(const std::function<void(ExpressionNode*)>& visit) { Enumerate(this, visit); }

void ExpressionNode::EnumerateRecursive(const std::function<void(const ExpressionNode*)>& visit) const {
  Enumerate(this, visit);
}

TW::ErrCode ExpressionNode::WriteEmptyFrame(TW::OChannel& channel) const {
  TW::OutputFrame frame(channel, *GetClassInfo());
  return frame.Close();
}

TW::ErrCode ExpressionNode::ReadEmptyFrame(TW::IChannel& channel) {
  TW::InputFrame frame(channel, *GetClassInfo());
  return frame.Close();
}

}  // namespace QX
