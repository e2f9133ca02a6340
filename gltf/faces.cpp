#include "gltf/faces.h"

#include <algorithm>
#include <set>
#include <string>

#include "gltf/triangles.h"
#include "gltf/weights.h"
#include "standin/layout/scene.h"

namespace standin::gltf {
namespace {

// Whose corners are the cage of a smooth surface.
constexpr std::array kCages = {lw::fourCharacters('P', 'T', 'C', 'H'), lw::fourCharacters('S', 'U', 'B', 'D')};

bool isCage(const PolygonGroup& group) { return std::find(kCages.begin(), kCages.end(), group.type) != kCages.end(); }
bool holdsFaces(const PolygonGroup& group) { return group.type == lw::kTypeFace || isCage(group); }
bool isSkelegon(const PolygonGroup& group, const ObjectPolygon& polygon) {
  return group.type == lw::kTypeBone && polygon.points.size() == 2;
}

void addTriangles(const ObjectLayer& layer, const ObjectPolygon& face, LeftOut& leftOut,
                  std::vector<std::array<std::uint32_t, 3>>& triangles) {
  if (face.points.size() < 3) {
    ++leftOut.smallFaces;
    return;
  }
  std::vector<Vec3> corners;
  corners.reserve(face.points.size());
  for (const std::uint32_t point : face.points) corners.push_back(vectorOf(layer.points[point]));
  const std::optional<Triangles> made = trianglesOf(corners);
  if (!made) {
    ++leftOut.flatFaces;
    return;
  }
  if (made->isGuess) ++leftOut.crossingFaces;
  for (const auto& [a, b, c] : made->corners) triangles.push_back({face.points[a], face.points[b], face.points[c]});
}

std::size_t loosePoints(const ObjectLayer& layer) {
  std::vector<bool> isUsed(layer.points.size(), false);
  for (const PolygonGroup& group : layer.groups) {
    for (const ObjectPolygon& polygon : group.polygons) {
      for (const std::uint32_t point : polygon.points) isUsed[point] = true;
    }
  }
  return static_cast<std::size_t>(std::count(isUsed.begin(), isUsed.end(), false));
}

}  // namespace

std::vector<std::array<std::uint32_t, 3>> trianglesOf(const ObjectLayer& layer, LeftOut& leftOut) {
  std::vector<std::array<std::uint32_t, 3>> triangles;
  for (const PolygonGroup& group : layer.groups) {
    if (!holdsFaces(group)) continue;
    if (isCage(group)) leftOut.cages += group.polygons.size();
    for (const ObjectPolygon& face : group.polygons) addTriangles(layer, face, leftOut, triangles);
  }
  return triangles;
}

void countTheRest(const ObjectFile& object, LeftOut& leftOut) {
  std::set<std::string> surfaces;
  for (const ObjectLayer& layer : object.layers) {
    leftOut.loosePoints += loosePoints(layer);
    for (const VertexMap& map : layer.maps) {
      if (!isWeightMap(map)) ++leftOut.maps[map.type];
    }
    for (const PolygonGroup& group : layer.groups) {
      for (const ObjectPolygon& polygon : group.polygons) {
        const std::string* const surface = polygon.tag(kTagSurface);
        if (holdsFaces(group) && surface != nullptr) surfaces.insert(*surface);
        if (!holdsFaces(group) && !isSkelegon(group, polygon)) ++leftOut.polygons[group.type];
      }
    }
  }
  leftOut.surfaces = surfaces.size();
}

}  // namespace standin::gltf
