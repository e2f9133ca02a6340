#include "modeler/property/property_controls.h"

#include <algorithm>
#include <initializer_list>

namespace mst {
namespace {

using skg::Slot;
using texts::ChoiceList;

// ---------------------------------------------------------------------------------------------------------------------
// The form's measures, in pixels. Hot areas begin at one of these lines, so that fields line up on and across pages.

constexpr int kMargin = 5;
constexpr int kEdge = 380;         // right end of the form
constexpr int kWideColumn = 155;   // leaves room for the long labels
constexpr int kCloseColumn = 136;  // where a linked item needs the width for its own controls
constexpr int kMiddleColumn = 208;
constexpr int kFarColumn = 310;

constexpr int kFieldWidth = 70;
constexpr int kCheckWidth = 18;
constexpr int kChoiceWidth = 200;  // holds the longest choice of any list
constexpr int kMethodWidth = 98;
constexpr int kChannelWidth = 44;
constexpr int kOffOnWidth = 52;
constexpr int kColourWidth = 118;
constexpr int kFillWidth = 24;
constexpr int kChooserWidth = 24;
constexpr int kShapeWidth = 26;
constexpr int kPresetWidth = 70;
constexpr int kFootButtonWidth = 65;
constexpr int kGap = 2;  // between controls that belong together

// Wide enough for whatever a scene may need: the host holds typed numbers to them.
constexpr Range kBoneCounts = {0, 1000};
constexpr Range kFrames = {-100000, 100000};

constexpr Place from(int row, int left, int right) { return {row, left, right - left, Place::By::HotArea}; }
constexpr Place at(int row, int left, int width) { return {row, left, width, Place::By::HotArea}; }
constexpr Place endingAt(int row, int right, int width) { return {row, right, width, Place::By::RightEdge}; }

// A field with small controls behind it that reach to the edge: what is left for the field.
constexpr int edgeBefore(std::initializer_list<int> widths) {
  int edge = kEdge;
  for (const int width : widths) edge -= width + kGap;
  return edge;
}

// ---------------------------------------------------------------------------------------------------------------------
// Building the table: rows are added in the order of their numbers.

class TableBuilder {
 public:
  constexpr const std::array<ControlRow, kControlCount>& rows() const { return rows_; }
  constexpr std::size_t count() const { return count_; }

  constexpr void plain(HostControl kind, Role role, Place place) {
    add({0, kind, role, ValueKind::None, {}, {}, place, {}});
  }
  constexpr void tabs(Role role, ChoiceList list, Place place) {
    add({0, HostControl::Tabs, role, ValueKind::None, {}, list, place, {}});
  }
  constexpr void value(HostControl kind, Slot slot, Place place) {
    add({0, kind, Role::Value, valueOf(kind), slot, {}, place, {}});
  }
  constexpr void choice(ChoiceList list, Slot slot, Place place) {
    const ValueKind kind = list == ChoiceList::Colour ? ValueKind::Colour : ValueKind::Integer;
    add({0, HostControl::Popup, Role::Value, kind, slot, list, place, {}});
  }
  constexpr void slider(Slot slot, Range range, int row, int column) {
    add({0, HostControl::MiniSlider, Role::Value, ValueKind::Integer, slot, {}, at(row, column, kFieldWidth), range});
  }
  constexpr void flag(Slot slot, int row, int column) { value(HostControl::Bool, slot, at(row, column, kCheckWidth)); }
  constexpr void field(HostControl kind, Slot slot, int row, int column) { value(kind, slot, at(row, column, kFieldWidth)); }

 private:
  static constexpr ValueKind valueOf(HostControl kind) {
    switch (kind) {
      case HostControl::Bool:
      case HostControl::BoolButton: return ValueKind::Integer;
      case HostControl::Percent:
      case HostControl::Distance:
      case HostControl::Float:
      case HostControl::Angle: return ValueKind::Real;
      case HostControl::Edit: return ValueKind::Text;
      default: return ValueKind::None;
    }
  }

  constexpr void add(ControlRow row) {
    row.number = count_;
    rows_[count_] = row;
    ++count_;
  }

  std::array<ControlRow, kControlCount> rows_{};
  std::size_t count_ = 0;
};

// ---------------------------------------------------------------------------------------------------------------------
// The patterns

// Settings that belong together are numbered in runs.
constexpr Slot after(Slot slot, std::size_t steps) { return static_cast<Slot>(skg::indexOf(slot) + steps); }

struct LinkedItem {
  Slot item, shape, visibility, colour;
};

// The first three of a linked item, to the form's edge.
constexpr void linkedName(TableBuilder& table, const LinkedItem& slots, int row, int left, int edge) {
  const int shape = edge - kShapeWidth;
  const int fill = shape - kGap - kFillWidth;
  table.value(HostControl::Edit, slots.item, from(row, left, fill - kGap));
  table.plain(HostControl::Button, Role::LinkedFill, at(row, fill, kFillWidth));
  table.value(HostControl::BoolButton, slots.shape, at(row, shape, kShapeWidth));
}

// A linked item without a parent: name, fill button and shape; visibility and colour below.
constexpr void linkedItem(TableBuilder& table, const LinkedItem& slots, int row, int left) {
  linkedName(table, slots, row, left, kEdge);
  table.choice(ChoiceList::OffOn, slots.visibility, at(row + 1, left, kOffOnWidth));
  table.choice(ChoiceList::Colour, slots.colour, from(row + 1, kEdge - kColourWidth, kEdge));
}

// A linked item with a parent: name, fill button, shape and visibility; the parent, its chooser and the colour below.
constexpr void linkedItemWithParent(TableBuilder& table, const LinkedItem& slots, Slot parent, int row) {
  constexpr int kVisibilityLabel = 68;
  constexpr int kColourLabel = 40;
  constexpr int kVisibility = kEdge - kOffOnWidth;
  constexpr int kColour = kEdge - kColourWidth;
  constexpr int kChooser = kColour - kColourLabel - kChooserWidth;
  linkedName(table, slots, row, kCloseColumn, kVisibility - kVisibilityLabel);
  table.choice(ChoiceList::OffOn, slots.visibility, at(row, kVisibility, kOffOnWidth));
  table.choice(ChoiceList::Colour, slots.colour, at(row + 1, kColour, kColourWidth));
  table.value(HostControl::Edit, parent, from(row + 1, kCloseColumn, kChooser - kGap));
  table.plain(HostControl::CustomPopup, Role::ItemNames, at(row + 1, kChooser, kChooserWidth));
}

// A flag with its amount on one row.
constexpr void flagAndAmount(TableBuilder& table, Slot flag, int row) {
  table.flag(flag, row, kWideColumn);
  table.field(HostControl::Percent, after(flag, 1), row, kMiddleColumn);
}

// A flag of a range, with the least and the greatest value side by side behind it.
constexpr void limits(TableBuilder& table, HostControl kind, Slot flag, int row, int column) {
  table.flag(flag, row, column);
  table.field(kind, after(flag, 1), row, kMiddleColumn);
  table.field(kind, after(flag, 2), row, kFarColumn);
}

inline constexpr int kAxisRows = 4;

// The eight controls of an axis. Its settings are numbered in two runs: controller, limits, least, greatest, stiffness; and
// followed channel, factor, offset.
constexpr void axis(TableBuilder& table, HostControl limitKind, Slot controller, Slot follow, int row) {
  table.choice(ChoiceList::Controller, controller, at(row, kCloseColumn, kChoiceWidth));
  limits(table, limitKind, after(controller, 1), row + 1, kCloseColumn);
  table.choice(ChoiceList::FollowChannel, follow, at(row + 2, kCloseColumn, kChannelWidth));
  table.field(HostControl::Float, after(follow, 1), row + 2, kMiddleColumn);
  table.field(HostControl::Float, after(follow, 2), row + 2, kFarColumn);
  table.field(HostControl::Float, after(controller, 4), row + 3, kCloseColumn);
}

struct MotionGroup {
  std::optional<Slot> world;
  LinkedItem item;
  Slot parent, blendMethod, firstController, firstFollow;
  HostControl limitKind;
};

constexpr void motionGroup(TableBuilder& table, const MotionGroup& group) {
  constexpr int kBlendRow = 2;
  constexpr int kFirstAxisRow = 3;
  constexpr std::size_t kControllerStep = 5;
  constexpr std::size_t kFollowStep = 3;
  if (group.world) table.flag(*group.world, kBlendRow, kCloseColumn);
  linkedItemWithParent(table, group.item, group.parent, 0);
  table.choice(ChoiceList::BlendMethod, group.blendMethod, at(kBlendRow, kMiddleColumn, kMethodWidth));
  table.field(HostControl::Percent, after(group.blendMethod, 1), kBlendRow, kFarColumn);
  for (std::size_t n = 0; n < 3; ++n) {
    axis(table, group.limitKind, after(group.firstController, n * kControllerStep),
         after(group.firstFollow, n * kFollowStep), kFirstAxisRow + static_cast<int>(n) * kAxisRows);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// The pages, control by control

constexpr void addFrame(TableBuilder& table) {
  table.plain(HostControl::Border, Role::Decoration, from(2, kMargin, kEdge));  // a line below the head
  table.plain(HostControl::Border, Role::Decoration, from(0, kMargin, kEdge));  // the frame of the bottom row
  table.plain(HostControl::Button, Role::Reset, endingAt(0, 95, kFootButtonWidth));
  table.plain(HostControl::Button, Role::ResetAll, endingAt(0, 165, kFootButtonWidth));
  table.plain(HostControl::Button, Role::Sync, endingAt(0, 275, kFootButtonWidth));
  table.tabs(Role::PageTabs, ChoiceList::Pages, at(0, kMargin, 0));
  table.tabs(Role::GroupTabs, ChoiceList::MotionGroups, at(0, kWideColumn, 0));
  // Both in the same place: one of the two is hidden.
  table.plain(HostControl::Edit, Role::NameEdit, from(1, kWideColumn, kEdge));
  table.plain(HostControl::CustomPopup, Role::NamePopup, from(1, kWideColumn, kEdge));
}

constexpr void addGroupPage(TableBuilder& table) {
  table.value(HostControl::Edit, Slot::UseBonesFromObject, from(0, kWideColumn, kEdge));
  table.choice(ChoiceList::FalloffType, Slot::FalloffType, at(1, kWideColumn, kChoiceWidth));
  table.choice(ChoiceList::BoneCalc, Slot::BoneCalc, at(2, kWideColumn, kChoiceWidth));
  table.slider(Slot::LimitBoneNum, kBoneCounts, 3, kWideColumn);
}

constexpr void addBonePage(TableBuilder& table) {
  constexpr int kMapEnd = edgeBefore({kFillWidth, kChooserWidth});
  constexpr int kMapFill = edgeBefore({kChooserWidth}) - kFillWidth;
  table.choice(ChoiceList::BoneType, Slot::BoneType, at(0, kWideColumn, kChoiceWidth));
  table.flag(Slot::BoneActive, 1, kWideColumn);
  table.value(HostControl::Edit, Slot::WeightMap, from(2, kWideColumn, kMapEnd));
  table.plain(HostControl::CustomPopup, Role::WeightMaps, from(2, kEdge - kChooserWidth, kEdge));
  table.plain(HostControl::Button, Role::WeightFill, at(2, kMapFill, kFillWidth));
  table.flag(Slot::WeightMapOnly, 3, kWideColumn);
  table.flag(Slot::WeightNormalization, 3, kFarColumn);
  table.field(HostControl::Percent, Slot::Strength, 4, kWideColumn);
  table.flag(Slot::StrengthMultiply, 5, kFarColumn);
  limits(table, HostControl::Distance, Slot::LimitedRange, 6, kWideColumn);
  flagAndAmount(table, Slot::JointComp, 7);
  flagAndAmount(table, Slot::JointCompParent, 8);
  flagAndAmount(table, Slot::MuscleFlex, 9);
  flagAndAmount(table, Slot::MuscleFlexParent, 10);
  flagAndAmount(table, Slot::Bulge, 11);
  flagAndAmount(table, Slot::BulgeParent, 12);
  flagAndAmount(table, Slot::Twist, 13);
  table.field(HostControl::Percent, Slot::IconSize, 14, kWideColumn);
  table.choice(ChoiceList::OffOn, Slot::Visibility, at(15, kWideColumn, kOffOnWidth));
  table.choice(ChoiceList::Colour, Slot::Colour, from(15, kEdge - kColourWidth, kEdge));
  linkedItem(
      table,
      {Slot::InitialPositionItem, Slot::InitialPositionShape, Slot::InitialPositionVisibility, Slot::InitialPositionColour},
      16, kWideColumn);
}

constexpr void addIKPage(TableBuilder& table) {
  constexpr int kParentEnd = edgeBefore({kChooserWidth});
  table.value(HostControl::Edit, Slot::ParentItem, from(0, kCloseColumn, kParentEnd));
  table.plain(HostControl::CustomPopup, Role::ItemNames, from(0, kEdge - kChooserWidth, kEdge));
  linkedItemWithParent(table, {Slot::TargetItem, Slot::TargetShape, Slot::TargetVisibility, Slot::TargetColour},
                       Slot::TargetParent, 1);
  linkedItemWithParent(table, {Slot::PoleItem, Slot::PoleShape, Slot::PoleVisibility, Slot::PoleColour}, Slot::PoleParent,
                       3);
  table.choice(ChoiceList::RotationOrder, Slot::RotationOrder, at(5, kCloseColumn, kChoiceWidth));
  table.flag(Slot::UnaffectedByIK, 6, kFarColumn);
  linkedItemWithParent(table, {Slot::GoalObject, Slot::GoalShape, Slot::GoalVisibility, Slot::GoalColour}, Slot::GoalParent,
                       7);
  table.choice(ChoiceList::Objective, Slot::Objective, at(9, kCloseColumn, kChoiceWidth));
  table.choice(ChoiceList::IKInitialState, Slot::IKInitialState, at(10, kCloseColumn, kChoiceWidth));
  table.slider(Slot::IKInitialStateFrame, kFrames, 11, kCloseColumn);
  table.flag(Slot::Chain, 12, kCloseColumn);
  table.field(HostControl::Percent, Slot::IKFKBlending, 12, kFarColumn);
  table.field(HostControl::Float, Slot::GoalStrength, 13, kCloseColumn);
  table.choice(ChoiceList::SoftIK, Slot::SoftIK, at(14, kCloseColumn, kChoiceWidth));
  table.choice(ChoiceList::DistanceType, Slot::SoftIKDistanceType, at(15, kCloseColumn, kChoiceWidth));
  table.field(HostControl::Percent, Slot::SoftIKMin, 16, kMiddleColumn);
  table.field(HostControl::Percent, Slot::SoftIKMax, 16, kFarColumn);
  table.flag(Slot::MatchGoalOrientation, 17, kFarColumn);
  table.flag(Slot::KeepGoalInReach, 17, kCloseColumn);
  table.flag(Slot::FullTimeIK, 18, kCloseColumn);
}

constexpr void addControllersPage(TableBuilder& table) {
  table.field(HostControl::Float, Slot::PathLookAhead, 0, kWideColumn);
  table.field(HostControl::Float, Slot::PathMaxSteps, 0, kFarColumn);
  table.field(HostControl::Distance, Slot::PathReliableDistance, 1, kWideColumn);
  // Below the choice of the group whose controllers they set.
  table.plain(HostControl::Button, Role::KeyFrames, at(3, kWideColumn, kPresetWidth));
  table.plain(HostControl::Button, Role::InverseKinematics, at(3, kWideColumn + kPresetWidth + kGap, kPresetWidth));
  table.plain(HostControl::Button, Role::SameAsItem, at(3, kWideColumn + 2 * (kPresetWidth + kGap), kPresetWidth));
}

constexpr MotionGroup kPositionGroup = {
    Slot::PositionItemWorld,   {Slot::PositionItem, Slot::PositionShape, Slot::PositionVisibility, Slot::PositionColour},
    Slot::PositionParent,      Slot::PositionBlendMethod,
    Slot::XPositionController, Slot::XPositionFollow,
    HostControl::Float,
};
constexpr MotionGroup kRotationGroup = {
    Slot::RotationItemWorld, {Slot::RotationItem, Slot::RotationShape, Slot::RotationVisibility, Slot::RotationColour},
    Slot::RotationParent,    Slot::RotationBlendMethod,
    Slot::HeadingController, Slot::HeadingFollow,
    HostControl::Angle,
};
constexpr MotionGroup kScaleGroup = {
    {},  // the host has no world coordinates for scaling
    {Slot::ScaleItem, Slot::ScaleShape, Slot::ScaleVisibility, Slot::ScaleColour},
    Slot::ScaleParent,
    Slot::ScaleBlendMethod,
    Slot::XScaleController,
    Slot::XScaleFollow,
    HostControl::Float,
};

constexpr TableBuilder build() {
  TableBuilder table;
  addFrame(table);
  addGroupPage(table);
  addBonePage(table);
  addIKPage(table);
  addControllersPage(table);
  motionGroup(table, kPositionGroup);
  motionGroup(table, kRotationGroup);
  motionGroup(table, kScaleGroup);
  return table;
}

constexpr TableBuilder kBuilt = build();
static_assert(kBuilt.count() == kControlCount);

constexpr const std::array<ControlRow, kControlCount>& kControls = kBuilt.rows();

// ---------------------------------------------------------------------------------------------------------------------
// What must hold of the table

constexpr std::size_t kReservedSlots = 22;
constexpr std::size_t kValueControls = skg::kSlotCount - kReservedSlots - 1;  // the name has a field of its own rule

constexpr bool everySlotIsShownOnce() {
  std::array<int, skg::kSlotCount> shown{};
  std::size_t values = 0;
  for (const ControlRow& row : kControls) {
    if ((row.role == Role::Value) != row.slot.has_value() || (row.role == Role::Value) != (row.value != ValueKind::None))
      return false;
    if (!row.slot) continue;
    ++values;
    if (++shown[skg::indexOf(*row.slot)] > 1) return false;
  }
  return values == kValueControls && shown[skg::indexOf(Slot::Name)] == 0;
}
static_assert(everySlotIsShownOnce());

// A chooser or a fill button works on the field before it.
constexpr bool fillersFollowTheirField() {
  for (const ControlRow& row : kControls) {
    if (row.role != Role::WeightMaps && row.role != Role::LinkedFill && row.role != Role::ItemNames) continue;
    const ControlRow& field = kControls[row.number - 1];
    if (field.kind != HostControl::Edit || !field.slot) return false;
  }
  return true;
}
static_assert(fillersFollowTheirField());

static_assert(kControls[control::kHeadLine].role == Role::Decoration);
static_assert(kControls[control::kFrame].role == Role::Decoration);
static_assert(kControls[control::kReset].role == Role::Reset);
static_assert(kControls[control::kResetAll].role == Role::ResetAll);
static_assert(kControls[control::kSync].role == Role::Sync);
static_assert(kControls[control::kPages].role == Role::PageTabs);
static_assert(kControls[control::kGroups].role == Role::GroupTabs);
static_assert(kControls[control::kNameEdit].role == Role::NameEdit);
static_assert(kControls[control::kNamePopup].role == Role::NamePopup);

}  // namespace

const std::array<ControlRow, kControlCount>& controlTable() { return kControls; }

ControlSlot ControlSlotMap(std::size_t control) {
  if (control >= kControlCount) return {};
  return {kControls[control].value, kControls[control].slot};
}

std::optional<std::size_t> controlOf(skg::Slot slot) {
  if (slot == Slot::Name) return control::kNameEdit;
  const auto found =
      std::find_if(kControls.begin(), kControls.end(), [slot](const ControlRow& row) { return row.slot == slot; });
  if (found == kControls.end()) return std::nullopt;
  return found->number;
}

}  // namespace mst
