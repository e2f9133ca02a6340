#include "gltf/numbers.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "rigs/text.h"

namespace standin::gltf {
namespace {

bool isPlace(const FilePoint& point) {
  // No comparison is true of what is no number.
  return std::all_of(point.begin(), point.end(), [](float part) { return std::abs(part) <= kFarthest; });
}

// Empty where it is one.
std::string whyNoPlace(const FilePoint& point) {
  if (isPlace(point)) return {};
  const bool areNumbers = std::all_of(point.begin(), point.end(), [](float part) { return std::isfinite(part); });
  return areNumbers ? " lies too far away to be written" : " has a coordinate that is no number";
}

std::string nameOf(const ObjectLayer& layer) {
  const std::string number = "layer " + std::to_string(layer.number);
  return layer.name.empty() ? number : number + " (" + rigs::printable(layer.name) + ")";
}

std::optional<Failure> refusedPlaces(const ObjectLayer& layer) {
  if (const std::string why = whyNoPlace(layer.pivot); !why.empty()) return Failure{nameOf(layer) + ": the pivot" + why};
  const auto found = std::find_if_not(layer.points.begin(), layer.points.end(), isPlace);
  if (found == layer.points.end()) return {};
  const std::string number = std::to_string(found - layer.points.begin());
  return Failure{nameOf(layer) + ": point " + number + " (counted from 0)" + whyNoPlace(*found)};
}

std::optional<Failure> refusedWeights(const ObjectLayer& layer, const VertexMap& map) {
  if (map.type != lw::kMapWeight || map.dimension != 1) return {};
  const auto found =
      std::find_if_not(map.values.begin(), map.values.end(), [](float value) { return std::isfinite(value); });
  if (found == map.values.end()) return {};
  const std::uint32_t point = map.points[static_cast<std::size_t>(found - map.values.begin())];
  return Failure{nameOf(layer) + ": in the weight map " + rigs::inQuotes(map.name) + " the weight of point " +
                 std::to_string(point) + " (counted from 0) is no number"};
}

}  // namespace

std::optional<Failure> refusedNumbers(const ObjectFile& object) {
  for (const ObjectLayer& layer : object.layers) {
    if (auto refused = refusedPlaces(layer)) return refused;
    for (const VertexMap& map : layer.maps) {
      if (auto refused = refusedWeights(layer, map)) return refused;
    }
  }
  return {};
}

}  // namespace standin::gltf
