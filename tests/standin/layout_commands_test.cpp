// What each command does, read back through the host's tables or, where no table shows it, from the item's settings.
#include <cmath>
#include <cstdio>

#include "objectfile/temporary_folder.h"
#include "standin/layout/command_table.h"
#include "tests/standin/layout_fixture.h"

namespace standin {
namespace {

std::string withItem(const std::string& command, const Item& item) {
  std::array<char, 32> hexadecimal{};
  std::snprintf(hexadecimal.data(), hexadecimal.size(), " 0x%x", item.number);
  return command + hexadecimal.data();
}

// ---------------------------------------------------------------------------------------------------------------------
// Settings of the selected bone

struct SettingRow {
  const char* command;
  const char* setting;
  const char* value;
};

class BoneCommand : public ::testing::TestWithParam<SettingRow> {};

TEST_P(BoneCommand, ChangesItsSettingOnly) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  ASSERT_EQ(session.send(GetParam().command), 1) << session.lastReason();
  const std::vector<Setting> expected{{GetParam().setting, GetParam().value}};
  EXPECT_EQ(changedSettings(session.scene(), bone), expected);
  EXPECT_TRUE(noFaults());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BoneCommand,
    ::testing::Values(
        SettingRow{"BoneFalloffType 3", "falloff", "inverse distance^4"}, SettingRow{"BoneType 1", "bone type", "joint"},
        SettingRow{"BoneActive", "bone active", "off"}, SettingRow{"BoneWeightMapName My Map", "weight map", "My Map"},
        SettingRow{"BoneNormalization", "weight normalization", "on"},
        SettingRow{"BoneStrength 0.5000000000", "strength", "50 %"},
        SettingRow{"BoneStrengthMultiply", "strength times rest length", "off"},
        SettingRow{"BoneLimitedRange", "limited range", "on"}, SettingRow{"BoneMinRange 0.2500000000", "range min", "0.25"},
        SettingRow{"BoneMaxRange 2.5000000000", "range max", "2.5"}, SettingRow{"BoneJointComp", "joint compensation", "on"},
        SettingRow{"BoneJointCompParent", "joint compensation for parent", "on"},
        SettingRow{"BoneJointCompAmounts 0.8 0.6", "joint compensation amounts", "80 %, 60 %"},
        SettingRow{"BoneMuscleFlex", "muscle flexing", "on"},
        SettingRow{"BoneMuscleFlexParent", "muscle flexing for parent", "on"},
        SettingRow{"BoneMuscleFlexAmounts 0.3 1", "muscle flexing amounts", "30 %, 100 %"},
        SettingRow{"BoneBulge", "bulge", "on"}, SettingRow{"BoneBulgeAmount 0.2", "bulge amount", "20 %"},
        SettingRow{"BoneBulgeParent", "bulge for parent", "on"},
        SettingRow{"BoneBulgeParentAmount 0.1", "bulge amount for parent", "10 %"}, SettingRow{"BoneTwist", "twist", "on"},
        SettingRow{"BoneTwistAmount 0.75", "twist amount", "75 %"},
        SettingRow{"ItemIconScale 2.0000000000", "icon size", "200 %"},
        SettingRow{"RotationOrder 5", "rotation order", "ZYX / BHP"}, SettingRow{"UnaffectedByIK", "unaffected by IK", "on"},
        SettingRow{"FullTimeIK", "full-time IK", "off"}, SettingRow{"MatchGoalOrientation", "match goal orientation", "on"},
        SettingRow{"KeepGoalWithinReach", "keep goal within reach", "on"},
        SettingRow{"UseIKChainVals", "IK chain values", "off"}, SettingRow{"UseIKChainVals 0", "IK chain values", "off"},
        SettingRow{"GoalObjective 1", "goal objective", "point at goal"},
        SettingRow{"GoalStrength 100.0", "goal strength", "100"},
        SettingRow{"IKInitialState 3", "IK initial state", "frame"},
        SettingRow{"IKInitialStateFrame 12", "IK initial state frame", "12"},
        SettingRow{"IKFKBlending 0.5", "IK/FK blending", "50 %"}, SettingRow{"SoftIK 1", "soft IK", "exponential"},
        SettingRow{"SoftIKDistanceType 2", "soft IK distance", "given lengths"},
        SettingRow{"SoftIKMin 0.1", "soft IK min", "10 %"}, SettingRow{"SoftIKMax 0.9", "soft IK max", "90 %"},
        SettingRow{"PathAlignLookAhead 0.1", "path look-ahead", "0.1"},
        SettingRow{"PathAlignMaxLookSteps 20.0000000000", "path look steps", "20"},
        SettingRow{"PathAlignReliableDist 0.002", "path reliable distance", "0.002"},
        SettingRow{"PositionItemWorld 1", "position item world", "on"},
        SettingRow{"RotationItemWorld 1", "rotation item world", "on"},
        SettingRow{"PositionItemBlendMethod 1", "position item blend method", "compensate"},
        SettingRow{"RotationItemBlendMethod 1", "rotation item blend method", "compensate"},
        SettingRow{"ScaleItemBlendMethod 1", "scale item blend method", "compensate"},
        SettingRow{"PositionItemBlend 0.4", "position item blend", "40 %"},
        SettingRow{"RotationItemBlend 0.4", "rotation item blend", "40 %"},
        SettingRow{"ScaleItemBlend 0.4", "scale item blend", "40 %"}, SettingRow{"ItemVisibility 0", "visibility", "hidden"},
        SettingRow{"ItemColor 14", "colour", "White"}));

class AxisCommand : public ::testing::TestWithParam<std::size_t> {};

INSTANTIATE_TEST_SUITE_P(Axes, AxisCommand, ::testing::Range(std::size_t{0}, kAxisCount),
                         [](const auto& info) { return std::string(kAxisNames[info.param]); });

TEST_P(AxisCommand, SetsTheSixSettingsOfItsAxisOnly) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  const std::string axis = kAxisNames[GetParam()];
  const bool angle = GetParam() >= kAxisH && GetParam() <= kAxisB;
  for (const std::string& command :
       {axis + "Controller 6", "Limit" + axis, axis + "Limits -0.5 0.75", axis + "Stiffness 3", axis + "Transform 2 0.25"}) {
    ASSERT_EQ(session.send(command), 1) << command << ": " << session.lastReason();
  }
  const std::size_t other = (GetParam() + 1) % kAxisCount;
  ASSERT_EQ(session.send(axis + "Follow " + std::to_string(other)), 1);
  const std::vector<Setting> expected{{axis + " controller", "same as item"},
                                      {axis + " limited", "on"},
                                      {axis + " limits", angle ? "-0.5 deg, 0.75 deg" : "-0.5, 0.75"},
                                      {axis + " follow", kAxisNames[other]},
                                      {axis + " transform", "2, 0.25"},
                                      {axis + " stiffness", "3"}};
  EXPECT_EQ(changedSettings(session.scene(), bone), expected);
}

TEST_P(AxisCommand, ShowsInControllersAndLimits) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  const std::string axis = kAxisNames[GetParam()];
  session.send(axis + "Controller 3");
  session.send("Limit" + axis);
  session.send(axis + "Limits -90 45");
  const int param = GetParam() < kAxisH ? lw::kParamPosition : GetParam() < kAxisSX ? lw::kParamRotation : lw::kParamScale;
  const double unit = param == lw::kParamRotation ? std::acos(-1.0) / 180 : 1;
  int kinds[3] = {};
  double low[3] = {};
  double high[3] = {};
  session.items()->controller(session.id(bone), param, kinds);
  EXPECT_EQ(kinds[GetParam() % 3], 3);
  EXPECT_EQ(session.items()->limits(session.id(bone), param, low, high), 1U << GetParam() % 3);
  EXPECT_DOUBLE_EQ(low[GetParam() % 3], -90 * unit);
  EXPECT_DOUBLE_EQ(high[GetParam() % 3], 45 * unit);
}

// ---------------------------------------------------------------------------------------------------------------------
// Bone flags and item flags

struct FlagRow {
  const char* command;
  unsigned flag;
};

class BoneFlag : public ::testing::TestWithParam<FlagRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, BoneFlag,
    ::testing::Values(FlagRow{"BoneActive", lw::kBoneActive}, FlagRow{"BoneLimitedRange", lw::kBoneLimitedRange},
                      FlagRow{"BoneStrengthMultiply", lw::kBoneStrengthMultiply},
                      FlagRow{"BoneNormalization", lw::kBoneWeightNormalization},
                      FlagRow{"BoneJointComp", lw::kBoneJointComp}, FlagRow{"BoneJointCompParent", lw::kBoneJointCompParent},
                      FlagRow{"BoneMuscleFlex", lw::kBoneMuscleFlex},
                      FlagRow{"BoneMuscleFlexParent", lw::kBoneMuscleFlexParent}, FlagRow{"BoneTwist", lw::kBoneTwist},
                      FlagRow{"BoneBulge", lw::kBoneBulge}, FlagRow{"BoneBulgeParent", lw::kBoneBulgeParent}),
    [](const auto& info) { return std::string(info.param.command); });

TEST_P(BoneFlag, IsFlippedByItsCommandAndBack) {
  LayoutSession session;
  const lw::ItemId bone = session.id(session.selectedBone());
  const unsigned before = session.bones()->flags(bone);
  session.send(GetParam().command);
  EXPECT_EQ(session.bones()->flags(bone), before ^ GetParam().flag);
  session.send(GetParam().command);
  EXPECT_EQ(session.bones()->flags(bone), before);
}

class ItemFlag : public ::testing::TestWithParam<FlagRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, ItemFlag,
                         ::testing::Values(FlagRow{"UnaffectedByIK", lw::kItemUnaffectedByIK},
                                           FlagRow{"FullTimeIK", lw::kItemFullTimeIK},
                                           FlagRow{"MatchGoalOrientation", lw::kItemMatchGoalOrientation},
                                           FlagRow{"KeepGoalWithinReach", lw::kItemKeepGoalInReach},
                                           FlagRow{"UseIKChainVals", lw::kItemUseIKChain}),
                         [](const auto& info) { return std::string(info.param.command); });

TEST_P(ItemFlag, IsFlippedByItsCommand) {
  LayoutSession session;
  const lw::ItemId bone = session.id(session.selectedBone());
  const unsigned before = session.items()->flags(bone);
  session.send(GetParam().command);
  EXPECT_EQ(session.items()->flags(bone), before ^ GetParam().flag);
}

TEST(WeightMapOnly, SwitchedOnSwitchesNormalizationOnToo) {
  LayoutSession session;
  const lw::ItemId bone = session.id(session.selectedBone());
  session.send("BoneWeightMapOnly");
  EXPECT_EQ(session.bones()->flags(bone) & 0x18U, 0x18U);
}

TEST(WeightMapOnly, SwitchedOffLeavesNormalizationOn) {
  LayoutSession session;
  const lw::ItemId bone = session.id(session.selectedBone());
  session.send("BoneWeightMapOnly");
  session.send("BoneWeightMapOnly");
  EXPECT_EQ(session.bones()->flags(bone) & 0x18U, 0x10U);
}

TEST(WeightMapName, NoneIsNoName) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  session.send("BoneWeightMapName Arm");
  EXPECT_STREQ(session.bones()->weightMap(session.id(bone)), "Arm");
  session.send("BoneWeightMapName (none)");
  EXPECT_EQ(session.bones()->weightMap(session.id(bone)), nullptr);
}

TEST(Falloff, CountsFromOneInTheCommandAndFromZeroInTheBone) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  session.send("BoneFalloffType 3");
  EXPECT_EQ(bone.bone.falloff, 2);
  EXPECT_EQ(session.bones()->falloff(session.id(bone)), 2);
}

TEST(BoneNumbers, AreOfTheBone) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  session.send("BoneType 1");
  session.send("BoneStrength 0.25");
  EXPECT_EQ(session.bones()->type(session.id(bone)), 1);
  EXPECT_EQ(session.bones()->strength(session.id(bone)), 0.25);
}

// ---------------------------------------------------------------------------------------------------------------------
// The bone's object

TEST(BoneMode, IsANumberOfTheObject) {
  LayoutSession session;
  session.selectedBone();
  session.send("BoneMode 3");
  EXPECT_EQ(session.object()->object.boneMode, 3);
}

// The query knows nothing of the mode after morphing, so that it counts one less.
TEST(BoneMode, IsCountedOtherwiseByTheQuery) {
  LayoutSession session;
  session.selectedBone();
  const lw::ItemId object = session.id(*session.object());
  std::vector<unsigned> modes;
  for (const char* command : {"BoneMode 0", "BoneMode 1", "BoneMode 2", "BoneMode 3"}) {
    session.send(command);
    modes.push_back(session.objects()->boneMode(object));
  }
  EXPECT_EQ(modes, (std::vector<unsigned>{0, 0, 1, 2}));
}

TEST(LimitedBones, AreANumberOfTheObject) {
  LayoutSession session;
  session.selectedBone();
  session.send("NumLimitedBones 7");
  EXPECT_EQ(session.objects()->numLimitedBones(session.id(*session.object())), 7U);
}

TEST(BoneSource, IsALinkOfTheObject) {
  LayoutSession session;
  session.selectedBone();
  Item& other = *session.scene().addObject(oneLayer({}), "other.lwo").front();
  EXPECT_EQ(session.objects()->boneSource(session.id(*session.object())), nullptr);
  session.send(withItem("BoneSource", other));
  EXPECT_EQ(session.objects()->boneSource(session.id(*session.object())), session.id(other));
}

// ---------------------------------------------------------------------------------------------------------------------
// Links

TEST(Links, ShowInTheItemInfo) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  Item& null = session.scene().addNull("Other");
  const lw::ItemId id = session.id(bone);
  const lw::ItemId other = session.id(null);
  for (const char* command :
       {"TargetItem", "PoleItem", "GoalItem", "PositionItem", "RotationItem", "ScaleItem", "ParentItem"}) {
    ASSERT_EQ(session.send(withItem(command, null)), 1) << command;
  }
  const lw::LWItemInfo* info = session.items();
  EXPECT_EQ(info->target(id), other);
  EXPECT_EQ(info->pole(id), other);
  EXPECT_EQ(info->goal(id), other);
  EXPECT_EQ(info->sameItem(id, lw::kParamPosition), other);
  EXPECT_EQ(info->sameItem(id, lw::kParamRotation), other);
  EXPECT_EQ(info->sameItem(id, lw::kParamScale), other);
  EXPECT_EQ(info->parent(id), other);
}

TEST(Links, AreNoneAtFirst) {
  LayoutSession session;
  const lw::ItemId id = session.id(session.selectedBone());
  EXPECT_EQ(session.items()->goal(id), nullptr);
  EXPECT_EQ(session.items()->sameItem(id, lw::kParamScale), nullptr);
}

TEST(IkQueries, ShowObjectiveInitialStateAndOrder) {
  LayoutSession session;
  const lw::ItemId id = session.id(session.selectedBone());
  session.send("GoalObjective 2");
  session.send("IKInitialState 3");
  session.send("RotationOrder 1");
  EXPECT_EQ(session.items()->goalObjective(id), 2U);
  EXPECT_EQ(session.items()->ikInitialState(id), 3U);
  EXPECT_EQ(session.items()->rotationOrder(id), 1);
}

TEST(SoftIk, GivesItsValuesOnlyWhileItIsOn) {
  LayoutSession session;
  const lw::ItemId id = session.id(session.selectedBone());
  unsigned distance = 99;
  double least = -1;
  double greatest = -1;
  session.send("SoftIKDistanceType 2");
  EXPECT_EQ(session.items()->ikSoft(id, 0, &distance, &least, &greatest), 0U);
  EXPECT_EQ(distance, 99U);
  session.send("SoftIK 3");
  EXPECT_EQ(session.items()->ikSoft(id, 0, &distance, &least, &greatest), 3U);
  EXPECT_EQ(distance, 2U);
  EXPECT_EQ(least, 0.25);
  EXPECT_EQ(greatest, 0.75);
}

// ---------------------------------------------------------------------------------------------------------------------
// Items, selection, program

TEST(AddNull, MakesNamesAndSelectsANull) {
  LayoutSession session;
  ASSERT_EQ(session.send("AddNull Left Foot %d"), 1);
  const lw::LWInterfaceInfo* info = session.interfaceInfo();
  ASSERT_NE(info->selItems[0], nullptr);
  EXPECT_EQ(info->selItems[1], nullptr);
  EXPECT_STREQ(session.items()->name(info->selItems[0]), "Left Foot %d");
  EXPECT_EQ(session.items()->type(info->selItems[0]), lw::kItemObject);
  EXPECT_EQ(session.objects()->filename(info->selItems[0]), nullptr);
}

TEST(AddNull, KeepsTheSelectionWhereTheHostDoesNotSelectNewNulls) {
  LayoutOptions options;
  options.newNull = NewItems::Left;
  LayoutSession session(options);
  session.send("AddNull Foot");
  EXPECT_EQ(session.interfaceInfo()->selItems[0], nullptr);
}

TEST(Selection, IsReplacedAndGrownInOrder) {
  LayoutSession session;
  Item& a = session.scene().addNull("A");
  Item& b = session.scene().addNull("B");
  Item& c = session.scene().addNull("C");
  session.send(withItem("SelectItem", a));
  session.send(withItem("SelectItem", c));
  session.send(withItem("AddToSelection", b));
  session.send(withItem("AddToSelection", c));
  const lw::LWInterfaceInfo* info = session.interfaceInfo();
  EXPECT_EQ(info->selItems[0], session.id(c));
  EXPECT_EQ(info->selItems[1], session.id(b));
  EXPECT_EQ(info->selItems[2], nullptr);
  EXPECT_TRUE(b.selected);
  EXPECT_FALSE(a.selected);
}

TEST(LoadObject, MakesAnItemOfEachLayerAndLeavesTheSelection) {
  LayoutSession session;
  Item& before = session.scene().addNull("Before");
  session.host.select({&before});
  const TemporaryFolder folder;
  ObjectFile file;
  file.layers.resize(2);
  file.layers[1].number = 1;
  file.layers[1].name = "Second";
  ASSERT_FALSE(writeObject(file, folder.file("two layers.lwo")));
  ASSERT_EQ(session.send("LoadObject " + folder.file("two layers.lwo")), 1) << session.lastReason();
  ASSERT_EQ(session.scene().objects().size(), 3U);
  EXPECT_EQ(session.scene().nameOf(*session.scene().objects()[2]), "two layers:Second");
  EXPECT_EQ(session.scene().selection(), std::vector<Item*>{&before});
}

TEST(LoadObject, OfAFileThatIsNotThereIsRejectedWithTheReason) {
  LayoutSession session;
  EXPECT_EQ(session.send("LoadObject no/such.lwo"), 0);
  EXPECT_FALSE(session.lastReason().empty());
  EXPECT_TRUE(session.scene().objects().empty());
}

// Layout strips no quote marks: they are part of the name.
TEST(LoadObject, TakesQuoteMarksForPartOfTheName) {
  LayoutSession session;
  const TemporaryFolder folder;
  ASSERT_FALSE(writeObject(oneLayer({}), folder.file("a.lwo")));
  EXPECT_EQ(session.send("LoadObject \"" + folder.file("a.lwo") + "\""), 0);
}

TEST(ClearSelected, RemovesTheSelectedItemsWithTheirBones) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  Item& null = session.scene().addNull("Null");
  Item& kept = session.scene().addNull("Kept");
  session.host.select({session.object(), &bone, &null});
  session.send("AutoConfirm 1");
  ASSERT_EQ(session.send("ClearSelected"), 1);
  EXPECT_EQ(session.scene().objects(), std::vector<Item*>{&kept});
  EXPECT_FALSE(bone.alive);
  EXPECT_TRUE(session.scene().selection().empty());
}

TEST(ClearSelected, WouldAskTheUserWithoutAutoConfirm) {
  LayoutSession session;
  Item& null = session.scene().addNull("Null");
  session.host.select({&null});
  EXPECT_EQ(session.send("ClearSelected"), 0);
  EXPECT_EQ(session.host.transcript().count(EventKind::Asked), 1U);
  EXPECT_TRUE(null.alive);
}

TEST(ClearSelected, IsRejectedWhereTheAnswerIsNo) {
  LayoutSession session;
  Item& null = session.scene().addNull("Null");
  session.host.select({&null});
  session.send("AutoConfirm -1");
  EXPECT_EQ(session.send("ClearSelected"), 0);
  EXPECT_TRUE(null.alive);
}

TEST(SkelegonsToBonesCommand, MakesBonesOfTheSelectedObject) {
  LayoutSession session;
  Item& object =
      *session.scene().addObject(oneLayer(skelegonLayer({{0, 0, 0}, {0, 0, 1}}, {named(0, 1, "Hips")})), "rig.lwo").front();
  session.send(withItem("SelectItem", object));
  session.send("AutoConfirm 1");
  ASSERT_EQ(session.send("SkelegonsToBones"), 1);
  const lw::ItemId bone = session.items()->first(lw::kItemBone, session.id(object));
  ASSERT_NE(bone, nullptr);
  EXPECT_STREQ(session.items()->name(bone), "Hips");
  EXPECT_EQ(session.items()->next(bone), nullptr);
}

TEST(SkelegonsToBonesCommand, WouldAskTheUserWithoutAutoConfirm) {
  LayoutSession session;
  Item& object =
      *session.scene().addObject(oneLayer(skelegonLayer({{0, 0, 0}, {0, 0, 1}}, {named(0, 1, "Hips")})), "rig.lwo").front();
  session.host.select({&object});
  EXPECT_EQ(session.send("SkelegonsToBones"), 0);
  EXPECT_EQ(session.host.transcript().count(EventKind::Asked), 1U);
  EXPECT_TRUE(object.bones.empty());
}

TEST(ProgramSwitches, AreSetByANumberAndFlippedWithout) {
  LayoutSession session;
  session.send("EnableIK 0");
  session.send("EnableMC 0");
  EXPECT_FALSE(session.host.state().ikEnabled);
  EXPECT_FALSE(session.host.state().motionControllersEnabled);
  session.send("EnableIK 1");
  session.send("EnableMC");
  EXPECT_TRUE(session.host.state().ikEnabled);
  EXPECT_TRUE(session.host.state().motionControllersEnabled);
}

TEST(ProgramSwitches, ShowInTheInterfaceInfo) {
  LayoutSession session;
  EXPECT_EQ(session.interfaceInfo()->generalFlags, lw::kGeneralIK | lw::kGeneralMotionControllers);
  session.send("EnableIK 0");
  EXPECT_EQ(session.interfaceInfo()->generalFlags, lw::kGeneralMotionControllers);
  session.send("EnableMC 0");
  EXPECT_EQ(session.interfaceInfo()->generalFlags, 0U);
}

TEST(ProgramSwitches, TellOfParentInPlace) {
  LayoutOptions options;
  options.parentInPlace = true;
  LayoutSession session(options);
  EXPECT_TRUE(session.interfaceInfo()->generalFlags & lw::kGeneralParentInPlace);
}

TEST(ProgramSwitches, IncludeDeformations) {
  LayoutSession session;
  session.send("EnableDeformations 0");
  EXPECT_FALSE(session.host.state().deformationsEnabled);
}

TEST(ProgramState, KnowsAutoConfirmAndRefreshes) {
  LayoutSession session;
  session.send("AutoConfirm 1");
  session.send("RefreshNow");
  EXPECT_EQ(session.host.state().autoConfirm, 1);
  EXPECT_EQ(session.host.state().refreshes, 1U);
}

TEST(Look, IsOfTheItem) {
  LayoutSession session;
  Item& null = session.scene().addNull("Goal");
  session.host.select({&null});
  session.send("ItemVisibility 7");
  session.send("ItemColor 11");
  EXPECT_EQ(session.interfaceInfo()->itemVis(session.id(null)), 7);
  EXPECT_EQ(session.interfaceInfo()->itemColor(session.id(null)), 11);
}

TEST(AppliedServers, CountFromOne) {
  LayoutSession session;
  Item& null = session.scene().addNull("Goal");
  session.host.select({&null});
  session.send("ApplyServer CustomObjHandler LW_ItemShape");
  EXPECT_STREQ(session.items()->server(session.id(null), "CustomObjHandler", 1), "LW_ItemShape");
  EXPECT_EQ(session.items()->server(session.id(null), "CustomObjHandler", 2), nullptr);
  EXPECT_EQ(session.items()->server(session.id(null), "ImageFilterHandler", 1), nullptr);
}

TEST(RecordPivotRotation, MovesTheRotationOver) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  bone.motion[kAxisH].assign(0, 0.5);
  session.send("RecordPivotRotation");
  EXPECT_NEAR(bone.pivotRotation[0], 0.5, 1e-12);
  EXPECT_EQ(bone.motion[kAxisH].valueAt(0), 0);
}

TEST(StatusMessage, ShowsItsText) {
  LayoutSession session;
  session.send("StatusMsg all {0.5} done");
  EXPECT_EQ(session.host.transcript().texts(EventKind::Status), std::vector<std::string>{"all {0.5} done"});
  EXPECT_FALSE(session.host.transcript().events().front().progress.has_value());
}

TEST(StatusMessage, DrawsAProgressBarForALeadingFraction) {
  LayoutSession session;
  session.send("StatusMsg {0.25}working");
  EXPECT_EQ(session.host.transcript().events().front().progress, 0.25);
  EXPECT_EQ(session.host.transcript().events().front().text, "working");
}

TEST(StatusMessage, ShowsBracesThatAreNoFraction) {
  LayoutSession session;
  session.send("StatusMsg {1.5}over");
  EXPECT_EQ(session.host.transcript().events().front().text, "{1.5}over");
}

TEST(StatusMessage, MayBeEmpty) {
  LayoutSession session;
  EXPECT_EQ(session.send("StatusMsg "), 1);
}

// ---------------------------------------------------------------------------------------------------------------------
// Rejections

struct RejectedRow {
  const char* command;
  EventKind kind;
  const char* reason;
};

class RejectedCommand : public ::testing::TestWithParam<RejectedRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, RejectedCommand,
    ::testing::Values(RejectedRow{"NoSuchThing 1", EventKind::Rejected, "unknown command"},
                      RejectedRow{"boneactive", EventKind::Rejected, "unknown command"},
                      RejectedRow{"", EventKind::Rejected, "unknown command"},
                      RejectedRow{" BoneActive", EventKind::Rejected, "unknown command"},
                      RejectedRow{"BoneActive 1", EventKind::Rejected, "too many arguments"},
                      RejectedRow{"BoneType", EventKind::Asked, "argument 1 is missing"},
                      RejectedRow{"BoneType ", EventKind::Asked, "argument 1 is missing"},
                      RejectedRow{"XLimits 1.0", EventKind::Asked, "argument 2 is missing"},
                      RejectedRow{"AddNull ", EventKind::Asked, "argument 1 is missing"},
                      RejectedRow{"BoneType 2", EventKind::Rejected, "2 is out of range"},
                      RejectedRow{"BoneType 1.0", EventKind::Rejected, "\"1.0\" is no whole number"},
                      RejectedRow{"BoneType one", EventKind::Rejected, "\"one\" is no whole number"},
                      RejectedRow{"BoneType  1", EventKind::Rejected, "two spaces in a row"},
                      RejectedRow{"BoneFalloffType 0", EventKind::Rejected, "0 is out of range"},
                      RejectedRow{"BoneFalloffType 10", EventKind::Rejected, "10 is out of range"},
                      RejectedRow{"BoneStrength 1,5", EventKind::Rejected, "\"1,5\" is no number"},
                      RejectedRow{"BoneStrength nan", EventKind::Rejected, "\"nan\" is no number"},
                      RejectedRow{"BoneStrength \"1\"", EventKind::Rejected, "\"\"1\"\" is no number"},
                      RejectedRow{"PathAlignMaxLookSteps 1.5", EventKind::Rejected, "1.5 is not whole"},
                      RejectedRow{"GoalItem 268435456", EventKind::Rejected, "\"268435456\" is no item identifier"},
                      RejectedRow{"GoalItem 0x0", EventKind::Rejected, "0x0 is no item"},
                      RejectedRow{"GoalItem 0x40000000", EventKind::Rejected, "an item cannot point to itself"},
                      RejectedRow{"ParentItem 0x40000000", EventKind::Rejected, "an item cannot come to stand below itself"},
                      RejectedRow{"BoneSource 0x40000000", EventKind::Rejected, "bones come from an object"},
                      RejectedRow{"SkelegonsToBones", EventKind::Rejected, "the selection is not of objects"},
                      RejectedRow{"ItemVisibility 7", EventKind::Rejected, "visibility 7 is for objects only"},
                      RejectedRow{"ItemColor 15", EventKind::Rejected, "15 is out of range"},
                      RejectedRow{"ScaleItemWorld 1", EventKind::Rejected, "unknown command"},
                      RejectedRow{"RotationOrder 6", EventKind::Rejected, "6 is out of range"}));

TEST_P(RejectedCommand, GivesZeroAndIsListedWithItsReason) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  EXPECT_EQ(session.send(GetParam().command), 0);
  ASSERT_EQ(session.host.transcript().events().size(), 1U);
  EXPECT_EQ(session.host.transcript().events().front().kind, GetParam().kind);
  EXPECT_EQ(session.lastReason(), GetParam().reason);
  EXPECT_TRUE(changedSettings(session.scene(), bone).empty());
}

TEST(Rejection, OfABoneCommandWithAnObjectSelected) {
  LayoutSession session;
  session.host.select({session.object()});
  EXPECT_EQ(session.send("BoneActive"), 0);
  EXPECT_EQ(session.lastReason(), "the selection is not of bones");
}

TEST(Rejection, WithNothingSelected) {
  LayoutSession session;
  EXPECT_EQ(session.send("ItemColor 3"), 0);
  EXPECT_EQ(session.lastReason(), "nothing is selected");
}

TEST(Rejection, OfAnItemThatWasRemoved) {
  LayoutSession session;
  Item& null = session.scene().addNull("Gone");
  session.scene().remove(null);
  EXPECT_EQ(session.send(withItem("SelectItem", null)), 0);
  EXPECT_EQ(session.lastReason(), "0x10000000 is an item that was removed");
}

TEST(Rejection, OfAServerThatTheHostDoesNotHave) {
  LayoutSession session;
  session.host.select({&session.scene().addNull("Goal")});
  EXPECT_EQ(session.send("ApplyServer CustomObjHandler LW_Nonsense"), 0);
  EXPECT_EQ(session.lastReason(), "no such server");
}

TEST(Rejection, OfSkelegonsToBonesWithoutSkelegons) {
  LayoutSession session;
  session.host.select({session.object()});
  session.send("AutoConfirm 1");
  EXPECT_EQ(session.send("SkelegonsToBones"), 0);
  EXPECT_EQ(session.lastReason(), "the object has no skelegons");
}

TEST(CommandTable, HasEachNameOnce) {
  // The nine axes have six commands each; the rest stand alone.
  EXPECT_EQ(commandTable().size(), 12U + 13U + 14U + 11U + 9U * 6U + 14U + 12U);
}

}  // namespace
}  // namespace standin
