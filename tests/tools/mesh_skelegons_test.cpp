// Skelegons listed, selected, named and tagged through the mesh layer.
#include <algorithm>

#include "tests/tools/memory_refusal.h"
#include "tests/tools/mesh_fixture.h"

namespace varnel::test {
namespace {

constexpr std::uint32_t kStrengthTag = skg::SlotTagId(skg::Slot::Strength);

// --- collecting ----------------------------------------------------------------------------------------------------------

using CollectSkelegons = MeshTest;

TEST_F(CollectSkelegons, GivesThoseOfAllLayersInScanOrder) {
  mesh.host.showLayers({1});
  EXPECT_EQ(mesh.namesOf(lw::CollectSkelegons()), (Names{"Hips", "Chest", "Head", "Tail", "(none)"}));
}

TEST_F(CollectSkelegons, ReadsInOneEditThatChangesNothing) {
  lw::CollectSkelegons();
  EXPECT_EQ(onlyEdit().mode, 0);
  EXPECT_EQ(onlyEdit().error, 0);
  EXPECT_EQ(onlyEdit().changes, 0U);
}

TEST_F(CollectSkelegons, LeavesOutDeletedOnes) {
  mesh.markDeleted("Chest");
  EXPECT_EQ(mesh.namesOf(lw::CollectSkelegons()), (Names{"Hips", "Head", "Tail", "(none)"}));
}

TEST_F(CollectSkelegons, WithoutAnObjectIsAFailureOfTheEdit) {
  mesh.host.closeAll();
  EXPECT_EQ(thrownBy([] { lw::CollectSkelegons(); }), "lw::mod::edit::begin( 0, 0, 0, 0 ) !");
}

TEST(CollectSkelegonsOfNone, IsEmpty) {
  standin::RigBuilder rig;
  rig.face({rig.point({0, 0, 0}), rig.point({1, 0, 0}), rig.point({0, 1, 0})}, "Skin");
  const Mesh mesh(rig.take());
  EXPECT_TRUE(lw::CollectSkelegons().empty());
  EXPECT_TRUE(lw::CollectSelectedSkelegons().empty());
}

using CollectSelectedSkelegons = MeshTest;

TEST_F(CollectSelectedSkelegons, GivesTheSelectedOnesInScanOrder) {
  mesh.host.select({"Tail", "Chest"});
  EXPECT_EQ(mesh.namesOf(lw::CollectSelectedSkelegons()), (Names{"Chest", "Tail"}));
  EXPECT_EQ(onlyEdit().mode, 2);
}

TEST_F(CollectSelectedSkelegons, LeavesOutDeletedOnesAndOtherPolygons) {
  mesh.host.selectPolygons(
      {&mesh.object->polygon(mesh.face()), mesh.object->skelegon("Hips"), mesh.object->skelegon("Chest")});
  mesh.markDeleted("Hips");
  EXPECT_EQ(mesh.namesOf(lw::CollectSelectedSkelegons()), Names{"Chest"});
}

TEST_F(CollectSelectedSkelegons, LeavesOutWhatIsNotInTheForeground) {
  mesh.host.options().layerSwitchDeselects = false;
  mesh.host.select({"Tail", "Chest"});
  mesh.host.showLayers({0});
  EXPECT_EQ(mesh.namesOf(lw::CollectSelectedSkelegons()), Names{"Chest"});
}

TEST_F(CollectSelectedSkelegons, WithNothingSelectedIsEmpty) { EXPECT_TRUE(lw::CollectSelectedSkelegons().empty()); }

// --- what a failing host call does ---------------------------------------------------------------------------------------

TEST(MeshFailures, AFailedScanEndsTheEditWithItsCode) {
  const Refused refused = refuseFirst("MeshEditOp::fastPolyScan", [](Mesh&) { lw::CollectSkelegons(); });
  EXPECT_EQ(refused.thrown, "fastPolyScan() !");
  EXPECT_EQ(refused.mesh->host.edits().back().error, lw::kEditNoMemory);
}

TEST(MeshFailures, AMissingRecordEndsTheEditAsABadArgument) {
  const Refused refused = refuseFirst("MeshEditOp::polyInfo", [](Mesh&) { lw::CollectSkelegons(); });
  EXPECT_EQ(refused.thrown, "polyInfo() !");
  EXPECT_EQ(refused.mesh->host.edits().back().error, lw::kEditBadArguments);
}

// Whatever the code is that the host refuses with.
TEST(MeshFailures, ARefusedCallEndsTheEditWithTheHostsCode) {
  const MeshAction tag = [](Mesh& mesh) {
    lw::CMeshEdit edit(lw::kEditForTags);
    edit.setTag(mesh.id("Hips"), kStrengthTag, "1");
  };
  const std::pair<const char*, MeshAction> calls[] = {
      {"MeshEditOp::fastPolyScan", [](Mesh&) { lw::CollectSkelegons(); }},
      {"MeshEditOp::polTag", tag},
      {"MeshEditOp::polSelect", [](Mesh& mesh) { lw::SelectSkelegons(mesh.ids({"Hips"})); }},
  };
  for (const int code : {static_cast<int>(lw::kEditBadLayer), static_cast<int>(lw::kEditBadSurface)}) {
    for (const auto& [function, action] : calls) {
      const Refused refused = refuseFirst(function, action, [code](Mesh& mesh) { mesh.host.options().refusalCode = code; });
      EXPECT_EQ(refused.mesh->host.edits().back().error, code) << function;
    }
  }
}

TEST(MeshFailures, AFailedTagIsThrownAndTheWholeEditDropped) {
  const Refused refused = refuseFirst("MeshEditOp::polTag", [](Mesh& mesh) {
    lw::CMeshEdit edit(lw::kEditForTags);
    edit.setTag(mesh.id("Hips"), kStrengthTag, "1");
  });
  EXPECT_EQ(refused.thrown, "polTag() !");
  EXPECT_EQ(refused.mesh->host.edits().back().error, lw::kEditNoMemory);
}

TEST(MeshFailures, AFailedSelectionIsThrownAndNothingIsSelected) {
  const Refused refused = refuseFirst("MeshEditOp::polSelect", [](Mesh& mesh) { lw::SelectSkelegons(mesh.ids({"Hips"})); });
  EXPECT_EQ(refused.thrown, "polSelect() !");
  EXPECT_EQ(refused.mesh->host.selectedNames(), Names{});
}

TEST(MeshFailures, ARefusedEditNamesItsMode) {
  const Refused refused = refuseFirst("LWModCommand::editBegin2", [](Mesh&) { lw::SelectSkelegons({}); });
  EXPECT_EQ(refused.thrown, "lw::mod::edit::begin( 0, 0, 0, 32770 ) !");
}

TEST(MeshFailures, WhateverFailsNoEditStaysOpen) {
  const auto everything = [](Mesh& mesh) {
    const lw::PolygonIds all = lw::CollectSkelegons();
    lw::SelectSkelegons(mesh.ids({"Chest", "Tail"}));
    lw::CollectSelectedSkelegons();
    lw::SkelegonNames(all);
    lw::ReadPolygonTags(all, lw::TagTypes(all.size(), lw::kTagBone));
    lw::ScanSkelegons(lw::kLayersForeground, {"test", 1});
    lw::CMeshEdit edit(lw::kEditForTags);
    lw::WritePolygonTags(edit, all, lw::TagTypes(all.size(), lw::kTagPart), lw::TagTexts(all.size(), "x"));
    edit.done();
    lw::LayerNames();
    lw::WeightMapNames();
  };
  const std::size_t calls = refuseEach(everything);
  EXPECT_GT(calls, 50U);
}

// A scan makes room for what the one before it has found and some more.
void scanFew() {
  const Mesh few;
  lw::CollectSkelegons();
}

// More polygons than there is room for after that, so that the list grows within the host's callback.
standin::ObjectFile manyFaces() {
  standin::RigBuilder rig;
  const std::uint32_t a = rig.point({0, 0, 0});
  const std::uint32_t b = rig.point({1, 0, 0});
  const std::uint32_t c = rig.point({0, 1, 0});
  for (int i = 0; i < 3000; ++i) rig.face({a, b, c}, "Skin");
  return rig.take();
}

TEST(MeshFailures, MemoryThatRunsOutWithinTheScanIsRaisedAfterIt) {
  scanFew();
  const Mesh mesh(manyFaces());
  const CallbackAllocationFails fails;
  EXPECT_EQ(thrownBy([] { lw::CollectSkelegons(); }), "bad_alloc");
  ASSERT_EQ(mesh.host.edits().size(), 1U);
  EXPECT_EQ(mesh.host.edits().front().error, lw::kEditNoMemory);
  expectCleanEnd(mesh);
}

// A list that grows is copied each time, which takes longer than all else beside a large mesh.
TEST(MeshScans, FindRoomForWhatTheScanBeforeHasFound) {
  const Mesh mesh(manyFaces());
  lw::CollectSkelegons();
  const CallbackAllocationFails fails;
  EXPECT_EQ(thrownBy([] { lw::CollectSkelegons(); }), "");
}

TEST(MeshFailures, AnExceptionOfAnyKindEndsTheEditAndDropsItsChanges) {
  Mesh mesh;
  const std::string thrown = thrownBy([&] {
    lw::CMeshEdit edit(lw::kEditForTags);
    edit.setTag(mesh.id("Hips"), kStrengthTag, "1");
    throw std::bad_alloc();
  });
  EXPECT_EQ(thrown, "bad_alloc");
  EXPECT_EQ(mesh.storedTag("Hips", kStrengthTag), std::nullopt);
  EXPECT_EQ(mesh.host.edits().back().error, lw::kEditUserAbort);
  expectCleanEnd(mesh);
}

// --- selecting -----------------------------------------------------------------------------------------------------------

using SelectSkelegons = MeshTest;

TEST_F(SelectSkelegons, MakesExactlyTheseTheSelectedOnes) {
  mesh.host.select({"Hips", "Tail"});
  lw::SelectSkelegons(mesh.ids({"Head", "Tail"}));
  EXPECT_EQ(mesh.host.selectedNames(), (Names{"Head", "Tail"}));
  EXPECT_EQ(onlyEdit().mode, 0x8002);
}

TEST_F(SelectSkelegons, AnEmptyListClearsSkelegonsAndLeavesOtherPolygonsSelected) {
  mesh.host.selectPolygons({&mesh.object->polygon(mesh.face()), mesh.object->skelegon("Hips")});
  lw::SelectSkelegons({});
  EXPECT_EQ(mesh.host.selectedNames(), Names{});
  EXPECT_TRUE(mesh.object->polygon(mesh.face()).selected);
}

TEST_F(SelectSkelegons, NeverSelectsAPolygonThatIsNoSkelegon) {
  lw::SelectSkelegons({mesh.face()});
  EXPECT_FALSE(mesh.object->polygon(mesh.face()).selected);
}

TEST_F(SelectSkelegons, PassesOverWhatIsFlaggedAsDeleted) {
  mesh.markDeleted("Chest");
  lw::SelectSkelegons(mesh.ids({"Hips", "Chest"}));
  EXPECT_EQ(mesh.host.selectedNames(), Names{"Hips"});
}

TEST_F(SelectSkelegons, PassesOverWhatTheUserDeletedMeanwhile) {
  const lw::PolygonIds remembered = mesh.ids({"Hips", "Chest"});
  mesh.host.deleteSkelegons({"Chest"});
  lw::SelectSkelegons(remembered);
  EXPECT_EQ(mesh.host.selectedNames(), Names{"Hips"});
}

TEST_F(SelectSkelegons, PassesOverSkelegonsOfAClosedObject) {
  const lw::PolygonIds remembered = mesh.ids({"Hips"});
  mesh.host.close(*mesh.object);
  mesh.object = &mesh.host.add(smallRig(), "other.lwo");
  lw::SelectSkelegons(remembered);
  EXPECT_EQ(mesh.host.selectedNames(), Names{});
}

TEST_F(SelectSkelegons, LeavesLayersOutsideTheForegroundAlone) {
  mesh.host.options().layerSwitchDeselects = false;
  mesh.host.select({"Tail"});
  mesh.host.showLayers({0});
  lw::SelectSkelegons(mesh.ids({"Hips"}));
  EXPECT_EQ(mesh.host.selectedNames(), (Names{"Hips", "Tail"}));
}

// --- names and tags ------------------------------------------------------------------------------------------------------

using SkelegonNames = MeshTest;

TEST_F(SkelegonNames, AreBoneWithoutATagAndEmptyWithAnEmptyOne) {
  mesh.setTag("Tail", lw::kTagBone, "");
  const lw::PolygonIds all = lw::CollectSkelegons();
  EXPECT_EQ(lw::SkelegonNames(all), (Names{"Hips", "Chest", "Head", "", "Bone"}));
}

TEST_F(SkelegonNames, AreEmptyForWhatIsNoSkelegon) {
  EXPECT_EQ(lw::SkelegonNames({mesh.face(), mesh.id("Hips")}), (Names{"", "Hips"}));
}

// Deliberate, unlike everywhere else.
TEST_F(SkelegonNames, AreGivenForDeletedSkelegonsToo) {
  mesh.markDeleted("Chest");
  EXPECT_EQ(lw::SkelegonNames(mesh.ids({"Chest"})), Names{"Chest"});
}

using ReadPolygonTags = MeshTest;

TEST_F(ReadPolygonTags, PairsPolygonsWithTypesAndLeavesMissingOnesEmpty) {
  mesh.setTag("Hips", kStrengthTag, "50.000000");
  const lw::TagTexts texts = lw::ReadPolygonTags({mesh.id("Hips"), mesh.id("Hips"), mesh.id("Chest"), mesh.id("Chest")},
                                                 {lw::kTagBone, kStrengthTag, kStrengthTag, lw::kTagBone});
  EXPECT_EQ(texts, (Names{"Hips", "50.000000", "", "Chest"}));
  EXPECT_EQ(onlyEdit().mode, 0);
}

TEST_F(ReadPolygonTags, ReadsPolygonsOfAnyType) {
  EXPECT_EQ(lw::ReadPolygonTags({mesh.face()}, {lw::fourCharacters('S', 'U', 'R', 'F')}), Names{"Skin"});
}

TEST_F(ReadPolygonTags, PassesOverDeletedPolygons) {
  mesh.markDeleted("Hips");
  EXPECT_EQ(lw::ReadPolygonTags(mesh.ids({"Hips", "Chest"}), {lw::kTagBone, lw::kTagBone}), (Names{"", "Chest"}));
}

class WritePolygonTags : public MeshTest {
 protected:
  void write(const lw::PolygonIds& polygons, const lw::TagTypes& types, const lw::TagTexts& texts) {
    lw::CMeshEdit edit = lw::EditBegin(lw::kEditForTags);
    lw::WritePolygonTags(edit, polygons, types, texts);
    edit.done();
  }
  using Text = std::optional<std::string>;
};

TEST_F(WritePolygonTags, SetsTheTextsInOneStep) {
  const std::size_t steps = mesh.object->undoSteps();
  write(mesh.ids({"Hips", "Chest"}), {kStrengthTag, lw::kTagBone}, {"50.000000", "Spine"});
  EXPECT_EQ(mesh.object->undoSteps(), steps + 1);
  EXPECT_EQ(mesh.storedTag("Hips", kStrengthTag), "50.000000");
  EXPECT_NE(mesh.object->skelegon("Spine"), nullptr);
}

TEST_F(WritePolygonTags, AnEmptyTextLeavesTheHostsOwnTagsBlank) {
  for (const std::uint32_t type : {lw::kTagPart, lw::kTagBoneWeight, lw::kTagColour, lw::kTagBone}) {
    const lw::PolygonId hips = mesh.ids({"Head"}).front();
    write({hips}, {type}, {""});
    EXPECT_EQ(mesh.storedTag(hips, type), Text("")) << type;
    write({hips}, {lw::kTagBone}, {"Head"});
  }
}

TEST_F(WritePolygonTags, AnEmptyTextRemovesAnyOtherTag) {
  mesh.setTag("Hips", kStrengthTag, "50.000000");
  write(mesh.ids({"Hips"}), {kStrengthTag}, {""});
  EXPECT_EQ(mesh.storedTag("Hips", kStrengthTag), std::nullopt);
}

TEST_F(WritePolygonTags, PassesOverDeletedPolygons) {
  mesh.markDeleted("Hips");
  write(mesh.ids({"Hips", "Chest"}), {kStrengthTag, kStrengthTag}, {"1", "2"});
  EXPECT_EQ(mesh.storedTag("Hips", kStrengthTag), std::nullopt);
  EXPECT_EQ(mesh.storedTag("Chest", kStrengthTag), "2");
}

// --- the panels' scan ----------------------------------------------------------------------------------------------------

constexpr lw::ReportSource kPanelSource = {"MST_CSkgPropPanel", 1121};

Names namesIn(const std::vector<skg::SkelegonInfo>& skelegons) {
  Names names;
  for (const skg::SkelegonInfo& skelegon : skelegons) names.push_back(skelegon.name);
  return names;
}

using ScanSkelegons = MeshTest;

TEST_F(ScanSkelegons, GivesNameLayerPointsAndSelection) {
  mesh.host.select({"Chest"});
  const std::vector<skg::SkelegonInfo> skelegons = lw::ScanSkelegons(lw::kLayersForeground, kPanelSource);
  ASSERT_EQ(namesIn(skelegons), (Names{"Hips", "Chest", "Head", "Tail", ""}));
  EXPECT_EQ(skelegons[1].polygon, mesh.id("Chest"));
  EXPECT_EQ(skelegons[1].layer, 0);
  EXPECT_EQ(skelegons[3].layer, 1);
  EXPECT_EQ(skelegons[1].head, skelegons[0].tail);
  EXPECT_EQ(skelegons[1].tail, skelegons[2].head);
  EXPECT_TRUE(skelegons[1].isSelected);
  EXPECT_FALSE(skelegons[0].isSelected);
}

TEST_F(ScanSkelegons, GivesOnlyTheLayersAskedFor) {
  mesh.host.showLayers({1});
  EXPECT_EQ(namesIn(lw::ScanSkelegons(lw::kLayersForeground, kPanelSource)), (Names{"Tail", ""}));
}

TEST_F(ScanSkelegons, TellsAMissingTagFromAnEmptyOne) {
  mesh.setTag("Hips", lw::kTagColour, "");
  mesh.setTag("Hips", skg::kColourCopyTag, "Blue");
  const std::uint32_t types[] = {lw::kTagColour, skg::kColourCopyTag};
  const std::vector<skg::SkelegonInfo> skelegons = lw::ScanSkelegons(lw::kLayersForeground, kPanelSource, types);
  EXPECT_EQ(skelegons[0].tags, (std::vector<std::optional<std::string>>{"", "Blue"}));
  EXPECT_EQ(skelegons[1].tags, (std::vector<std::optional<std::string>>{std::nullopt, std::nullopt}));
}

TEST_F(ScanSkelegons, LeavesOutDeletedOnes) {
  mesh.markDeleted("Chest");
  EXPECT_EQ(namesIn(lw::ScanSkelegons(lw::kLayersForeground, kPanelSource)), (Names{"Hips", "Head", "Tail", ""}));
}

TEST(ScanSkelegonsWithoutRecord, EndsThereKeepsWhatWasFoundAndThrowsNothing) {
  std::vector<Names> found;  // one entry for each record that failed
  refuseEach([&](Mesh&) {
    const Names names = namesIn(lw::ScanSkelegons(lw::kLayersForeground, kPanelSource));
    if (standin::witness().refusedFunction() == "MeshEditOp::polyInfo") found.push_back(names);
  });
  EXPECT_EQ(found, (std::vector<Names>{
                       {}, {"Hips"}, {"Hips", "Chest"}, {"Hips", "Chest", "Head"}, {"Hips", "Chest", "Head", "Tail"}}));
}

}  // namespace
}  // namespace varnel::test
