#include "modeler/property/property_controls.h"

#include <algorithm>
#include <initializer_list>

#include "skelegon/setting_groups.h"
#include "skelegon/slot_table.h"
#include "texts/texts.h"

namespace mst {
namespace {

using skg::LinkedItem;
using skg::Slot;
using texts::ChoiceList;

// ---------------------------------------------------------------------------------------------------------------------
// The form's measures, in pixels. Hot areas begin at one of these lines, so that fields line up on and across pages.

constexpr int kMargin = 5;
constexpr int kEdge = 380;          // right end of the form
constexpr int kFieldColumn = 155;   // the first field of a row; leaves room for its label
constexpr int kMiddleColumn = 208;  // behind a flag
constexpr int kFarColumn = 310;
// Factor and offset stand together, and not where the limits above them stand: the offset has no label.
constexpr int kFactorColumn = 226;

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
constexpr int kFootHeight = 35;
constexpr int kGap = 2;  // between controls that belong together

// Wide enough for whatever a scene may need: the host holds typed numbers to them.
constexpr forms::Range kBoneCounts = {0, 1000};
constexpr forms::Range kFrames = {-100000, 100000};

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

class CTableBuilder {
 public:
  constexpr const std::array<PropertyRow, kControlCount>& rows() const { return rows_; }
  constexpr std::size_t count() const { return count_; }

  // What is added from here on belongs to this section.
  constexpr void begin(Section section) { section_ = section; }

  constexpr void plain(HostControl kind, Role role, Place place, int height = 0) {
    add({.kind = kind, .height = height}, role, {}, {}, place);
  }
  constexpr void tabs(Role role, ChoiceList list, Place place) { add({.kind = HostControl::Tabs}, role, {}, list, place); }
  // A setting in the control that its kind asks for.
  constexpr void value(Slot slot, Place place) { add(slot, {.kind = controlFor(skg::rowOf(slot).kind)}, place); }
  constexpr void shape(Slot slot, Place place) { add(slot, {.kind = HostControl::BoolButton}, place); }
  constexpr void slider(Slot slot, forms::Range range, int row, int column) {
    add(slot, {.kind = HostControl::MiniSlider, .range = range}, at(row, column, kFieldWidth));
  }
  constexpr void flag(Slot slot, int row, int column) { value(slot, at(row, column, kCheckWidth)); }
  constexpr void field(Slot slot, int row, int column) { value(slot, at(row, column, kFieldWidth)); }

 private:
  static constexpr HostControl controlFor(skg::SlotKind kind) {
    using skg::SlotKind;
    switch (kind) {
      case SlotKind::Flag: return HostControl::Bool;
      case SlotKind::Choice:
      case SlotKind::Colour: return HostControl::Popup;
      case SlotKind::Integer: return HostControl::MiniSlider;
      case SlotKind::Percent: return HostControl::Percent;
      case SlotKind::Distance: return HostControl::Distance;
      case SlotKind::Number: return HostControl::Float;
      case SlotKind::Angle: return HostControl::Angle;
      case SlotKind::ItemName:
      case SlotKind::ObjectName:
      case SlotKind::WeightMapName:
      case SlotKind::Text: return HostControl::Edit;
      case SlotKind::Reserved: break;
    }
    throw "a reserved slot has no control";  // where the table is built, this does not compile
  }

  // Edit fields want fewer characters than fit, for they are brought to their width anyway; the host puts a handle beside
  // the field of a slider.
  static constexpr int toldWidth(HostControl kind, int width) {
    constexpr int kWidestCharacter = 8;
    constexpr int kHandleWidth = 20;
    if (kind == HostControl::Edit) return std::max(1, width / kWidestCharacter);
    return kind == HostControl::MiniSlider ? width - kHandleWidth : width;
  }

  constexpr void add(Slot slot, const forms::ControlRow& control, Place place) {
    add(control, Role::Value, slot, skg::rowOf(slot).choices, place);
  }
  constexpr void add(forms::ControlRow control, Role role, std::optional<Slot> slot, std::optional<ChoiceList> list,
                     Place place) {
    if (count_ == kControlCount) throw "more controls than there are numbers";
    control.label = count_;
    control.width = toldWidth(control.kind, place.width);
    if (list) control.choices = static_cast<std::size_t>(*list);
    rows_[count_] = {control, count_, section_, role, slot, place};
    ++count_;
  }

  std::array<PropertyRow, kControlCount> rows_{};
  std::size_t count_ = 0;
  Section section_ = Section::Head;
};

// ---------------------------------------------------------------------------------------------------------------------
// The patterns

// The name of an item, with the chooser that fills it.
constexpr void itemNameWithChooser(CTableBuilder& table, Slot name, int row) {
  table.value(name, from(row, kFieldColumn, edgeBefore({kChooserWidth})));
  table.plain(HostControl::CustomPopup, Role::ItemNames, from(row, kEdge - kChooserWidth, kEdge));
}

// A linked item without a parent of its own: name, fill button and shape; visibility and colour in a row below.
constexpr void linkedItem(CTableBuilder& table, const LinkedItem& item, int row, int lookRow) {
  constexpr int kFillEnd = edgeBefore({kShapeWidth});
  table.value(item.name, from(row, kFieldColumn, edgeBefore({kShapeWidth, kFillWidth})));
  table.plain(HostControl::Button, Role::LinkedFill, from(row, kFillEnd - kFillWidth, kFillEnd));
  table.shape(item.shape, from(row, kEdge - kShapeWidth, kEdge));
  table.value(item.visibility, at(lookRow, kFieldColumn, kOffOnWidth));
  table.value(item.colour, from(lookRow, kEdge - kColourWidth, kEdge));
}

// A linked item with its parent in a row between.
constexpr void linkedItemWithParent(CTableBuilder& table, Slot name, int row) {
  const LinkedItem& item = *skg::linkedItemOf(name);
  linkedItem(table, item, row, row + 2);
  itemNameWithChooser(table, item.parent, row + 1);
}

// A flag with its amount on one row.
constexpr void flagAndAmount(CTableBuilder& table, Slot flag, Slot amount, int row) {
  table.flag(flag, row, kFieldColumn);
  table.field(amount, row, kMiddleColumn);
}

// A flag of a range, with the least and the greatest value side by side behind it.
constexpr void limits(CTableBuilder& table, Slot flag, Slot least, Slot greatest, int row) {
  table.flag(flag, row, kFieldColumn);
  table.field(least, row, kMiddleColumn);
  table.field(greatest, row, kFarColumn);
}

inline constexpr int kAxisRows = 4;

constexpr void axis(CTableBuilder& table, const skg::AxisSettings& axis, int row) {
  table.value(axis.controller, at(row, kFieldColumn, kChoiceWidth));
  limits(table, axis.limits, axis.least, axis.greatest, row + 1);
  table.value(axis.follow, at(row + 2, kFieldColumn, kChannelWidth));
  table.field(axis.factor, row + 2, kFactorColumn);
  table.field(axis.offset, row + 2, kFactorColumn + kFieldWidth + kGap);
  table.field(axis.stiffness, row + 3, kFieldColumn);
}

struct BlendSettings {
  std::optional<Slot> world;  // the host has no world coordinates for scaling
  Slot item, method, amount;
};

constexpr void motionGroup(CTableBuilder& table, skg::MotionGroup group, const BlendSettings& blend) {
  constexpr int kBlendRow = 3;
  constexpr int kFirstAxisRow = 4;
  if (blend.world) table.flag(*blend.world, kBlendRow, kFieldColumn);
  linkedItemWithParent(table, blend.item, 0);
  table.value(blend.method, at(kBlendRow, kMiddleColumn, kMethodWidth));
  table.field(blend.amount, kBlendRow, kFarColumn);
  int row = kFirstAxisRow;
  for (const skg::AxisSettings& settings : skg::kAxes) {
    if (settings.group != group) continue;
    axis(table, settings, row);
    row += kAxisRows;
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// The pages, control by control

constexpr void addFrame(CTableBuilder& table) {
  table.begin(Section::Head);
  table.plain(HostControl::Border, Role::Decoration, from(2, kMargin, kEdge));  // a line below the head
  table.begin(Section::Frame);
  table.plain(HostControl::Border, Role::Decoration, from(0, kMargin, kEdge), kFootHeight);  // of the bottom row
  table.begin(Section::Buttons);
  table.plain(HostControl::Button, Role::Reset, endingAt(0, 95, kFootButtonWidth));
  table.plain(HostControl::Button, Role::ResetAll, endingAt(0, 165, kFootButtonWidth));
  table.plain(HostControl::Button, Role::Sync, endingAt(0, 275, kFootButtonWidth));
  table.begin(Section::Head);
  table.tabs(Role::PageTabs, ChoiceList::Pages, at(0, kMargin, 0));
  table.begin(Section::GroupChoice);
  table.tabs(Role::GroupTabs, ChoiceList::MotionGroups, at(0, kFieldColumn, 0));
  table.begin(Section::Head);
  // Both in the same place: one of the two is hidden.
  table.plain(HostControl::Edit, Role::NameEdit, from(1, kFieldColumn, kEdge));
  table.plain(HostControl::CustomPopup, Role::NamePopup, from(1, kFieldColumn, kEdge));
}

constexpr void addGroupPage(CTableBuilder& table) {
  table.begin(Section::GroupPage);
  table.value(Slot::UseBonesFromObject, from(0, kFieldColumn, kEdge));
  table.value(Slot::FalloffType, at(1, kFieldColumn, kChoiceWidth));
  table.value(Slot::BoneCalc, at(2, kFieldColumn, kChoiceWidth));
  table.slider(Slot::LimitBoneNum, kBoneCounts, 3, kFieldColumn);
}

constexpr void addBonePage(CTableBuilder& table) {
  table.begin(Section::BonePage);
  constexpr int kMapEnd = edgeBefore({kFillWidth, kChooserWidth});
  constexpr int kMapFill = edgeBefore({kChooserWidth}) - kFillWidth;
  table.value(Slot::BoneType, at(0, kFieldColumn, kChoiceWidth));
  table.flag(Slot::BoneActive, 1, kFieldColumn);
  table.value(Slot::WeightMap, from(2, kFieldColumn, kMapEnd));
  table.plain(HostControl::CustomPopup, Role::WeightMaps, from(2, kEdge - kChooserWidth, kEdge));
  table.plain(HostControl::Button, Role::WeightFill, at(2, kMapFill, kFillWidth));
  table.flag(Slot::WeightMapOnly, 3, kFieldColumn);
  table.flag(Slot::WeightNormalization, 3, kFarColumn);
  table.field(Slot::Strength, 4, kFieldColumn);
  table.flag(Slot::StrengthMultiply, 5, kFarColumn);
  limits(table, Slot::LimitedRange, Slot::RangeMin, Slot::RangeMax, 6);
  flagAndAmount(table, Slot::JointComp, Slot::JointCompAmount, 7);
  flagAndAmount(table, Slot::JointCompParent, Slot::JointCompParentAmount, 8);
  flagAndAmount(table, Slot::MuscleFlex, Slot::MuscleFlexAmount, 9);
  flagAndAmount(table, Slot::MuscleFlexParent, Slot::MuscleFlexParentAmount, 10);
  flagAndAmount(table, Slot::Bulge, Slot::BulgeAmount, 11);
  flagAndAmount(table, Slot::BulgeParent, Slot::BulgeParentAmount, 12);
  flagAndAmount(table, Slot::Twist, Slot::TwistAmount, 13);
  table.field(Slot::IconSize, 14, kFieldColumn);
  table.value(Slot::Visibility, at(15, kFieldColumn, kOffOnWidth));
  table.value(Slot::Colour, from(15, kEdge - kColourWidth, kEdge));
  linkedItem(table, *skg::linkedItemOf(Slot::InitialPositionItem), 16, 17);  // its parent is the IK page's
}

constexpr void addIKPage(CTableBuilder& table) {
  table.begin(Section::IKPage);
  itemNameWithChooser(table, Slot::ParentItem, 0);
  linkedItemWithParent(table, Slot::TargetItem, 1);
  linkedItemWithParent(table, Slot::PoleItem, 4);
  table.value(Slot::RotationOrder, at(7, kFieldColumn, kChoiceWidth));
  table.flag(Slot::UnaffectedByIK, 8, kFarColumn);
  linkedItemWithParent(table, Slot::GoalObject, 9);
  table.value(Slot::Objective, at(12, kFieldColumn, kChoiceWidth));
  table.value(Slot::IKInitialState, at(13, kFieldColumn, kChoiceWidth));
  table.slider(Slot::IKInitialStateFrame, kFrames, 14, kFieldColumn);
  table.flag(Slot::Chain, 15, kFieldColumn);
  table.field(Slot::IKFKBlending, 15, kFarColumn);
  table.field(Slot::GoalStrength, 16, kFieldColumn);
  table.value(Slot::SoftIK, at(17, kFieldColumn, kChoiceWidth));
  table.value(Slot::SoftIKDistanceType, at(18, kFieldColumn, kChoiceWidth));
  table.field(Slot::SoftIKMin, 19, kFieldColumn);
  table.field(Slot::SoftIKMax, 19, kFarColumn);
  table.flag(Slot::MatchGoalOrientation, 20, kFieldColumn);
  table.flag(Slot::KeepGoalInReach, 21, kFieldColumn);
  table.flag(Slot::FullTimeIK, 21, kFarColumn);
}

constexpr void addControllersPage(CTableBuilder& table) {
  table.begin(Section::ControllersPage);
  table.field(Slot::PathLookAhead, 0, kFieldColumn);
  table.field(Slot::PathMaxSteps, 0, kFarColumn);
  table.field(Slot::PathReliableDistance, 1, kFieldColumn);
  // Below the choice of the group whose controllers they set.
  table.plain(HostControl::Button, Role::KeyFrames, at(3, kFieldColumn, kPresetWidth));
  table.plain(HostControl::Button, Role::InverseKinematics, at(3, kFieldColumn + kPresetWidth + kGap, kPresetWidth));
  table.plain(HostControl::Button, Role::SameAsItem, at(3, kFieldColumn + 2 * (kPresetWidth + kGap), kPresetWidth));
}

constexpr CTableBuilder build() {
  CTableBuilder table;
  addFrame(table);
  addGroupPage(table);
  addBonePage(table);
  addIKPage(table);
  addControllersPage(table);
  using skg::MotionGroup;
  table.begin(Section::PositionGroup);
  motionGroup(table, MotionGroup::Position,
              {Slot::PositionItemWorld, Slot::PositionItem, Slot::PositionBlendMethod, Slot::PositionBlend});
  table.begin(Section::RotationGroup);
  motionGroup(table, MotionGroup::Rotation,
              {Slot::RotationItemWorld, Slot::RotationItem, Slot::RotationBlendMethod, Slot::RotationBlend});
  table.begin(Section::ScaleGroup);
  motionGroup(table, MotionGroup::Scale, {{}, Slot::ScaleItem, Slot::ScaleBlendMethod, Slot::ScaleBlend});
  return table;
}

constexpr CTableBuilder kBuilt = build();
static_assert(kBuilt.count() == kControlCount && texts::kPropertyLabelCount == kControlCount + 1);

constexpr const std::array<PropertyRow, kControlCount>& kControls = kBuilt.rows();

// ---------------------------------------------------------------------------------------------------------------------
// What must hold of the table

// The name has a field of its own rule.
constexpr bool everySettingIsShownOnce() {
  std::array<int, skg::kSlotCount> shown{};
  for (const PropertyRow& row : kControls) {
    if (row.slot) ++shown[skg::indexOf(*row.slot)];
  }
  for (const skg::SlotRow& row : skg::kSlotTable) {
    const bool isShown = row.kind != skg::SlotKind::Reserved && row.slot != Slot::Name;
    if (shown[skg::indexOf(row.slot)] != (isShown ? 1 : 0)) return false;
  }
  return true;
}
static_assert(everySettingIsShownOnce());

// A chooser or a fill button works on the field before it.
constexpr bool fillersFollowTheirField() {
  for (const PropertyRow& row : kControls) {
    if (row.role != Role::WeightMaps && row.role != Role::LinkedFill && row.role != Role::ItemNames) continue;
    const PropertyRow& field = kControls[row.number - 1];
    if (field.kind != HostControl::Edit || !field.slot) return false;
  }
  return true;
}
static_assert(fillersFollowTheirField());

constexpr auto kControlOfSlot = [] {
  std::array<std::optional<std::size_t>, skg::kSlotTable.size()> controls{};
  for (const PropertyRow& row : kControls) {
    if (row.slot) controls[skg::indexOf(*row.slot)] = row.number;
  }
  controls[skg::indexOf(Slot::Name)] = control::kNameEdit;
  return controls;
}();

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

const std::array<PropertyRow, kControlCount>& controlTable() { return kControls; }

ControlSlot ControlSlotMap(std::size_t control) {
  if (control >= kControlCount) return {};
  const std::optional<Slot> slot = kControls[control].slot;
  return {slot ? skg::valueKindOf(skg::rowOf(*slot).kind) : ValueKind::None, slot};
}

std::optional<std::size_t> controlOf(skg::Slot slot) { return kControlOfSlot[skg::indexOf(slot)]; }

}  // namespace mst
