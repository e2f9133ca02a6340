// What glTF cannot say of an object, counted while it is translated and told at the end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace standin::gltf {

struct LeftOut {
  std::size_t surfaces = 0;
  std::map<std::uint32_t, std::size_t> polygons;  // by type
  std::map<std::uint32_t, std::size_t> maps;      // by type
  std::size_t smallFaces = 0;
  std::size_t flatFaces = 0;
  std::size_t loosePoints = 0;
  std::size_t unusedMaps = 0;
  std::size_t negativeWeights = 0;

  // As near as glTF comes to them.
  std::size_t cages = 0;
  std::size_t crossingFaces = 0;
  std::size_t crowdedPoints = 0;
  std::size_t unweightedPoints = 0;
  std::size_t sharedMaps = 0;
  std::size_t idleBones = 0;
  std::size_t storedParents = 0;
  std::size_t settingBones = 0;

  bool operator==(const LeftOut&) const = default;
};

// One line for each that there is, without line ends.
std::vector<std::string> linesOf(const LeftOut& leftOut);

}  // namespace standin::gltf
