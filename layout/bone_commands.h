// The commands that give a bone its stored settings, as a table: the list that a rigger would write, in sending order.
// ST_bone_set_params walks it.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>

#include "interface/lightwave.h"
#include "skelegon/setting_groups.h"
#include "skelegon/slots.h"

namespace lwp {

// What a command carries.
enum class Sends {
  Integer,        // the slot's integer plus `offset`
  Switch,         // 1 when the slot's integer is not zero, else 0
  Real,           // the slot's real times `factor`
  TwoReals,       // both slots' reals times `factor`
  Toggle,         // nothing: sent only when the wanted state differs from the bone's
  WeightMap,      // the slot's text, or "(none)"
  FoundItem,      // the item of that name, which must be there
  ItemOrNull,     // the item of that name, or a null made for it, which must succeed
  ItemUnchecked,  // the same, sent whatever came of it
  AxisGroup,      // the commands of one motion channel, see AxisRow
  Colour,         // the index of the slot's colour word; not sent for "Modeler"
};

// When a command is sent. The bone's state is what it was at the start, brought up to date by what was sent since.
enum class When {
  Always,
  TextGiven,            // the slot has a text
  HasWeightMap,         // the bone had one at the start
  HasWeightMapAndOnly,  // ... and uses it only
  LimitedRangeOn,
  JointCompOn,   // of its own or for the parent
  MuscleFlexOn,  // of its own or for the parent
  BulgeOn,
  BulgeParentOn,
  IsJoint,  // by the stored bone type
  IsTwistedJoint,
  HasGoal,
  HasReachableGoal,  // the goal's objective is "go to goal"
  HasSoftIK,         // ... and the host says that soft IK is on
  StartsAtFrame,     // the host says that the IK starts at a frame of its own
  FollowsIKParent,   // the parent is a bone that IK affects
  HasPositionItem,
  HasRotationItem,
  HasScaleItem,
  AlignsToPath,  // the host says so of one of the rotation controllers
};

enum class FlagWord { None, Bone, Item };

struct BoneCommand {
  const char* name;
  Sends sends;
  skg::Slot slot;
  skg::Slot second = skg::Slot::Reserved0;
  int offset = 0;
  double factor = 1;
  When when = When::Always;
  FlagWord word = FlagWord::None;  // of a toggle: where its state is
  unsigned bit = 0;                // of a toggle: the state compared
  unsigned updates = 0;            // of a toggle: the state that is changed by it
  bool matchRotation = false;      // of a null made for the item
  bool matchScale = false;
  skg::Axis axis = skg::Axis::X;  // of an axis group
  int line = 0;                   // reported when it fails; 0 = ends without a report
  int secondLine = 0;             // of an item that is there, and of a weight map that has a name: the same for the command
};

// How many commands the table stands for when each axis group counts with its six.
enum AxisCommand : std::size_t { kController, kLimit, kLimits, kFollow, kTransform, kStiffness, kAxisCommands };
inline constexpr std::size_t kBoneCommandRows = 110;

// One motion channel: controller, limits, follow and stiffness.
struct AxisRow {
  const char* name;  // the prefix or suffix of the command names
  skg::Axis axis;
  unsigned limitBit;
  double limitFactor;
  skg::Axis followGate;                  // the axis whose controller decides whether follow and transform are sent
  bool limitMayFail;                     // the sequence goes on behind a limit switch that fails
  std::array<int, kAxisCommands> lines;  // reported when a command of the group fails, by AxisCommand

  constexpr const skg::AxisSettings& settings() const { return skg::settingsOf(axis); }
};

// The motion groups: host parameter of each, in the order of skg::MotionGroup.
inline constexpr int kMotionParams[] = {lw::kParamPosition, lw::kParamRotation, lw::kParamScale};

std::span<const BoneCommand> boneCommands();
std::span<const AxisRow> axisRows();

}  // namespace lwp
