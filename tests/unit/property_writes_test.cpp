// Which tags the actions of the property panel write.
#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <tuple>

#include "modeler/property/property_store.h"
#include "skelegon/slot_table.h"

namespace mst {
namespace {

using skg::Slot;

lw::PolygonId polygon(std::uintptr_t number) {
  return reinterpret_cast<lw::PolygonId>(number);  // NOLINT(performance-no-int-to-ptr)
}

std::uint32_t copyTag(Slot slot) { return skg::plainSlotTagId(indexOf(slot)); }

// Polygon number, tag type, text.
using Write = std::tuple<std::uintptr_t, std::uint32_t, std::string>;
std::vector<Write> listed(const TagWrites& writes) {
  std::vector<Write> list;
  for (std::size_t i = 0; i < writes.polygons.size(); ++i) {
    list.emplace_back(reinterpret_cast<std::uintptr_t>(writes.polygons[i]), writes.types[i], writes.values[i]);
  }
  return list;
}
using Writes = std::vector<Write>;

// Of two layers: Hips and Chest in the first, Tail and Fin in the second. Chest is selected.
const std::vector<PanelSkelegon> kChestSelected = {
    {polygon(1), "Hips", 0, false},
    {polygon(2), "Chest", 0, true},
    {polygon(3), "Tail", 1, false},
    {polygon(4), "Fin", 1, false},
};

std::vector<PanelSkelegon> selected(const std::set<std::string>& names) {
  std::vector<PanelSkelegon> skelegons = kChestSelected;
  for (PanelSkelegon& skelegon : skelegons) skelegon.isSelected = names.count(skelegon.name) != 0;
  return skelegons;
}

// --- one value -----------------------------------------------------------------------------------------------------------

TEST(WritesForValue, GoToEverySelectedSkelegon) {
  EXPECT_EQ(listed(writesForValue(selected({"Hips", "Fin"}), Slot::Strength, "50.000000")),
            (Writes{{1, 0x7367311F, "50.000000"}, {4, 0x7367311F, "50.000000"}}));
}

TEST(WritesForValue, AreNoneWithNothingSelected) {
  EXPECT_TRUE(writesForValue(selected({}), Slot::Strength, "50.000000").empty());
  EXPECT_TRUE(writesForValue(selected({}), Slot::FalloffType, "2").empty());
}

TEST(WritesForValue, TheDefaultIsNotStored) {
  EXPECT_EQ(listed(writesForValue(kChestSelected, Slot::Strength, "100.000000")), (Writes{{2, 0x7367311F, ""}}));
}

TEST(WritesForValue, TheDefaultIsComparedAsTextNotAsNumber) {
  EXPECT_EQ(listed(writesForValue(kChestSelected, Slot::Strength, "100")), (Writes{{2, 0x7367311F, "100"}}));
}

// A default in a form that is never written is never met: these values are always stored.
TEST(WritesForValue, FourSlotsStoreEvenTheNumberOfTheirDefault) {
  const std::vector<std::pair<Slot, double>> slots = {
      {Slot::JointCompAmount, 100}, {Slot::IKFKBlending, 0}, {Slot::PathMaxSteps, 10}, {Slot::YScaleMin, 0}};
  for (const auto& [slot, value] : slots) {
    const std::string text = formatReal(value);
    EXPECT_EQ(listed(writesForValue(kChestSelected, slot, text)), (Writes{{2, skg::SlotTagId(slot), text}}))
        << indexOf(slot);
  }
}

TEST(WritesForValue, EveryOtherSlotDropsItsDefault) {
  const std::set<Slot> stubborn = {Slot::JointCompAmount, Slot::IKFKBlending, Slot::PathMaxSteps, Slot::YScaleMin};
  for (const skg::SlotRow& row : skg::kSlotTable) {
    if (row.kind == skg::SlotKind::Reserved || stubborn.count(row.slot) != 0) continue;
    SCOPED_TRACE(row.setting);
    std::string shown = row.defaultText;
    if (skg::valueKindOf(row.kind) == ValueKind::Real) shown = formatReal(std::stod(shown));
    const TagWrites writes = writesForValue(kChestSelected, row.slot, shown);
    for (const std::string& value : writes.values) EXPECT_EQ(value, "");
    EXPECT_FALSE(writes.empty());
  }
}

TEST(WritesForValue, WeightMapGoesToTheHostsTag) {
  EXPECT_EQ(listed(writesForValue(kChestSelected, Slot::WeightMap, "Chest")), (Writes{{2, lw::kTagBoneWeight, "Chest"}}));
}

TEST(WritesForValue, ALinkedItemsColourModelerIsTheDefault) {
  EXPECT_EQ(listed(writesForValue(kChestSelected, Slot::TargetColour, colourName(15))),
            (Writes{{2, copyTag(Slot::TargetColour), ""}}));
}

TEST(WritesForValue, ReservedSlotsAreNeverWritten) {
  for (const skg::SlotRow& row : skg::kSlotTable) {
    if (row.kind != skg::SlotKind::Reserved) continue;
    EXPECT_TRUE(writesForValue(kChestSelected, row.slot, "1").empty()) << indexOf(row.slot);
  }
}

TEST(WritesForValue, ObjectWideSettingsGoToTheWholeLayerOfASelectedSkelegon) {
  for (const Slot slot : {Slot::UseBonesFromObject, Slot::FalloffType, Slot::BoneCalc, Slot::LimitBoneNum}) {
    EXPECT_EQ(listed(writesForValue(kChestSelected, slot, "7")),
              (Writes{{1, skg::SlotTagId(slot), "7"}, {2, skg::SlotTagId(slot), "7"}}))
        << indexOf(slot);
  }
}

TEST(WritesForValue, ObjectWideSettingsGoToEveryLayerThatHasASelectedSkelegon) {
  EXPECT_EQ(writesForValue(selected({"Hips", "Tail"}), Slot::BoneCalc, "1").polygons.size(), 4u);
}

TEST(WritesForValue, TheSlotsNextToTheObjectWideOnesAreOfTheSkelegonAlone) {
  EXPECT_EQ(writesForValue(kChestSelected, Slot::BoneType, "1").polygons.size(), 1u);
}

// --- name and colour -----------------------------------------------------------------------------------------------------

TEST(WritesForName, SetNameAndPart) {
  EXPECT_EQ(listed(writesForName(kChestSelected, "Spine")),
            (Writes{{2, lw::kTagBone, "Spine"}, {2, lw::kTagPart, "Spine"}}));
}

TEST(WritesForName, AnEmptyNameEmptiesBoth) {
  EXPECT_EQ(listed(writesForName(kChestSelected, "")), (Writes{{2, lw::kTagBone, ""}, {2, lw::kTagPart, ""}}));
}

Writes bothColours(const std::string& copy, const std::string& own) {
  return {{2, skg::kColourCopyTag, copy}, {2, lw::kTagColour, own}};
}

TEST(WritesForColour, SetTheHostsTagAndTheCopy) {
  EXPECT_EQ(listed(writesForColour(kChestSelected, 8)), bothColours("Blue", "Blue"));
}

// Deliberate: the host's own tag never holds a cyan.
TEST(WritesForColour, TheTwoCyansAreKeptInTheCopyOnly) {
  for (int index = 0; index < 16; ++index) {
    const std::string name(colourName(index));
    const bool isCyan = index == 3 || index == 10;
    EXPECT_EQ(listed(writesForColour(kChestSelected, index)), bothColours(name, isCyan ? "" : name)) << name;
  }
}

TEST(WritesForColour, ModelerIsStoredThoughItIsTheDefault) {
  EXPECT_EQ(listed(writesForColour(kChestSelected, 15)), bothColours("Modeler", "Modeler"));
}

TEST(WritesForColour, AnIndexBeyondTheNamesEmptiesBoth) {
  EXPECT_EQ(listed(writesForColour(kChestSelected, 16)), bothColours("", ""));
  EXPECT_EQ(listed(writesForColour(kChestSelected, -1)), bothColours("", ""));
}

// --- buttons -------------------------------------------------------------------------------------------------------------

TEST(WritesForLinkedNames, GiveEachSkelegonItsOwnNameWithTheSuffix) {
  EXPECT_EQ(listed(writesForLinkedNames(selected({"Hips", "Fin"}), Slot::TargetItem)),
            (Writes{{1, copyTag(Slot::TargetItem), "Hips_tar"}, {4, copyTag(Slot::TargetItem), "Fin_tar"}}));
}

TEST(WritesForLinkedNames, HaveASuffixForEachOfTheSevenItems) {
  EXPECT_STREQ(skg::linkedItemOf(Slot::TargetItem)->suffix, "_tar");
  EXPECT_STREQ(skg::linkedItemOf(Slot::PoleItem)->suffix, "_pole");
  EXPECT_STREQ(skg::linkedItemOf(Slot::GoalObject)->suffix, "_goal");
  EXPECT_STREQ(skg::linkedItemOf(Slot::PositionItem)->suffix, "_pos");
  EXPECT_STREQ(skg::linkedItemOf(Slot::RotationItem)->suffix, "_rot");
  EXPECT_STREQ(skg::linkedItemOf(Slot::ScaleItem)->suffix, "_scl");
  EXPECT_STREQ(skg::linkedItemOf(Slot::InitialPositionItem)->suffix, "_initpos");
}

TEST(WritesForLinkedNames, AreNoneForASlotWithoutSuffix) {
  EXPECT_TRUE(writesForLinkedNames(kChestSelected, Slot::ParentItem).empty());
}

TEST(WritesForWeightMapsByName, ASkelegonWithAMapOfItsNameTakesItAndIsActive) {
  EXPECT_EQ(listed(writesForWeightMapsByName(kChestSelected, {"Hips", "Chest"})),
            (Writes{{2, copyTag(Slot::BoneActive), "1"}, {2, lw::kTagBoneWeight, "Chest"}}));
}

TEST(WritesForWeightMapsByName, ASkelegonWithoutOneBecomesInactive) {
  EXPECT_EQ(listed(writesForWeightMapsByName(kChestSelected, {"Hips"})),
            (Writes{{2, copyTag(Slot::BoneActive), "0"}, {2, lw::kTagBoneWeight, ""}}));
}

TEST(WritesForControllerPreset, SetTheThreeControllersOfTheGroup) {
  EXPECT_EQ(listed(writesForControllerPreset(kChestSelected, skg::MotionGroup::Position, Controller::InverseKinematics)),
            (Writes{{2, 0x7367314C, "3"}, {2, 0x73673151, "3"}, {2, 0x73673156, "3"}}));
  EXPECT_EQ(listed(writesForControllerPreset(kChestSelected, skg::MotionGroup::Rotation, Controller::SameAsItem)),
            (Writes{{2, 0x7367315F, "6"}, {2, 0x73673164, "6"}, {2, 0x73673169, "6"}}));
}

TEST(WritesForControllerPreset, KeyFrameWritesZero) {
  EXPECT_EQ(listed(writesForControllerPreset(kChestSelected, skg::MotionGroup::Scale, Controller::KeyFrames)),
            (Writes{{2, 0x73673171, "0"}, {2, 0x73673176, "0"}, {2, 0x7367317B, "0"}}));
}

TEST(WritesForReset, EmptyEveryTagOfTheFamilyAndNoneOfTheHosts) {
  const TagWrites writes = writesForReset({polygon(7)});
  ASSERT_EQ(writes.types.size(), 187u);
  for (std::size_t slot = 0; slot < 187; ++slot) EXPECT_EQ(writes.types[slot], 0x73673100u | slot);
  for (const std::string& value : writes.values) EXPECT_EQ(value, "");
}

// --- texts ---------------------------------------------------------------------------------------------------------------

TEST(ValueTexts, IntegersAreDecimal) {
  EXPECT_EQ(formatInteger(0), "0");
  EXPECT_EQ(formatInteger(-17), "-17");
  EXPECT_EQ(formatInteger(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(ValueTexts, RealsHaveSixPlaces) {
  EXPECT_EQ(formatReal(100), "100.000000");
  EXPECT_EQ(formatReal(-3.141592), "-3.141592");
  EXPECT_EQ(formatReal(0.0000004), "0.000000");
  EXPECT_EQ(formatReal(-0.0), "-0.000000");
  EXPECT_EQ(formatReal(2.0 / 3), "0.666667");
}

TEST(ValueTexts, TheLargestRealFits) {
  const std::string text = formatReal(-std::numeric_limits<double>::max());
  EXPECT_EQ(text.size(), 317u);
  EXPECT_EQ(text.substr(0, 8), "-1797693");
}

TEST(ValueTexts, ColourIndicesBeyondTheNamesGiveNoText) {
  EXPECT_EQ(colourName(0), "Black");
  EXPECT_EQ(colourName(15), "Modeler");
  EXPECT_EQ(colourName(16), "");
  EXPECT_EQ(colourName(-1), "");
}

TEST(ValueTexts, EveryKindOfSettingHasAKindOfValue) {
  EXPECT_EQ(skg::valueKindOf(skg::SlotKind::Flag), ValueKind::Integer);
  EXPECT_EQ(skg::valueKindOf(skg::SlotKind::Angle), ValueKind::Real);
  EXPECT_EQ(skg::valueKindOf(skg::SlotKind::ItemName), ValueKind::Text);
  EXPECT_EQ(skg::valueKindOf(skg::SlotKind::Colour), ValueKind::Colour);
  EXPECT_EQ(skg::valueKindOf(skg::SlotKind::Reserved), ValueKind::None);
}

}  // namespace
}  // namespace mst
