// What is written into a glTF file, as plain data. Everything here is in glTF's axes already (see axes.h), in metres.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "objectfile/object_file.h"
#include "standin/layout/transform.h"

namespace standin::gltf {

// glTF has no word for these, so they go under "extras". Texts are UTF-8 without control characters.
struct LayerFacts {
  int number = 0;
  std::string name;
  Vec3 pivot{};
  bool isHidden = false;
};
struct BoneFacts {
  double length = 0;  // it lies along -Z of its own axes
  std::string weightMap;
  std::string colour;
  std::string skelegon;  // what is stored, as the JSON that exportSkelegon() gives
};

struct Node {
  std::string name;
  std::optional<std::size_t> parent;
  Placement place;  // in space, not in its parent; without scale
  std::variant<std::monostate, LayerFacts, BoneFacts> facts;
  std::optional<std::size_t> mesh;
  std::optional<std::size_t> skin;
};

struct Skin {
  std::string name;
  struct Joint {
    std::size_t node = 0;
    Placement inverseBind;  // from the mesh's space to the joint's
  };
  std::vector<Joint> joints;
};

inline constexpr std::size_t kMostJointsOfAPoint = 4;

// Joints count within the skin. A weight of 0 has joint 0; the weights' sum is 1.
struct PointJoints {
  std::array<std::uint16_t, kMostJointsOfAPoint> joints{};
  std::array<float, kMostJointsOfAPoint> weights{};
};

struct Mesh {
  std::string name;
  std::vector<FilePoint> points;
  std::vector<std::array<std::uint32_t, 3>> triangles;  // counter-clockwise as seen from the front
  std::vector<PointJoints> joints;                      // of each point; empty when nothing moves the mesh
};

struct Model {
  std::vector<Node> nodes;
  std::vector<Skin> skins;
  std::vector<Mesh> meshes;
};

}  // namespace standin::gltf
