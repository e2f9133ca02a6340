#include "skelegon/slots.h"

#include <algorithm>

#include "skelegon/numbers.h"

namespace skg {
namespace {

// Defaults that look odd are deliberate: values are compared with them as texts, so a slot whose default is not in the form
// that is written (JointCompAmount, IKFKBlending, PathMaxSteps, YScaleMin) is always stored, and stored objects rely on it.
// So are the Max of Y position and of Y scale, which differ from those of X and Z.
constexpr std::array<SlotRow, kSlotCount> kSlots = {{
    // clang-format off
    // slot                           kind                     default        setting
    {Slot::Reserved0,                 SlotKind::Reserved,      "",            ""},
    {Slot::Reserved1,                 SlotKind::Reserved,      "",            ""},
    {Slot::Reserved2,                 SlotKind::Reserved,      "",            ""},
    {Slot::Reserved3,                 SlotKind::Reserved,      "",            ""},
    {Slot::Reserved4,                 SlotKind::Reserved,      "",            ""},
    {Slot::Reserved5,                 SlotKind::Reserved,      "",            ""},
    {Slot::Name,                      SlotKind::Text,          "",            "Skelegon"},
    {Slot::Reserved7,                 SlotKind::Reserved,      "",            ""},
    {Slot::Reserved8,                 SlotKind::Reserved,      "",            ""},
    {Slot::Reserved9,                 SlotKind::Reserved,      "",            ""},
    {Slot::Reserved10,                SlotKind::Reserved,      "",            ""},
    {Slot::Reserved11,                SlotKind::Reserved,      "",            ""},
    {Slot::UseBonesFromObject,        SlotKind::ObjectName,    "",            "Use Bones From Object"},
    {Slot::FalloffType,               SlotKind::Choice,        "4",           "Falloff Type"},
    {Slot::Reserved14,                SlotKind::Reserved,      "0",           ""},
    {Slot::Reserved15,                SlotKind::Reserved,      "0",           ""},
    {Slot::BoneCalc,                  SlotKind::Choice,        "2",           "Bone Calc"},
    {Slot::LimitBoneNum,              SlotKind::Integer,       "4",           "Limit Bone Num"},
    {Slot::Reserved18,                SlotKind::Reserved,      "",            ""},
    {Slot::Reserved19,                SlotKind::Reserved,      "",            ""},
    {Slot::Reserved20,                SlotKind::Reserved,      "",            ""},
    {Slot::Reserved21,                SlotKind::Reserved,      "",            ""},
    {Slot::Reserved22,                SlotKind::Reserved,      "",            ""},
    {Slot::Reserved23,                SlotKind::Reserved,      "",            ""},
    {Slot::Reserved24,                SlotKind::Reserved,      "",            ""},
    {Slot::Reserved25,                SlotKind::Reserved,      "",            ""},
    {Slot::BoneType,                  SlotKind::Choice,        "0",           "Bone Type"},
    {Slot::BoneActive,                SlotKind::Flag,          "1",           "Bone Active"},
    {Slot::WeightMap,                 SlotKind::WeightMapName, "",            "Bone Weight Map"},
    {Slot::WeightMapOnly,             SlotKind::Flag,          "0",           "Use Weight Map Only"},
    {Slot::WeightNormalization,       SlotKind::Flag,          "0",           "Weight Normalization"},
    {Slot::Strength,                  SlotKind::Percent,       "100.000000",  "Strength"},
    {Slot::StrengthMultiply,          SlotKind::Flag,          "1",           "Multiply Strength by Rest Length"},
    {Slot::LimitedRange,              SlotKind::Flag,          "0",           "Limited Range"},
    {Slot::RangeMin,                  SlotKind::Distance,      "0.000000",    "Min (Limited Range)"},
    {Slot::RangeMax,                  SlotKind::Distance,      "1.000000",    "Max (Limited Range)"},
    {Slot::JointComp,                 SlotKind::Flag,          "0",           "Joint Compensation"},
    {Slot::JointCompAmount,           SlotKind::Percent,       "100.0",       "Joint Compensation amount"},
    {Slot::JointCompParent,           SlotKind::Flag,          "0",           "Joint Comp for Parent"},
    {Slot::JointCompParentAmount,     SlotKind::Percent,       "100.000000",  "Joint Comp for Parent amount"},
    {Slot::MuscleFlex,                SlotKind::Flag,          "0",           "Muscle Flexing"},
    {Slot::MuscleFlexAmount,          SlotKind::Percent,       "100.000000",  "Muscle Flexing amount"},
    {Slot::MuscleFlexParent,          SlotKind::Flag,          "0",           "Parental Muscle Flexing"},
    {Slot::MuscleFlexParentAmount,    SlotKind::Percent,       "100.000000",  "Parental Muscle Flexing amount"},
    {Slot::Bulge,                     SlotKind::Flag,          "0",           "Muscle Bulge"},
    {Slot::BulgeAmount,               SlotKind::Percent,       "100.000000",  "Muscle Bulge amount"},
    {Slot::BulgeParent,               SlotKind::Flag,          "0",           "Parent Muscle Bulge"},
    {Slot::BulgeParentAmount,         SlotKind::Percent,       "100.000000",  "Parent Muscle Bulge amount"},
    {Slot::Twist,                     SlotKind::Flag,          "0",           "Twist"},
    {Slot::TwistAmount,               SlotKind::Percent,       "100.000000",  "Twist amount"},
    {Slot::IconSize,                  SlotKind::Percent,       "100.000000",  "Bone Icon Size"},
    {Slot::ParentItem,                SlotKind::ItemName,      "",            "Parent Item"},
    {Slot::TargetItem,                SlotKind::ItemName,      "",            "Target Item"},
    {Slot::PoleItem,                  SlotKind::ItemName,      "",            "Pole Item"},
    {Slot::UnaffectedByIK,            SlotKind::Flag,          "0",           "Unaffected by IK of Descendants"},
    {Slot::GoalObject,                SlotKind::ItemName,      "",            "Goal Object"},
    {Slot::Objective,                 SlotKind::Choice,        "0",           "Objective"},
    {Slot::IKInitialState,            SlotKind::Choice,        "0",           "IK initial state"},
    {Slot::IKInitialStateFrame,       SlotKind::Integer,       "0",           "Frame (IK initial state frame)"},
    {Slot::Chain,                     SlotKind::Flag,          "1",           "Chain"},
    {Slot::IKFKBlending,              SlotKind::Percent,       "0",           "IK/FK Blending"},
    {Slot::GoalStrength,              SlotKind::Number,        "1.000000",    "Goal Strength"},
    {Slot::SoftIK,                    SlotKind::Choice,        "0",           "Soft IK"},
    {Slot::SoftIKDistanceType,        SlotKind::Choice,        "0",           "Distance Type"},
    {Slot::SoftIKMin,                 SlotKind::Percent,       "25.000000",   "Min (Soft IK)"},
    {Slot::SoftIKMax,                 SlotKind::Percent,       "75.000000",   "Max (Soft IK)"},
    {Slot::MatchGoalOrientation,      SlotKind::Flag,          "0",           "Match Goal Orientation"},
    {Slot::KeepGoalInReach,           SlotKind::Flag,          "0",           "Keep Goal In Reach"},
    {Slot::FullTimeIK,                SlotKind::Flag,          "1",           "Full-time IK"},
    {Slot::PathLookAhead,             SlotKind::Number,        "0.033000",    "Align to Path Look-ahead"},
    {Slot::PathMaxSteps,              SlotKind::Number,        "10",          "Max Steps"},
    {Slot::PathReliableDistance,      SlotKind::Distance,      "0.001000",    "Reliable Distance"},
    {Slot::PositionItemWorld,         SlotKind::Flag,          "0",           "World (Position Item)"},
    {Slot::PositionItem,              SlotKind::ItemName,      "",            "Position Item"},
    {Slot::PositionBlendMethod,       SlotKind::Choice,        "0",           "Position blend method"},
    {Slot::PositionBlend,             SlotKind::Percent,       "100.000000",  "Position blend amount"},
    {Slot::XPositionController,       SlotKind::Choice,        "0",           "X Position Controller"},
    {Slot::XPositionLimits,           SlotKind::Flag,          "0",           "X Pos Limits"},
    {Slot::XPositionMin,              SlotKind::Number,        "-1.000000",   "Min (X Pos Limits)"},
    {Slot::XPositionMax,              SlotKind::Number,        "1.000000",    "Max (X Pos Limits)"},
    {Slot::XPositionStiffness,        SlotKind::Number,        "1.000000",    "X Position Stiffness"},
    {Slot::YPositionController,       SlotKind::Choice,        "0",           "Y Position Controller"},
    {Slot::YPositionLimits,           SlotKind::Flag,          "0",           "Y Pos Limits"},
    {Slot::YPositionMin,              SlotKind::Number,        "-1.000000",   "Min (Y Pos Limits)"},
    {Slot::YPositionMax,              SlotKind::Number,        "0.000000",    "Max (Y Pos Limits)"},
    {Slot::YPositionStiffness,        SlotKind::Number,        "1.000000",    "Y Position Stiffness"},
    {Slot::ZPositionController,       SlotKind::Choice,        "0",           "Z Position Controller"},
    {Slot::ZPositionLimits,           SlotKind::Flag,          "0",           "Z Pos Limits"},
    {Slot::ZPositionMin,              SlotKind::Number,        "-1.000000",   "Min (Z Pos Limits)"},
    {Slot::ZPositionMax,              SlotKind::Number,        "1.000000",    "Max (Z Pos Limits)"},
    {Slot::ZPositionStiffness,        SlotKind::Number,        "1.000000",    "Z Position Stiffness"},
    {Slot::RotationItemWorld,         SlotKind::Flag,          "0",           "World (Rotation Item)"},
    {Slot::RotationItem,              SlotKind::ItemName,      "",            "Rotation Item"},
    {Slot::RotationBlendMethod,       SlotKind::Choice,        "0",           "Rotation blend method"},
    {Slot::RotationBlend,             SlotKind::Percent,       "100.000000",  "Rotation blend amount"},
    {Slot::HeadingController,         SlotKind::Choice,        "0",           "Heading Controller"},
    {Slot::HeadingLimits,             SlotKind::Flag,          "0",           "Heading Limits"},
    {Slot::HeadingMin,                SlotKind::Angle,         "-3.141592",   "Min (Heading Limits)"},
    {Slot::HeadingMax,                SlotKind::Angle,         "3.141592",    "Max (Heading Limits)"},
    {Slot::HeadingStiffness,          SlotKind::Number,        "1.000000",    "Heading Stiffness"},
    {Slot::PitchController,           SlotKind::Choice,        "0",           "Pitch Controller"},
    {Slot::PitchLimits,               SlotKind::Flag,          "0",           "Pitch Limits"},
    {Slot::PitchMin,                  SlotKind::Angle,         "-3.141592",   "Min (Pitch Limits)"},
    {Slot::PitchMax,                  SlotKind::Angle,         "3.141592",    "Max (Pitch Limits)"},
    {Slot::PitchStiffness,            SlotKind::Number,        "1.000000",    "Pitch Stiffness"},
    {Slot::BankController,            SlotKind::Choice,        "0",           "Bank Controller"},
    {Slot::BankLimits,                SlotKind::Flag,          "0",           "Bank Limits"},
    {Slot::BankMin,                   SlotKind::Angle,         "-3.141592",   "Min (Bank Limits)"},
    {Slot::BankMax,                   SlotKind::Angle,         "3.141592",    "Max (Bank Limits)"},
    {Slot::BankStiffness,             SlotKind::Number,        "1.000000",    "Bank Stiffness"},
    {Slot::ScaleItem,                 SlotKind::ItemName,      "",            "Scale Item"},
    {Slot::ScaleBlendMethod,          SlotKind::Choice,        "0",           "Scale blend method"},
    {Slot::ScaleBlend,                SlotKind::Percent,       "100.000000",  "Scale blend amount"},
    {Slot::XScaleController,          SlotKind::Choice,        "0",           "X Scale Controller"},
    {Slot::XScaleLimits,              SlotKind::Flag,          "0",           "X Scale Limits"},
    {Slot::XScaleMin,                 SlotKind::Number,        "0.000000",    "Min (X Scale Limits)"},
    {Slot::XScaleMax,                 SlotKind::Number,        "1.000000",    "Max (X Scale Limits)"},
    {Slot::XScaleStiffness,           SlotKind::Number,        "1.000000",    "X Scale Stiffness"},
    {Slot::YScaleController,          SlotKind::Choice,        "0",           "Y Scale Controller"},
    {Slot::YScaleLimits,              SlotKind::Flag,          "0",           "Y Scale Limits"},
    {Slot::YScaleMin,                 SlotKind::Number,        "0",           "Min (Y Scale Limits)"},
    {Slot::YScaleMax,                 SlotKind::Number,        "0.000000",    "Max (Y Scale Limits)"},
    {Slot::YScaleStiffness,           SlotKind::Number,        "1.000000",    "Y Scale Stiffness"},
    {Slot::ZScaleController,          SlotKind::Choice,        "0",           "Z Scale Controller"},
    {Slot::ZScaleLimits,              SlotKind::Flag,          "0",           "Z Scale Limits"},
    {Slot::ZScaleMin,                 SlotKind::Number,        "0.000000",    "Min (Z Scale Limits)"},
    {Slot::ZScaleMax,                 SlotKind::Number,        "1.000000",    "Max (Z Scale Limits)"},
    {Slot::ZScaleStiffness,           SlotKind::Number,        "1.000000",    "Z Scale Stiffness"},
    {Slot::Visibility,                SlotKind::Choice,        "1",           "Visibility (bone)"},
    {Slot::Colour,                    SlotKind::Colour,        "Modeler",     "Color (bone)"},
    {Slot::TargetParent,              SlotKind::ItemName,      "",            "Target Item Parent"},
    {Slot::PoleParent,                SlotKind::ItemName,      "",            "Pole Item Parent"},
    {Slot::GoalParent,                SlotKind::ItemName,      "",            "Goal Object Parent"},
    {Slot::PositionParent,            SlotKind::ItemName,      "",            "Position Item Parent"},
    {Slot::RotationParent,            SlotKind::ItemName,      "",            "Rotation Item Parent"},
    {Slot::ScaleParent,               SlotKind::ItemName,      "",            "Scale Item Parent"},
    {Slot::TargetShape,               SlotKind::Flag,          "0",           "Shp (Target Item)"},
    {Slot::PoleShape,                 SlotKind::Flag,          "0",           "Shp (Pole Item)"},
    {Slot::GoalShape,                 SlotKind::Flag,          "0",           "Shp (Goal Object)"},
    {Slot::PositionShape,             SlotKind::Flag,          "0",           "Shp (Position Item)"},
    {Slot::RotationShape,             SlotKind::Flag,          "0",           "Shp (Rotation Item)"},
    {Slot::ScaleShape,                SlotKind::Flag,          "0",           "Shp (Scale Item)"},
    {Slot::InitialPositionItem,       SlotKind::ItemName,      "",            "Initial Position Item"},
    {Slot::InitialPositionShape,      SlotKind::Flag,          "0",           "Shp (Initial Position Item)"},
    {Slot::Reserved144,               SlotKind::Reserved,      "",            ""},
    {Slot::TargetVisibility,          SlotKind::Choice,        "1",           "Visibility (Target Item)"},
    {Slot::PoleVisibility,            SlotKind::Choice,        "1",           "Visibility (Pole Item)"},
    {Slot::GoalVisibility,            SlotKind::Choice,        "1",           "Visibility (Goal Object)"},
    {Slot::PositionVisibility,        SlotKind::Choice,        "1",           "Visibility (Position Item)"},
    {Slot::RotationVisibility,        SlotKind::Choice,        "1",           "Visibility (Rotation Item)"},
    {Slot::ScaleVisibility,           SlotKind::Choice,        "1",           "Visibility (Scale Item)"},
    {Slot::InitialPositionVisibility, SlotKind::Choice,        "1",           "Visibility (Initial Position Item)"},
    {Slot::TargetColour,              SlotKind::Colour,        "Modeler",     "Color (Target Item)"},
    {Slot::PoleColour,                SlotKind::Colour,        "Modeler",     "Color (Pole Item)"},
    {Slot::GoalColour,                SlotKind::Colour,        "Modeler",     "Color (Goal Object)"},
    {Slot::PositionColour,            SlotKind::Colour,        "Modeler",     "Color (Position Item)"},
    {Slot::RotationColour,            SlotKind::Colour,        "Modeler",     "Color (Rotation Item)"},
    {Slot::ScaleColour,               SlotKind::Colour,        "Modeler",     "Color (Scale Item)"},
    {Slot::InitialPositionColour,     SlotKind::Colour,        "Modeler",     "Color (Initial Position Item)"},
    {Slot::XPositionFollow,           SlotKind::Choice,        "0",           "Follow (X Position)"},
    {Slot::XPositionFactor,           SlotKind::Number,        "1.000000",    "X/+ factor (X Position)"},
    {Slot::XPositionOffset,           SlotKind::Number,        "0.000000",    "Offset (X Position)"},
    {Slot::YPositionFollow,           SlotKind::Choice,        "1",           "Follow (Y Position)"},
    {Slot::YPositionFactor,           SlotKind::Number,        "1.000000",    "X/+ factor (Y Position)"},
    {Slot::YPositionOffset,           SlotKind::Number,        "0.000000",    "Offset (Y Position)"},
    {Slot::ZPositionFollow,           SlotKind::Choice,        "2",           "Follow (Z Position)"},
    {Slot::ZPositionFactor,           SlotKind::Number,        "1.000000",    "X/+ factor (Z Position)"},
    {Slot::ZPositionOffset,           SlotKind::Number,        "0.000000",    "Offset (Z Position)"},
    {Slot::HeadingFollow,             SlotKind::Choice,        "3",           "Follow (Heading)"},
    {Slot::HeadingFactor,             SlotKind::Number,        "1.000000",    "X/+ factor (Heading)"},
    {Slot::HeadingOffset,             SlotKind::Number,        "0.000000",    "Offset (Heading)"},
    {Slot::PitchFollow,               SlotKind::Choice,        "4",           "Follow (Pitch)"},
    {Slot::PitchFactor,               SlotKind::Number,        "1.000000",    "X/+ factor (Pitch)"},
    {Slot::PitchOffset,               SlotKind::Number,        "0.000000",    "Offset (Pitch)"},
    {Slot::BankFollow,                SlotKind::Choice,        "5",           "Follow (Bank)"},
    {Slot::BankFactor,                SlotKind::Number,        "1.000000",    "X/+ factor (Bank)"},
    {Slot::BankOffset,                SlotKind::Number,        "0.000000",    "Offset (Bank)"},
    {Slot::XScaleFollow,              SlotKind::Choice,        "6",           "Follow (X Scale)"},
    {Slot::XScaleFactor,              SlotKind::Number,        "1.000000",    "X/+ factor (X Scale)"},
    {Slot::XScaleOffset,              SlotKind::Number,        "0.000000",    "Offset (X Scale)"},
    {Slot::YScaleFollow,              SlotKind::Choice,        "7",           "Follow (Y Scale)"},
    {Slot::YScaleFactor,              SlotKind::Number,        "1.000000",    "X/+ factor (Y Scale)"},
    {Slot::YScaleOffset,              SlotKind::Number,        "0.000000",    "Offset (Y Scale)"},
    {Slot::ZScaleFollow,              SlotKind::Choice,        "8",           "Follow (Z Scale)"},
    {Slot::ZScaleFactor,              SlotKind::Number,        "1.000000",    "X/+ factor (Z Scale)"},
    {Slot::ZScaleOffset,              SlotKind::Number,        "0.000000",    "Offset (Z Scale)"},
    {Slot::RotationOrder,             SlotKind::Choice,        "3",           "Rotation Order"},
    // clang-format on
}};

constexpr bool rowsStandInSlotOrder() {
  for (std::size_t i = 0; i < kSlots.size(); ++i) {
    if (indexOf(kSlots[i].slot) != i) return false;
    if ((kSlots[i].kind == SlotKind::Reserved) != (*kSlots[i].setting == '\0')) return false;
  }
  return true;
}
static_assert(rowsStandInSlotOrder());
static_assert(indexOf(Slot::RotationOrder) + 1 == kSlotCount);

// The first tag of a type, or null. Later tags of that type do not count, whatever the first one holds.
const StoredTag* firstOfType(std::span<const StoredTag> tags, std::uint32_t type) {
  const auto found = std::find_if(tags.begin(), tags.end(), [type](const StoredTag& tag) { return tag.type == type; });
  return found == tags.end() ? nullptr : &*found;
}

std::optional<std::string_view> usableText(std::span<const StoredTag> tags, std::uint32_t type) {
  const StoredTag* const tag = firstOfType(tags, type);
  return tag == nullptr ? std::nullopt : tag->text;
}

}  // namespace

const std::array<SlotRow, kSlotCount>& slotTable() { return kSlots; }

std::string_view SlotDefaults(Slot slot) { return kSlots[indexOf(slot)].defaultText; }

int colourIndex(std::string_view name) {
  const auto found = std::find(BoneColourNames.begin(), BoneColourNames.end(), name);
  return found == BoneColourNames.end() ? kUnknownColourIndex : static_cast<int>(found - BoneColourNames.begin());
}

int SkelegonProperties::integer(Slot slot) const { return leadingInteger((*this)[slot]); }

double SkelegonProperties::real(Slot slot) const { return leadingReal((*this)[slot]); }

SkelegonProperties propertiesFromFile(std::span<const StoredTag> tags) {
  SkelegonProperties properties;
  for (const SlotRow& row : kSlots) {
    std::optional<std::string_view> text = usableText(tags, SlotTagId(row.slot));
    if (!text && row.slot == Slot::Colour) {
      // The colour never takes its default: without any stored colour it stays empty. Deliberate.
      text = usableText(tags, kColourCopyTag).value_or(std::string_view());
    }
    properties[row.slot] = text.value_or(row.defaultText);
  }
  return properties;
}

}  // namespace skg
