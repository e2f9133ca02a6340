#include "skelegon/slots.h"
#include "skelegon/slot_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace skg {
namespace {

SkelegonProperties read(const std::vector<StoredTag>& tags) { return propertiesFromFile(tags); }

TEST(SlotTagId, UsesTheHostsOwnTagsForNameWeightMapAndColour) {
  EXPECT_EQ(SlotTagId(6), 0x424F4E45u);
  EXPECT_EQ(SlotTagId(28), 0x424E5754u);
  EXPECT_EQ(SlotTagId(129), 0x434F4C52u);
}

TEST(SlotTagId, PutsTheSlotNumberIntoTheLastByteOtherwise) {
  EXPECT_EQ(SlotTagId(std::size_t{0}), 0x73673100u);
  EXPECT_EQ(SlotTagId(12), 0x7367310Cu);
  EXPECT_EQ(SlotTagId(186), 0x736731BAu);
}

TEST(SlotTagId, KnowsNoTagFrom187On) {
  EXPECT_EQ(SlotTagId(187), 0xFFFFFFFFu);
  EXPECT_EQ(SlotTagId(255), 0xFFFFFFFFu);
  EXPECT_EQ(plainSlotTagId(187), 0xFFFFFFFFu);
}

TEST(SlotTagId, HasAPlainFormWithoutExceptions) {
  EXPECT_EQ(plainSlotTagId(6), 0x73673106u);
  EXPECT_EQ(plainSlotTagId(28), 0x7367311Cu);
  EXPECT_EQ(kColourCopyTag, 0x73673181u);
}

TEST(SlotTagId, IsUniqueForEverySlot) {
  std::set<std::uint32_t> seen;
  for (std::size_t slot = 0; slot < kSlotCount; ++slot) seen.insert(SlotTagId(slot));
  EXPECT_EQ(seen.size(), kSlotCount);
}

TEST(SlotTable, Has187RowsOf22AreReserved) {
  std::size_t reserved = 0;
  for (const SlotRow& row : kSlotTable) reserved += row.kind == SlotKind::Reserved ? 1 : 0;
  EXPECT_EQ(kSlotTable.size(), 187u);
  EXPECT_EQ(reserved, 22u);
}

TEST(SlotTable, NamesEverySettingOnce) {
  std::set<std::string> names;
  std::size_t named = 0;
  for (const SlotRow& row : kSlotTable) {
    if (row.kind == SlotKind::Reserved) continue;
    names.insert(row.setting);
    ++named;
  }
  EXPECT_EQ(names.size(), named);
}

// These four are not in the form in which their values are written, so that their values are always stored.
TEST(SlotDefaults, KeepsTheFourTextsThatNoWrittenValueEquals) {
  EXPECT_EQ(SlotDefaults(Slot::JointCompAmount), "100.0");
  EXPECT_EQ(SlotDefaults(Slot::IKFKBlending), "0");
  EXPECT_EQ(SlotDefaults(Slot::PathMaxSteps), "10");
  EXPECT_EQ(SlotDefaults(Slot::YScaleMin), "0");
}

TEST(SlotDefaults, BreaksThePatternInTheYRowsOfTwoLimitGroups) {
  EXPECT_EQ(SlotDefaults(Slot::XPositionMax), "1.000000");
  EXPECT_EQ(SlotDefaults(Slot::YPositionMax), "0.000000");
  EXPECT_EQ(SlotDefaults(Slot::ZPositionMax), "1.000000");
  EXPECT_EQ(SlotDefaults(Slot::XScaleMax), "1.000000");
  EXPECT_EQ(SlotDefaults(Slot::YScaleMax), "0.000000");
  EXPECT_EQ(SlotDefaults(Slot::ZScaleMax), "1.000000");
}

TEST(SlotDefaults, GivesTwoReservedSlotsAZero) {
  EXPECT_EQ(SlotDefaults(Slot::Reserved14), "0");
  EXPECT_EQ(SlotDefaults(Slot::Reserved15), "0");
  EXPECT_EQ(SlotDefaults(Slot::Reserved18), "");
}

TEST(NameBearingSlots, StandInTheirFixedOrder) {
  std::vector<std::size_t> numbers;
  for (const Slot slot : kNameBearingSlots) numbers.push_back(indexOf(slot));
  EXPECT_EQ(numbers, (std::vector<std::size_t>{12, 51, 52, 130, 53, 131, 55, 132, 73, 133, 92, 134, 110, 135, 142, 144}));
}

TEST(BoneColour, IsFoundByItsExactWord) {
  EXPECT_EQ(colourIndex("Black"), 0);
  EXPECT_EQ(colourIndex("DkCyn"), 3);
  EXPECT_EQ(colourIndex("Modeler"), 15);
}

TEST(BoneColour, IsOrangeForUnknownAndEmptyWords) {
  EXPECT_EQ(colourIndex("black"), 13);
  EXPECT_EQ(colourIndex(""), 13);
  EXPECT_EQ(BoneColourNames[13], "Orang");
}

TEST(PropertiesFromFile, AreAllDefaultsWithoutTagsButForTheColour) {
  const SkelegonProperties properties = read({});
  for (const SlotRow& row : kSlotTable) {
    if (row.slot == Slot::Colour) continue;
    EXPECT_EQ(properties[row.slot], row.defaultText) << indexOf(row.slot);
  }
  EXPECT_EQ(properties[Slot::Colour], "");
}

TEST(PropertiesFromFile, TakeTheFirstTagOfAType) {
  const SkelegonProperties properties = read({{0x7367310D, "7"}, {0x7367310D, "3"}});
  EXPECT_EQ(properties[Slot::FalloffType], "7");
}

TEST(PropertiesFromFile, TakeAnEmptyTextAsItStands) {
  const SkelegonProperties properties = read({{0x7367310D, ""}});
  EXPECT_EQ(properties[Slot::FalloffType], "");
}

TEST(PropertiesFromFile, FallBackToTheDefaultWhenTheFirstTagHasNoText) {
  const SkelegonProperties properties = read({{0x7367310D, std::nullopt}, {0x7367310D, "3"}});
  EXPECT_EQ(properties[Slot::FalloffType], "4");
}

TEST(PropertiesFromFile, KeepAnEmptyHostColourAlthoughThereIsACopy) {
  const SkelegonProperties properties = read({{0x434F4C52, ""}, {0x73673181, "Cyan"}});
  EXPECT_EQ(properties[Slot::Colour], "");
}

TEST(PropertiesFromFile, TakeTheColourCopyOnlyWithoutAHostColour) {
  EXPECT_EQ(read({{0x73673181, "Cyan"}})[Slot::Colour], "Cyan");
  EXPECT_EQ(read({{0x73673181, "Cyan"}, {0x434F4C52, "Red"}})[Slot::Colour], "Red");
}

TEST(PropertiesFromFile, TakeTheColourCopyWhenTheHostColourHasNoText) {
  EXPECT_EQ(read({{0x434F4C52, std::nullopt}, {0x73673181, "Cyan"}})[Slot::Colour], "Cyan");
}

}  // namespace
}  // namespace skg
