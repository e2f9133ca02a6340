// The mesh edit of the stand-in Modeler: what it delivers and when changes arrive.
#include <gtest/gtest.h>

#include "tests/standin/modeler_fixture.h"

namespace standin {
namespace {

using Edit = lw::MeshEditOp&;

class MeshEditTest : public ModelerTest {
 protected:
  void TearDown() override { EXPECT_EQ(witness().report(), ""); }
};

TEST_F(MeshEditTest, ScansFollowTheLayerChoice) {
  host->showLayers({1});
  edit(lw::kEditAll, [&](Edit op) {
    EXPECT_EQ(scannedNames(op, *object, lw::kLayersForeground), (Names{"Tail_01", "Tail_02"}));
    EXPECT_EQ(scannedNames(op, *object, lw::kLayersAll), (Names{"face", "Hips", "Chest", "Head", "Tail_01", "Tail_02"}));
  });
}

TEST_F(MeshEditTest, OnlyTheLowestLayerIsShownAtFirst) {
  edit(lw::kEditAll, [&](Edit op) {
    EXPECT_EQ(op.layerNum, 0);
    EXPECT_EQ(scannedNames(op, *object, lw::kLayersForeground).size(), 4U);
  });
}

TEST_F(MeshEditTest, TheSelectedBitFollowsTheMode) {
  const auto selectedIn = [&](int mode) {
    Names names;
    edit(mode, [&](Edit op) { names = scannedNames(op, *object, lw::kLayersForeground, 1); });
    return names;
  };
  EXPECT_EQ(selectedIn(lw::kEditAll).size(), 4U);
  EXPECT_EQ(selectedIn(lw::kEditDirect).size(), 0U);
  host->select({"Chest"});
  EXPECT_EQ(selectedIn(lw::kEditAll).size(), 4U);
  EXPECT_EQ(selectedIn(lw::kEditDirect), Names{"Chest"});
}

TEST_F(MeshEditTest, AScanStopsAtAnAnswerThatIsNotZero) {
  edit(lw::kEditAll, [&](Edit op) {
    int calls = 0;
    const auto third = [](void* user, lw::PolygonId) { return ++*static_cast<int*>(user) == 3 ? 77 : 0; };
    EXPECT_EQ(op.fastPolyScan(op.state, third, &calls, lw::kLayersAll, 0), 77);
    EXPECT_EQ(calls, 3);
  });
}

TEST_F(MeshEditTest, ARecordTellsThePolygonWithItsLayerFromZero) {
  host->select({"Hips"});
  edit(lw::kEditDirect, [&](Edit op) {
    const lw::EDPolygonInfo* info = op.polyInfo(op.state, id("Hips"));
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->pol, id("Hips"));
    EXPECT_EQ(info->layer, 0);
    EXPECT_EQ(info->flags, lw::kElementSelected);
    EXPECT_EQ(info->type, lw::kTypeBone);
    EXPECT_STREQ(info->surface, "Default");
    ASSERT_EQ(info->numPnts, 2);
    EXPECT_EQ(info->points[1], object->skelegon("Chest")->points[0]);
  });
}

TEST_F(MeshEditTest, ThereIsOneRecordWhichTheNextQueryOverwrites) {
  edit(lw::kEditAll, [&](Edit op) {
    const lw::EDPolygonInfo* first = op.polyInfo(op.state, id("Hips"));
    const lw::PointId* points = first->points;
    EXPECT_EQ(op.polyInfo(op.state, id("Head")), first);
    EXPECT_EQ(first->pol, id("Head"));
    EXPECT_NE(points[0], object->skelegon("Hips")->points[0]);
  });
}

TEST_F(MeshEditTest, PointsOfAnEarlierRecordAreGoneAlsoBehindAShorterOne) {
  edit(lw::kEditAll, [&](Edit op) {
    const lw::PointId* ofTheFace = op.polyInfo(op.state, object->polygons()[0].id)->points;
    op.polyInfo(op.state, id("Head"));
    EXPECT_EQ(ofTheFace[2], nullptr);
  });
}

TEST_F(MeshEditTest, QueriesWithoutARecordTellTheSame) {
  host->showLayers({0, 1});
  edit(lw::kEditAll, [&](Edit op) {
    const lw::PointId* points = nullptr;
    EXPECT_EQ(op.polyPoints(op.state, id("Tail_02"), &points), 2);
    EXPECT_EQ(points[0], object->skelegon("Tail_01")->points[1]);
    EXPECT_EQ(op.polyType(op.state, id("Tail_02")), lw::kTypeBone);
  });
}

TEST_F(MeshEditTest, PointPositionsCountFromTheOriginNotFromThePivot) {
  edit(lw::kEditAll, [&](Edit op) {
    const lw::PointId tail = object->skelegon("Tail_01")->points[1];
    double position[3];
    op.pointPos(op.state, tail, position);
    EXPECT_EQ(position[2], 11.0);
  });
}

TEST_F(MeshEditTest, TagsAreReadAndAMissingOneIsNull) {
  edit(lw::kEditAll, [&](Edit op) {
    EXPECT_STREQ(op.polyTag(op.state, id("Hips"), lw::kTagBone), "Hips");
    EXPECT_STREQ(op.polyTag(op.state, id("Hips"), settingTag(13)), "2");
    EXPECT_EQ(op.polyTag(op.state, id("Chest"), settingTag(13)), nullptr);
  });
}

TEST_F(MeshEditTest, ATextIsLostAtTheNextCall) {
  edit(lw::kEditAll, [&](Edit op) {
    const char* text = op.polyTag(op.state, id("Hips"), lw::kTagBone);
    op.polyType(op.state, id("Hips"));
    EXPECT_STREQ(text, "~~~~");
  });
}

TEST_F(MeshEditTest, ATagArrivesWhenTheEditIsDone) {
  edit(lw::kEditAll, [&](Edit op) {
    EXPECT_EQ(op.polTag(op.state, id("Chest"), settingTag(31), "50.000000"), 0);
    EXPECT_EQ(op.polyTag(op.state, id("Chest"), settingTag(31)), nullptr);
  });
  EXPECT_EQ(object->skelegon("Chest")->tag(settingTag(31)), "50.000000");
}

TEST_F(MeshEditTest, AnOptionShowsTheEditItsOwnChanges) {
  host->options().editsShowOwnChanges = true;
  edit(lw::kEditAll, [&](Edit op) {
    op.polTag(op.state, id("Chest"), settingTag(31), "50.000000");
    EXPECT_STREQ(op.polyTag(op.state, id("Chest"), settingTag(31)), "50.000000");
    op.polTag(op.state, id("Chest"), settingTag(31), nullptr);
    EXPECT_EQ(op.polyTag(op.state, id("Chest"), settingTag(31)), nullptr);
  });
}

TEST_F(MeshEditTest, AnyOtherCodeThanZeroDropsTheChanges) {
  const auto change = [&](Edit op) { op.polTag(op.state, id("Chest"), settingTag(31), "50.000000"); };
  edit(lw::kEditAll, change, lw::kEditUserAbort);
  EXPECT_EQ(object->skelegon("Chest")->content.tag(settingTag(31)), nullptr);
  EXPECT_EQ(object->undoSteps(), 0U);
}

TEST_F(MeshEditTest, ANullTextRemovesATagAndAnEmptyOneKeepsItBlank) {
  edit(lw::kEditAll, [&](Edit op) {
    op.polTag(op.state, id("Hips"), settingTag(13), nullptr);
    op.polTag(op.state, id("Hips"), lw::kTagPart, "");
  });
  EXPECT_EQ(object->skelegon("Hips")->content.tag(settingTag(13)), nullptr);
  ASSERT_NE(object->skelegon("Hips")->content.tag(lw::kTagPart), nullptr);
  EXPECT_EQ(*object->skelegon("Hips")->content.tag(lw::kTagPart), "");
}

TEST_F(MeshEditTest, AnOptionMakesAnEmptyTextRemoveTheTag) {
  host->options().emptyTagRemoves = true;
  edit(lw::kEditAll, [&](Edit op) { op.polTag(op.state, id("Hips"), settingTag(13), ""); });
  EXPECT_EQ(object->skelegon("Hips")->content.tag(settingTag(13)), nullptr);
}

TEST_F(MeshEditTest, EachEditThatChangedSomethingIsOneStepBack) {
  edit(lw::kEditAll, [&](Edit op) {
    op.polTag(op.state, id("Hips"), settingTag(13), "5");
    op.polTag(op.state, id("Chest"), settingTag(13), "5");
  });
  edit(lw::kEditAll, [&](Edit op) { op.polTag(op.state, id("Hips"), settingTag(13), "7"); });
  EXPECT_EQ(object->undoSteps(), 2U);
  EXPECT_TRUE(host->undo());
  EXPECT_EQ(object->skelegon("Hips")->tag(settingTag(13)), "5");
  EXPECT_TRUE(host->undo());
  EXPECT_EQ(object->skelegon("Hips")->tag(settingTag(13)), "2");
  EXPECT_EQ(object->skelegon("Chest")->content.tag(settingTag(13)), nullptr);
  EXPECT_FALSE(host->undo());
  EXPECT_TRUE(host->redo());
  EXPECT_EQ(object->skelegon("Chest")->tag(settingTag(13)), "5");
}

TEST_F(MeshEditTest, ANewStepEndsWhatCouldBeRedone) {
  const auto set = [&](const char* text) {
    edit(lw::kEditAll, [&](Edit op) { op.polTag(op.state, id("Hips"), settingTag(13), text); });
  };
  set("5");
  host->undo();
  set("6");
  EXPECT_FALSE(host->redo());
  EXPECT_EQ(object->skelegon("Hips")->tag(settingTag(13)), "6");
}

TEST_F(MeshEditTest, AnEditThatChangesNothingIsNoStep) {
  edit(lw::kEditAll, [&](Edit op) {
    op.polTag(op.state, id("Hips"), settingTag(13), "2");
    op.polTag(op.state, id("Chest"), settingTag(13), nullptr);
  });
  EXPECT_EQ(object->undoSteps(), 0U);
}

TEST_F(MeshEditTest, TheLastOfSeveralTextsForOneTagCountsAndGoesBackAsOne) {
  edit(lw::kEditAll, [&](Edit op) {
    op.polTag(op.state, id("Hips"), settingTag(13), "5");
    op.polTag(op.state, id("Hips"), settingTag(13), "6");
  });
  EXPECT_EQ(object->skelegon("Hips")->tag(settingTag(13)), "6");
  host->undo();
  EXPECT_EQ(object->skelegon("Hips")->tag(settingTag(13)), "2");
}

TEST_F(MeshEditTest, ASelectingEditChangesTheSelectionWhenDone) {
  host->select({"Hips"});
  edit(lw::kEditSelecting | lw::kEditDirect, [&](Edit op) {
    EXPECT_EQ(op.polSelect(op.state, id("Hips"), 0), 0);
    EXPECT_EQ(op.polSelect(op.state, id("Head"), 1), 0);
    EXPECT_EQ(host->selectedNames(), Names{"Hips"});
  });
  EXPECT_EQ(host->selectedNames(), Names{"Head"});
  host->undo();
  EXPECT_EQ(host->selectedNames(), Names{"Hips"});
}

TEST_F(MeshEditTest, NothingOutsideTheForegroundCanBeSelected) {
  edit(lw::kEditSelecting | lw::kEditDirect, [&](Edit op) { EXPECT_EQ(op.polSelect(op.state, id("Tail_01"), 1), 0); });
  EXPECT_EQ(host->selectedNames(), Names{});
}

TEST_F(MeshEditTest, PolygonsDeletedInTheEditAreDeliveredWithTheirBit) {
  object->markDeleted(*object->skelegon("Chest"));
  edit(lw::kEditAll, [&](Edit op) {
    EXPECT_EQ(scannedNames(op, *object, lw::kLayersForeground).size(), 4U);
    EXPECT_EQ(op.polyInfo(op.state, id("Chest"))->flags, lw::kElementSelected | lw::kElementDeleted);
    EXPECT_STREQ(op.polyTag(op.state, id("Chest"), lw::kTagBone), "Chest");
  });
}

TEST_F(MeshEditTest, ThereIsNoEditWithoutAnObject) {
  host->closeAll();
  EXPECT_EQ(begin(lw::kEditAll), nullptr);
  host->options().editWithoutObject = true;
  edit(lw::kEditAll, [&](Edit op) {
    const auto never = [](void*, lw::PolygonId) { return 1; };
    EXPECT_EQ(op.fastPolyScan(op.state, never, nullptr, lw::kLayersAll, 0), 0);
  });
}

TEST_F(MeshEditTest, TheEditBelongsToTheCurrentObject) {
  ModelerObject& other = host->add(twoLayerRig(), "other.lwo");
  edit(lw::kEditAll, [&](Edit op) { EXPECT_EQ(scannedNames(op, other, lw::kLayersAll).size(), 6U); });
  host->makeCurrent(*object);
  edit(lw::kEditAll, [&](Edit op) { EXPECT_STREQ(op.polyTag(op.state, id("Hips"), lw::kTagBone), "Hips"); });
}

TEST_F(MeshEditTest, IdentifiersOutliveADeletionThatIsTakenBack) {
  const lw::PolygonId chest = id("Chest");
  host->deleteSkelegons({"Chest"});
  EXPECT_EQ(object->skelegon("Chest"), nullptr);
  host->undo();
  edit(lw::kEditAll, [&](Edit op) { EXPECT_STREQ(op.polyTag(op.state, chest, lw::kTagBone), "Chest"); });
}

TEST_F(MeshEditTest, TheSessionKeepsARecordOfItsEdits) {
  edit(lw::kEditAll, [&](Edit op) { op.polTag(op.state, id("Hips"), settingTag(13), "5"); });
  edit(
      lw::kEditDirect, [](Edit) {}, lw::kEditUserAbort);
  ASSERT_EQ(host->edits().size(), 2U);
  EXPECT_EQ(host->edits()[0].changes, 1U);
  EXPECT_TRUE(host->edits()[0].done);
  EXPECT_EQ(host->edits()[1].mode, lw::kEditDirect);
  EXPECT_EQ(host->edits()[1].error, lw::kEditUserAbort);
}

}  // namespace
}  // namespace standin
