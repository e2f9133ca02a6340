// What there is to see of an object: bones, helper items and the mesh, in space, before and after the conversion.
//
// Positions are in metres, in the host's axes. They come from the file as they are: what is not finite there is not finite here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "objectfile/object_file.h"
#include "rigs/rig.h"
#include "standin/layout/scene.h"

namespace standin::views {

// In the order of the table of linked items in skelegon/setting_groups.h.
enum class HelperKind { Target, Pole, Goal, Position, Rotation, Scale, InitialPosition };
inline constexpr std::size_t kHelperKinds = 7;

struct PosedBone {
  std::string name;
  std::size_t layer = 0;              // place in PosedRig::layers
  std::optional<std::size_t> parent;  // place in PosedRig::bones
  Vec3 head{};
  Vec3 tail{};
  Matrix3 axes;  // the bone lies along the third
  int colour = 0;
  bool isMarked = false;       // a problem was found
  std::string remark = {};     // what it is, for those who ask
  std::string givenName = {};  // without the counter that Layout shows behind a namesake's name
};

// A bone that refers to the item, and as what.
struct HelperLine {
  std::size_t bone;
  HelperKind kind;
};

struct PosedNull {
  std::string name;
  Vec3 position{};
  int colour = 0;
  std::vector<HelperLine> lines;
};

// A bone that refers to another one.
struct BoneLine {
  std::size_t from;
  std::size_t to;
  HelperKind kind;
};

struct PosedMesh {
  std::vector<Vec3> points;
  std::vector<std::vector<std::uint32_t>> faces;  // of three points or more
};

struct PosedLayer {
  std::uint16_t number = 0;
  std::string name;
  PosedMesh mesh;
};

struct PosedRig {
  std::vector<PosedLayer> layers;
  std::vector<PosedBone> bones;
  std::vector<PosedNull> nulls;
  std::vector<BoneLine> boneLines;
  bool isAfter = false;  // the conversion
};

// The skelegons, in the rig's order, where Layout makes bones of them: each layer counts from its pivot. None is marked.
PosedRig posedBefore(const ObjectFile& object, const rigs::Rig& rig);

// The bones and helper items of a scene with this object alone. None is marked.
PosedRig posedAfter(Scene& scene, const ObjectFile& object);

}  // namespace standin::views
