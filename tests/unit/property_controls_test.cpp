#include "modeler/property/property_controls.h"
#include "skelegon/slot_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "modeler/property/property_layout.h"

namespace mst {
namespace {

using skg::Slot;
using skg::SlotKind;
using texts::ChoiceList;

// The setting of each control by number, -1 where it has none. Written out apart from the table's rules.
// clang-format off
constexpr int kSlotOfControl[kControlCount] = {
    // the panel's frame
    -1, -1, -1, -1, -1, -1, -1, -1, -1,
    // group
    12, 13, 16, 17,
    // bone property
    26, 27, 28, -1, -1, 29, 30, 31, 32, 33, 34, 35,
    36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48, 49, 50, 128, 129,
    142, -1, 143, 151, 158,
    // IK option
    51, -1,
    52, -1, 136, 145, 152, 130, -1,
    53, -1, 137, 146, 153, 131, -1,
    186, 54,
    55, -1, 138, 147, 154, 132, -1,
    56, 57, 58, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68,
    // controllers and limits
    69, 70, 71, -1, -1, -1,
    // position
    72, 73, -1, 139, 148, 155, 133, -1, 74, 75,
    76, 77, 78, 79, 159, 160, 161, 80,
    81, 82, 83, 84, 162, 163, 164, 85,
    86, 87, 88, 89, 165, 166, 167, 90,
    // rotation
    91, 92, -1, 140, 149, 156, 134, -1, 93, 94,
    95, 96, 97, 98, 168, 169, 170, 99,
    100, 101, 102, 103, 171, 172, 173, 104,
    105, 106, 107, 108, 174, 175, 176, 109,
    // scale
    110, -1, 141, 150, 157, 135, -1, 111, 112,
    113, 114, 115, 116, 177, 178, 179, 117,
    118, 119, 120, 121, 180, 181, 182, 122,
    123, 124, 125, 126, 183, 184, 185, 127,
};
// clang-format on

const skg::SlotRow& settingOf(const PropertyRow& row) { return skg::kSlotTable[skg::indexOf(row.slot.value())]; }

std::vector<PropertyRow> valueControls() {
  std::vector<PropertyRow> rows;
  for (const PropertyRow& row : controlTable()) {
    if (row.slot) rows.push_back(row);
  }
  return rows;
}

std::optional<ChoiceList> listOf(const PropertyRow& row) {
  return row.choices ? std::optional(static_cast<ChoiceList>(*row.choices)) : std::nullopt;
}

std::string label(std::size_t control) { return texts::propertyLabels(texts::Language::English)[control]; }

TEST(PropertyControls, StandInTheOrderOfTheirNumbers) {
  for (std::size_t i = 0; i < kControlCount; ++i) EXPECT_EQ(controlTable()[i].number, i);
}

TEST(PropertyControls, ShowTheirSettings) {
  for (std::size_t i = 0; i < kControlCount; ++i) {
    const std::optional<Slot> slot = ControlSlotMap(i).slot;
    EXPECT_EQ(slot ? static_cast<int>(*slot) : -1, kSlotOfControl[i]) << i;
  }
}

TEST(PropertyControls, ShowEverySettingButTheReservedOnesExactlyOnce) {
  std::multiset<Slot> shown = {Slot::Name};  // by the name field
  for (const PropertyRow& row : valueControls()) shown.insert(*row.slot);
  for (const skg::SlotRow& row : skg::kSlotTable) {
    EXPECT_EQ(shown.count(row.slot), row.kind == SlotKind::Reserved ? 0U : 1U) << skg::indexOf(row.slot);
  }
  EXPECT_EQ(shown.size(), 165U);
}

TEST(PropertyControls, AreFoundByTheirSetting) {
  for (const PropertyRow& row : valueControls()) EXPECT_EQ(controlOf(*row.slot), row.number);
  EXPECT_EQ(controlOf(Slot::Name), control::kNameEdit);
  EXPECT_EQ(controlOf(Slot::Reserved144), std::nullopt);
}

TEST(PropertyControls, AreOfTheKindThatTheirSettingNeeds) {
  const std::map<SlotKind, std::set<HostControl>> fitting = {
      {SlotKind::Flag, {HostControl::Bool, HostControl::BoolButton}},
      {SlotKind::Choice, {HostControl::Popup}},
      {SlotKind::Integer, {HostControl::MiniSlider}},
      {SlotKind::Percent, {HostControl::Percent}},
      {SlotKind::Distance, {HostControl::Distance}},
      {SlotKind::Number, {HostControl::Float}},
      {SlotKind::Angle, {HostControl::Angle}},
      {SlotKind::ItemName, {HostControl::Edit}},
      {SlotKind::ObjectName, {HostControl::Edit}},
      {SlotKind::WeightMapName, {HostControl::Edit}},
      {SlotKind::Colour, {HostControl::Popup}},
  };
  for (const PropertyRow& row : valueControls()) {
    EXPECT_TRUE(fitting.at(settingOf(row).kind).count(row.kind) != 0) << row.number;
  }
}

TEST(PropertyControls, TakeTheKindOfValueThatTheirSettingStores) {
  const std::map<SlotKind, ValueKind> stored = {
      {SlotKind::Flag, ValueKind::Integer},    {SlotKind::Choice, ValueKind::Integer},
      {SlotKind::Integer, ValueKind::Integer}, {SlotKind::Percent, ValueKind::Real},
      {SlotKind::Distance, ValueKind::Real},   {SlotKind::Number, ValueKind::Real},
      {SlotKind::Angle, ValueKind::Real},      {SlotKind::ItemName, ValueKind::Text},
      {SlotKind::ObjectName, ValueKind::Text}, {SlotKind::WeightMapName, ValueKind::Text},
      {SlotKind::Colour, ValueKind::Colour},
  };
  for (const PropertyRow& row : valueControls()) {
    EXPECT_EQ(ControlSlotMap(row.number).value, stored.at(settingOf(row).kind)) << row.number;
  }
}

TEST(PropertyControls, WithoutASettingTakeNoValue) {
  EXPECT_EQ(ControlSlotMap(control::kNameEdit).value, ValueKind::None);
  EXPECT_EQ(ControlSlotMap(kControlCount).value, ValueKind::None);
  EXPECT_EQ(ControlSlotMap(kControlCount).slot, std::nullopt);
}

TEST(PropertyControls, BearTheLabelOfTheirSetting) {
  for (const PropertyRow& row : valueControls()) {
    const std::string text = label(row.number);
    if (text == "x/+") continue;  // spelled with a capital in the table of settings
    EXPECT_EQ(std::string(settingOf(row).setting).substr(0, text.size()), text) << row.number;
  }
}

TEST(PropertyControls, ShowTheFlagsOfShapesAsButtons) {
  for (const PropertyRow& row : valueControls()) {
    EXPECT_EQ(row.kind == HostControl::BoolButton, label(row.number) == "Shp") << row.number;
  }
}

TEST(PropertyControls, OfferTheListOfTheirSetting) {
  const std::map<std::string, ChoiceList> lists = {
      {"Falloff Type", ChoiceList::FalloffType}, {"Bone Calc", ChoiceList::BoneCalc},
      {"Bone Type", ChoiceList::BoneType},       {"Objective", ChoiceList::Objective},
      {"Visibility", ChoiceList::OffOn},         {"Color", ChoiceList::Colour},
      {"Soft IK", ChoiceList::SoftIK},           {"Distance Type", ChoiceList::DistanceType},
      {"Follow", ChoiceList::FollowChannel},     {"Rotation Order", ChoiceList::RotationOrder},
  };
  for (const PropertyRow& row : valueControls()) {
    const std::string setting = settingOf(row).setting;
    if (row.kind != HostControl::Popup) {
      EXPECT_EQ(listOf(row), std::nullopt) << row.number;
    } else if (row.slot == Slot::IKInitialState) {
      EXPECT_EQ(listOf(row), ChoiceList::IKInitialState);
    } else if (setting.find("blend method") != std::string::npos) {
      EXPECT_EQ(listOf(row), ChoiceList::BlendMethod) << row.number;
    } else if (setting.find("Controller") != std::string::npos) {
      EXPECT_EQ(listOf(row), ChoiceList::Controller) << row.number;
    } else {
      EXPECT_EQ(listOf(row), lists.at(label(row.number))) << row.number;
    }
  }
}

// Fields get fewer characters than fit, for the form brings them to their width in pixels; a slider's handle comes on top.
TEST(PropertyControls, GiveTheHostTheWidthOfFieldsInCharactersAndThatOfSlidersWithoutTheHandle) {
  const auto width = [](Slot slot) { return controlTable()[controlOf(slot).value()].width; };
  EXPECT_EQ(width(Slot::Name), 225 / 8);
  EXPECT_EQ(width(Slot::WeightMap), 173 / 8);
  EXPECT_EQ(width(Slot::LimitBoneNum), 70 - 20);
  EXPECT_EQ(width(Slot::BoneType), 200);
}

TEST(PropertyControls, FillButtonsAndChoosersFollowTheirField) {
  const std::map<std::size_t, Slot> fields = {
      {16, Slot::WeightMap},       {43, Slot::InitialPositionItem}, {48, Slot::ParentItem},
      {50, Slot::TargetItem},      {55, Slot::TargetParent},        {57, Slot::PoleItem},
      {62, Slot::PoleParent},      {66, Slot::GoalObject},          {71, Slot::GoalParent},
      {93, Slot::PositionItem},    {98, Slot::PositionParent},      {127, Slot::RotationItem},
      {132, Slot::RotationParent}, {160, Slot::ScaleItem},          {165, Slot::ScaleParent},
  };
  std::size_t found = 0;
  for (const PropertyRow& row : controlTable()) {
    if (row.role != Role::WeightMaps && row.role != Role::LinkedFill && row.role != Role::ItemNames) continue;
    EXPECT_EQ(ControlSlotMap(row.number - 1).slot, fields.at(row.number)) << row.number;
    ++found;
  }
  EXPECT_EQ(found, fields.size());
}

TEST(PropertyControls, FillButtonsAreThoseWithTheArrow) {
  for (const PropertyRow& row : controlTable()) {
    const bool fills = row.role == Role::LinkedFill || row.role == Role::WeightFill;
    EXPECT_EQ(fills, label(row.number) == "\x03(i:MIMG_LEFTARROW)") << row.number;
  }
}

TEST(PropertyControls, ThePresetsAreTheButtonsOfTheirName) {
  EXPECT_EQ(controlTable()[88].role, Role::KeyFrames);
  EXPECT_EQ(controlTable()[89].role, Role::InverseKinematics);
  EXPECT_EQ(controlTable()[90].role, Role::SameAsItem);
}

// The runs of controls that a page, and a group of the last page, shows.
bool isOnPage(std::size_t number, int page, int group) {
  constexpr std::pair<std::size_t, std::size_t> pages[] = {{9, 12}, {13, 46}, {47, 84}, {85, 90}};
  constexpr std::pair<std::size_t, std::size_t> groups[] = {{91, 124}, {125, 158}, {159, 191}};
  const auto holds = [number](const auto& run) { return run.first <= number && number <= run.second; };
  if (number == control::kGroups) return page == 3;
  if (number < 9) return true;
  return holds(pages[page]) || (page == 3 && holds(groups[group]));
}

TEST(PropertyControls, EachPageAndGroupShowsItsRunOfControls) {
  for (int page = 0; page < kPageCount; ++page) {
    for (int group = 0; group < kMotionGroupCount; ++group) {
      for (std::size_t number = 0; number < kControlCount; ++number) {
        EXPECT_EQ(isShown(controlTable()[number], page, group), isOnPage(number, page, group))
            << number << " on page " << page << ", group " << group;
      }
    }
  }
}

// The label of the control before serves these too: the amount of a flag, the method and amount of an item, the offset behind a factor.
TEST(PropertyControls, HaveALabelButThoseThatStandBehindTheirs) {
  const std::set<std::size_t> expected = {26,  28,  30,  32,  34,  36,  38,  73,  99,  100, 107, 115,
                                          123, 133, 134, 141, 149, 157, 166, 167, 174, 182, 190};
  std::set<std::size_t> unlabelled;
  for (const PropertyRow& row : controlTable()) {
    if (row.slot && label(row.number).empty()) unlabelled.insert(row.number);
  }
  EXPECT_EQ(unlabelled, expected);
}

}  // namespace
}  // namespace mst
