// What the stand-in Modeler does where hosts may differ.
#include "tests/standin/modeler_fixture.h"

namespace standin {
namespace {

class ModelerOptionsTest : public ModelerTest {
 protected:
  ~ModelerOptionsTest() override { EXPECT_EQ(witness().report(), ""); }

  // The session anew, on a host that differs.
  void startAnew(const ModelerOptions& options) {
    host.reset();
    host = std::make_unique<ModelerHost>(options);
    object = &host->add(twoLayerRig(), "rig.lwo");
    record = std::make_unique<ActivationRecord>("");
  }
  lw::PolygonId addFace() {
    const auto& points = object->points();
    return object->addFace(0, {points[0].id, points[1].id, points[2].id}).id;
  }
};

TEST_F(ModelerOptionsTest, IdentifiersAreUsedOnceByDefault) {
  const lw::PolygonId head = id("Head");
  host->deleteSkelegons({"Head"});
  EXPECT_NE(addFace(), head);
}

TEST_F(ModelerOptionsTest, AUsedIdentifierNamesTheNewPolygon) {
  startAnew({.identifiersAreUsedAgain = true});
  const lw::PolygonId head = id("Head");
  host->deleteSkelegons({"Head"});
  EXPECT_EQ(addFace(), head);
  edit(lw::kEditAll, [&](lw::MeshEditOp& op) { EXPECT_EQ(op.polyType(op.state, head), lw::kTypeFace); });
}

TEST_F(ModelerOptionsTest, UndoGivesUsedIdentifiersBackInTurn) {
  startAnew({.identifiersAreUsedAgain = true});
  const lw::PolygonId head = id("Head");
  host->deleteSkelegons({"Head"});
  addFace();
  EXPECT_TRUE(host->undo() && host->undo());
  EXPECT_EQ(id("Head"), head);
  EXPECT_EQ(object->polygon(head).tag(lw::kTagBone), "Head");
  EXPECT_TRUE(host->redo() && host->redo());
  EXPECT_EQ(object->polygon(head).type, lw::kTypeFace);
}

TEST_F(ModelerOptionsTest, AnObjectOpenedLaterUsesTheIdentifiersOfAClosedOne) {
  startAnew({.identifiersAreUsedAgain = true});
  std::vector<lw::PolygonId> closed;
  for (const MeshPolygon& polygon : object->polygons()) closed.push_back(polygon.id);
  host->closeAll();
  object = &host->add(twoLayerRig(), "other.lwo");
  for (const MeshPolygon& polygon : object->polygons()) {
    EXPECT_NE(std::find(closed.begin(), closed.end(), polygon.id), closed.end());
  }
}

// Its identifier was given away meanwhile: the polygon that comes back takes another one.
TEST_F(ModelerOptionsTest, APolygonThatComesBackTooLateGetsANewIdentifier) {
  startAnew({.identifiersAreUsedAgain = true});
  ModelerObject& first = *object;
  const lw::PolygonId head = id("Head");
  host->deleteSkelegons({"Head"});
  host->add(twoLayerRig(), "other.lwo");
  EXPECT_TRUE(first.undo());
  EXPECT_NE(first.skelegon("Head")->id, head);
  EXPECT_EQ(&first.polygon(first.skelegon("Head")->id), first.skelegon("Head"));
}

TEST_F(ModelerOptionsTest, DeletedPolygonsCanBeDeliveredFlagged) {
  host->options().scansDeliverDeleted = true;
  const lw::PolygonId head = id("Head");
  host->deleteSkelegons({"Head"});
  edit(lw::kEditAll, [&](lw::MeshEditOp& op) {
    const Names names = scannedNames(op, *object, lw::kLayersAll);
    EXPECT_NE(std::find(names.begin(), names.end(), "Head"), names.end());
    EXPECT_NE(op.polyInfo(op.state, head)->flags & lw::kElementDeleted, 0);
  });
}

TEST_F(ModelerOptionsTest, ScansCanDeliverTheNewestFirst) {
  host->options().newestFirst = true;
  edit(lw::kEditAll, [&](lw::MeshEditOp& op) {
    EXPECT_EQ(scannedNames(op, *object, lw::kLayersForeground), Names({"Head", "Chest", "Hips", "face"}));
  });
}

TEST_F(ModelerOptionsTest, QuestionsWithinAScanCanBeRefused) {
  host->options().scansRefuseQuestions = true;
  edit(lw::kEditAll, [&](lw::MeshEditOp& op) {
    const auto ask = [](void* user, lw::PolygonId polygon) {
      const auto& edit = *static_cast<const lw::MeshEditOp*>(user);
      EXPECT_EQ(edit.polyType(edit.state, polygon), 0U);
      EXPECT_EQ(edit.polyInfo(edit.state, polygon), nullptr);
      return 0;
    };
    EXPECT_EQ(op.fastPolyScan(op.state, ask, &op, lw::kLayersAll, 0), 0);
    EXPECT_EQ(op.polyType(op.state, id("Head")), lw::kTypeBone);
  });
}

TEST_F(ModelerOptionsTest, ARecordCanEndAtAnyCall) {
  host->options().recordsEndAtAnyCall = true;
  edit(lw::kEditAll, [&](lw::MeshEditOp& op) {
    const lw::EDPolygonInfo* const record = op.polyInfo(op.state, id("Head"));
    EXPECT_EQ(record->pol, id("Head"));
    op.polyType(op.state, id("Head"));
    EXPECT_NE(record->pol, id("Head"));
  });
}

TEST_F(ModelerOptionsTest, RefusalsAnswerWithTheCodeThatIsChosen) {
  host->options().refusalCode = -1;
  edit(lw::kEditAll, [&](lw::MeshEditOp& op) {
    witness().refuseNext("MeshEditOp::polTag");
    EXPECT_EQ(op.polTag(op.state, id("Head"), lw::kTagBone, "x"), -1);
  });
}

// Refused by the rules of an edit, not by way of trial.
TEST_F(ModelerOptionsTest, WhatAnEditIsNotForIsRefusedWithTheCodeThatIsChosen) {
  host->options().refusalCode = lw::kEditUserAbort;
  edit(lw::kEditSelecting | lw::kEditDirect,
       [&](lw::MeshEditOp& op) { EXPECT_EQ(op.polTag(op.state, id("Head"), lw::kTagBone, "x"), lw::kEditUserAbort); });
  edit(lw::kEditAll, [&](lw::MeshEditOp& op) { EXPECT_EQ(op.polSelect(op.state, id("Head"), 1), lw::kEditUserAbort); });
  EXPECT_EQ(witness().faults().size(), 2U);
  witness().reset();
}

TEST_F(ModelerOptionsTest, AMissingTagCanReadAsEmpty) {
  host->options().missingTagIsEmpty = true;
  edit(lw::kEditAll, [&](lw::MeshEditOp& op) { EXPECT_STREQ(op.polyTag(op.state, id("Head"), lw::kTagColour), ""); });
}

TEST_F(ModelerOptionsTest, ASelectionNeedBeNoStep) {
  host->options().selectionIsStep = false;
  edit(lw::kEditSelecting | lw::kEditDirect, [&](lw::MeshEditOp& op) { op.polSelect(op.state, id("Head"), 1); });
  EXPECT_EQ(host->selectedNames(), Names({"Head"}));
  EXPECT_EQ(object->undoSteps(), 0U);
}

TEST_F(ModelerOptionsTest, MapsOfOtherTypesAreNoWeightMaps) {
  startAnew({.otherMapsBearNames = true});
  EXPECT_EQ(host->weightMaps(), Names({"Head"}));
  EXPECT_EQ(sceneObjects()->numVMaps(lw::kMapWeight), 1);
  EXPECT_GT(sceneObjects()->numVMaps(0), 5);
}

TEST_F(ModelerOptionsTest, TheListOfMapsCanBeTheObjects) {
  host->options().mapsAreTheObjects = true;
  host->closeAll();
  EXPECT_EQ(sceneObjects()->numVMaps(lw::kMapWeight), 0);
}

TEST_F(ModelerOptionsTest, AnUnsavedObjectCanHaveNoFileName) {
  startAnew({.objectsAreUnsaved = true, .unsavedFileName = UnsavedFileName::Null});
  EXPECT_STREQ(stateQuery()->object(), object->referenceName().c_str());
  EXPECT_EQ(sceneObjects()->filename(0), nullptr);
  host->options().unsavedFileName = UnsavedFileName::Empty;
  EXPECT_STREQ(sceneObjects()->filename(0), "");
}

}  // namespace
}  // namespace standin
