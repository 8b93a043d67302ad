#include "Quorix/ReferenceGraph.hpp"

#include "TW/HashTable.hpp"

#include <algorithm>
#include <deque>
#include <utility>

namespace QX {
namespace {

/// One search over the graph; what it has finished stays known for the next start property.
class CycleSearch {
 public:
  explicit CycleSearch(const IExpressionReferenceResolver& resolver) : resolver_(resolver) {}

  /// Whether a cycle can be reached from `start`; then the path that leads into it is kept.
  bool FindFrom(const TW::Guid& start) {
    if (states_.Contains(start)) return false;
    Enter(start);
    while (!path_.empty()) {
      Step& step = path_.back();
      if (step.next == step.neighbours.end()) {
        states_.Put(step.property, State::Finished);
        path_.pop_back();
        continue;
      }
      const TW::Guid neighbour = *step.next++;
      const State* state = states_.Find(neighbour);
      if (state == nullptr) {
        Enter(neighbour);
      } else if (*state == State::OnPath) {
        closing_ = neighbour;
        return true;
      }
    }
    return false;
  }

  void AppendReversedPathTo(TW::Array<TW::Guid>& target) const {
    target.push_back(closing_);
    for (auto step = path_.rbegin(); step != path_.rend(); ++step) target.push_back(step->property);
  }

 private:
  enum class State { OnPath, Finished };

  struct Step {
    Step(const TW::Guid& id, TW::HashSet<TW::Guid>&& found)
        : property(id), neighbours(std::move(found)), next(neighbours.begin()) {}

    TW::Guid property;
    const TW::HashSet<TW::Guid> neighbours;
    TW::HashSet<TW::Guid>::Iterator next;
  };

  void Enter(const TW::Guid& property) {
    states_.Add(property, State::OnPath);
    path_.emplace_back(property, resolver_.GetDirectReferences(property));
  }

  const IExpressionReferenceResolver& resolver_;
  TW::HashTable<TW::Guid, State> states_;
  std::deque<Step> path_;  // which never moves its elements
  TW::Guid closing_;
};

}  // namespace

bool FindCycleInReferenceGraph(const IExpressionReferenceResolver& resolver,
                               const TW::HashSet<TW::Guid>& startProperties, TW::Array<TW::Guid>* cyclePath) {
  CycleSearch search(resolver);
  for (const TW::Guid& start : startProperties) {
    if (!search.FindFrom(start)) continue;
    if (cyclePath != nullptr) {
      search.AppendReversedPathTo(*cyclePath);
      std::reverse(cyclePath->begin(), cyclePath->end());
    }
    return true;
  }
  return false;
}

}  // namespace QX
