// A small selector tree without a host.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "modeler/selector/tree_view.h"

namespace mst {

using Names = std::vector<std::string>;

inline constexpr int kCtrl = 1;
inline constexpr int kShift = 2;
inline constexpr int kAlt = 4;
inline constexpr int kLeft = 32;
inline constexpr int kMiddle = 64;
inline constexpr int kRight = 96;
inline constexpr int kDown = 128;

// Identifiers as a host gives them: addresses of things that nobody looks at. Number 0 is none.
template <class Id>
Id identifier(std::size_t number) {
  static std::vector<char> things(1'000'000);
  return number == 0 ? nullptr : reinterpret_cast<Id>(&things.at(number));
}
inline skg::PolygonId polygon(std::size_t number) { return identifier<skg::PolygonId>(number); }
inline skg::PointId point(std::size_t number) { return identifier<skg::PointId>(number); }

// A skelegon from a point to another; 0 is none.
inline skg::SkelegonInfo skelegon(std::string name, std::size_t head, std::size_t tail, int layer = 0) {
  static std::size_t next = 1000;
  skg::SkelegonInfo skelegon;
  skelegon.polygon = polygon(++next);
  skelegon.name = std::move(name);
  skelegon.head = point(head);
  skelegon.tail = point(tail);
  skelegon.layer = layer;
  skelegon.tags.resize(kScannedTags.size());
  return skelegon;
}

inline skg::SkelegonInfo selectedInModeler(skg::SkelegonInfo skelegon) {
  skelegon.isSelected = true;
  return skelegon;
}

// The rows below and with a node as text, one line each, indented by depth.
inline std::string outline(const SelectorNodes& nodes, std::size_t from = kRootNode, int depth = 0) {
  std::string text = std::string(static_cast<std::size_t>(depth), ' ') + nodes[from].text + "\n";
  for (const std::size_t child : nodes[from].children) text += outline(nodes, child, depth + 1);
  return text;
}

// The rows that are in the picture, likewise.
inline std::string shown(const CTreeView& tree) {
  std::string text;
  for (const TreeRow& row : tree.rows()) {
    text += std::string(static_cast<std::size_t>(row.depth), ' ') + tree.nodes()[row.node].text + "\n";
  }
  return text;
}

// Texts of the selected nodes, shown or not, in the order of the nodes.
inline Names selectedTexts(const CTreeView& tree) {
  Names names;
  for (const SelectorNode& node : tree.nodes()) {
    if (node.is(kStateSelected)) names.push_back(node.text);
  }
  return names;
}

// Rows: 0 [Top], 1 [Layer1]:L, 2 A, 3 B, 4 C, 5 D, 6 [WMaps]. A, B, C are a chain, D stands beside it. The view is 212 by
// 162: 200 by 150 without the bars.
class TreeViewTest : public testing::Test {
 protected:
  TreeViewTest() {
    tree.setNodes(buildSelectorNodes({skelegon("A", 1, 2), skelegon("B", 2, 3), skelegon("C", 3, 4), skelegon("D", 5, 6)},
                                     {"L"}, {"Map"}));
    tree.setView(212, 162);
  }

  static int labelX(int depth) { return 12 * depth + 15; }
  static int middleOf(int row) { return 14 * row + 7; }
  int depthOf(int row) const { return tree.rows()[static_cast<std::size_t>(row)].depth; }

  TreeChange pressLabel(int row, int bits = 0) {
    return tree.press({labelX(depthOf(row)), middleOf(row), bits | kLeft | kDown, 1});
  }
  TreeChange pressExpander(int row, int bits = kLeft | kDown) {
    return tree.press({12 * depthOf(row), middleOf(row), bits, 1});
  }
  TreeChange pressGap(int row, int bits = kLeft | kDown) {
    return tree.press({12 * depthOf(row) - 16, middleOf(row), bits, 1});
  }
  Names selected() const { return selectedTexts(tree); }

  CTreeView tree;
};

}  // namespace mst
