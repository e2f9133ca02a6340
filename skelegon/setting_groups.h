// Settings that belong together: the seven items that a bone may be linked to, and the nine channels of its motion. The
// panel lays them out, the conversion sends them, and the tools that look into rigs judge them from these rows.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "skelegon/slots.h"
#include "skelegon/table_order.h"

namespace skg {

// An item beside the bone that the conversion looks up by its name, or makes.
struct LinkedItem {
  Slot name, parent, shape, visibility, colour;
  const char* suffix;  // behind a skelegon's name, the name that the panel's fill button gives
};

// In the order in which the conversion goes through them.
inline constexpr std::array<LinkedItem, 7> kLinkedItems = {{
    // clang-format off
    {Slot::TargetItem,   Slot::TargetParent,   Slot::TargetShape,   Slot::TargetVisibility,   Slot::TargetColour,   "_tar"},
    {Slot::PoleItem,     Slot::PoleParent,     Slot::PoleShape,     Slot::PoleVisibility,     Slot::PoleColour,     "_pole"},
    {Slot::GoalObject,   Slot::GoalParent,     Slot::GoalShape,     Slot::GoalVisibility,     Slot::GoalColour,     "_goal"},
    {Slot::PositionItem, Slot::PositionParent, Slot::PositionShape, Slot::PositionVisibility, Slot::PositionColour, "_pos"},
    {Slot::RotationItem, Slot::RotationParent, Slot::RotationShape, Slot::RotationVisibility, Slot::RotationColour, "_rot"},
    {Slot::ScaleItem,    Slot::ScaleParent,    Slot::ScaleShape,    Slot::ScaleVisibility,    Slot::ScaleColour,    "_scl"},
    // The initial position item shares the position item's parent: it has no setting of its own for one.
    {Slot::InitialPositionItem, Slot::PositionParent, Slot::InitialPositionShape, Slot::InitialPositionVisibility,
     Slot::InitialPositionColour, "_initpos"},
    // clang-format on
}};

// The item whose name a slot holds; null for every other slot.
constexpr const LinkedItem* linkedItemOf(Slot name) {
  const auto found =
      std::find_if(kLinkedItems.begin(), kLinkedItems.end(), [&](const LinkedItem& i) { return i.name == name; });
  return found == kLinkedItems.end() ? nullptr : &*found;
}

// Whether a slot names the parent of the bone or of a linked item. A parent is only looked up, never made.
constexpr bool isParentName(Slot slot) {
  return slot == Slot::ParentItem ||
         std::any_of(kLinkedItems.begin(), kLinkedItems.end(), [&](const LinkedItem& i) { return i.parent == slot; });
}

// ---------------------------------------------------------------------------------------------------------------------

enum class MotionGroup : std::size_t { Position, Rotation, Scale };
inline constexpr std::size_t kMotionGroupCount = 3;

// In the order of the host's three-element answers, group by group.
enum class Axis : std::size_t { X, Y, Z, H, P, B, SX, SY, SZ };

// One channel of a bone's motion: who controls it, its limits, and whose channel it follows.
struct AxisSettings {
  Axis axis;
  MotionGroup group;
  Slot controller, limits, least, greatest, stiffness;
  Slot follow, factor, offset;
};

inline constexpr std::array<AxisSettings, 9> kAxes = {{
    // clang-format off
    // axis    group                  controller                 limits                 least               greatest
    //         stiffness                     follow                 factor                 offset
    {Axis::X,  MotionGroup::Position, Slot::XPositionController, Slot::XPositionLimits, Slot::XPositionMin, Slot::XPositionMax,
               Slot::XPositionStiffness,     Slot::XPositionFollow, Slot::XPositionFactor, Slot::XPositionOffset},
    {Axis::Y,  MotionGroup::Position, Slot::YPositionController, Slot::YPositionLimits, Slot::YPositionMin, Slot::YPositionMax,
               Slot::YPositionStiffness,     Slot::YPositionFollow, Slot::YPositionFactor, Slot::YPositionOffset},
    {Axis::Z,  MotionGroup::Position, Slot::ZPositionController, Slot::ZPositionLimits, Slot::ZPositionMin, Slot::ZPositionMax,
               Slot::ZPositionStiffness,     Slot::ZPositionFollow, Slot::ZPositionFactor, Slot::ZPositionOffset},
    {Axis::H,  MotionGroup::Rotation, Slot::HeadingController,   Slot::HeadingLimits,   Slot::HeadingMin,   Slot::HeadingMax,
               Slot::HeadingStiffness,       Slot::HeadingFollow,   Slot::HeadingFactor,   Slot::HeadingOffset},
    {Axis::P,  MotionGroup::Rotation, Slot::PitchController,     Slot::PitchLimits,     Slot::PitchMin,     Slot::PitchMax,
               Slot::PitchStiffness,         Slot::PitchFollow,     Slot::PitchFactor,     Slot::PitchOffset},
    {Axis::B,  MotionGroup::Rotation, Slot::BankController,      Slot::BankLimits,      Slot::BankMin,      Slot::BankMax,
               Slot::BankStiffness,          Slot::BankFollow,      Slot::BankFactor,      Slot::BankOffset},
    {Axis::SX, MotionGroup::Scale,    Slot::XScaleController,    Slot::XScaleLimits,    Slot::XScaleMin,    Slot::XScaleMax,
               Slot::XScaleStiffness,        Slot::XScaleFollow,    Slot::XScaleFactor,    Slot::XScaleOffset},
    {Axis::SY, MotionGroup::Scale,    Slot::YScaleController,    Slot::YScaleLimits,    Slot::YScaleMin,    Slot::YScaleMax,
               Slot::YScaleStiffness,        Slot::YScaleFollow,    Slot::YScaleFactor,    Slot::YScaleOffset},
    {Axis::SZ, MotionGroup::Scale,    Slot::ZScaleController,    Slot::ZScaleLimits,    Slot::ZScaleMin,    Slot::ZScaleMax,
               Slot::ZScaleStiffness,        Slot::ZScaleFollow,    Slot::ZScaleFactor,    Slot::ZScaleOffset},
    // clang-format on
}};

constexpr const AxisSettings& settingsOf(Axis axis) { return kAxes[static_cast<std::size_t>(axis)]; }

constexpr bool groupsHaveThreeAxesEach() {
  for (std::size_t i = 0; i < kAxes.size(); ++i) {
    if (static_cast<std::size_t>(kAxes[i].group) != i / 3) return false;
  }
  return true;
}
static_assert(standInOrder(kAxes, &AxisSettings::axis) && groupsHaveThreeAxesEach());

}  // namespace skg
