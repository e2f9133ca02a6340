#include "gltf/left_out.h"

#include "objectfile/chunks.h"
#include "rigs/text.h"

namespace standin::gltf {
namespace {

struct Row {
  std::size_t LeftOut::*count;
  const char* one;
  const char* several;
  const char* what;
};

constexpr Row kLeftOut[] = {
    {&LeftOut::surfaces, "surface", "surfaces", ""},
    {&LeftOut::smallFaces, "face", "faces", " of fewer than three points"},
    {&LeftOut::flatFaces, "face", "faces", " without area"},
    {&LeftOut::loosePoints, "point", "points", " without a polygon"},
    {&LeftOut::unusedMaps, "weight map", "weight maps", " of no bone"},
    {&LeftOut::negativeWeights, "weight", "weights", " below 0"},
};

constexpr Row kNear[] = {
    {&LeftOut::cages, "subdivided polygon", "subdivided polygons", ": the cage, not the smooth surface"},
    {&LeftOut::crossingFaces, "face", "faces", " crossing itself: the triangles are a guess"},
    {&LeftOut::crowdedPoints, "point", "points", " with more than four bones: the four greatest weights"},
    {&LeftOut::unweightedPoints, "point", "points", " without weight in a mesh with bones: to the layer"},
    {&LeftOut::sharedMaps, "weight map", "weight maps", " of several bones: each point to the nearest of them"},
    {&LeftOut::idleBones, "bone", "bones", " without a weight map of a mesh: no point, where the host goes by distance"},
    {&LeftOut::storedParents, "bone", "bones", " with a stored parent: below the bone that ends where it begins, or none"},
    {&LeftOut::settingBones, "bone", "bones", " with stored settings: these under \"extras\", without effect"},
};

std::string counted(std::size_t count, const char* one, const char* several) {
  return std::to_string(count) + ' ' + (count == 1 ? one : several);
}

template <std::size_t kCount>
void add(std::vector<std::string>& lines, const char* heading, const LeftOut& leftOut, const Row (&rows)[kCount]) {
  for (const Row& row : rows) {
    if (const std::size_t count = leftOut.*row.count; count > 0) {
      lines.push_back(heading + counted(count, row.one, row.several) + row.what);
    }
  }
}

void add(std::vector<std::string>& lines, const std::map<std::uint32_t, std::size_t>& byType, const char* one,
         const char* several) {
  for (const auto& [type, count] : byType) {
    lines.push_back("left out: " + counted(count, one, several) + " of type " + rigs::printable(chunkName(type)));
  }
}

}  // namespace

std::vector<std::string> linesOf(const LeftOut& leftOut) {
  std::vector<std::string> lines;
  add(lines, leftOut.polygons, "polygon", "polygons");
  add(lines, leftOut.maps, "map", "maps");
  add(lines, "left out: ", leftOut, kLeftOut);
  add(lines, "as near as glTF comes: ", leftOut, kNear);
  return lines;
}

}  // namespace standin::gltf
