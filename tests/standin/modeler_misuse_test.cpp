// What the stand-in Modeler finds wrong in a module's calls: each mistake is one fault with a harmless answer.
#include <gtest/gtest.h>

#include <stdexcept>

#include "standin/panels/panel.h"
#include "standin/panels/person.h"
#include "standin/panels/services.h"
#include "tests/standin/modeler_fixture.h"

namespace standin {
namespace {

using Edit = lw::MeshEditOp&;

class ModelerMisuse : public ModelerTest {
 protected:
  // The calls must lead to exactly one fault, with this text.
  void expectFault(const std::string& text) {
    ASSERT_EQ(faultCount(), 1U) << witness().report();
    EXPECT_EQ(lastFault(), text);
  }
};

TEST_F(ModelerMisuse, ASecondEditWhileOneIsOpen) {
  edit(lw::kEditAll, [&](Edit) { EXPECT_EQ(begin(lw::kEditAll), nullptr); });
  expectFault("was called while an edit is open");
}

TEST_F(ModelerMisuse, AnUnknownMode) {
  EXPECT_EQ(begin(3), nullptr);
  expectFault("was called with the unknown mode 3");
}

TEST_F(ModelerMisuse, AnEditEndedWithSelectionFlags) {
  edit(
      lw::kEditAll, [](Edit) {}, 0, 1);
  expectFault("was given selection flags, which no tool does");
}

TEST_F(ModelerMisuse, ElementBuffers) {
  EXPECT_EQ(local().editBegin2(0, 0, 8, lw::kEditAll), nullptr);
  expectFault("was asked for element buffers, which this host does not keep");
}

TEST_F(ModelerMisuse, AnEditUsedAfterItWasDone) {
  lw::MeshEditOp* op = begin(lw::kEditAll);
  op->done(op->state, 0, 0);
  EXPECT_EQ(op->polyInfo(op->state, id("Hips")), nullptr);
  expectFault("was used on an edit that is done");
}

TEST_F(ModelerMisuse, AnEditUsedWhileANewerOneIsOpen) {
  lw::MeshEditOp* op = begin(lw::kEditAll);
  op->done(op->state, 0, 0);
  edit(lw::kEditAll, [&](Edit) { EXPECT_EQ(op->polyTag(op->state, id("Hips"), lw::kTagBone), nullptr); });
  expectFault("was used on an edit that is done");
}

TEST_F(ModelerMisuse, AnEditDoneTwice) {
  lw::MeshEditOp* op = begin(lw::kEditAll);
  op->done(op->state, 0, 0);
  op->done(op->state, 0, 0);
  expectFault("was used on an edit that is done");
}

TEST_F(ModelerMisuse, AnEditLeftOpenAtTheReturnOfTheActivation) {
  const auto leave = [](int, lw::GlobalFunc, void* data, void*) {
    auto* record = static_cast<lw::LWModCommand*>(data);
    return record->editBegin2(0, 0, 0, lw::kEditAll) == nullptr ? 1 : 0;
  };
  EXPECT_EQ(host->activate(leave), 0);
  expectFault("returned with a mesh edit still open");
  EXPECT_NE(begin(lw::kEditAll), nullptr) << "the host has closed it";
}

TEST_F(ModelerMisuse, AnEditLeftOpenByTheEventOfAControl) {
  static lw::EditBeginFunc editBegin;
  editBegin = local().editBegin2;
  panelServices()->globalFun = Globals::lookup();
  lw::PanelId panel = panelServices()->create("Tool", nullptr);
  lw::LWPanControlDesc description{};
  description.type = lw::kValueInteger;
  lw::LWControl* button = panelServices()->addControl(panel, "ButtonControl", &description, "Go");
  lw::LWValue value{};
  value.ptr = {lw::kValuePointer, reinterpret_cast<void*>(+[](lw::LWControl*, void*) { editBegin(0, 0, 0, lw::kEditAll); })};
  button->set(button, lw::kControlEventCallback, &value);
  value.ptr = {lw::kValuePointer, nullptr};
  button->set(button, lw::kControlUserData, &value);
  panelServices()->open(panel, lw::kOpenNoButtons);
  ASSERT_EQ(witness().report(), "");
  EXPECT_TRUE(person::press(panels().find("Tool")->find("Go")));
  expectFault("returned with a mesh edit still open");
}

TEST_F(ModelerMisuse, SelectingInAnEditThatIsNotForIt) {
  edit(lw::kEditDirect, [&](Edit op) { EXPECT_EQ(op.polSelect(op.state, id("Hips"), 1), lw::kEditNoMemory); });
  expectFault("was used in an edit that was not begun for selecting");
  EXPECT_EQ(host->selectedNames(), Names{});
}

TEST_F(ModelerMisuse, WritingInASelectingEdit) {
  edit(lw::kEditSelecting | lw::kEditDirect,
       [&](Edit op) { EXPECT_EQ(op.polTag(op.state, id("Hips"), lw::kTagPart, "x"), lw::kEditNoMemory); });
  expectFault("was used in an edit that may only query and select");
  EXPECT_EQ(object->skelegon("Hips")->content.tag(lw::kTagPart), nullptr);
}

TEST_F(ModelerMisuse, APolygonThatWasDeleted) {
  const lw::PolygonId chest = id("Chest");
  host->deleteSkelegons({"Chest"});
  edit(lw::kEditAll, [&](Edit op) { EXPECT_EQ(op.polyInfo(op.state, chest), nullptr); });
  expectFault("was given a polygon that was deleted");
}

TEST_F(ModelerMisuse, WritingToAPolygonFlaggedAsDeleted) {
  object->markDeleted(*object->skelegon("Chest"));
  edit(lw::kEditAll,
       [&](Edit op) { EXPECT_EQ(op.polTag(op.state, id("Chest"), lw::kTagPart, "x"), lw::kEditBadArguments); });
  expectFault("was given a polygon that is flagged as deleted");
}

TEST_F(ModelerMisuse, APolygonOfAnotherObject) {
  const lw::PolygonId chest = id("Chest");
  host->add(twoLayerRig());
  edit(lw::kEditAll, [&](Edit op) { EXPECT_EQ(op.polyType(op.state, chest), 0U); });
  expectFault("was given a polygon of another object");
}

TEST_F(ModelerMisuse, APolygonOfAClosedObject) {
  const lw::PolygonId chest = id("Chest");
  host->close(*object);
  host->add(twoLayerRig());
  edit(lw::kEditAll, [&](Edit op) { EXPECT_EQ(op.polyTag(op.state, chest, lw::kTagBone), nullptr); });
  expectFault("was given a polygon of an object that is closed");
}

TEST_F(ModelerMisuse, APointWhereAPolygonIsWanted) {
  edit(lw::kEditAll, [&](Edit op) {
    const lw::PointId point = object->skelegon("Hips")->points[0];
    EXPECT_EQ(op.polyType(op.state, reinterpret_cast<lw::PolygonId>(point)), 0U);
  });
  expectFault("was given something that is no polygon");
}

TEST_F(ModelerMisuse, NoPolygonAndNoPoint) {
  edit(lw::kEditAll, [&](Edit op) {
    EXPECT_EQ(op.polyInfo(op.state, nullptr), nullptr);
    EXPECT_EQ(lastFault(), "was given no polygon");
    double position[3];
    op.pointPos(op.state, nullptr, position);
    EXPECT_EQ(lastFault(), "was given no point");
  });
  EXPECT_EQ(faultCount(), 2U);
}

TEST_F(ModelerMisuse, IdentifiersOfAnEarlierSession) {
  const lw::PolygonId old = id("Hips");
  record.reset();
  host.reset();
  host = std::make_unique<ModelerHost>();
  host->add(twoLayerRig());
  record = std::make_unique<ActivationRecord>("");
  edit(lw::kEditAll, [&](Edit op) { EXPECT_EQ(op.polyInfo(op.state, old), nullptr); });
  expectFault("was given something that is no polygon");
}

TEST_F(ModelerMisuse, RemovingASurface) {
  edit(lw::kEditAll,
       [&](Edit op) { EXPECT_EQ(op.polTag(op.state, id("Hips"), kTagSurface, nullptr), lw::kEditBadSurface); });
  expectFault("was asked to remove a surface, which every polygon has");
}

TEST_F(ModelerMisuse, AnUnknownLayerChoice) {
  const auto never = [](void*, lw::PolygonId) { return 0; };
  edit(lw::kEditAll, [&](Edit op) { EXPECT_EQ(op.fastPolyScan(op.state, never, nullptr, 7, 0), lw::kEditBadLayer); });
  expectFault("was asked for the unknown layer choice 7");
}

TEST_F(ModelerMisuse, AScanWithoutACallback) {
  edit(lw::kEditAll,
       [&](Edit op) { EXPECT_EQ(op.fastPolyScan(op.state, nullptr, nullptr, lw::kLayersAll, 0), lw::kEditBadArguments); });
  expectFault("was given no callback");
}

TEST_F(ModelerMisuse, AnExceptionOutOfAScanCallback) {
  const auto thrower = [](void*, lw::PolygonId) -> int { throw std::runtime_error("out"); };
  edit(lw::kEditAll, [&](Edit op) { EXPECT_NE(op.fastPolyScan(op.state, thrower, nullptr, lw::kLayersAll, 0), 0); });
  expectFault("let an exception out into the host");
}

TEST_F(ModelerMisuse, AnEditEndedWithinAScan) {
  lw::MeshEditOp* op = begin(lw::kEditAll);
  const auto end = [](void* user, lw::PolygonId) {
    auto* edit = static_cast<lw::MeshEditOp*>(user);
    edit->done(edit->state, 0, 0);
    return 0;
  };
  op->fastPolyScan(op->state, end, op, lw::kLayersAll, 0);
  expectFault("ended the edit within a scan");
}

TEST_F(ModelerMisuse, AnExcusedOneIsNoFaultUntilTheNextSession) {
  const auto tagWhileSelecting = [&] {
    edit(lw::kEditSelecting | lw::kEditDirect, [&](Edit op) { op.polTag(op.state, id("Hips"), lw::kTagPart, "x"); });
  };
  witness().excuse(kSetsATag, kTagWhileSelecting);
  tagWhileSelecting();
  EXPECT_EQ(faultCount(), 0U);
  witness().reset();
  tagWhileSelecting();
  expectFault(kTagWhileSelecting);
}

TEST_F(ModelerMisuse, AnUndoGroup) {
  local().undoGroupBegin();
  local().undoGroupEnd();
  EXPECT_EQ(faultCount(), 2U);
  EXPECT_EQ(lastFault(), "was called, which no tool does");
}

TEST_F(ModelerMisuse, ASlotThatNobodyUses) {
  edit(lw::kEditAll, [&](Edit op) { reinterpret_cast<void (*)()>(op.gap_24[1])(); });
  expectFault("the unused slot at offset 32 was called");
}

TEST_F(ModelerMisuse, TheActivationRecordReadAfterTheActivation) {
  lw::LWModCommand* kept = record->get();
  record.reset();
  EXPECT_EQ(kept->editBegin2(0, 0, 0, lw::kEditAll), nullptr);
  expectFault("the activation's record was read after the activation returned");
}

TEST_F(ModelerMisuse, AQuestionWithoutAnAnswer) {
  EXPECT_EQ(messageServices()->yesNo("Reset", "Really?", nullptr), 0);
  expectFault("asked \"Really?\", for which no answer was laid ready");
}

TEST_F(ModelerMisuse, AnObjectThatIsNotThere) {
  EXPECT_EQ(sceneObjects()->filename(1), nullptr);
  expectFault("was asked for object 1 of 1");
}

TEST_F(ModelerMisuse, AMapThatIsNotThere) {
  EXPECT_EQ(sceneObjects()->vmapName(lw::kMapWeight, 1), nullptr);
  expectFault("was asked for map 1 of 1");
}

TEST_F(ModelerMisuse, FunctionsUsedAfterTheProgramEnded) {
  host.reset();
  EXPECT_EQ(sceneObjects()->numObjects(), 0);
  expectFault("was called while no Modeler runs");
}

}  // namespace
}  // namespace standin
