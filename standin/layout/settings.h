// Everything that commands can set on an item, as plain values. A default-constructed record is a fresh item, so what a run
// changed is what differs from it.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "standin/layout/transform.h"

namespace standin {

struct Item;

inline constexpr double kPi = 3.14159265358979323846;

// The nine motion channels: three positions, three rotations, three scales.
enum Axis : std::size_t { kAxisX, kAxisY, kAxisZ, kAxisH, kAxisP, kAxisB, kAxisSX, kAxisSY, kAxisSZ };
inline constexpr std::size_t kAxisCount = 9;
inline constexpr std::array<const char*, kAxisCount> kAxisNames{"X", "Y", "Z", "H", "P", "B", "SX", "SY", "SZ"};

struct AxisSettings {
  int controller = 0;
  bool limited = false;
  double least = -1;
  double greatest = 1;
  double stiffness = 1;
  int follow = 0;  // the axis of the item that is followed
  double factor = 1;
  double offset = 0;
};

// Another item that the position, rotation or scale follows.
struct SameItemSettings {
  Item* item = nullptr;
  bool world = false;
  int blendMethod = 0;
  double blend = 1;
};

struct IkSettings {
  Item* goal = nullptr;
  int objective = 0;
  double goalStrength = 1;
  bool unaffected = false;
  bool fullTime = true;
  bool matchGoalOrientation = false;
  bool keepGoalInReach = false;
  bool useChain = true;
  int initialState = 0;
  int initialStateFrame = 0;
  double blending = 0;  // 0 is IK, 1 is FK
  int softKind = 0;
  int softDistance = 0;
  double softLeast = 0.25;
  double softGreatest = 0.75;
};

struct PathAlignSettings {
  double lookAhead = 0.033;
  int maxSteps = 10;
  double reliableDistance = 0.001;
};

struct AppliedServer {
  std::string className;
  std::string name;
};

// Of every item. Angles of limits are in degrees, as the command takes them.
struct ItemSettings {
  RotationOrder order = RotationOrder::HPB;
  Item* target = nullptr;
  Item* pole = nullptr;
  IkSettings ik;
  std::array<AxisSettings, kAxisCount> axes = freshAxes();
  std::array<SameItemSettings, 3> same;  // position, rotation, scale
  PathAlignSettings pathAlign;
  int visibility = 1;
  int colour = 0;
  double iconScale = 1;
  std::vector<AppliedServer> servers;

  static std::array<AxisSettings, kAxisCount> freshAxes() {
    std::array<AxisSettings, kAxisCount> axes;
    for (std::size_t axis = 0; axis < kAxisCount; ++axis) {
      axes[axis].follow = static_cast<int>(axis);
      if (axis >= kAxisH) axes[axis].least = -180;
      if (axis >= kAxisH) axes[axis].greatest = 180;
      if (axis >= kAxisSX) axes[axis].least = 0;
      if (axis >= kAxisSX) axes[axis].greatest = 1;
    }
    return axes;
  }
};

// Of bones. `falloff` counts from 0.
struct BoneSettings {
  bool active = true;
  int type = 0;
  int falloff = 4;
  std::string weightMap;
  bool weightMapOnly = false;
  bool weightNormalization = false;
  double strength = 1;
  bool strengthMultiply = true;
  bool limitedRange = false;
  double minRange = 0;
  double maxRange = 1;
  bool jointComp = false;
  bool jointCompParent = false;
  std::array<double, 2> jointCompAmounts{1, 1};
  bool muscleFlex = false;
  bool muscleFlexParent = false;
  std::array<double, 2> muscleFlexAmounts{1, 1};
  bool bulge = false;
  double bulgeAmount = 1;
  bool bulgeParent = false;
  double bulgeParentAmount = 1;
  bool twist = false;
  double twistAmount = 1;
};

// How a bone rests in its object, from its skelegon. Not a setting: every bone has its own.
struct BoneRest {
  Vec3 position{};  // of the head, in the object
  Vec3 direction{0, 0, 1};
  double length = 0;
};

// Of objects, for all their bones.
struct ObjectSettings {
  Item* boneSource = nullptr;
  int boneMode = 2;  // 0 all bones, 1 all bones after morphing, 2 faster bones, 3 limited bones
  int limitedBones = 4;
};

}  // namespace standin
