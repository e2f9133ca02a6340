// The renamer's edits, which stay open between its calls and fail without a word.
#include "tests/tools/memory_refusal.h"
#include "tests/tools/mesh_fixture.h"

namespace varnel::test {
namespace {

using EditRecord = MeshTest;

TEST_F(EditRecord, BeginsAnEditInTheModeWanted) {
  lw::CEditRecord record;
  record.error = 7;
  EXPECT_EQ(lw::BeginEditInRecord(record, lw::kEditSeesSelection), record.edit);
  EXPECT_NE(record.edit, nullptr);
  EXPECT_EQ(record.error, 0);
  EXPECT_EQ(onlyEdit().mode, 2);
}

TEST_F(EditRecord, WithoutAnObjectHoldsNullAndNobodyIsTold) {
  mesh.host.closeAll();
  lw::CEditRecord record;
  EXPECT_EQ(lw::BeginEditInRecord(record, lw::kEditForTags), nullptr);
  EXPECT_EQ(record.edit, nullptr);
  EXPECT_TRUE(mesh.host.messages().empty());
}

TEST_F(EditRecord, SelectedOnesComeFromTheForegroundAndTheEditIsEnded) {
  mesh.host.select({"Head", "Hips"});
  lw::CEditRecord record;
  lw::BeginEditInRecord(record, lw::kEditSeesSelection);
  EXPECT_EQ(mesh.namesOf(lw::CollectSelectedInEdit(record)), (Names{"Hips", "Head"}));
  EXPECT_EQ(record.edit, nullptr);
  EXPECT_TRUE(onlyEdit().done);
  EXPECT_EQ(onlyEdit().error, 0);
}

TEST_F(EditRecord, SelectedOnesOutsideTheForegroundAreNone) {
  mesh.host.options().layerSwitchDeselects = false;
  mesh.host.select({"Tail", "Hips"});
  mesh.host.showLayers({0});
  lw::CEditRecord record;
  lw::BeginEditInRecord(record, lw::kEditSeesSelection);
  EXPECT_EQ(mesh.namesOf(lw::CollectSelectedInEdit(record)), Names{"Hips"});
}

TEST_F(EditRecord, AllOfThemLeaveTheEditOpenForWriting) {
  mesh.host.showLayers({1});
  mesh.markDeleted("Chest");
  lw::CEditRecord record;
  lw::BeginEditInRecord(record, lw::kEditForTags);
  EXPECT_EQ(mesh.namesOf(lw::CollectAllInEdit(record)), (Names{"Hips", "Head", "Tail", "(none)"}));
  ASSERT_NE(record.edit, nullptr);
  EXPECT_EQ(lw::setPolygonTag(*record.edit, mesh.id("Tail"), lw::kTagBone, "Fin"), 0);
  lw::EndEditInRecord(record);
  EXPECT_NE(mesh.object->skelegon("Fin"), nullptr);
}

TEST_F(EditRecord, LeftOpenIsEndedWithACodeAndDropsItsChanges) {
  {
    lw::CEditRecord record;
    lw::BeginEditInRecord(record, lw::kEditForTags);
    lw::setPolygonTag(*record.edit, mesh.id("Tail"), lw::kTagBone, "Fin");
  }
  EXPECT_EQ(onlyEdit().error, lw::kEditUserAbort);
  EXPECT_EQ(mesh.object->skelegon("Fin"), nullptr);
}

TEST_F(EditRecord, LeftOpenWithACodeIsEndedWithThatCode) {
  {
    lw::CEditRecord record;
    lw::BeginEditInRecord(record, lw::kEditForTags);
    record.error = lw::kEditNoMemory;
  }
  EXPECT_EQ(onlyEdit().error, lw::kEditNoMemory);
}

TEST_F(EditRecord, WithoutTheHostsFunctionThereIsNoEdit) {
  lw::modelerFunctions().editBegin = nullptr;
  lw::CEditRecord record;
  EXPECT_EQ(lw::BeginEditInRecord(record, lw::kEditForTags), nullptr);
  EXPECT_TRUE(mesh.host.edits().empty());
}

// Filled without Modeler's data, the functions hold a command interface, and the user is told by it.
TEST_F(EditRecord, AnEditThatDoesNotBeginIsToldWhereThereIsACommandInterface) {
  static Names told;
  told.clear();
  lw::modelerFunctions() = {};
  lw::modelerFunctions().commandInterface = [](const char* command) {
    told.emplace_back(command);
    return 1;
  };
  lw::CEditRecord record;
  EXPECT_EQ(lw::BeginEditInRecord(record, lw::kEditForTags), nullptr);
  EXPECT_EQ(told, Names{"StatusMsg {1.0} Error in editBegin()!"});
}

TEST(EditRecordFailures, AFailedScanEndsTheEditWithItsCodeAndNobodyIsTold) {
  const Refused refused = refuseFirst("MeshEditOp::fastPolyScan", [](Mesh& mesh) {
    mesh.host.select({"Hips"});
    lw::CEditRecord record;
    if (lw::BeginEditInRecord(record, lw::kEditSeesSelection) == nullptr) return;
    lw::CollectSelectedInEdit(record);
  });
  EXPECT_EQ(refused.thrown, "");
  EXPECT_EQ(refused.mesh->host.edits().back().error, lw::kEditNoMemory);
}

TEST(EditRecordFailures, AFailedScanEndsTheEditWithWhateverCodeTheHostHas) {
  const Refused refused = refuseFirst(
      "MeshEditOp::fastPolyScan",
      [](Mesh&) {
        lw::CEditRecord record;
        if (lw::BeginEditInRecord(record, lw::kEditSeesSelection) == nullptr) return;
        lw::CollectSelectedInEdit(record);
      },
      [](Mesh& mesh) { mesh.host.options().refusalCode = lw::kEditBadSurface; });
  EXPECT_EQ(refused.mesh->host.edits().back().error, lw::kEditBadSurface);
}

TEST(EditRecordFailures, AMissingRecordIsPassedOver) {
  Names found;
  int error = -1;
  const Refused refused = refuseFirst("MeshEditOp::polyInfo", [&](Mesh& mesh) {
    lw::CEditRecord record;
    if (lw::BeginEditInRecord(record, lw::kEditForTags) == nullptr) return;
    found = mesh.namesOf(lw::CollectAllInEdit(record));
    error = record.error;
    lw::EndEditInRecord(record);
  });
  EXPECT_EQ(refused.thrown, "");
  EXPECT_EQ(error, 0);
  EXPECT_EQ(found, (Names{"Chest", "Head", "Tail", "(none)"}));
}

TEST(EditRecordFailures, MemoryThatRunsOutWithinTheScanIsACode) {
  {
    const Mesh few;  // a scan makes room for what the one before it has found and some more
    lw::CollectSkelegons();
  }
  standin::RigBuilder rig;
  for (int i = 0; i < 3000; ++i) rig.root("Bone", {0, 0, 0}, {0, 1, 0});
  const Mesh mesh(rig.take());
  lw::CEditRecord record;
  lw::BeginEditInRecord(record, lw::kEditForTags);
  {
    const CallbackAllocationFails fails;
    lw::CollectAllInEdit(record);
  }
  EXPECT_EQ(record.error, lw::kEditNoMemory);
  lw::EndEditInRecord(record);
  expectCleanEnd(mesh);
}

}  // namespace
}  // namespace varnel::test
