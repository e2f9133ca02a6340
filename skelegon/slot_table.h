// What each of the 187 settings is, in one row: everything that reads, shows, writes, sends or documents a setting walks
// this table. To give a setting to a reserved slot, fill in its row; what else it needs then fails to compile or in a test
// that names it.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "skelegon/slots.h"
#include "skelegon/table_order.h"
#include "texts/texts.h"

namespace skg {

// What a setting belongs to in Layout. A setting of the layer is stored on each of the layer's skelegons.
enum class Scope { Skelegon, Layer };

struct SlotRow {
  Slot slot;
  SlotKind kind;
  const char* defaultText;
  const char* setting;                            // the setting's English name, unique; empty for reserved slots
  std::optional<texts::ChoiceList> choices = {};  // of choices and colours: what the numbers stand for
  Scope scope = Scope::Skelegon;
};

using texts::ChoiceList;

// Defaults that look odd are deliberate: values are compared with them as texts, so a slot whose default is not in the form
// that is written (JointCompAmount, IKFKBlending, PathMaxSteps, YScaleMin) is always stored, and stored objects rely on it.
// So are the Max of Y position and of Y scale, which differ from those of X and Z.
inline constexpr std::array<SlotRow, kSlotCount> kSlotTable = {{
    // clang-format off
    // slot                        kind                     default        setting                                  choices,
    // scope
    {Slot::Reserved0,              SlotKind::Reserved,      "",            ""},
    {Slot::Reserved1,              SlotKind::Reserved,      "",            ""},
    {Slot::Reserved2,              SlotKind::Reserved,      "",            ""},
    {Slot::Reserved3,              SlotKind::Reserved,      "",            ""},
    {Slot::Reserved4,              SlotKind::Reserved,      "",            ""},
    {Slot::Reserved5,              SlotKind::Reserved,      "",            ""},
    {Slot::Name,                   SlotKind::Text,          "",            "Skelegon"},
    {Slot::Reserved7,              SlotKind::Reserved,      "",            ""},
    {Slot::Reserved8,              SlotKind::Reserved,      "",            ""},
    {Slot::Reserved9,              SlotKind::Reserved,      "",            ""},
    {Slot::Reserved10,             SlotKind::Reserved,      "",            ""},
    {Slot::Reserved11,             SlotKind::Reserved,      "",            ""},
    {Slot::UseBonesFromObject,     SlotKind::ObjectName,    "",            "Use Bones From Object",                {}, Scope::Layer},
    {Slot::FalloffType,            SlotKind::Choice,        "4",           "Falloff Type",                         ChoiceList::FalloffType, Scope::Layer},
    {Slot::Reserved14,             SlotKind::Reserved,      "0",           ""},
    {Slot::Reserved15,             SlotKind::Reserved,      "0",           ""},
    {Slot::BoneCalc,               SlotKind::Choice,        "2",           "Bone Calc",                            ChoiceList::BoneCalc, Scope::Layer},
    {Slot::LimitBoneNum,           SlotKind::Integer,       "4",           "Limit Bone Num",                       {}, Scope::Layer},
    {Slot::Reserved18,             SlotKind::Reserved,      "",            ""},
    {Slot::Reserved19,             SlotKind::Reserved,      "",            ""},
    {Slot::Reserved20,             SlotKind::Reserved,      "",            ""},
    {Slot::Reserved21,             SlotKind::Reserved,      "",            ""},
    {Slot::Reserved22,             SlotKind::Reserved,      "",            ""},
    {Slot::Reserved23,             SlotKind::Reserved,      "",            ""},
    {Slot::Reserved24,             SlotKind::Reserved,      "",            ""},
    {Slot::Reserved25,             SlotKind::Reserved,      "",            ""},
    {Slot::BoneType,               SlotKind::Choice,        "0",           "Bone Type",                            ChoiceList::BoneType},
    {Slot::BoneActive,             SlotKind::Flag,          "1",           "Bone Active"},
    {Slot::WeightMap,              SlotKind::WeightMapName, "",            "Bone Weight Map"},
    {Slot::WeightMapOnly,          SlotKind::Flag,          "0",           "Use Weight Map Only"},
    {Slot::WeightNormalization,    SlotKind::Flag,          "0",           "Weight Normalization"},
    {Slot::Strength,               SlotKind::Percent,       "100.000000",  "Strength"},
    {Slot::StrengthMultiply,       SlotKind::Flag,          "1",           "Multiply Strength by Rest Length"},
    {Slot::LimitedRange,           SlotKind::Flag,          "0",           "Limited Range"},
    {Slot::RangeMin,               SlotKind::Distance,      "0.000000",    "Min (Limited Range)"},
    {Slot::RangeMax,               SlotKind::Distance,      "1.000000",    "Max (Limited Range)"},
    {Slot::JointComp,              SlotKind::Flag,          "0",           "Joint Compensation"},
    {Slot::JointCompAmount,        SlotKind::Percent,       "100.0",       "Joint Compensation amount"},
    {Slot::JointCompParent,        SlotKind::Flag,          "0",           "Joint Comp for Parent"},
    {Slot::JointCompParentAmount,  SlotKind::Percent,       "100.000000",  "Joint Comp for Parent amount"},
    {Slot::MuscleFlex,             SlotKind::Flag,          "0",           "Muscle Flexing"},
    {Slot::MuscleFlexAmount,       SlotKind::Percent,       "100.000000",  "Muscle Flexing amount"},
    {Slot::MuscleFlexParent,       SlotKind::Flag,          "0",           "Parental Muscle Flexing"},
    {Slot::MuscleFlexParentAmount, SlotKind::Percent,       "100.000000",  "Parental Muscle Flexing amount"},
    {Slot::Bulge,                  SlotKind::Flag,          "0",           "Muscle Bulge"},
    {Slot::BulgeAmount,            SlotKind::Percent,       "100.000000",  "Muscle Bulge amount"},
    {Slot::BulgeParent,            SlotKind::Flag,          "0",           "Parent Muscle Bulge"},
    {Slot::BulgeParentAmount,      SlotKind::Percent,       "100.000000",  "Parent Muscle Bulge amount"},
    {Slot::Twist,                  SlotKind::Flag,          "0",           "Twist"},
    {Slot::TwistAmount,            SlotKind::Percent,       "100.000000",  "Twist amount"},
    {Slot::IconSize,               SlotKind::Percent,       "100.000000",  "Bone Icon Size"},
    {Slot::ParentItem,             SlotKind::ItemName,      "",            "Parent Item"},
    {Slot::TargetItem,             SlotKind::ItemName,      "",            "Target Item"},
    {Slot::PoleItem,               SlotKind::ItemName,      "",            "Pole Item"},
    {Slot::UnaffectedByIK,         SlotKind::Flag,          "0",           "Unaffected by IK of Descendants"},
    {Slot::GoalObject,             SlotKind::ItemName,      "",            "Goal Object"},
    {Slot::Objective,              SlotKind::Choice,        "0",           "Objective",                            ChoiceList::Objective},
    {Slot::IKInitialState,         SlotKind::Choice,        "0",           "IK initial state",                     ChoiceList::IKInitialState},
    {Slot::IKInitialStateFrame,    SlotKind::Integer,       "0",           "Frame (IK initial state frame)"},
    {Slot::Chain,                  SlotKind::Flag,          "1",           "Chain"},
    {Slot::IKFKBlending,           SlotKind::Percent,       "0",           "IK/FK Blending"},
    {Slot::GoalStrength,           SlotKind::Number,        "1.000000",    "Goal Strength"},
    {Slot::SoftIK,                 SlotKind::Choice,        "0",           "Soft IK",                              ChoiceList::SoftIK},
    {Slot::SoftIKDistanceType,     SlotKind::Choice,        "0",           "Distance Type",                        ChoiceList::DistanceType},
    {Slot::SoftIKMin,              SlotKind::Percent,       "25.000000",   "Min (Soft IK)"},
    {Slot::SoftIKMax,              SlotKind::Percent,       "75.000000",   "Max (Soft IK)"},
    {Slot::MatchGoalOrientation,   SlotKind::Flag,          "0",           "Match Goal Orientation"},
    {Slot::KeepGoalInReach,        SlotKind::Flag,          "0",           "Keep Goal In Reach"},
    {Slot::FullTimeIK,             SlotKind::Flag,          "1",           "Full-time IK"},
    {Slot::PathLookAhead,          SlotKind::Number,        "0.033000",    "Align to Path Look-ahead"},
    {Slot::PathMaxSteps,           SlotKind::Number,        "10",          "Max Steps"},
    {Slot::PathReliableDistance,   SlotKind::Distance,      "0.001000",    "Reliable Distance"},
    {Slot::PositionItemWorld,      SlotKind::Flag,          "0",           "World (Position Item)"},
    {Slot::PositionItem,           SlotKind::ItemName,      "",            "Position Item"},
    {Slot::PositionBlendMethod,    SlotKind::Choice,        "0",           "Position blend method",                ChoiceList::BlendMethod},
    {Slot::PositionBlend,          SlotKind::Percent,       "100.000000",  "Position blend amount"},
    {Slot::XPositionController,    SlotKind::Choice,        "0",           "X Position Controller",                ChoiceList::Controller},
    {Slot::XPositionLimits,        SlotKind::Flag,          "0",           "X Pos Limits"},
    {Slot::XPositionMin,           SlotKind::Number,        "-1.000000",   "Min (X Pos Limits)"},
    {Slot::XPositionMax,           SlotKind::Number,        "1.000000",    "Max (X Pos Limits)"},
    {Slot::XPositionStiffness,     SlotKind::Number,        "1.000000",    "X Position Stiffness"},
    {Slot::YPositionController,    SlotKind::Choice,        "0",           "Y Position Controller",                ChoiceList::Controller},
    {Slot::YPositionLimits,        SlotKind::Flag,          "0",           "Y Pos Limits"},
    {Slot::YPositionMin,           SlotKind::Number,        "-1.000000",   "Min (Y Pos Limits)"},
    {Slot::YPositionMax,           SlotKind::Number,        "0.000000",    "Max (Y Pos Limits)"},
    {Slot::YPositionStiffness,     SlotKind::Number,        "1.000000",    "Y Position Stiffness"},
    {Slot::ZPositionController,    SlotKind::Choice,        "0",           "Z Position Controller",                ChoiceList::Controller},
    {Slot::ZPositionLimits,        SlotKind::Flag,          "0",           "Z Pos Limits"},
    {Slot::ZPositionMin,           SlotKind::Number,        "-1.000000",   "Min (Z Pos Limits)"},
    {Slot::ZPositionMax,           SlotKind::Number,        "1.000000",    "Max (Z Pos Limits)"},
    {Slot::ZPositionStiffness,     SlotKind::Number,        "1.000000",    "Z Position Stiffness"},
    {Slot::RotationItemWorld,      SlotKind::Flag,          "0",           "World (Rotation Item)"},
    {Slot::RotationItem,           SlotKind::ItemName,      "",            "Rotation Item"},
    {Slot::RotationBlendMethod,    SlotKind::Choice,        "0",           "Rotation blend method",                ChoiceList::BlendMethod},
    {Slot::RotationBlend,          SlotKind::Percent,       "100.000000",  "Rotation blend amount"},
    {Slot::HeadingController,      SlotKind::Choice,        "0",           "Heading Controller",                   ChoiceList::Controller},
    {Slot::HeadingLimits,          SlotKind::Flag,          "0",           "Heading Limits"},
    {Slot::HeadingMin,             SlotKind::Angle,         "-3.141592",   "Min (Heading Limits)"},
    {Slot::HeadingMax,             SlotKind::Angle,         "3.141592",    "Max (Heading Limits)"},
    {Slot::HeadingStiffness,       SlotKind::Number,        "1.000000",    "Heading Stiffness"},
    {Slot::PitchController,        SlotKind::Choice,        "0",           "Pitch Controller",                     ChoiceList::Controller},
    {Slot::PitchLimits,            SlotKind::Flag,          "0",           "Pitch Limits"},
    {Slot::PitchMin,               SlotKind::Angle,         "-3.141592",   "Min (Pitch Limits)"},
    {Slot::PitchMax,               SlotKind::Angle,         "3.141592",    "Max (Pitch Limits)"},
    {Slot::PitchStiffness,         SlotKind::Number,        "1.000000",    "Pitch Stiffness"},
    {Slot::BankController,         SlotKind::Choice,        "0",           "Bank Controller",                      ChoiceList::Controller},
    {Slot::BankLimits,             SlotKind::Flag,          "0",           "Bank Limits"},
    {Slot::BankMin,                SlotKind::Angle,         "-3.141592",   "Min (Bank Limits)"},
    {Slot::BankMax,                SlotKind::Angle,         "3.141592",    "Max (Bank Limits)"},
    {Slot::BankStiffness,          SlotKind::Number,        "1.000000",    "Bank Stiffness"},
    {Slot::ScaleItem,              SlotKind::ItemName,      "",            "Scale Item"},
    {Slot::ScaleBlendMethod,       SlotKind::Choice,        "0",           "Scale blend method",                   ChoiceList::BlendMethod},
    {Slot::ScaleBlend,             SlotKind::Percent,       "100.000000",  "Scale blend amount"},
    {Slot::XScaleController,       SlotKind::Choice,        "0",           "X Scale Controller",                   ChoiceList::Controller},
    {Slot::XScaleLimits,           SlotKind::Flag,          "0",           "X Scale Limits"},
    {Slot::XScaleMin,              SlotKind::Number,        "0.000000",    "Min (X Scale Limits)"},
    {Slot::XScaleMax,              SlotKind::Number,        "1.000000",    "Max (X Scale Limits)"},
    {Slot::XScaleStiffness,        SlotKind::Number,        "1.000000",    "X Scale Stiffness"},
    {Slot::YScaleController,       SlotKind::Choice,        "0",           "Y Scale Controller",                   ChoiceList::Controller},
    {Slot::YScaleLimits,           SlotKind::Flag,          "0",           "Y Scale Limits"},
    {Slot::YScaleMin,              SlotKind::Number,        "0",           "Min (Y Scale Limits)"},
    {Slot::YScaleMax,              SlotKind::Number,        "0.000000",    "Max (Y Scale Limits)"},
    {Slot::YScaleStiffness,        SlotKind::Number,        "1.000000",    "Y Scale Stiffness"},
    {Slot::ZScaleController,       SlotKind::Choice,        "0",           "Z Scale Controller",                   ChoiceList::Controller},
    {Slot::ZScaleLimits,           SlotKind::Flag,          "0",           "Z Scale Limits"},
    {Slot::ZScaleMin,              SlotKind::Number,        "0.000000",    "Min (Z Scale Limits)"},
    {Slot::ZScaleMax,              SlotKind::Number,        "1.000000",    "Max (Z Scale Limits)"},
    {Slot::ZScaleStiffness,        SlotKind::Number,        "1.000000",    "Z Scale Stiffness"},
    {Slot::Visibility,             SlotKind::Choice,        "1",           "Visibility (bone)",                    ChoiceList::OffOn},
    {Slot::Colour,                 SlotKind::Colour,        "Modeler",     "Color (bone)",                         ChoiceList::Colour},
    {Slot::TargetParent,           SlotKind::ItemName,      "",            "Target Item Parent"},
    {Slot::PoleParent,             SlotKind::ItemName,      "",            "Pole Item Parent"},
    {Slot::GoalParent,             SlotKind::ItemName,      "",            "Goal Object Parent"},
    {Slot::PositionParent,         SlotKind::ItemName,      "",            "Position Item Parent"},
    {Slot::RotationParent,         SlotKind::ItemName,      "",            "Rotation Item Parent"},
    {Slot::ScaleParent,            SlotKind::ItemName,      "",            "Scale Item Parent"},
    {Slot::TargetShape,            SlotKind::Flag,          "0",           "Shp (Target Item)"},
    {Slot::PoleShape,              SlotKind::Flag,          "0",           "Shp (Pole Item)"},
    {Slot::GoalShape,              SlotKind::Flag,          "0",           "Shp (Goal Object)"},
    {Slot::PositionShape,          SlotKind::Flag,          "0",           "Shp (Position Item)"},
    {Slot::RotationShape,          SlotKind::Flag,          "0",           "Shp (Rotation Item)"},
    {Slot::ScaleShape,             SlotKind::Flag,          "0",           "Shp (Scale Item)"},
    {Slot::InitialPositionItem,    SlotKind::ItemName,      "",            "Initial Position Item"},
    {Slot::InitialPositionShape,   SlotKind::Flag,          "0",           "Shp (Initial Position Item)"},
    {Slot::Reserved144,            SlotKind::Reserved,      "",            ""},
    {Slot::TargetVisibility,       SlotKind::Choice,        "1",           "Visibility (Target Item)",             ChoiceList::OffOn},
    {Slot::PoleVisibility,         SlotKind::Choice,        "1",           "Visibility (Pole Item)",               ChoiceList::OffOn},
    {Slot::GoalVisibility,         SlotKind::Choice,        "1",           "Visibility (Goal Object)",             ChoiceList::OffOn},
    {Slot::PositionVisibility,     SlotKind::Choice,        "1",           "Visibility (Position Item)",           ChoiceList::OffOn},
    {Slot::RotationVisibility,     SlotKind::Choice,        "1",           "Visibility (Rotation Item)",           ChoiceList::OffOn},
    {Slot::ScaleVisibility,        SlotKind::Choice,        "1",           "Visibility (Scale Item)",              ChoiceList::OffOn},
    {Slot::InitialPositionVisibility, SlotKind::Choice,        "1",           "Visibility (Initial Position Item)",   ChoiceList::OffOn},
    {Slot::TargetColour,           SlotKind::Colour,        "Modeler",     "Color (Target Item)",                  ChoiceList::Colour},
    {Slot::PoleColour,             SlotKind::Colour,        "Modeler",     "Color (Pole Item)",                    ChoiceList::Colour},
    {Slot::GoalColour,             SlotKind::Colour,        "Modeler",     "Color (Goal Object)",                  ChoiceList::Colour},
    {Slot::PositionColour,         SlotKind::Colour,        "Modeler",     "Color (Position Item)",                ChoiceList::Colour},
    {Slot::RotationColour,         SlotKind::Colour,        "Modeler",     "Color (Rotation Item)",                ChoiceList::Colour},
    {Slot::ScaleColour,            SlotKind::Colour,        "Modeler",     "Color (Scale Item)",                   ChoiceList::Colour},
    {Slot::InitialPositionColour,  SlotKind::Colour,        "Modeler",     "Color (Initial Position Item)",        ChoiceList::Colour},
    {Slot::XPositionFollow,        SlotKind::Choice,        "0",           "Follow (X Position)",                  ChoiceList::FollowChannel},
    {Slot::XPositionFactor,        SlotKind::Number,        "1.000000",    "X/+ factor (X Position)"},
    {Slot::XPositionOffset,        SlotKind::Number,        "0.000000",    "Offset (X Position)"},
    {Slot::YPositionFollow,        SlotKind::Choice,        "1",           "Follow (Y Position)",                  ChoiceList::FollowChannel},
    {Slot::YPositionFactor,        SlotKind::Number,        "1.000000",    "X/+ factor (Y Position)"},
    {Slot::YPositionOffset,        SlotKind::Number,        "0.000000",    "Offset (Y Position)"},
    {Slot::ZPositionFollow,        SlotKind::Choice,        "2",           "Follow (Z Position)",                  ChoiceList::FollowChannel},
    {Slot::ZPositionFactor,        SlotKind::Number,        "1.000000",    "X/+ factor (Z Position)"},
    {Slot::ZPositionOffset,        SlotKind::Number,        "0.000000",    "Offset (Z Position)"},
    {Slot::HeadingFollow,          SlotKind::Choice,        "3",           "Follow (Heading)",                     ChoiceList::FollowChannel},
    {Slot::HeadingFactor,          SlotKind::Number,        "1.000000",    "X/+ factor (Heading)"},
    {Slot::HeadingOffset,          SlotKind::Number,        "0.000000",    "Offset (Heading)"},
    {Slot::PitchFollow,            SlotKind::Choice,        "4",           "Follow (Pitch)",                       ChoiceList::FollowChannel},
    {Slot::PitchFactor,            SlotKind::Number,        "1.000000",    "X/+ factor (Pitch)"},
    {Slot::PitchOffset,            SlotKind::Number,        "0.000000",    "Offset (Pitch)"},
    {Slot::BankFollow,             SlotKind::Choice,        "5",           "Follow (Bank)",                        ChoiceList::FollowChannel},
    {Slot::BankFactor,             SlotKind::Number,        "1.000000",    "X/+ factor (Bank)"},
    {Slot::BankOffset,             SlotKind::Number,        "0.000000",    "Offset (Bank)"},
    {Slot::XScaleFollow,           SlotKind::Choice,        "6",           "Follow (X Scale)",                     ChoiceList::FollowChannel},
    {Slot::XScaleFactor,           SlotKind::Number,        "1.000000",    "X/+ factor (X Scale)"},
    {Slot::XScaleOffset,           SlotKind::Number,        "0.000000",    "Offset (X Scale)"},
    {Slot::YScaleFollow,           SlotKind::Choice,        "7",           "Follow (Y Scale)",                     ChoiceList::FollowChannel},
    {Slot::YScaleFactor,           SlotKind::Number,        "1.000000",    "X/+ factor (Y Scale)"},
    {Slot::YScaleOffset,           SlotKind::Number,        "0.000000",    "Offset (Y Scale)"},
    {Slot::ZScaleFollow,           SlotKind::Choice,        "8",           "Follow (Z Scale)",                     ChoiceList::FollowChannel},
    {Slot::ZScaleFactor,           SlotKind::Number,        "1.000000",    "X/+ factor (Z Scale)"},
    {Slot::ZScaleOffset,           SlotKind::Number,        "0.000000",    "Offset (Z Scale)"},
    {Slot::RotationOrder,          SlotKind::Choice,        "3",           "Rotation Order",                       ChoiceList::RotationOrder},
    // clang-format on
}};

constexpr const SlotRow& rowOf(Slot slot) { return kSlotTable[indexOf(slot)]; }

constexpr bool rowsAreWhole() {
  for (const SlotRow& row : kSlotTable) {
    if ((row.kind == SlotKind::Reserved) != (*row.setting == '\0')) return false;
    if ((row.kind == SlotKind::Choice || row.kind == SlotKind::Colour) != row.choices.has_value()) return false;
  }
  return true;
}
static_assert(standInOrder(kSlotTable, &SlotRow::slot) && rowsAreWhole());
static_assert(indexOf(Slot::RotationOrder) + 1 == kSlotCount);

}  // namespace skg
