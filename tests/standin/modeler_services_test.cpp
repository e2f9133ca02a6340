// Queries, messages, globals and refusals of the stand-in Modeler.
#include <gtest/gtest.h>

#include "tests/standin/modeler_fixture.h"

namespace standin {
namespace {

using Edit = lw::MeshEditOp&;

class ModelerServices : public ModelerTest {
 protected:
  void TearDown() override { EXPECT_EQ(witness().report(), ""); }
};

// --- activation ----------------------------------------------------------------------------------------------------------

TEST_F(ModelerServices, WhatAModuleCopiedOutOfTheActivationStaysGood) {
  static lw::EditBeginFunc editBegin;
  const auto copy = [](int version, lw::GlobalFunc global, void* local, void*) {
    const auto* record = static_cast<lw::LWModCommand*>(local);
    editBegin = record->editBegin2;
    EXPECT_EQ(version, 4);
    EXPECT_STREQ(record->argument, "given");
    EXPECT_NE(global("LWM: State Query 5", lw::kUseTransient), nullptr);
    return 0;
  };
  EXPECT_EQ(host->activate(copy, "given"), 0);
  lw::MeshEditOp* op = editBegin(0, 0, 0, lw::kEditAll);
  ASSERT_NE(op, nullptr);
  op->done(op->state, 0, 0);
}

TEST_F(ModelerServices, NumbersOfTheHostCanBeSetAtAnyTime) {
  const auto number = [](const char* name) {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(Globals::lookup()(name, lw::kUseTransient)));
  };
  EXPECT_EQ(number("Product Info"), 0x08F00641U);
  EXPECT_EQ(number("Locale Info"), 0x409U);
  host->options().localeInfo = 0x411;
  EXPECT_EQ(number("Locale Info"), 0x411U);
}

TEST_F(ModelerServices, AServiceOfLayoutIsNotThere) {
  EXPECT_EQ(Globals::lookup()("LW Command Interface", lw::kUseTransient), nullptr);
}

TEST_F(ModelerServices, ANewHostBeginsANewSession) {
  witness().fault("x", "y");
  globals().withhold("Scene Objects 9");
  host.reset();
  host = std::make_unique<ModelerHost>();
  EXPECT_EQ(witness().report(), "");
  EXPECT_NE(Globals::lookup()("Scene Objects 9", lw::kUseTransient), nullptr);
  EXPECT_EQ(host->current(), nullptr);
}

// --- queries -------------------------------------------------------------------------------------------------------------

TEST_F(ModelerServices, TheCurrentObjectIsNamedByItsFile) {
  EXPECT_STREQ(stateQuery()->object(), "rig.lwo");
  host->closeAll();
  EXPECT_EQ(stateQuery()->object(), nullptr);
  ModelerObject& unsaved = host->add(twoLayerRig());
  EXPECT_EQ(stateQuery()->object(), unsaved.referenceName());
}

TEST_F(ModelerServices, LayersAreListedFromOneHighestFirst) {
  EXPECT_STREQ(stateQuery()->layerList(lw::kLayersAll, nullptr), "2 1");
  EXPECT_STREQ(stateQuery()->layerList(lw::kLayersForeground, "rig.lwo"), "1");
  EXPECT_EQ(stateQuery()->layerList(lw::kLayersAll, "none.lwo"), nullptr);
}

TEST_F(ModelerServices, SceneObjectsCountLayersFromZero) {
  EXPECT_EQ(sceneObjects()->numObjects(), 1);
  EXPECT_STREQ(sceneObjects()->filename(0), "rig.lwo");
  EXPECT_EQ(sceneObjects()->maxLayers(0), 2);
  EXPECT_STREQ(sceneObjects()->layerName(0, 0), "Body");
  EXPECT_STREQ(sceneObjects()->layerName(0, 1), "Tail");
  EXPECT_EQ(sceneObjects()->layerExists(0, 2), 0);
}

TEST_F(ModelerServices, AReferenceNameStaysWhateverTheFileIsCalled) {
  const std::string reference = sceneObjects()->refName(0);
  EXPECT_EQ(reference, object->referenceName());
  EXPECT_NE(reference, sceneObjects()->filename(0));
}

TEST_F(ModelerServices, GapsBetweenLayerNumbersDoNotExist) {
  RigBuilder rig;
  rig.layer(2, "");
  host->add(rig.take(), "gap.lwo");
  EXPECT_EQ(sceneObjects()->maxLayers(1), 3);
  EXPECT_EQ(sceneObjects()->layerExists(1, 0), 0);
  EXPECT_EQ(sceneObjects()->layerExists(1, 2), 1);
  EXPECT_EQ(sceneObjects()->layerName(1, 2), nullptr);
  host->options().unnamedLayerIsEmpty = true;
  EXPECT_STREQ(sceneObjects()->layerName(1, 2), "");
}

TEST_F(ModelerServices, VertexMapsBelongToTheProgramAndStayListed) {
  host->add(twoLayerRig());
  EXPECT_EQ(sceneObjects()->numVMaps(lw::kMapWeight), 1) << "maps of one name are shared";
  host->closeAll();
  EXPECT_EQ(sceneObjects()->numVMaps(lw::kMapWeight), 1);
  EXPECT_STREQ(sceneObjects()->vmapName(lw::kMapWeight, 0), "Head");
}

TEST_F(ModelerServices, ARemovedWeightMapIsGoneUntilItIsTakenBack) {
  host->removeWeightMap("Head");
  EXPECT_EQ(sceneObjects()->numVMaps(lw::kMapWeight), 0);
  host->undo();
  EXPECT_EQ(sceneObjects()->numVMaps(0), 1);
}

TEST_F(ModelerServices, AMapWithoutANameHasNone) {
  RigBuilder rig;
  rig.point({0, 0, 0});
  rig.weightMap("", {});
  host->add(rig.take());
  EXPECT_EQ(sceneObjects()->vmapName(lw::kMapWeight, 1), nullptr);
  host->options().unnamedMapIsEmpty = true;
  EXPECT_STREQ(sceneObjects()->vmapName(lw::kMapWeight, 1), "");
}

// --- messages ------------------------------------------------------------------------------------------------------------

TEST_F(ModelerServices, MessagesAreKept) {
  messageServices()->error("Need select the skelegon!", "");
  ASSERT_EQ(host->messages().size(), 1U);
  EXPECT_EQ(host->messages()[0].kind, MessageKind::Error);
  EXPECT_EQ(host->messages()[0].first, "Need select the skelegon!");
}

TEST_F(ModelerServices, AQuestionIsAnsweredWithOneForYes) {
  host->answer(Answer::Yes);
  host->answer(Answer::No);
  EXPECT_EQ(messageServices()->yesNo("t", "a", nullptr), 1);
  EXPECT_EQ(messageServices()->yesNo("t", "a", nullptr), 0);
  EXPECT_EQ(host->messages()[1].answer, Answer::No);
}

// --- refusals ------------------------------------------------------------------------------------------------------------

TEST_F(ModelerServices, ARefusedCallFailsInItsOwnWay) {
  const auto refuse = [] { witness().refuseCall(1); };
  const auto never = [](void*, lw::PolygonId) { return 99; };
  refuse();
  EXPECT_EQ(begin(lw::kEditAll), nullptr);
  edit(lw::kEditAll, [&](Edit op) {
    refuse();
    EXPECT_EQ(op.fastPolyScan(op.state, never, nullptr, lw::kLayersAll, 0), lw::kEditNoMemory);
    refuse();
    EXPECT_EQ(op.polyInfo(op.state, id("Hips")), nullptr);
    refuse();
    EXPECT_EQ(op.polyTag(op.state, id("Hips"), lw::kTagBone), nullptr);
    refuse();
    EXPECT_EQ(op.polTag(op.state, id("Hips"), lw::kTagPart, "x"), lw::kEditNoMemory);
  });
  edit(lw::kEditSelecting | lw::kEditDirect, [&](Edit op) {
    refuse();
    EXPECT_EQ(op.polSelect(op.state, id("Hips"), 1), lw::kEditNoMemory);
  });
  refuse();
  EXPECT_EQ(stateQuery()->object(), nullptr);
  refuse();
  EXPECT_EQ(sceneObjects()->numVMaps(lw::kMapWeight), 0);
  refuse();
  EXPECT_EQ(messageServices()->yesNo("t", "a", nullptr), 0);
  EXPECT_TRUE(witness().refusalHappened());
  EXPECT_EQ(object->undoSteps(), 0U);
}

TEST_F(ModelerServices, ARefusedEndOfAnEditDropsItsChanges) {
  lw::MeshEditOp* op = begin(lw::kEditAll);
  op->polTag(op->state, id("Hips"), settingTag(13), "5");
  witness().refuseCall(1);
  op->done(op->state, 0, 0);
  EXPECT_EQ(object->skelegon("Hips")->tag(settingTag(13)), "2");
  EXPECT_NE(begin(lw::kEditAll), nullptr);
}

}  // namespace
}  // namespace standin
