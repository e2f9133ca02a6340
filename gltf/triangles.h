// A face with any number of corners as triangles: it may be concave, a little bent, and have corners that lie on one line or
// on one another.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "standin/layout/transform.h"

namespace standin::gltf {

struct Triangles {
  std::vector<std::array<std::size_t, 3>> corners;  // places in the face; they go round as the face does
  bool isGuess = false;                             // the face crosses itself
};

// Nothing for a face without area.
std::optional<Triangles> trianglesOf(const std::vector<Vec3>& corners);

}  // namespace standin::gltf
