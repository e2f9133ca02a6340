// The advanced setting, through the panel: the name rule's switches, counters, orders, targets, tags and the overlap check.
#include <array>

#include "skelegon/slot_table.h"
#include "tests/tools/renamer_fixture.h"

namespace varnel::test {
namespace {

// ---------------------------------------------------------------------------------------------------------------------
// Worked examples

// Two chains of three.
standin::ObjectFile twoChains() {
  standin::RigBuilder rig;
  rig.chain({"a", "b", "c"}, {{1, 0, 0}, {1, 1, 0}, {1, 2, 0}, {1, 3, 0}});
  rig.chain({"d", "e", "f"}, {{2, 0, 0}, {2, 1, 0}, {2, 2, 0}, {2, 3, 0}});
  return rig.take();
}

TEST_F(Renamer, CountsColumnsAndRowsInTheBaseName) {
  load(twoChains());
  openCounting("Bone01_[col]_[row]", 1, 2);
  chooseTarget(RenameTarget::All);
  run();
  EXPECT_EQ(names(), (Names{"Bone01_A_01", "Bone01_A_02", "Bone01_A_03", "Bone01_B_01", "Bone01_B_02", "Bone01_B_03"}));
}

TEST_F(Renamer, AppendsCountersThatHaveNoPlace) {
  load(twoChains());
  openCounting("Arm", 0, 1);
  chooseTarget(RenameTarget::All);
  run();
  EXPECT_EQ(names(), (Names{"Arm_A_0", "Arm_A_1", "Arm_A_2", "Arm_B_0", "Arm_B_1", "Arm_B_2"}));
}

standin::ObjectFile roots(std::size_t count) {
  standin::RigBuilder rig;
  for (std::size_t i = 0; i < count; ++i) {
    const auto x = static_cast<float>(i);
    rig.root("Bone" + std::to_string(i), {x, 0, 0}, {x, 1, 0});
  }
  return rig.take();
}

TEST_F(Renamer, BeginsAtAAgainAfterTwentyFourColumns) {
  load(roots(25));
  openIn(RenameMode::Advanced);
  chooseTarget(RenameTarget::All);
  switchOn(Item::ColumnOn);
  run();
  EXPECT_EQ(names()[23], "Bone23_X");
  EXPECT_EQ(names()[24], "Bone24_A");
}

TEST_F(Renamer, TakesStartYAsAAndZAsB) {
  load(roots(1));
  openIn(RenameMode::Advanced);
  chooseTarget(RenameTarget::All);
  switchOn(Item::ColumnOn);
  choose(Item::ColumnStart, 24);
  run();
  EXPECT_EQ(names(), Names{"Bone0_A"});
  choose(Item::ColumnStart, 25);
  run();
  EXPECT_EQ(names(), Names{"Bone0_A_B"});
}

TEST_F(Renamer, TurnsLeftIntoRightByPatternAndWritesNoOtherName) {
  openIn(RenameMode::Advanced);
  chooseTarget(RenameTarget::All);
  switchOn(Item::OverlapCheck, false);
  switchOn(Item::RegexOn);
  run();
  EXPECT_EQ(names(3), kRightArm);
  EXPECT_EQ(host.edits().back().changes, 3U);
}

TEST_F(Renamer, AddsNothingToAnEmptyName) {
  load(roots(1));
  object->setTag(*object->skelegons().front(), lw::kTagBone, "");
  openIn(RenameMode::Advanced);
  chooseTarget(RenameTarget::All);
  switchOn(Item::PrefixOn);
  type(Item::Prefix, "p");
  switchOn(Item::SuffixOn);
  type(Item::Suffix, "s");
  run();
  EXPECT_EQ(names(), Names{""});
}

TEST_F(Renamer, GivesEveryRegisteredSkelegonRowZeroAndAColumn) {
  openCounting("Bone_[col]_[row]", 1, 2);
  registerThese(kLeftArm);
  chooseTarget(RenameTarget::Registration);
  run();
  EXPECT_EQ(names(4), (Names{"Bone_A_01", "Bone_B_01", "Bone_C_01", "Arm_R_01"}));
}

// ---------------------------------------------------------------------------------------------------------------------
// The switches, alone and together

struct SwitchRow {
  std::vector<Item> on;
  const char* expected;  // of "Arm_L_01"
};
void PrintTo(const SwitchRow& row, std::ostream* out) { *out << row.expected; }

class Switches : public testing::TestWithParam<SwitchRow>, protected RenamerSession {};
INSTANTIATE_TEST_SUITE_P(Renamer, Switches,
                         testing::Values(SwitchRow{{}, "Arm_L_01"}, SwitchRow{{Item::ReplaceOn}, "Leg_L_01"},
                                         SwitchRow{{Item::BaseNameOn}, "B_L"}, SwitchRow{{Item::PrefixOn}, "p_L_Arm_L_01"},
                                         SwitchRow{{Item::SuffixOn}, "Arm_L_01_s"}, SwitchRow{{Item::RegexOn}, "Arm_R_01"},
                                         SwitchRow{{Item::ColumnOn}, "Arm_L_01_C"}, SwitchRow{{Item::RowOn}, "Arm_L_01_007"},
                                         SwitchRow{{Item::ReplaceOn, Item::BaseNameOn, Item::PrefixOn, Item::SuffixOn},
                                                   "p_L_B_L_s"},
                                         SwitchRow{{Item::BaseNameOn, Item::PrefixOn, Item::RegexOn}, "p_L_B_R"},
                                         SwitchRow{{Item::ReplaceOn, Item::RegexOn, Item::SuffixOn}, "Leg_R_01_s"},
                                         SwitchRow{{Item::ColumnOn, Item::RowOn}, "Arm_L_01_C_007"},
                                         SwitchRow{{Item::ReplaceOn, Item::BaseNameOn, Item::PrefixOn, Item::SuffixOn,
                                                    Item::RegexOn, Item::ColumnOn, Item::RowOn},
                                                   "p_L_B_R_s_C_007"}));

TEST_P(Switches, MakeTheNameInTheirOrder) {
  host.select({"Arm_L_01"});
  openIn(RenameMode::Advanced);
  type(Item::ReplaceFrom, "Arm");
  type(Item::ReplaceTo, "Leg");
  type(Item::BaseName, "B_L");
  type(Item::Prefix, "p_L_");
  type(Item::Suffix, "_s");
  choose(Item::ColumnStart, 2);
  EXPECT_TRUE(person::enter(at(Item::RowStart), 7));
  EXPECT_TRUE(person::enter(at(Item::RowDigits), 3));
  for (const Item item : GetParam().on) switchOn(item);
  run();
  EXPECT_EQ(names(2), (Names{GetParam().expected, "Arm_L_02"}));
}

struct NumberRow {
  int start;
  int digits;
  const char* expected;
};
void PrintTo(const NumberRow& row, std::ostream* out) { *out << row.start << " with " << row.digits; }

class RowNumbers : public testing::TestWithParam<NumberRow>, protected RenamerSession {};
INSTANTIATE_TEST_SUITE_P(Renamer, RowNumbers,
                         testing::Values(NumberRow{1, 0, "Root_1"}, NumberRow{1, -5, "Root_1"}, NumberRow{1, 1, "Root_1"},
                                         NumberRow{1, 6, "Root_000001"}, NumberRow{1, 9, "Root_000001"},
                                         NumberRow{-7, 2, "Root_00"}, NumberRow{123, 2, "Root_123"}));

TEST_P(RowNumbers, AreKeptWithinTheirBounds) {
  host.select({"Root"});
  openIn(RenameMode::Advanced);
  switchOn(Item::RowOn);
  EXPECT_TRUE(person::enter(at(Item::RowStart), GetParam().start));
  EXPECT_TRUE(person::enter(at(Item::RowDigits), GetParam().digits));
  run();
  EXPECT_EQ(names()[6], GetParam().expected);
}

TEST_F(Renamer, TakesANegativeStartOfColumnsAsA) {
  host.select({"Root"});
  openIn(RenameMode::Advanced);
  switchOn(Item::ColumnOn);
  EXPECT_TRUE(standin::oddhost::choose(at(Item::ColumnStart), -3));
  run();
  EXPECT_EQ(names()[6], "Root_A");
}

// ---------------------------------------------------------------------------------------------------------------------
// Targets and counters

TEST_F(Renamer, CountsABranchingTreeByItsSteps) {
  openCounting("[col][row]", 0, 1);
  switchOn(Item::OverlapCheck, false);
  registerThese({"Root"});
  chooseTarget(RenameTarget::RegistrationAndChildren);
  run();
  // Root, Spine, Tail, Head, TailTip, TailFin
  EXPECT_EQ(names(), (Names{"Arm_L_01", "Arm_L_02", "Arm_L_03", "Arm_R_01", "Arm_R_02", "Arm_R_03", "A0", "A1", "A1", "A2",
                            "A2", "A2"}));
}

TEST_F(Renamer, CountsFromARegisteredChildAnew) {
  openCounting("[col][row]", 0, 1);
  switchOn(Item::OverlapCheck, false);
  registerThese({"Root", "Tail"});
  chooseTarget(RenameTarget::RegistrationAndChildren);
  run();
  const Names all = names();
  EXPECT_EQ(Names(all.begin() + 6, all.end()), (Names{"A0", "A1", "B0", "A2", "B1", "B1"}));
}

// A body whose root bears its spine and both arms.
standin::ObjectFile bodyWithArms() {
  standin::RigBuilder rig;
  const auto spine = rig.root("Bone", {0, 0, 0}, {0, 1, 0});
  const auto left = rig.child(spine, "Bone", {1, 1, 0});
  rig.child(left, "Bone", {2, 1, 0});
  const auto right = rig.child(spine, "Bone", {-1, 1, 0});
  rig.child(right, "Bone", {-2, 1, 0});
  rig.child(spine, "Bone", {0, 2, 0});
  return rig.take();
}

TEST_F(Renamer, RefusesTheEqualNamesOfBranches) {
  load(bodyWithArms());
  openCounting("Bone01_[col]_[row]", 1, 2);
  chooseTarget(RenameTarget::All);
  run();
  EXPECT_EQ(onlyMessage(), kDuplicated);
  EXPECT_EQ(names(), Names(6, "Bone"));
}

TEST_F(Renamer, GivesRegisteredBranchesNamesOfTheirOwn) {
  load(bodyWithArms());
  openCounting("Bone01_[col]_[row]", 1, 2);
  for (const std::size_t first : {1U, 3U, 0U}) {
    host.selectPolygons({object->skelegons()[first]});
    press(Item::Add);
  }
  chooseTarget(RenameTarget::RegistrationAndChildren);
  run();
  EXPECT_EQ(names(), (Names{"Bone01_C_01", "Bone01_A_01", "Bone01_A_02", "Bone01_B_01", "Bone01_B_02", "Bone01_C_02"}));
}

TEST_F(Renamer, CountsAChainThatWasCutOutOfATree) {
  host.select({"Arm_L_02", "Arm_L_03"});
  openCounting("[col][row]", 0, 1);
  run();
  EXPECT_EQ(names(3), (Names{"Arm_L_01", "A0", "A1"}));
}

TEST_F(Renamer, CountsRowsAlsoWhenColumnsAreOff) {
  host.select(kLeftArm);
  openIn(RenameMode::Advanced);
  switchOn(Item::RowOn);
  run();
  EXPECT_EQ(names(3), (Names{"Arm_L_01_01", "Arm_L_02_02", "Arm_L_03_03"}));
}

TEST_F(Renamer, CountsNothingWhenBothCountersAreOff) {
  host.select(kLeftArm);
  openIn(RenameMode::Advanced);
  switchOn(Item::PrefixOn);
  type(Item::Prefix, "[col][row]");
  run();
  EXPECT_EQ(names(1), Names{"[col][row]Arm_L_01"});
}

TEST_F(Renamer, RenamesTheSelectionInAllForegroundLayers) {
  host.select({"Arm_L_01", "Root"});
  openCounting("[col]", 0, 1);
  switchOn(Item::RowOn, false);
  run();
  EXPECT_EQ(names()[0], "A");
  EXPECT_EQ(names()[6], "B");
  EXPECT_EQ(changingEdits(), 1U);
}

TEST_F(Renamer, RenamesAllInHiddenLayersToo) {
  host.showLayers({1});
  openIn(RenameMode::Advanced);
  chooseTarget(RenameTarget::All);
  switchOn(Item::PrefixOn);
  type(Item::Prefix, "My");
  run();
  for (const std::string& name : names()) EXPECT_EQ(name.substr(0, 2), "My");
}

TEST_F(Renamer, RenamesTheRegisteredOnesWhateverIsSelected) {
  openIn(RenameMode::Advanced);
  registerThese({"Tail"});
  host.select({"Root"});
  chooseTarget(RenameTarget::Registration);
  switchOn(Item::PrefixOn);
  type(Item::Prefix, "My");
  run();
  EXPECT_NE(object->skelegon("MyTail"), nullptr);
  EXPECT_NE(object->skelegon("Root"), nullptr);
}

TEST_F(Renamer, NumbersInTheOrderOfRegistration) {
  openCounting("[col]", 0, 1);
  switchOn(Item::RowOn, false);
  registerThese({"Root"});
  registerThese({"Arm_R_01"});
  registerThese({"Arm_L_01"});
  chooseTarget(RenameTarget::Registration);
  run();
  EXPECT_EQ(names()[6], "A");
  EXPECT_EQ(names()[3], "B");
  EXPECT_EQ(names()[0], "C");
}

TEST_F(Renamer, RegistrationNeedsRegisteredSkelegons) {
  host.select({"Root"});
  openIn(RenameMode::Advanced);
  for (const RenameTarget target : {RenameTarget::Registration, RenameTarget::RegistrationAndChildren}) {
    host.forgetRecords();
    chooseTarget(target);
    run();
    EXPECT_EQ(onlyMessage(), kNeedSelection);
  }
}

TEST_F(Renamer, SelectionNeedsSelectedSkelegons) {
  openIn(RenameMode::Advanced);
  registerThese({"Root"});
  host.deselectAll();
  run();
  EXPECT_EQ(onlyMessage(), kNeedSelection);
  EXPECT_EQ(changingEdits(), 0U);
}

TEST_F(Renamer, LeavesOutRegisteredSkelegonsThatAreGone) {
  openIn(RenameMode::Advanced);
  registerThese({"Arm_L_03", "Arm_R_03"});
  host.deleteSkelegons({"Arm_L_03"});
  chooseTarget(RenameTarget::Registration);
  switchOn(Item::ColumnOn);
  run();
  EXPECT_NE(object->skelegon("Arm_R_03_A"), nullptr);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 2);
}

TEST_F(Renamer, LeavesOutRegisteredSkelegonsOfAnotherObject) {
  openIn(RenameMode::Advanced);
  registerThese({"Root"});
  load(twoChains());
  chooseTarget(RenameTarget::RegistrationAndChildren);
  switchOn(Item::ColumnOn);
  run();
  EXPECT_EQ(onlyMessage(), kNeedSelection);
  EXPECT_EQ(names(1), Names{"a"});
}

// ---------------------------------------------------------------------------------------------------------------------
// Orders

TEST_F(Renamer, OrdersColumnsByThePositionOfTheirHeads) {
  openCounting("[col][row]", 0, 1);
  chooseTarget(RenameTarget::All);
  switchOn(Item::OverlapCheck, false);
  choose(Item::Order, 1);  // x: the right arm, Root, the left arm
  run();
  EXPECT_EQ(names(7), (Names{"C0", "C1", "C2", "A0", "A1", "A2", "B0"}));
}

TEST_F(Renamer, InvertsAnyOrder) {
  openCounting("[col]", 0, 1);
  switchOn(Item::RowOn, false);
  registerThese({"Arm_L_01", "Arm_R_01"});
  chooseTarget(RenameTarget::Registration);
  switchOn(Item::Invert);
  run();
  EXPECT_EQ(names()[0], "B");
  EXPECT_EQ(names()[3], "A");
}

TEST_F(Renamer, AnOrderThatIsNoneKeepsTheOrder) {
  openCounting("[col]", 0, 1);
  switchOn(Item::RowOn, false);
  registerThese({"Arm_L_01", "Arm_R_01"});
  chooseTarget(RenameTarget::Registration);
  EXPECT_TRUE(standin::oddhost::choose(at(Item::Order), 17));
  run();
  EXPECT_EQ(names()[0], "A");
}

// Four heads around the origin on each plane: every order begins at the direction that it names.
struct OrderRow {
  int order;
  std::array<float, 3> first;   // where the first column begins
  std::array<float, 3> second;  // and the second
};
void PrintTo(const OrderRow& row, std::ostream* out) { *out << "order " << row.order; }

class AngleOrders : public testing::TestWithParam<OrderRow>, protected RenamerSession {};
constexpr std::array<float, 3> kX{1, 0, 0}, kMinusX{-1, 0, 0}, kY{0, 1, 0}, kMinusY{0, -1, 0}, kZ{0, 0, 1},
    kMinusZ{0, 0, -1};
INSTANTIATE_TEST_SUITE_P(Renamer, AngleOrders,
                         testing::Values(OrderRow{5, kZ, kX}, OrderRow{6, kX, kMinusZ}, OrderRow{7, kMinusZ, kMinusX},
                                         OrderRow{8, kMinusX, kZ}, OrderRow{9, kY, kX}, OrderRow{10, kX, kMinusY},
                                         OrderRow{11, kMinusY, kMinusX}, OrderRow{12, kMinusX, kY}, OrderRow{13, kY, kZ},
                                         OrderRow{14, kZ, kMinusY}, OrderRow{15, kMinusY, kMinusZ},
                                         OrderRow{16, kMinusZ, kY}));

TEST_P(AngleOrders, BeginAtTheirDirection) {
  const int order = GetParam().order;
  std::vector<std::array<float, 3>> heads = {kX, kMinusX, kY, kMinusY};
  if (order <= 8) heads = {kX, kMinusX, kZ, kMinusZ};
  if (order >= 13) heads = {kZ, kMinusZ, kY, kMinusY};
  standin::RigBuilder rig;
  for (const auto& head : heads) rig.root("Bone", head, {head[0] * 2, head[1] * 2, head[2] * 2});
  load(rig.take());
  openCounting("[col]", 0, 1);
  switchOn(Item::RowOn, false);
  chooseTarget(RenameTarget::All);
  choose(Item::Order, order);
  run();
  for (std::size_t i = 0; i < heads.size(); ++i) {
    if (heads[i] == GetParam().first) {
      EXPECT_EQ(names()[i], "A");
    }
    if (heads[i] == GetParam().second) {
      EXPECT_EQ(names()[i], "B");
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// The overlap check

TEST_F(Renamer, RefusesARunThatGivesTwoTargetsOneName) {
  host.select(kLeftArm);
  openIn(RenameMode::Advanced);
  switchOn(Item::BaseNameOn);
  type(Item::BaseName, "Bone");
  const std::string before = everythingStored();
  run();
  EXPECT_EQ(onlyMessage(), kDuplicated);
  EXPECT_EQ(everythingStored(), before);
  EXPECT_EQ(changingEdits(), 0U);
}

TEST_F(Renamer, RefusesItInJapanese) {
  host.options().localeInfo = kJapanese;
  host.select(kLeftArm);
  openIn(RenameMode::Advanced);
  switchOn(Item::BaseNameOn);
  type(Item::BaseName, "Bone");
  run();
  EXPECT_EQ(onlyMessage(), "スケルゴン名が重複します！");
}

TEST_F(Renamer, DoesNotCheckNamesOutsideTheTargets) {
  host.select(kLeftArm);
  openIn(RenameMode::Advanced);
  switchOn(Item::RegexOn);
  run();
  EXPECT_TRUE(host.messages().empty());
  EXPECT_EQ(names(6), (Names{"Arm_R_01", "Arm_R_02", "Arm_R_03", "Arm_R_01", "Arm_R_02", "Arm_R_03"}));
}

TEST_F(Renamer, ChecksNothingWhereTheCheckIsOff) {
  host.select(kLeftArm);
  openIn(RenameMode::Advanced);
  switchOn(Item::OverlapCheck, false);
  switchOn(Item::BaseNameOn);
  type(Item::BaseName, "Bone");
  run();
  EXPECT_EQ(names(3), (Names{"Bone", "Bone", "Bone"}));
}

TEST_F(Renamer, ChecksNothingWhereNoNameIsRenamed) {
  host.select(kLeftArm);
  openIn(RenameMode::Advanced);
  switchOn(Item::SkelegonName, false);
  switchOn(Item::BaseNameOn);
  type(Item::BaseName, "Map");
  run();
  EXPECT_TRUE(host.messages().empty());
  EXPECT_EQ(names(3), kLeftArm);
  EXPECT_EQ(stored("Arm_L_01", lw::kTagBoneWeight), "Map");
}

TEST_F(Renamer, ChecksUnchangedNamesToo) {
  store("Arm_L_02", lw::kTagBone, "Arm_L_01");
  host.selectPolygons({object->skelegons()[0], object->skelegons()[1]});
  openIn(RenameMode::Advanced);
  run();
  EXPECT_EQ(onlyMessage(), kDuplicated);
}

// ---------------------------------------------------------------------------------------------------------------------
// Which tags

TEST_F(Renamer, RenamesNameAndWeightMapUnlessToldOtherwise) {
  store("Arm_L_01", lw::kTagBoneWeight, "Arm_L_01");
  store("Arm_L_01", Slot::GoalObject, "Arm_L_01_goal");
  host.select({"Arm_L_01"});
  openIn(RenameMode::Advanced);
  switchOn(Item::RegexOn);
  run();
  EXPECT_EQ(names(1), Names{"Arm_R_01"});
  EXPECT_EQ(object->skelegons()[0]->tag(lw::kTagBoneWeight), "Arm_R_01");
  EXPECT_EQ(object->skelegons()[0]->tag(skg::SlotTagId(Slot::GoalObject)), "Arm_L_01_goal");
}

TEST_F(Renamer, RenamesTheSixteenNamesOfOtherItems) {
  for (const skg::SlotRow& row : skg::kSlotTable) {
    if (row.slot != Slot::Name) store("Root", skg::plainSlotTagId(skg::indexOf(row.slot)), "a_L_b");
  }
  host.select({"Root"});
  openIn(RenameMode::Advanced);
  switchOn(Item::SkelegonName, false);
  switchOn(Item::WeightMap, false);
  switchOn(Item::BoneProperty);
  switchOn(Item::RegexOn);
  run();
  std::vector<std::size_t> renamed;
  for (const skg::SlotRow& row : skg::kSlotTable) {
    const std::size_t slot = skg::indexOf(row.slot);
    if (stored("Root", skg::plainSlotTagId(slot)) == "a_R_b") renamed.push_back(slot);
  }
  EXPECT_EQ(renamed, (std::vector<std::size_t>{12, 51, 52, 53, 55, 73, 92, 110, 130, 131, 132, 133, 134, 135, 142, 144}));
  EXPECT_EQ(host.edits().back().changes, 16U);
}

TEST_F(Renamer, RenamesNothingWithAllThreeOff) {
  host.select({"Root"});
  openCounting("Bone", 1, 2);
  switchOn(Item::SkelegonName, false);
  switchOn(Item::WeightMap, false);
  run();
  EXPECT_EQ(changingEdits(), 0U);
  EXPECT_TRUE(host.messages().empty());
}

TEST_F(Renamer, ARunThatChangesNothingOpensNoEditToWrite) {
  host.forgetRecords();
  openIn(RenameMode::Advanced);
  chooseTarget(RenameTarget::All);
  run();
  EXPECT_TRUE(host.messages().empty());
  EXPECT_EQ(host.edits().size(), 1U);  // the one that read
}

TEST_F(Renamer, AnAdvancedRunWritesTheTagsInTheirOrder) {
  store("Root", lw::kTagBone, std::nullopt);
  host.selectPolygons({object->skelegons()[6]});
  openIn(RenameMode::Advanced);
  switchOn(Item::BoneProperty);
  switchOn(Item::BaseNameOn);
  type(Item::BaseName, "My");
  run();
  EXPECT_EQ(slotsInFileOrder("My"), (Slots{6, 28, 12, 51, 52, 130, 53, 131, 55, 132, 73, 133, 92, 134, 110, 135, 142, 144}));
}

TEST_F(Renamer, ABaseNameFillsTagsThatWereEmpty) {
  host.select({"Root"});
  openIn(RenameMode::Advanced);
  switchOn(Item::BoneProperty);
  switchOn(Item::BaseNameOn);
  type(Item::BaseName, "Bone");
  run();
  EXPECT_EQ(host.edits().back().changes, 18U);
  EXPECT_EQ(stored("Bone", Slot::ScaleParent), "Bone");
  EXPECT_EQ(stored("Bone", lw::kTagBoneWeight), "Bone");
}

TEST_F(Renamer, TheAdvancedRunIsOneStepToUndo) {
  const std::string before = everythingStored();
  openCounting("Bone_[col]_[row]", 1, 2);
  chooseTarget(RenameTarget::All);
  switchOn(Item::BoneProperty);
  switchOn(Item::OverlapCheck, false);
  run();
  EXPECT_NE(everythingStored(), before);
  EXPECT_EQ(changingEdits(), 1U);
  EXPECT_TRUE(host.undo());
  EXPECT_EQ(everythingStored(), before);
}

TEST_F(Renamer, ABadPatternRenamesNothing) {
  host.select(kLeftArm);
  openIn(RenameMode::Advanced);
  switchOn(Item::PrefixOn);
  type(Item::Prefix, "My");
  switchOn(Item::RegexOn);
  type(Item::RegexPattern, "(.*");
  run();
  EXPECT_NE(onlyMessage(), "");
  EXPECT_EQ(names(3), kLeftArm);
  EXPECT_EQ(changingEdits(), 0U);
}

}  // namespace
}  // namespace varnel::test
