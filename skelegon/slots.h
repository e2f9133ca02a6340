// The 187 bone settings that a skelegon carries: number, kind, default text and tag type of each, and the rule by which
// Layout reads them back from an object file. Modeler's tools write them, the conversion tool applies them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace skg {

// A setting is addressed by its slot. The number is part of the stored format: never renumber.
enum class Slot : unsigned {
  // clang-format off
  Reserved0, Reserved1, Reserved2, Reserved3, Reserved4, Reserved5, Name, Reserved7, Reserved8, Reserved9,
  Reserved10, Reserved11, UseBonesFromObject, FalloffType, Reserved14, Reserved15, BoneCalc, LimitBoneNum,
  Reserved18, Reserved19, Reserved20, Reserved21, Reserved22, Reserved23, Reserved24, Reserved25, BoneType,
  BoneActive, WeightMap, WeightMapOnly, WeightNormalization, Strength, StrengthMultiply, LimitedRange, RangeMin,
  RangeMax, JointComp, JointCompAmount, JointCompParent, JointCompParentAmount, MuscleFlex, MuscleFlexAmount,
  MuscleFlexParent, MuscleFlexParentAmount, Bulge, BulgeAmount, BulgeParent, BulgeParentAmount, Twist, TwistAmount,
  IconSize, ParentItem, TargetItem, PoleItem, UnaffectedByIK, GoalObject, Objective, IKInitialState,
  IKInitialStateFrame, Chain, IKFKBlending, GoalStrength, SoftIK, SoftIKDistanceType, SoftIKMin, SoftIKMax,
  MatchGoalOrientation, KeepGoalInReach, FullTimeIK, PathLookAhead, PathMaxSteps, PathReliableDistance,
  PositionItemWorld, PositionItem, PositionBlendMethod, PositionBlend, XPositionController, XPositionLimits,
  XPositionMin, XPositionMax, XPositionStiffness, YPositionController, YPositionLimits, YPositionMin, YPositionMax,
  YPositionStiffness, ZPositionController, ZPositionLimits, ZPositionMin, ZPositionMax, ZPositionStiffness,
  RotationItemWorld, RotationItem, RotationBlendMethod, RotationBlend, HeadingController, HeadingLimits, HeadingMin,
  HeadingMax, HeadingStiffness, PitchController, PitchLimits, PitchMin, PitchMax, PitchStiffness, BankController,
  BankLimits, BankMin, BankMax, BankStiffness, ScaleItem, ScaleBlendMethod, ScaleBlend, XScaleController,
  XScaleLimits, XScaleMin, XScaleMax, XScaleStiffness, YScaleController, YScaleLimits, YScaleMin, YScaleMax,
  YScaleStiffness, ZScaleController, ZScaleLimits, ZScaleMin, ZScaleMax, ZScaleStiffness, Visibility, Colour,
  TargetParent, PoleParent, GoalParent, PositionParent, RotationParent, ScaleParent, TargetShape, PoleShape,
  GoalShape, PositionShape, RotationShape, ScaleShape, InitialPositionItem, InitialPositionShape, Reserved144,
  TargetVisibility, PoleVisibility, GoalVisibility, PositionVisibility, RotationVisibility, ScaleVisibility,
  InitialPositionVisibility, TargetColour, PoleColour, GoalColour, PositionColour, RotationColour, ScaleColour,
  InitialPositionColour, XPositionFollow, XPositionFactor, XPositionOffset, YPositionFollow, YPositionFactor,
  YPositionOffset, ZPositionFollow, ZPositionFactor, ZPositionOffset, HeadingFollow, HeadingFactor, HeadingOffset,
  PitchFollow, PitchFactor, PitchOffset, BankFollow, BankFactor, BankOffset, XScaleFollow, XScaleFactor,
  XScaleOffset, YScaleFollow, YScaleFactor, YScaleOffset, ZScaleFollow, ZScaleFactor, ZScaleOffset, RotationOrder,
  // clang-format on
};
inline constexpr std::size_t kSlotCount = 187;

// What a slot's text means. Flags, choices and integers are stored as "%d", percents, distances, numbers and angles
// (radians) as "%.6f", colours as one of BoneColourNames, the rest as typed.
enum class SlotKind {
  Reserved,  // never shown, never written
  Flag,
  Choice,  // 0-based index into the list that the panel shows
  Integer,
  Percent,   // as shown: 100 means 100 %
  Distance,  // metres
  Number,
  Angle,  // radians
  ItemName,
  ObjectName,
  WeightMapName,
  Text,
  Colour,
};

// How a panel shows and takes the value of a setting.
enum class ValueKind { None, Integer, Real, Text, Colour };

constexpr ValueKind valueKindOf(SlotKind kind) {
  switch (kind) {
    case SlotKind::Flag:
    case SlotKind::Choice:
    case SlotKind::Integer: return ValueKind::Integer;
    case SlotKind::Percent:
    case SlotKind::Distance:
    case SlotKind::Number:
    case SlotKind::Angle: return ValueKind::Real;
    case SlotKind::ItemName:
    case SlotKind::ObjectName:
    case SlotKind::WeightMapName:
    case SlotKind::Text: return ValueKind::Text;
    case SlotKind::Colour: return ValueKind::Colour;
    case SlotKind::Reserved: break;
  }
  return ValueKind::None;
}

constexpr std::size_t indexOf(Slot slot) { return static_cast<std::size_t>(slot); }

// The default text of a slot. Compared and put in as exact text, never as a number.
std::string_view SlotDefaults(Slot slot);

// ---------------------------------------------------------------------------------------------------------------------
// Tag types

inline constexpr std::uint32_t kNoTagType = 0xFFFFFFFF;
inline constexpr std::uint32_t kPropertyTagFamily = 0x73673100;  // 's', 'g', '1', then the slot number

// The plain rule: the family's tag of a slot number; kNoTagType from 187 on.
constexpr std::uint32_t plainSlotTagId(std::size_t slot) {
  return slot < kSlotCount ? kPropertyTagFamily | static_cast<std::uint32_t>(slot) : kNoTagType;
}

// The rule for reading and writing: the host's own tags where it has one for the setting (name, weight map, colour), else
// the plain rule.
constexpr std::uint32_t SlotTagId(std::size_t slot) {
  switch (slot) {
    case indexOf(Slot::Name): return 0x424F4E45;       // BONE
    case indexOf(Slot::WeightMap): return 0x424E5754;  // BNWT
    case indexOf(Slot::Colour): return 0x434F4C52;     // COLR
    default: return plainSlotTagId(slot);
  }
}
constexpr std::uint32_t SlotTagId(Slot slot) { return SlotTagId(indexOf(slot)); }

// The colour is stored a second time under the plain tag of its slot, whatever the host does with its own colour tag.
inline constexpr std::uint32_t kColourCopyTag = plainSlotTagId(indexOf(Slot::Colour));

// The slots that hold the name of another item, in the order in which the renamer updates them. Reserved144 is among them
// although no panel writes it: objects that carry it keep their links.
inline constexpr std::array kNameBearingSlots = {
    Slot::UseBonesFromObject, Slot::ParentItem,     Slot::TargetItem,          Slot::TargetParent,
    Slot::PoleItem,           Slot::PoleParent,     Slot::GoalObject,          Slot::GoalParent,
    Slot::PositionItem,       Slot::PositionParent, Slot::RotationItem,        Slot::RotationParent,
    Slot::ScaleItem,          Slot::ScaleParent,    Slot::InitialPositionItem, Slot::Reserved144,
};
static_assert(kNameBearingSlots.size() == 16);

// ---------------------------------------------------------------------------------------------------------------------
// Colours

// The words by which colours are stored, in the order of the panel's colour list.
inline constexpr std::array<std::string_view, 16> BoneColourNames = {
    "Black", "DkBlu", "DkGrn", "DkCyn", "DkRed", "Purple", "Brown", "Gray",
    "Blue",  "Green", "Cyan",  "Red",   "Magen", "Orang",  "White", "Modeler",
};
inline constexpr int kUnknownColourIndex = 13;  // an unknown word reads as the orange entry, in stored rigs, too
inline constexpr int kModelerColourIndex = 15;  // "as Modeler has it": nothing is to be set

// The index of a colour word by exact comparison; kUnknownColourIndex for any other text, the empty one included.
int colourIndex(std::string_view name);

// ---------------------------------------------------------------------------------------------------------------------
// The settings of one skelegon

class SkelegonProperties {
 public:
  std::string& operator[](Slot slot) { return texts_[indexOf(slot)]; }
  const std::string& operator[](Slot slot) const { return texts_[indexOf(slot)]; }
  std::array<std::string, kSlotCount>& texts() { return texts_; }
  const std::array<std::string, kSlotCount>& texts() const { return texts_; }

  // The text of a slot as a number: its leading decimal number, 0 where there is none.
  int integer(Slot slot) const;
  double real(Slot slot) const;
  bool isOn(Slot slot) const { return integer(slot) != 0; }

 private:
  std::array<std::string, kSlotCount> texts_;
};

// A tag of a skelegon in an object file. No text: the tag's index lies beyond the file's texts.
struct StoredTag {
  std::uint32_t type;
  std::optional<std::string_view> text;
};

// Layout's reading of one skelegon's tags (in file order): the first tag of a slot's type counts, its text as it stands,
// even when empty; without a usable one the slot takes its default.
SkelegonProperties propertiesFromFile(std::span<const StoredTag> tags);

}  // namespace skg
