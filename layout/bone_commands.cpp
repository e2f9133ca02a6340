#include "layout/bone_commands.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "skelegon/slot_table.h"
#include "skelegon/table_order.h"

namespace lwp {
namespace {

using skg::Slot;

constexpr double kPercent = 0.01;
constexpr double kDegrees = 57.29577951308232;

using skg::Axis;

constexpr AxisRow kAxes[] = {
    // clang-format off
    // axis              bit  limits    gate    limit may fail
    //                                                 lines; inside a group spaced as X's are
    {"X",  Axis::X,  0x1, 1,        Axis::X,  false, { 725,  731,  741,  747,  752,  758}},
    // A LimitY that fails is reported and the sequence goes on, unlike the others, on purpose: the rest of the bone is set
    // all the same.
    {"Y",  Axis::Y,  0x2, 1,        Axis::Y,  true,  { 763,  770,  781,  787,  792,  798}},
    {"Z",  Axis::Z,  0x4, 1,        Axis::Z,  false, { 803,  809,  819,  825,  830,  836}},
    // Only the limits of a rotation are turned into degrees. The transform goes as it is stored, on purpose.
    {"H",  Axis::H,  0x1, kDegrees, Axis::H,  false, { 864,  870,  882,  888,  893,  899}},
    {"P",  Axis::P,  0x2, kDegrees, Axis::P,  false, { 904,  910,  922,  928,  933,  939}},
    {"B",  Axis::B,  0x4, kDegrees, Axis::B,  false, { 944,  950,  962,  968,  973,  979}},
    {"SX", Axis::SX, 0x1, 1,        Axis::SX, false, {1002, 1008, 1018, 1024, 1029, 1035}},
    {"SY", Axis::SY, 0x2, 1,        Axis::SY, false, {1040, 1046, 1056, 1062, 1067, 1073}},
    // SZ follows by the controller of SY, not its own, on purpose: stored rigs count on it.
    {"SZ", Axis::SZ, 0x4, 1,        Axis::SY, false, {1078, 1084, 1094, 1100, 1105, 1111}},
    // clang-format on
};
constexpr const AxisRow& rowOf(Axis axis) { return kAxes[static_cast<std::size_t>(axis)]; }

static_assert(skg::standInOrder(kAxes, &AxisRow::axis) && std::size(kAxes) == skg::kAxes.size());

// One maker for each form, so that a row names only what is its own.
constexpr BoneCommand integer(const char* name, Slot slot, int line, When when = When::Always) {
  return {.name = name, .sends = Sends::Integer, .slot = slot, .when = when, .line = line};
}
constexpr BoneCommand switched(const char* name, Slot slot, int line) {
  return {.name = name, .sends = Sends::Switch, .slot = slot, .line = line};
}
constexpr BoneCommand real(const char* name, Slot slot, double factor, int line, When when = When::Always) {
  return {.name = name, .sends = Sends::Real, .slot = slot, .factor = factor, .when = when, .line = line};
}
constexpr BoneCommand reals(const char* name, Slot slot, Slot second, double factor, int line, When when) {
  return {
      .name = name, .sends = Sends::TwoReals, .slot = slot, .second = second, .factor = factor, .when = when, .line = line};
}
constexpr BoneCommand toggle(const char* name, Slot slot, FlagWord word, unsigned bit, int line, When when = When::Always) {
  return {.name = name,
          .sends = Sends::Toggle,
          .slot = slot,
          .when = when,
          .word = word,
          .bit = bit,
          .updates = bit,
          .line = line};
}
constexpr BoneCommand updating(BoneCommand row, unsigned bit) {
  row.updates = bit;
  return row;
}
constexpr BoneCommand item(const char* name, Sends sends, Slot slot, bool matchRotation, bool matchScale, int line,
                           int secondLine) {
  return {.name = name,
          .sends = sends,
          .slot = slot,
          .when = When::TextGiven,
          .matchRotation = matchRotation,
          .matchScale = matchScale,
          .line = line,
          .secondLine = secondLine};
}
constexpr BoneCommand axisGroup(Axis axis) {
  const AxisRow& row = rowOf(axis);
  return {.name = row.name, .sends = Sends::AxisGroup, .slot = row.settings().controller, .axis = axis};
}

constexpr FlagWord kBone = FlagWord::Bone;
constexpr FlagWord kItem = FlagWord::Item;

constexpr BoneCommand kCommands[] = {
    // clang-format off
    item("BoneSource", Sends::FoundItem, Slot::UseBonesFromObject, false, false, 342, 343),
    // The slot stores the choice from 0, the command counts from 1.
    {.name = "BoneFalloffType", .sends = Sends::Integer, .slot = Slot::FalloffType, .offset = 1, .line = 349},
    integer ("BoneMode",                Slot::BoneCalc,               353),
    integer ("NumLimitedBones",         Slot::LimitBoneNum,           357),
    switched("BoneType",                Slot::BoneType,               382),
    toggle  ("BoneActive",              Slot::BoneActive,             kBone, lw::kBoneActive,              389),
    {.name = "BoneWeightMapName", .sends = Sends::WeightMap, .slot = Slot::WeightMap, .line = 398, .secondLine = 401},
    toggle  ("BoneWeightMapOnly",       Slot::WeightMapOnly,          kBone, lw::kBoneWeightMapOnly,       410, When::HasWeightMap),
    // Sent under the same name as the switch above, on purpose: stored rigs count on what the second one does to the first.
    toggle  ("BoneWeightMapOnly",       Slot::WeightNormalization,    kBone, lw::kBoneWeightNormalization, 422, When::HasWeightMapAndOnly),
    real    ("BoneStrength",            Slot::Strength,               kPercent, 430),
    toggle  ("BoneStrengthMultiply",    Slot::StrengthMultiply,       kBone, lw::kBoneStrengthMultiply,    436),
    toggle  ("BoneLimitedRange",        Slot::LimitedRange,           kBone, lw::kBoneLimitedRange,        445),
    // The range is stored in metres and sent as if it were a percentage, on purpose: that is what stored rigs get.
    real    ("BoneMinRange",            Slot::RangeMin,               kPercent, 455, When::LimitedRangeOn),
    real    ("BoneMaxRange",            Slot::RangeMax,               kPercent, 456, When::LimitedRangeOn),
    toggle  ("BoneJointComp",           Slot::JointComp,              kBone, lw::kBoneJointComp,           463),
    toggle  ("BoneJointCompParent",     Slot::JointCompParent,        kBone, lw::kBoneJointCompParent,     472),
    reals   ("BoneJointCompAmounts",    Slot::JointCompAmount,        Slot::JointCompParentAmount,  kPercent, 483, When::JointCompOn),
    toggle  ("BoneMuscleFlex",          Slot::MuscleFlex,             kBone, lw::kBoneMuscleFlex,          0),  // the one command that ends without a report
    toggle  ("BoneMuscleFlexParent",    Slot::MuscleFlexParent,       kBone, lw::kBoneMuscleFlexParent,    499),
    reals   ("BoneMuscleFlexAmounts",   Slot::MuscleFlexAmount,       Slot::MuscleFlexParentAmount, kPercent, 510, When::MuscleFlexOn),
    toggle  ("BoneBulge",               Slot::Bulge,                  kBone, lw::kBoneBulge,               517),
    real    ("BoneBulgeAmount",         Slot::BulgeAmount,            kPercent, 525, When::BulgeOn),
    toggle  ("BoneBulgeParent",         Slot::BulgeParent,            kBone, lw::kBoneBulgeParent,         532),
    real    ("BoneBulgeParentAmount",   Slot::BulgeParentAmount,      kPercent, 540, When::BulgeParentOn),
    toggle  ("BoneTwist",               Slot::Twist,                  kBone, lw::kBoneTwist,               548, When::IsJoint),
    real    ("BoneTwistAmount",         Slot::TwistAmount,            kPercent, 557, When::IsTwistedJoint),
    real    ("ItemIconScale",           Slot::IconSize,               kPercent, 562),
    item    ("TargetItem", Sends::ItemOrNull, Slot::TargetItem,       false, false, 568, 569),
    item    ("PoleItem",   Sends::ItemOrNull, Slot::PoleItem,         false, false, 577, 578),
    integer ("RotationOrder",           Slot::RotationOrder,          585),
    toggle  ("UnaffectedByIK",          Slot::UnaffectedByIK,         kItem, lw::kItemUnaffectedByIK,      592),
    item    ("GoalItem",   Sends::ItemOrNull, Slot::GoalObject,       true,  false, 601, 602),
    integer ("GoalObjective",           Slot::Objective,              609, When::HasGoal),
    integer ("IKInitialState",          Slot::IKInitialState,         615),
    integer ("IKInitialStateFrame",     Slot::IKInitialStateFrame,    621, When::StartsAtFrame),
    // What is kept of it is the bit of UnaffectedByIK, not its own, on purpose: nothing that is sent later asks for either.
    updating(toggle("UseIKChainVals",   Slot::Chain,                  kItem, lw::kItemUseIKChain,          633, When::FollowsIKParent),
             lw::kItemUnaffectedByIK),
    real    ("IKFKBlending",            Slot::IKFKBlending,           kPercent, 642),
    real    ("GoalStrength",            Slot::GoalStrength,           1,        647, When::HasGoal),
    integer ("SoftIK",                  Slot::SoftIK,                 653, When::HasReachableGoal),
    integer ("SoftIKDistanceType",      Slot::SoftIKDistanceType,     665, When::HasSoftIK),
    real    ("SoftIKMin",               Slot::SoftIKMin,              kPercent, 666, When::HasSoftIK),
    real    ("SoftIKMax",               Slot::SoftIKMax,              kPercent, 667, When::HasSoftIK),
    toggle  ("MatchGoalOrientation",    Slot::MatchGoalOrientation,   kItem, lw::kItemMatchGoalOrientation, 675, When::HasGoal),
    toggle  ("KeepGoalWithinReach",     Slot::KeepGoalInReach,        kItem, lw::kItemKeepGoalInReach,     685, When::HasGoal),
    toggle  ("FullTimeIK",              Slot::FullTimeIK,             kItem, lw::kItemFullTimeIK,          695, When::HasGoal),
    integer ("PositionItemWorld",       Slot::PositionItemWorld,      702),
    item    ("PositionItem", Sends::ItemOrNull, Slot::PositionItem,   false, false, 708, 709),
    integer ("PositionItemBlendMethod", Slot::PositionBlendMethod,    715),
    real    ("PositionItemBlend",       Slot::PositionBlend,          kPercent, 720, When::HasPositionItem),
    axisGroup(Axis::X), axisGroup(Axis::Y), axisGroup(Axis::Z),
    integer ("RotationItemWorld",       Slot::RotationItemWorld,      841),
    item    ("RotationItem", Sends::ItemOrNull, Slot::RotationItem,   true,  false, 847, 848),
    integer ("RotationItemBlendMethod", Slot::RotationBlendMethod,    854),
    real    ("RotationItemBlend",       Slot::RotationBlend,          kPercent, 859, When::HasRotationItem),
    axisGroup(Axis::H), axisGroup(Axis::P), axisGroup(Axis::B),
    // Sent whatever came of the null, unlike the other items: where none could be made, the command goes out with no item.
    item    ("ScaleItem",  Sends::ItemUnchecked, Slot::ScaleItem,     true,  true,  986, 986),
    integer ("ScaleItemBlendMethod",    Slot::ScaleBlendMethod,       992),
    real    ("ScaleItemBlend",          Slot::ScaleBlend,             kPercent, 997, When::HasScaleItem),
    axisGroup(Axis::SX), axisGroup(Axis::SY), axisGroup(Axis::SZ),
    real    ("PathAlignLookAhead",      Slot::PathLookAhead,          1, 1123, When::AlignsToPath),
    real    ("PathAlignMaxLookSteps",   Slot::PathMaxSteps,           1, 1125, When::AlignsToPath),
    real    ("PathAlignReliableDist",   Slot::PathReliableDistance,   1, 1127, When::AlignsToPath),
    switched("ItemVisibility",          Slot::Visibility,             1132),
    {.name = "ItemColor", .sends = Sends::Colour, .slot = Slot::Colour, .line = 1137},
    // clang-format on
};

// The range, the soft IK distances and the path alignment are three rows of two and three commands.
constexpr std::size_t kCommandsSharingARow = 1 + 2 + 2;

constexpr std::size_t countedRows() {
  std::size_t rows = 0;
  for (const BoneCommand& command : kCommands) rows += command.sends == Sends::AxisGroup ? std::size_t{kAxisCommands} : 1;
  return rows - kCommandsSharingARow;
}
static_assert(countedRows() == kBoneCommandRows);

// By a command of its own, in the group of its axis, or with the linked item that it belongs to.
constexpr bool isSent(Slot slot) {
  for (const BoneCommand& command : kCommands) {
    if (command.slot == slot || command.second == slot) return true;
  }
  for (const skg::AxisSettings& axis : skg::kAxes) {
    for (const Slot one :
         {axis.controller, axis.limits, axis.least, axis.greatest, axis.stiffness, axis.follow, axis.factor, axis.offset}) {
      if (one == slot) return true;
    }
  }
  for (const skg::LinkedItem& item : skg::kLinkedItems) {
    for (const Slot one : {item.name, item.parent, item.shape, item.visibility, item.colour}) {
      if (one == slot) return true;
    }
  }
  return slot == Slot::Name || slot == Slot::ParentItem;  // by which the bone and its parent are found
}
constexpr bool everySettingIsSent() {
  for (const skg::SlotRow& row : skg::kSlotTable) {
    if (row.kind != skg::SlotKind::Reserved && !isSent(row.slot)) return false;
  }
  return true;
}
static_assert(everySettingIsSent());

}  // namespace

std::span<const BoneCommand> boneCommands() { return kCommands; }
std::span<const AxisRow> axisRows() { return kAxes; }

}  // namespace lwp
