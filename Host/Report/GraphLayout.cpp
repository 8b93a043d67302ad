#include "Host/Report/GraphLayout.hpp"

#include <algorithm>
#include <tuple>
#include <utility>

namespace Host {
namespace {

// More change little.
constexpr int OrderingPasses = 8;
constexpr int SettlingPasses = 8;
// Ways are more readable when they are straight.
constexpr double WayWeight = 4;
// So many points of ways there may be however small a graph is.
constexpr std::size_t RoomForSmallGraphs = 10'000;

// Neighbours in a layer that have been pushed together and move as one.
struct Block {
  double sum;  // of the weighted targets of the first of them
  double weight;
  std::size_t count;

  double GetTarget() const { return sum / weight; }
};

void AddToBlocks(std::vector<Block>& blocks, Block block) {
  while (!blocks.empty() && blocks.back().GetTarget() > block.GetTarget()) {
    block.sum += blocks.back().sum;
    block.weight += blocks.back().weight;
    block.count += blocks.back().count;
    blocks.pop_back();
  }
  blocks.push_back(block);
}

}  // namespace

GraphLayout::GraphLayout(std::span<const unsigned int> layers, std::span<const GraphEdge> edges, const Sizes& sizes)
    : items_(layers.size()), ways_(layers.size()), gap_(sizes.gap) {
  if (layers.empty()) return;
  layers_.resize(*std::ranges::max_element(layers) + 1);
  for (Item node = 0; node < layers.size(); ++node) {
    items_[node].height = sizes.node;
    layers_[layers[node]].push_back(node);
  }
  MakeWays(layers, edges, sizes);
  for (const std::vector<Item>& layer : layers_) Stack(layer);
  for (int pass = 0; pass < OrderingPasses; ++pass) {
    if (pass % 2 == 0) {
      for (std::vector<Item>& layer : layers_) Order(layer, true);
    } else {
      for (auto layer = layers_.rbegin(); layer != layers_.rend(); ++layer) Order(*layer, false);
    }
  }
  for (int pass = 0; pass < SettlingPasses; ++pass) {
    const bool isLast = pass + 1 == SettlingPasses;
    if (pass % 2 == 0) {
      for (const std::vector<Item>& layer : layers_) Settle(layer, true, isLast);
    } else {
      for (auto layer = layers_.rbegin(); layer != layers_.rend(); ++layer) Settle(*layer, isLast, true);
    }
  }
  MoveToTop();
}

void GraphLayout::MakeWays(std::span<const unsigned int> layers, std::span<const GraphEdge> edges, const Sizes& sizes) {
  std::vector<unsigned int> wanted(layers.size());
  for (const GraphEdge& edge : edges) {
    wanted[edge.from] = std::max(wanted[edge.from], layers[edge.to] - layers[edge.from] - 1);
  }
  std::size_t room = 2 * (layers.size() + edges.size()) + RoomForSmallGraphs;
  for (Item node = 0; node < layers.size(); ++node) {
    if (wanted[node] > room) continue;
    room -= wanted[node];
    ways_[node] = {static_cast<Item>(items_.size()), wanted[node]};
    Item last = node;
    for (unsigned int step = 1; step <= wanted[node]; ++step) {
      const auto point = static_cast<Item>(items_.size());
      items_.push_back({sizes.way, WayWeight, 0, {}, {}});
      layers_[layers[node] + step].push_back(point);
      Connect(last, point);
      last = point;
    }
  }
  for (const GraphEdge& edge : edges) {
    Connect(FindLastBefore(edge.from, layers[edge.to] - layers[edge.from] - 1), edge.to);
  }
}

void GraphLayout::Connect(Item left, Item right) {
  items_[left].right.push_back(right);
  items_[right].left.push_back(left);
}

GraphLayout::Item GraphLayout::FindLastBefore(unsigned int node, unsigned int steps) const {
  const unsigned int length = std::min(steps, ways_[node].length);
  return length == 0 ? node : ways_[node].first + length - 1;
}

void GraphLayout::Stack(const std::vector<Item>& layer) {
  double height = -gap_;
  for (const Item item : layer) height += items_[item].height + gap_;
  double top = -height / 2;
  for (const Item item : layer) {
    items_[item].middle = top + items_[item].height / 2;
    top += items_[item].height + gap_;
  }
}

void GraphLayout::Order(std::vector<Item>& layer, bool byLeft) {
  // Items of one target keep their order.
  std::vector<std::tuple<double, std::size_t, Item>> targets;
  targets.reserve(layer.size());
  for (const Item item : layer) targets.push_back({FindTarget(item, byLeft, !byLeft), targets.size(), item});
  std::ranges::sort(targets);
  for (std::size_t i = 0; i < layer.size(); ++i) layer[i] = std::get<Item>(targets[i]);
  Stack(layer);
}

// The middle of its neighbours.
double GraphLayout::FindTarget(Item item, bool byLeft, bool byRight) const {
  const Place& place = items_[item];
  double sum = 0;
  std::size_t count = 0;
  for (const auto& [neighbours, counts] : {std::pair(&place.left, byLeft), std::pair(&place.right, byRight)}) {
    if (!counts) continue;
    for (const Item neighbour : *neighbours) sum += items_[neighbour].middle;
    count += neighbours->size();
  }
  return count == 0 ? place.middle : sum / static_cast<double>(count);
}

// Moves the items of a layer as near to their targets as their order and heights allow: the least sum of squares, which
// is that of the nearest ascending numbers once each item's distance from the first is taken off.
void GraphLayout::Settle(const std::vector<Item>& layer, bool byLeft, bool byRight) {
  std::vector<Block> blocks;
  std::vector<double> distances;
  distances.reserve(layer.size());
  double bottom = 0;
  for (const Item item : layer) {
    const Place& place = items_[item];
    distances.push_back(bottom + place.height / 2);
    bottom += place.height + gap_;
    const double target = FindTarget(item, byLeft, byRight) - distances.back();
    AddToBlocks(blocks, {target * place.weight, place.weight, 1});
  }
  std::size_t i = 0;
  for (const Block& block : blocks) {
    for (const std::size_t end = i + block.count; i < end; ++i) {
      items_[layer[i]].middle = block.GetTarget() + distances[i];
    }
  }
}

void GraphLayout::MoveToTop() {
  const auto getTop = [](const Place& place) { return place.middle - place.height / 2; };
  const double top = getTop(*std::ranges::min_element(items_, {}, getTop));
  for (Place& place : items_) {
    place.middle -= top;
    height_ = std::max(height_, place.middle + place.height / 2);
  }
}

}  // namespace Host
