// What the panel's buttons and choosers do.
#include "tests/tools/property_panel_fixture.h"

namespace varnel::test {
namespace {

// ---------------------------------------------------------------------------------------------------------------------
// Linked items

struct Linked {
  Slot slot;
  const char* suffix;
};
void PrintTo(const Linked& linked, std::ostream* out) { *out << linked.suffix; }

class EveryLinkedItem : public testing::TestWithParam<Linked>, protected PropertySession {};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, EveryLinkedItem,
                         testing::Values(Linked{Slot::TargetItem, "_tar"}, Linked{Slot::PoleItem, "_pole"},
                                         Linked{Slot::GoalObject, "_goal"}, Linked{Slot::PositionItem, "_pos"},
                                         Linked{Slot::RotationItem, "_rot"}, Linked{Slot::ScaleItem, "_scl"},
                                         Linked{Slot::InitialPositionItem, "_initpos"}));

TEST_P(EveryLinkedItem, IsNamedAfterEachSelectedSkelegonByItsButton) {
  openWith({"Hips", "Tail_01"});
  pressBehind(GetParam().slot);
  EXPECT_EQ(stored("Hips", GetParam().slot), "Hips" + std::string(GetParam().suffix));
  EXPECT_EQ(stored("Tail_01", GetParam().slot), "Tail_01" + std::string(GetParam().suffix));
  EXPECT_EQ(stored("Chest", GetParam().slot), std::nullopt);
  EXPECT_EQ(changingEdits(), 1U);
}

TEST_P(EveryLinkedItem, ShowsTheNameThatItsButtonMade) {
  openWith({"Hips"});
  pressBehind(GetParam().slot);
  EXPECT_EQ(shown(GetParam().slot), "Hips" + std::string(GetParam().suffix));
}

TEST_P(EveryLinkedItem, GetsTheSuffixAloneFromASkelegonWithoutAName) {
  store("Hips", lw::kTagBone, "");
  openWith({""});
  pressBehind(GetParam().slot);
  EXPECT_EQ(stored("", GetParam().slot), GetParam().suffix);
}

TEST_F(PropertyPanel, ALinkedItemIsNamedByTheNameThatTheSkelegonHasNow) {
  openWith({"Hips"});
  store("Hips", lw::kTagBone, "Pelvis");
  pressBehind(Slot::TargetItem);
  EXPECT_EQ(stored("Pelvis", Slot::TargetItem), "Pelvis_tar");
}

// ---------------------------------------------------------------------------------------------------------------------
// Weight maps

TEST_F(PropertyPanel, TheWeightMapChooserOffersNoneAndTheMapsOfTheMesh) {
  openWith({"Hips"});
  show(Slot::WeightMap);
  EXPECT_EQ(person::menu(behind(Slot::WeightMap)), (Names{"(none)", "Head", "Spine"}));
}

// The list is the host's, which keeps one for all objects.
TEST_F(PropertyPanel, TheWeightMapsOfAllOpenObjectsAreOffered) {
  standin::RigBuilder another;
  another.point({0, 0, 0});
  another.weightMap("Wing", {{0, 1.0F}});
  host.add(another.take(), "another.lwo");
  host.makeCurrent(*object);
  openWith({"Hips"});
  show(Slot::WeightMap);
  EXPECT_EQ(person::menu(behind(Slot::WeightMap)), (Names{"(none)", "Head", "Spine", "Wing"}));
}

TEST_F(PropertyPanel, AChosenWeightMapMakesTheBoneActive) {
  store("Hips", Slot::BoneActive, "0");
  openWith({"Hips"});
  chooseBehind(Slot::WeightMap, "Spine");
  EXPECT_EQ(shown(Slot::WeightMap), "Spine");
  EXPECT_EQ(shown(Slot::BoneActive), "on");
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "Spine");
  EXPECT_EQ(stored("Hips", Slot::BoneActive), std::nullopt);  // the default is not stored
  EXPECT_EQ(changingEdits(), 1U);
}

TEST_F(PropertyPanel, NoWeightMapMakesTheBoneInactive) {
  store("Hips", lw::kTagBoneWeight, "Spine");
  openWith({"Hips"});
  chooseBehind(Slot::WeightMap, "(none)");
  EXPECT_EQ(shown(Slot::WeightMap), "");
  EXPECT_EQ(shown(Slot::BoneActive), "off");
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "");
  EXPECT_EQ(stored("Hips", Slot::BoneActive), "0");
}

TEST_F(PropertyPanel, AWeightMapIndexBeyondTheListCountsAsNone) {
  openWith({"Hips"});
  show(Slot::WeightMap);
  EXPECT_TRUE(standin::oddhost::choose(behind(Slot::WeightMap), 77));
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "");
  EXPECT_EQ(stored("Hips", Slot::BoneActive), "0");
}

TEST_F(PropertyPanel, TheSameWeightMapCanBeChosenAgain) {
  standin::panels().options.repeatedChoiceFires = false;
  openWith({"Hips"});
  chooseBehind(Slot::WeightMap, "Spine");
  type(Slot::WeightMap, "other");
  chooseBehind(Slot::WeightMap, "Spine");
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "Spine");
}

TEST_F(PropertyPanel, TheButtonGivesEachSkelegonTheWeightMapOfItsName) {
  store("Head", Slot::BoneActive, "0");
  openWith({"Hips", "Head"});
  pressBehind(Slot::WeightMap, 2);
  EXPECT_EQ(stored("Head", lw::kTagBoneWeight), "Head");
  EXPECT_EQ(stored("Head", Slot::BoneActive), "1");
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "");
  EXPECT_EQ(stored("Hips", Slot::BoneActive), "0");
  EXPECT_EQ(shown(Slot::BoneActive), "off");  // of the first selected one
  EXPECT_EQ(changingEdits(), 1U);
}

TEST_F(PropertyPanel, TheButtonTakesTheMapOfTheNameThatTheSkelegonHasNow) {
  openWith({"Hips"});
  store("Hips", lw::kTagBone, "Spine");
  pressBehind(Slot::WeightMap, 2);
  EXPECT_EQ(stored("Spine", lw::kTagBoneWeight), "Spine");
  EXPECT_EQ(stored("Spine", Slot::BoneActive), "1");
}

// Bones without a name are called "Bone" elsewhere. A map of that name is not theirs.
TEST_F(PropertyPanel, TheButtonFindsNoMapForASkelegonWithoutANameTag) {
  standin::RigBuilder rig;
  rig.weightMap("Bone", {{rig.point({0, 0, 0}), 1.0F}});
  rig.between(rig.point({0, 0, 0}), rig.point({0, 1, 0}), std::nullopt);
  object = &host.add(rig.take(), "unnamed.lwo");
  host.selectPolygons(object->skelegons());
  openTool();
  pressBehind(Slot::WeightMap, 2);
  const standin::MeshPolygon* const unnamed = object->skelegons().front();
  EXPECT_EQ(unnamed->tag(lw::kTagBoneWeight), "");
  EXPECT_EQ(unnamed->tag(skg::SlotTagId(Slot::BoneActive)), "0");
}

TEST_F(PropertyPanel, AMapThatWasRemovedMeanwhileIsNoMapForTheButton) {
  openWith({"Head"});
  host.removeWeightMap("Head");
  pressBehind(Slot::WeightMap, 2);
  EXPECT_EQ(stored("Head", lw::kTagBoneWeight), "");
  EXPECT_EQ(stored("Head", Slot::BoneActive), "0");
}

// ---------------------------------------------------------------------------------------------------------------------
// Parents

class EveryParent : public testing::TestWithParam<Slot>, protected PropertySession {};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, EveryParent,
                         testing::Values(Slot::ParentItem, Slot::TargetParent, Slot::PoleParent, Slot::GoalParent,
                                         Slot::PositionParent, Slot::RotationParent, Slot::ScaleParent));

TEST_P(EveryParent, IsChosenFromLayersAndSkelegons) {
  openWith({"Hips"});
  show(GetParam());
  EXPECT_EQ(person::menu(behind(GetParam())),
            (Names{"(none)", "[file]:Body", "[file]:Tail", "Hips", "Chest", "Head", "Tail_01", "Tail_02"}));
}

TEST_P(EveryParent, TakesTheTextOfTheChoice) {
  openWith({"Hips"});
  for (const char* item : {"[file]:Tail", "Chest"}) {
    chooseBehind(GetParam(), item);
    EXPECT_EQ(shown(GetParam()), item);
    EXPECT_EQ(stored("Hips", GetParam()), item);
  }
  EXPECT_EQ(changingEdits(), 2U);
}

TEST_P(EveryParent, IsEmptiedByTheChoiceOfNone) {
  store("Hips", GetParam(), "Chest");
  openWith({"Hips"});
  chooseBehind(GetParam(), "(none)");
  EXPECT_EQ(shown(GetParam()), "");
  EXPECT_EQ(stored("Hips", GetParam()), std::nullopt);
}

TEST_P(EveryParent, IsEmptiedByAnIndexBeyondTheLists) {
  store("Hips", GetParam(), "Chest");
  openWith({"Hips"});
  show(GetParam());
  EXPECT_TRUE(standin::oddhost::choose(behind(GetParam()), 8));
  EXPECT_EQ(stored("Hips", GetParam()), std::nullopt);
}

TEST_P(EveryParent, ToleratesTheQuestionForAnyName) {
  openWith({"Hips"});
  for (const int index : {-1, 8, 1000000}) EXPECT_TRUE(standin::oddhost::askName(behind(GetParam()), index));
}

TEST_F(PropertyPanel, ALayerWithoutANameIsOfferedByItsNumber) {
  object->addLayer("");
  openWith({"Hips"});
  show(Slot::ParentItem);
  EXPECT_EQ(person::menu(behind(Slot::ParentItem))[3], "[file]:Layer3");
}

// ---------------------------------------------------------------------------------------------------------------------
// Controller presets

struct Preset {
  std::size_t button;
  const char* value;
};
constexpr Preset kPresets[] = {{88, "0"}, {89, "3"}, {90, "6"}};
constexpr Slot kControllers[3][3] = {
    {Slot::XPositionController, Slot::YPositionController, Slot::ZPositionController},
    {Slot::HeadingController, Slot::PitchController, Slot::BankController},
    {Slot::XScaleController, Slot::YScaleController, Slot::ZScaleController},
};

class EveryGroup : public testing::TestWithParam<Group>, protected PropertySession {
 protected:
  void pressPreset(std::size_t button) {
    showGroup(GetParam());
    EXPECT_TRUE(person::press(control(button)));
  }
};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, EveryGroup, testing::Values(kPositionGroup, kRotationGroup, kScaleGroup));

TEST_P(EveryGroup, GetsOneControllerForAllItsAxesByAPreset) {
  openWith({"Hips", "Tail_01"});
  for (const Preset& preset : kPresets) {
    pressPreset(preset.button);
    for (const Slot slot : kControllers[GetParam()]) {
      EXPECT_EQ(stored("Hips", slot), preset.value);
      EXPECT_EQ(stored("Tail_01", slot), preset.value);
      EXPECT_EQ(control(slot)->integer, std::stoi(preset.value));
    }
  }
  EXPECT_EQ(changingEdits(), 3U);
}

TEST_P(EveryGroup, LeavesTheOtherGroupsControllersAlone) {
  openWith({"Hips"});
  pressPreset(90);
  for (int other = 0; other < 3; ++other) {
    for (const Slot slot : kControllers[other]) EXPECT_EQ(stored("Hips", slot).has_value(), other == GetParam());
  }
}

TEST_F(PropertyPanel, APresetActsOnlyWhileItsPageIsShown) {
  openWith({"Hips"});
  for (const Page page : {kGroupPage, kBonePage, kIKPage}) {
    showPage(page);
    for (const Preset& preset : kPresets) EXPECT_TRUE(standin::oddhost::fire(control(preset.button)));
  }
  EXPECT_EQ(changingEdits(), 0U);
}

// ---------------------------------------------------------------------------------------------------------------------
// Reset

class Reset : public PropertyPanel {
 protected:
  // A skelegon with settings, and with all the tags that are the host's own.
  void fill(const char* name) {
    for (std::size_t slot = 0; slot < skg::kSlotCount; ++slot) store(name, skg::plainSlotTagId(slot), "1");
    store(name, lw::kTagPart, "Part");
    store(name, lw::kTagBoneWeight, "Spine");
    store(name, lw::kTagColour, "Blue");
  }
  std::size_t settingsOf(const char* name) const {
    std::size_t count = 0;
    for (std::size_t slot = 0; slot < skg::kSlotCount; ++slot) count += stored(name, skg::plainSlotTagId(slot)) ? 1 : 0;
    return count;
  }
};

TEST_F(Reset, RemovesEverySettingOfTheSelectedSkelegonsOnYes) {
  fill("Hips");
  fill("Chest");
  openWith({"Hips"});
  host.answer(standin::Answer::Yes);
  press(mst::control::kReset);
  EXPECT_EQ(settingsOf("Hips"), 0U);
  EXPECT_EQ(settingsOf("Chest"), skg::kSlotCount);
  EXPECT_EQ(changingEdits(), 1U);
}

TEST_F(Reset, KeepsNamePartWeightMapAndColour) {
  fill("Hips");
  openWith({"Hips"});
  host.answer(standin::Answer::Yes);
  press(mst::control::kReset);
  EXPECT_EQ(stored("Hips", lw::kTagBone), "Hips");
  EXPECT_EQ(stored("Hips", lw::kTagPart), "Part");
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "Spine");
  EXPECT_EQ(stored("Hips", lw::kTagColour), "Blue");
}

TEST_F(Reset, ShowsTheDefaultsAfterwards) {
  fill("Hips");
  openWith({"Hips"});
  EXPECT_EQ(control(Slot::Strength)->real, 1);
  host.answer(standin::Answer::Yes);
  press(mst::control::kReset);
  EXPECT_EQ(control(Slot::Strength)->real, 100);
}

TEST_F(Reset, DoesNothingOnNo) {
  fill("Hips");
  openWith({"Hips"});
  host.answer(standin::Answer::No);
  host.answer(standin::Answer::No);
  press(mst::control::kReset);
  press(mst::control::kResetAll);
  EXPECT_EQ(settingsOf("Hips"), skg::kSlotCount);
  EXPECT_EQ(changingEdits(), 0U);
}

TEST_F(Reset, AsksBothQuestionsInTheirWords) {
  openWith({"Hips"});
  host.answer(standin::Answer::No);
  host.answer(standin::Answer::No);
  press(mst::control::kReset);
  press(mst::control::kResetAll);
  ASSERT_EQ(host.messages().size(), 2U);
  for (const standin::Message& question : host.messages()) EXPECT_EQ(question.title, "Orlo:SkelegonProperty");
  EXPECT_EQ(host.messages()[0].kind, standin::MessageKind::YesNo);
  EXPECT_EQ(host.messages()[0].first, "Reset selected skelegon's tag ?");
  EXPECT_EQ(host.messages()[1].first, "Reset all skelegon's tag ?");
}

TEST_F(Reset, TakesEveryAnswerButZeroForYes) {
  fill("Hips");
  static int given;
  lw::LWMessageFuncs answering{};
  answering.yesNo = [](const char*, const char*, const char*) { return given; };
  standin::globals().offer("Info Messages 4", &answering);
  openWith({"Hips"});
  given = 0;
  press(mst::control::kReset);
  EXPECT_EQ(settingsOf("Hips"), skg::kSlotCount);
  for (const int yes : {2, -1, 1}) {
    fill("Hips");
    given = yes;
    press(mst::control::kReset);
    EXPECT_EQ(settingsOf("Hips"), 0U) << yes;
  }
}

// What was asked for is done: to the skelegons that were selected then, and the closed panel looks at nothing any more.
TEST_F(Reset, ReachesTheSkelegonsInQuestionThoughThePanelWasClosedMeanwhile) {
  fill("Hips");
  fill("Chest");
  openWith({"Hips"});
  const std::size_t edits = host.edits().size();
  host.showMessagesTo([this](const standin::Message&) {
    EXPECT_TRUE(person::close(panel));
    return standin::Answer::Yes;
  });
  press(mst::control::kReset);
  EXPECT_EQ(settingsOf("Hips"), 0U);
  EXPECT_EQ(settingsOf("Chest"), skg::kSlotCount);
  EXPECT_EQ(host.edits().size(), edits + 1);
}

TEST_F(Reset, OfAllReachesUnselectedSkelegonsAndHiddenLayers) {
  fill("Chest");
  fill("Tail_01");
  openWith({"Hips"});
  host.showLayers({0});
  host.answer(standin::Answer::Yes);
  press(mst::control::kResetAll);
  EXPECT_EQ(settingsOf("Chest"), 0U);
  EXPECT_EQ(settingsOf("Tail_01"), 0U);
}

// ---------------------------------------------------------------------------------------------------------------------
// Sync, and which skelegons the panel works on

TEST_F(PropertyPanel, SyncShowsThePresentSelection) {
  store("Chest", Slot::Strength, "40.000000");
  openWith({"Hips"});
  host.select({"Chest"});
  EXPECT_EQ(control(Slot::Strength)->real, 100);
  sync();
  EXPECT_EQ(control(Slot::Strength)->real, 40);
  EXPECT_EQ(control(mst::control::kNameEdit)->text, "Chest");
}

// What is shown is what is written to, until the panel is told to look again.
TEST_F(PropertyPanel, WritesToTheSkelegonsThatItShows) {
  openWith({"Hips"});
  host.select({"Chest"});
  enter(Slot::Strength, 40);
  EXPECT_EQ(stored("Hips", Slot::Strength), "40.000000");
  EXPECT_EQ(stored("Chest", Slot::Strength), std::nullopt);
}

}  // namespace
}  // namespace varnel::test
