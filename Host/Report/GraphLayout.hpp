#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace Host {

/// An arrow between two nodes.
struct GraphEdge {
  unsigned int from = 0;
  unsigned int to = 0;  ///< in a layer to the right
};

/// Places the nodes of a graph one below the other in layers that stand side by side. What a node sends over several
/// layers runs along a way of its own, on which it has a point in each of the layers between. Takes time in proportion
/// to the graph, but for sorting; where ways would need much more room than the graph, some nodes have none.
class GraphLayout {
 public:
  /// Heights in one unit of the caller's choice.
  struct Sizes {
    double node = 1;
    double way = 0.25;
    double gap = 0.25;
  };

  GraphLayout(std::span<const unsigned int> layers, std::span<const GraphEdge> edges, const Sizes& sizes);

  double GetHeight() const { return height_; }
  /// The middle of a node, from above.
  double GetMiddle(unsigned int node) const { return items_[node].middle; }
  /// How many layers to the right of a node its way goes through.
  unsigned int GetWayLength(unsigned int node) const { return ways_[node].length; }
  /// The middle of the way in the layer so many, from 1, to the right of the node.
  double GetWayMiddle(unsigned int node, unsigned int step) const {
    return items_[ways_[node].first + step - 1].middle;
  }

 private:
  using Item = unsigned int;  // nodes first, then the points of ways

  struct Place {
    double height = 0;
    double weight = 1;
    double middle = 0;
    std::vector<Item> left;
    std::vector<Item> right;
  };
  struct Way {
    Item first = 0;
    unsigned int length = 0;
  };

  void MakeWays(std::span<const unsigned int> layers, std::span<const GraphEdge> edges, const Sizes& sizes);
  void Connect(Item left, Item right);
  Item FindLastBefore(unsigned int node, unsigned int steps) const;
  void Stack(const std::vector<Item>& layer);
  void Order(std::vector<Item>& layer, bool byLeft);
  double FindTarget(Item item, bool byLeft, bool byRight) const;
  void Settle(const std::vector<Item>& layer, bool byLeft, bool byRight);
  void MoveToTop();

  std::vector<Place> items_;
  std::vector<Way> ways_;
  std::vector<std::vector<Item>> layers_;
  double gap_;
  double height_ = 0;
};

}  // namespace Host
