// The skelegons of a layer in the order in which a tree shows them.
#pragma once

#include <cstddef>
#include <vector>

#include "rigs/rig.h"

namespace standin::rigs {

struct TreePlace {
  std::size_t skelegon = 0;  // place in Rig::skelegons
  std::size_t depth = 0;     // 0 for a topmost one
  bool isLast = true;        // among its siblings
};

// From the topmost down, each once. A ring of skelegons begins at its first in the file.
std::vector<TreePlace> treePlaces(const Rig& rig, const Layer& layer);

}  // namespace standin::rigs
