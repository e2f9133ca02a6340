#include "layout/bone_commands.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "skelegon/slot_table.h"

namespace lwp {
namespace {

const BoneCommand& commandFor(skg::Slot slot) {
  for (const BoneCommand& command : boneCommands()) {
    if (command.slot == slot) return command;
  }
  throw std::out_of_range("no command for the slot");
}

TEST(BoneCommands, UseEveryBoneSettingOnce) {
  // Parents, shapes, visibility and colour of the helper items are no bone commands, nor is the name.
  using skg::Slot;
  std::set<Slot> used;
  const auto use = [&](Slot slot) {
    if (slot == Slot::Reserved0) return;
    EXPECT_TRUE(used.insert(slot).second) << skg::indexOf(slot);
  };
  for (const BoneCommand& command : boneCommands()) {
    if (command.sends == Sends::AxisGroup) continue;
    use(command.slot);
    use(command.second);
  }
  for (const AxisRow& row : axisRows()) {
    const skg::AxisSettings& set = row.settings();
    for (const Slot slot :
         {set.controller, set.limits, set.least, set.greatest, set.stiffness, set.follow, set.factor, set.offset})
      use(slot);
  }
  std::size_t helperSlots = 0;
  for (const skg::SlotRow& row : skg::kSlotTable) {
    if (row.kind != skg::SlotKind::Reserved && used.count(row.slot) == 0) ++helperSlots;
  }
  // Name, parent, 7 visibilities, 7 colours, 7 shapes, 6 parents, initial position item.
  EXPECT_EQ(helperSlots, 1u + 1 + 7 + 7 + 7 + 6 + 1);
}

TEST(BoneCommands, SendTheWeightSwitchesUnderOneName) {
  EXPECT_STREQ(commandFor(skg::Slot::WeightMapOnly).name, "BoneWeightMapOnly");
  EXPECT_STREQ(commandFor(skg::Slot::WeightNormalization).name, "BoneWeightMapOnly");
}

TEST(BoneCommands, KeepTheUnaffectedBitForTheChainSwitch) {
  const BoneCommand& chain = commandFor(skg::Slot::Chain);
  EXPECT_EQ(chain.bit, 0x20u);
  EXPECT_EQ(chain.updates, 0x2u);
}

TEST(AxisRows, LetSZFollowBySYAndEveryOtherByItself) {
  for (std::size_t i = 0; i < axisRows().size(); ++i) {
    EXPECT_EQ(static_cast<std::size_t>(axisRows()[i].followGate), i == 8 ? 7u : i) << axisRows()[i].name;
  }
}

TEST(AxisRows, LetOnlyARefusedLimitYPass) {
  for (const AxisRow& row : axisRows()) EXPECT_EQ(row.limitMayFail, std::string(row.name) == "Y");
}

TEST(AxisRows, TurnOnlyRotationLimitsIntoDegrees) {
  for (const AxisRow& row : axisRows())
    EXPECT_EQ(row.limitFactor, row.settings().group == skg::MotionGroup::Rotation ? 57.29577951308232 : 1.0) << row.name;
}

}  // namespace
}  // namespace lwp
