#include "Host/DependencyGraph.hpp"

#include "Host/Room.hpp"
#include "TW/HashSet.hpp"
#include "TW/HashTable.hpp"

#include <algorithm>

namespace Host {

// A walk from several properties along one direction of the graph, edge by edge, until it meets a target.
class DependencyGraph::Search {
 public:
  enum class State { Running, Exhausted, Arrived };

  Search(const Adjacency& edges, std::span<const PropertyIndex> starts, std::span<const PropertyIndex> targets)
      : edges_(edges) {
    for (const PropertyIndex target : targets) targets_.Add(target);
    for (const PropertyIndex start : starts) Reach(start, start);
  }

  // Follows one edge.
  State Step() {
    while (state_ == State::Running && edge_ == edges_[Current()].size()) Leave();
    if (state_ == State::Running) Reach(edges_[Current()][edge_++], Current());
    return state_;
  }

  // The way to the target that was met, back to where it began.
  std::vector<PropertyIndex> GetWayBack() const {
    std::vector<PropertyIndex> way{arrival_};
    for (PropertyIndex from = parents_.Get(arrival_); from != way.back(); from = parents_.Get(from)) {
      way.push_back(from);
    }
    return way;
  }

 private:
  PropertyIndex Current() const { return reached_[current_]; }

  void Reach(PropertyIndex property, PropertyIndex parent) {
    if (state_ == State::Arrived || !parents_.Add(property, parent)) return;
    reached_.push_back(property);
    if (!targets_.Contains(property)) return;
    arrival_ = property;
    state_ = State::Arrived;
  }

  void Leave() {
    ++current_;
    edge_ = 0;
    if (current_ == reached_.size()) state_ = State::Exhausted;
  }

  const Adjacency& edges_;
  TW::HashSet<PropertyIndex> targets_;
  TW::HashTable<PropertyIndex, PropertyIndex> parents_;  // a start is its own
  std::vector<PropertyIndex> reached_;
  std::size_t current_ = 0;  // the place in `reached_` whose edges are being followed
  std::size_t edge_ = 0;
  PropertyIndex arrival_ = 0;
  State state_ = State::Running;
};

void DependencyGraph::MakeRoomForProperty() {
  MakeRoom(precedents_, 1);
  MakeRoom(dependents_, 1);
  MakeRoom(ranks_, 1);
  MakeRoom(order_, 1);
}

void DependencyGraph::AddProperty() {
  MakeRoomForProperty();
  const auto property = static_cast<PropertyIndex>(ranks_.size());
  precedents_.emplace_back();
  dependents_.emplace_back();
  ranks_.push_back(property);
  order_.push_back(property);
}

std::vector<PropertyIndex> DependencyGraph::SetPrecedents(PropertyIndex property,
                                                          std::span<const PropertyIndex> precedents) {
  const bool keepsOrder = KeepsOrder(property, precedents);
  if (!keepsOrder) {
    std::vector<PropertyIndex> cycle = FindCycle(property, precedents);
    if (!cycle.empty()) return cycle;
  }
  MakeRoom(precedents_[property], precedents.size());
  for (const PropertyIndex precedent : precedents) MakeRoom(dependents_[precedent], 1);
  // From here on nothing fails.
  inOrder_ = keepsOrder && inOrder_;
  for (const PropertyIndex old : precedents_[property]) {
    dependents_[old].erase(std::ranges::find(dependents_[old], property));
  }
  precedents_[property].assign(precedents.begin(), precedents.end());
  for (const PropertyIndex precedent : precedents) dependents_[precedent].push_back(property);
  return {};
}

// Ranks in order that stay in order leave no room for a cycle.
bool DependencyGraph::KeepsOrder(PropertyIndex property, std::span<const PropertyIndex> precedents) const {
  const auto isBelow = [&](PropertyIndex precedent) { return ranks_[precedent] < ranks_[property]; };
  return precedents.empty() || (inOrder_ && std::ranges::all_of(precedents, isBelow));
}

// There is a cycle when what depends on the property holds one of the precedents, or, which is the same, what the
// precedents depend on holds the property. Two walks take turns, and the first that knows the answer ends both.
std::vector<PropertyIndex> DependencyGraph::FindCycle(PropertyIndex property,
                                                      std::span<const PropertyIndex> precedents) const {
  Search down(dependents_, {&property, 1}, precedents);
  Search up(precedents_, precedents, {&property, 1});
  for (;;) {
    std::vector<PropertyIndex> cycle;
    if (const Search::State state = down.Step(); state == Search::State::Arrived) {
      cycle = down.GetWayBack();
      cycle.insert(cycle.begin(), property);
      return cycle;
    } else if (state == Search::State::Exhausted) {
      return {};
    }
    if (const Search::State state = up.Step(); state == Search::State::Arrived) {
      cycle = up.GetWayBack();
      cycle.push_back(property);
      std::ranges::reverse(cycle);
      return cycle;
    } else if (state == Search::State::Exhausted) {
      return {};
    }
  }
}

void DependencyGraph::UpdateRanks() {
  if (inOrder_) return;
  std::vector<unsigned int> waiting(precedents_.size());
  order_.clear();
  for (PropertyIndex property = 0; property < precedents_.size(); ++property) {
    waiting[property] = static_cast<unsigned int>(precedents_[property].size());
    if (waiting[property] == 0) order_.push_back(property);
  }
  for (std::size_t done = 0; done < order_.size(); ++done) {
    ranks_[order_[done]] = static_cast<unsigned int>(done);
    for (const PropertyIndex dependent : dependents_[order_[done]]) {
      if (--waiting[dependent] == 0) order_.push_back(dependent);
    }
  }
  inOrder_ = true;
}

std::vector<PropertyIndex> DependencyGraph::CollectDependents(PropertyIndex property) const {
  // Depth first, each property placed when everything that depends on it is.
  struct Step {
    PropertyIndex property;
    std::size_t next;
  };
  TW::HashSet<PropertyIndex> seen;
  std::vector<PropertyIndex> placed;
  std::vector<Step> path{{property, 0}};
  while (!path.empty()) {
    Step& step = path.back();
    const Neighbours& dependents = dependents_[step.property];
    if (step.next < dependents.size()) {
      const PropertyIndex dependent = dependents[step.next++];
      if (seen.Add(dependent)) path.push_back({dependent, 0});
      continue;
    }
    placed.push_back(step.property);
    path.pop_back();
  }
  placed.pop_back();  // the property itself
  std::ranges::reverse(placed);
  return placed;
}

}  // namespace Host
