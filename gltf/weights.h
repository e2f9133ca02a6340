// Which bones move the points of a mesh, from its weight maps.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "gltf/left_out.h"
#include "gltf/model.h"
#include "objectfile/object_file.h"

namespace standin::gltf {

struct WeightedBone {
  std::string weightMap;  // as stored
  Vec3 head{};            // in the mesh's layer
  Vec3 tail{};
};

// A point's share of the bones, the greatest first, four at most.
struct Share {
  std::uint32_t bone = 0;  // place in the list
  float weight = 0;
};
using Shares = std::vector<Share>;

inline bool isWeightMap(const VertexMap& map) { return map.type == lw::kMapWeight && map.dimension == 1; }

// For each point of the layer; none where no bone's map has weight there. A map that several bones bear goes to the nearest
// of them, point by point: the host lets bones of one map share it by distance. Fails when that would be without end.
Outcome<std::vector<Shares>> sharesOf(const ObjectLayer& layer, const std::vector<WeightedBone>& bones, LeftOut& leftOut);

// As glTF stores them. What has no share goes to the joint 0 if `othersToFirst`; joints are then the bones' places and one.
PointJoints jointsOf(const Shares& shares, bool othersToFirst);

}  // namespace standin::gltf
