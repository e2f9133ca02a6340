// The selector's rows as a tree: what a scan of the mesh found, named, coloured, sorted and linked. Knows no host.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "modeler/selector/tree_rows.h"
#include "skelegon/skelegon_tree.h"
#include "skelegon/slots.h"

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

// The tags that a scan for the tree asks for, in this order: Modeler's colour tag and our own copy of it.
inline constexpr std::array kScannedTags = {skg::SlotTagId(skg::Slot::Colour), skg::kColourCopyTag};

// In scan order.
using SkelegonInfos = std::vector<skg::SkelegonInfo>;

// The colour index of a skelegon: by the colour tag; by the copy where that tag is missing or blank. The orange entry for an
// unknown word and for no word.
int colourOf(const skg::SkelegonInfo& skelegon);

// The tree: root, layers with their skelegons, weight maps. `layerNames` by layer number.
SelectorNodes buildSelectorNodes(SkelegonInfos skelegons, const std::vector<std::string>& layerNames,
                                 std::vector<std::string> weightMaps);

}  // namespace mst
