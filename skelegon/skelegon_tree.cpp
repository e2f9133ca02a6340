#include "skelegon/skelegon_tree.h"

#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace skg {
namespace {

using Members = std::unordered_set<const SkelegonNode*>;

// Appends each record once, whoever asks for it.
class CDistinctNodes {
 public:
  void ignore(const SkelegonNode& node) { seen_.insert(&node); }
  void append(SkelegonNode* node) {
    if (seen_.insert(node).second) nodes_.push_back(node);
  }
  void append(const SkelegonNodes& nodes) {
    for (SkelegonNode* const node : nodes) append(node);
  }
  // Appends what is below the records from that place on, breadth first.
  void appendBelow(std::size_t place) {
    for (; place < nodes_.size(); ++place) append(nodes_[place]->children);
  }

  std::size_t size() const { return nodes_.size(); }
  SkelegonNodes take() { return std::move(nodes_); }

 private:
  SkelegonNodes nodes_;
  Members seen_;
};

}  // namespace

SkelegonNode& SkelegonList::add(SkelegonNode node) {
  return *nodes_.emplace_back(std::make_unique<SkelegonNode>(std::move(node)));
}

void SkelegonList::link() {
  // Looking up who begins at a point gives what comparing each record with each gives, in the same order.
  std::unordered_map<PointId, SkelegonNodes> beginningAt;
  for (const auto& node : nodes_) {
    if (node->headPoint != nullptr) beginningAt[node->headPoint].push_back(node.get());
  }
  for (const auto& node : nodes_) {
    const auto found = beginningAt.find(node->tailPoint);
    if (found == beginningAt.end()) continue;
    node->children = found->second;
    for (SkelegonNode* const child : node->children) child->parent = node.get();
  }
}

SkelegonNodes SkelegonList::all() const {
  SkelegonNodes nodes;
  nodes.reserve(nodes_.size());
  for (const auto& node : nodes_) nodes.push_back(node.get());
  return nodes;
}

SkelegonNodes SkelegonList::resolve(const std::vector<PolygonId>& polygons) const {
  std::unordered_map<PolygonId, SkelegonNode*> byPolygon;
  for (const auto& node : nodes_) byPolygon.emplace(node->polygon, node.get());
  SkelegonNodes nodes;
  for (const PolygonId polygon : polygons) {
    const auto found = byPolygon.find(polygon);
    if (found != byPolygon.end()) nodes.push_back(found->second);
  }
  return nodes;
}

SkelegonNodes heads(const SkelegonNodes& set) {
  const Members members(set.begin(), set.end());
  SkelegonNodes found;
  for (SkelegonNode* const node : set) {
    if (members.count(node->parent) == 0) found.push_back(node);
  }
  return found;
}

SkelegonNodes descendants(const SkelegonNode& node) {
  CDistinctNodes found;
  found.ignore(node);
  found.append(node.children);
  found.appendBelow(0);
  return found.take();
}

SkelegonNodes expandWithChildren(const SkelegonNodes& set) {
  CDistinctNodes found;
  for (SkelegonNode* const node : set) {
    const std::size_t place = found.size();
    found.append(node);
    // A record that is in already brought everything below it along.
    found.appendBelow(place);
  }
  return found.take();
}

}  // namespace skg
