// A small tree for tests of the drawing: rows by hand, everything expanded unless said otherwise.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "modeler/selector/tree_rows.h"

namespace mst {

class TestTree : public CTreeOwner {
 public:
  struct Node {
    std::string text;
    std::uint32_t state = kStateSet | kStateExpanded;
    std::optional<Rgba> colour;
    std::vector<std::size_t> children;
  };

  explicit TestTree(std::string root = "[Top]") { nodes.push_back({.text = std::move(root), .colour = {}, .children = {}}); }

  std::size_t add(std::size_t parent, std::string text) {
    nodes.push_back({.text = std::move(text), .colour = {}, .children = {}});
    nodes[parent].children.push_back(nodes.size() - 1);
    return nodes.size() - 1;
  }

  // Of a view of that size on all visible rows. Lives until the next call.
  TreePicture picture(int width, int height) {
    rows.clear();
    addRows(0, 0, kNoRow);
    TreePicture picture;
    picture.width = width;
    picture.height = height;
    picture.contentWidth = width;
    picture.rows = rows;
    picture.owner = this;
    return picture;
  }

  std::uint32_t stateOf(std::size_t node) const override { return nodes[node].state; }
  std::size_t childCountOf(std::size_t node) const override { return nodes[node].children.size(); }
  std::string_view textOf(std::size_t node) const override { return nodes[node].text; }
  bool givesColours() const override { return hasColours; }
  std::optional<Rgba> colourOf(std::size_t node) const override { return nodes[node].colour; }

  std::vector<Node> nodes;
  std::vector<TreeRow> rows;
  bool hasColours = true;

 private:
  void addRows(std::size_t node, int depth, std::size_t parent) {
    const std::size_t row = rows.size();
    rows.push_back({.node = node, .depth = depth, .parent = parent});
    if ((nodes[node].state & kStateExpanded) == 0) return;
    for (const std::size_t child : nodes[node].children) {
      rows[row].lastChild = rows.size();
      addRows(child, depth + 1, row);
    }
  }
};

// A tree with branches of several depths, collapsed rows, leaves and colours, of about that many rows.
inline TestTree mixedTree(std::size_t rows) {
  TestTree tree;
  for (std::size_t layer = 0; tree.nodes.size() < rows; ++layer) {
    const std::size_t top = tree.add(0, "[Layer" + std::to_string(layer + 1) + "]:rig");
    tree.nodes[top].colour = Rgba{255, 128, 0, 255};
    std::size_t above = top;
    for (std::size_t bone = 0; bone < 12 && tree.nodes.size() < rows; ++bone) {
      const std::size_t node = tree.add(above, "Bone" + std::to_string(bone));
      tree.nodes[node].colour = Rgba{static_cast<std::uint8_t>(20 * bone), 0, 160, 255};
      if (bone % 3 != 1) above = node;
      if (bone % 5 == 4) above = top;
    }
  }
  return tree;
}

}  // namespace mst
