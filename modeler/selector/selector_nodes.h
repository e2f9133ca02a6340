// The selector's rows as a tree: what a scan of the mesh found, named, coloured, sorted and linked. Knows no host.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "modeler/selector/tree_rows.h"
#include "skelegon/skelegon_tree.h"

namespace mst {

// One row of the tree, shown or not.
struct SelectorNode {
  std::uint32_t state = kStateSet | kStateExpanded;
  skg::PolygonId polygon = nullptr;  // none for the rows of groups and weight maps
  std::string text;
  int layer = 0;  // of a skelegon and of a layer's row; 0 is the first
  skg::PointId head = nullptr;
  skg::PointId tail = nullptr;
  bool isSelected = false;            // in Modeler, when it was scanned
  int colour = 0;                     // index into the colour list
  std::vector<std::size_t> children;  // in the order in which they are shown

  bool is(TreeState flag) const { return (state & flag) != 0; }
};

// Nodes under their numbers; the root is number 0. Each node but the root is the child of exactly one.
using SelectorNodes = std::vector<SelectorNode>;
inline constexpr std::size_t kRootNode = 0;

// What the mesh says of a skelegon.
struct ScannedSkelegon {
  skg::PolygonId polygon = nullptr;
  std::string name;  // empty when it has none
  int layer = 0;
  skg::PointId head = nullptr;  // null in a damaged one
  skg::PointId tail = nullptr;
  bool isSelected = false;
  std::optional<std::string> colour;      // Modeler's colour tag
  std::optional<std::string> colourCopy;  // our own copy of it
};

// In scan order.
using ScannedSkelegons = std::vector<ScannedSkelegon>;

// The colour index of a skelegon: by the colour tag; by the copy where that tag is missing or blank. The orange entry for an
// unknown word and for no word.
int colourOf(const ScannedSkelegon& skelegon);

// The tree: root, layers with their skelegons, weight maps. `layerNames` by layer number.
SelectorNodes buildSelectorNodes(ScannedSkelegons skelegons, const std::vector<std::string>& layerNames,
                                 std::vector<std::string> weightMaps);

}  // namespace mst
