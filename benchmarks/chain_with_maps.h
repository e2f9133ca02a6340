// A chain of skelegons, each with a weight map of its own name beside it.
#pragma once

#include <cstddef>

#include "interface/lightwave.h"
#include "objectfile/sample_rigs.h"

namespace varnel::bench {

inline standin::ObjectFile makeChainWithMaps(std::size_t skelegons, std::size_t settings) {
  standin::ObjectFile rig = standin::makeChainRig(skelegons, settings);
  for (const auto& skelegon : rig.layers.front().group(lw::kTypeBone).polygons) {
    rig.layers.front().maps.push_back({.name = *skelegon.tag(lw::kTagBone), .points = {0}, .values = {1}});
  }
  return rig;
}

}  // namespace varnel::bench
