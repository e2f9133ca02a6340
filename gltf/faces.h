// The faces of a layer as triangles, and what else of an object glTF has no place for.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "gltf/left_out.h"
#include "objectfile/object_file.h"

namespace standin::gltf {

// By points of the layer, and still as the host sees them: clockwise from the front. What is left out is counted.
std::vector<std::array<std::uint32_t, 3>> trianglesOf(const ObjectLayer& layer, LeftOut& leftOut);

// Surfaces, polygons and maps of other kinds, points without a polygon.
void countTheRest(const ObjectFile& object, LeftOut& leftOut);

}  // namespace standin::gltf
