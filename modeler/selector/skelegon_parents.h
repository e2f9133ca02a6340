// Which skelegon hangs below which in the selector's tree, also where a mesh is damaged.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "modeler/selector/selector_nodes.h"

namespace mst {

inline constexpr std::size_t kNoParent = static_cast<std::size_t>(-1);

// The parent's place in the list for each skelegon; none for those that hang below their layer's row. The parent ends where
// the skelegon begins, the last such one in the list, as in the skelegon tree; a parent on another layer is none. Where
// parents run in a circle, the first of its members in the list has none. So from each skelegon the way up ends.
std::vector<std::size_t> skelegonParents(std::span<const ScannedSkelegon> skelegons);

}  // namespace mst
