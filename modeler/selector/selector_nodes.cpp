#include "modeler/selector/selector_nodes.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

#include "modeler/selector/name_order.h"
#include "modeler/selector/skelegon_parents.h"
#include "skelegon/slots.h"

namespace mst {
namespace {

constexpr int kLayerColour = 13;
constexpr int kMapColour = 8;
constexpr int kRootColour = 14;

SelectorNode group(std::string text, int colour) {
  SelectorNode node;
  node.text = std::move(text);
  node.colour = colour;
  return node;
}

SelectorNode skelegonNode(skg::SkelegonInfo& skelegon) {
  SelectorNode node = group(std::move(skelegon.name), colourOf(skelegon));
  node.polygon = skelegon.polygon;
  node.layer = skelegon.layer;
  node.head = skelegon.head;
  node.tail = skelegon.tail;
  node.isSelected = skelegon.isSelected;
  if (skelegon.isSelected) node.state |= kStateSelected;
  return node;
}

SelectorNode layerNode(int layer, const std::vector<std::string>& layerNames) {
  const std::string number = std::to_string(layer + 1);
  const bool hasName = layer >= 0 && std::cmp_less(layer, layerNames.size());
  SelectorNode node = group("[Layer" + number + "]:", kLayerColour);
  node.text += hasName ? layerNames[static_cast<std::size_t>(layer)] : "Layer" + number;
  node.layer = layer;
  return node;
}

// Pointers are sorted, for a skelegon is much to move.
SkelegonInfos inOrderOfName(SkelegonInfos skelegons) {
  std::vector<skg::SkelegonInfo*> order;
  order.reserve(skelegons.size());
  for (skg::SkelegonInfo& skelegon : skelegons) order.push_back(&skelegon);
  std::stable_sort(order.begin(), order.end(), [](const auto* a, const auto* b) { return comesBefore(a->name, b->name); });
  SkelegonInfos sorted;
  sorted.reserve(order.size());
  for (skg::SkelegonInfo* const skelegon : order) sorted.push_back(std::move(*skelegon));
  return sorted;
}

class CBuilder {
 public:
  CBuilder() { add(group("[Top]", kRootColour)); }

  void addLayers(const SkelegonInfos& skelegons, const std::vector<std::string>& layerNames) {
    for (const skg::SkelegonInfo& skelegon : skelegons) layers_.emplace(skelegon.layer, kRootNode);
    for (auto& [layer, number] : layers_) number = addBelow(kRootNode, layerNode(layer, layerNames));
  }

  // The layers must be there.
  void addSkelegons(SkelegonInfos& skelegons) {
    const std::vector<std::size_t> parents = skelegonParents(skelegons);
    const std::size_t first = nodes_.size();
    nodes_.reserve(first + skelegons.size());
    for (skg::SkelegonInfo& skelegon : skelegons) add(skelegonNode(skelegon));
    for (std::size_t i = 0; i < skelegons.size(); ++i) {
      const bool isTop = parents[i] == kNoParent;
      nodes_[isTop ? layers_.at(skelegons[i].layer) : first + parents[i]].children.push_back(first + i);
    }
  }

  void addWeightMaps(std::vector<std::string> maps) {
    std::sort(maps.begin(), maps.end(), [](const std::string& a, const std::string& b) {
      return comesBefore(a, b) || (!comesBefore(b, a) && a < b);  // of m2 and m02 always the same first
    });
    const std::size_t parent = addBelow(kRootNode, group("[WMaps]", kMapColour));
    nodes_[parent].state = kStateSet;  // begins collapsed
    for (std::string& map : maps) addBelow(parent, group(std::move(map), kMapColour));
  }

  SelectorNodes take() { return std::move(nodes_); }

 private:
  std::size_t add(SelectorNode node) {
    nodes_.push_back(std::move(node));
    return nodes_.size() - 1;
  }
  std::size_t addBelow(std::size_t parent, SelectorNode node) {
    const std::size_t number = add(std::move(node));
    nodes_[parent].children.push_back(number);
    return number;
  }

  SelectorNodes nodes_;
  std::map<int, std::size_t> layers_;  // number of each layer's row
};

}  // namespace

int colourOf(const skg::SkelegonInfo& skelegon) {
  // A blank tag is no text: the cyan colours are stored so, and only the copy says which.
  const std::string colour = skelegon.tags[0].value_or(std::string());
  return skg::colourIndex(colour.empty() ? skelegon.tags[1].value_or(std::string()) : colour);
}

SelectorNodes buildSelectorNodes(SkelegonInfos skelegons, const std::vector<std::string>& layerNames,
                                 std::vector<std::string> weightMaps) {
  skelegons = inOrderOfName(std::move(skelegons));
  CBuilder builder;
  builder.addLayers(skelegons, layerNames);
  builder.addSkelegons(skelegons);
  builder.addWeightMaps(std::move(weightMaps));
  return builder.take();
}

}  // namespace mst
