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
    list.emplace_back(reinterpret_cast<std::uintptr_t>(writes.polygons[i]), writes.types[i], writes.texts[i]);
  }
  return list;
}
using Writes = std::vector<Write>;

// Of two layers: Hips and Chest in the first, Tail and Fin in the second. Chest is selected.
const std::vector<skg::SkelegonInfo> kChestSelected = {
    {polygon(1), "Hips", 0, false, nullptr, nullptr, {}},
    {polygon(2), "Chest", 0, true, nullptr, nullptr, {}},
    {polygon(3), "Tail", 1, false, nullptr, nullptr, {}},
    {polygon(4), "Fin", 1, false, nullptr, nullptr, {}},
};

std::vector<skg::SkelegonInfo> selected(const std::set<std::string>& names) {
  std::vector<skg::SkelegonInfo> skelegons = kChestSelected;
  for (skg::SkelegonInfo& skelegon : skelegons) skelegon.isSelected = names.count(skelegon.name) != 0;
  return skelegons;
}

// --- one value -----------------------------------------------------------------------------------------------------------

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

// --- colour --------------------------------------------------------------------------------------------------------------

Writes bothColours(const std::string& copy, const std::string& own) {
  return {{2, skg::kColourCopyTag, copy}, {2, lw::kTagColour, own}};
}

// Deliberate: the host's own tag never holds a cyan.
TEST(WritesForColour, TheTwoCyansAreKeptInTheCopyOnly) {
  for (int index = 0; index < 16; ++index) {
    const std::string name(colourName(index));
    const bool isCyan = index == 3 || index == 10;
    EXPECT_EQ(listed(writesForColour(kChestSelected, index)), bothColours(name, isCyan ? "" : name)) << name;
  }
}

TEST(WritesForColour, AnIndexBeyondTheNamesEmptiesBoth) {
  EXPECT_EQ(listed(writesForColour(kChestSelected, 16)), bothColours("", ""));
  EXPECT_EQ(listed(writesForColour(kChestSelected, -1)), bothColours("", ""));
}

TEST(WritesForLinkedNames, AreNoneForASlotWithoutSuffix) {
  EXPECT_TRUE(writesForLinkedNames(kChestSelected, Slot::ParentItem).empty());
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
  EXPECT_EQ(skg::valueKindOf(skg::SlotKind::Flag), skg::ValueKind::Integer);
  EXPECT_EQ(skg::valueKindOf(skg::SlotKind::Angle), skg::ValueKind::Real);
  EXPECT_EQ(skg::valueKindOf(skg::SlotKind::ItemName), skg::ValueKind::Text);
  EXPECT_EQ(skg::valueKindOf(skg::SlotKind::Colour), skg::ValueKind::Colour);
  EXPECT_EQ(skg::valueKindOf(skg::SlotKind::Reserved), skg::ValueKind::None);
}

}  // namespace
}  // namespace mst
