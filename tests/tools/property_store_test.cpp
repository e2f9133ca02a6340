// Bone settings read from and written to the mesh, and the skelegon tree built from it.
#include "modeler/property/property_store.h"
#include "skelegon/slot_table.h"

#include "modeler/shared/skelegon_scan.h"
#include "standin/core/comma_locale.h"
#include "tests/tools/mesh_fixture.h"

namespace varnel::test {
namespace {

using skg::Slot;

std::uint32_t copyTag(Slot slot) { return skg::plainSlotTagId(indexOf(slot)); }

class PropertyStore : public MeshTest {
 protected:
  // The panel's view with these skelegons selected.
  std::vector<skg::SkelegonInfo> scanned(const Names& selected) {
    mesh.host.select(selected);
    return mst::ScanPanelSkelegons();
  }
  skg::SkelegonProperties read(std::string_view name) const { return mst::ReadSkelegonProperties(mesh.id(name)); }
  using Text = std::optional<std::string>;
};

// --- reading -------------------------------------------------------------------------------------------------------------

TEST_F(PropertyStore, ASkelegonWithoutTagsHasEveryDefault) {
  const skg::SkelegonProperties properties = mst::ReadSkelegonProperties(mesh.unnamed());
  for (const skg::SlotRow& row : skg::kSlotTable) EXPECT_EQ(properties[row.slot], row.defaultText) << row.setting;
}

TEST_F(PropertyStore, NoSkelegonHasEveryDefaultAndAsksTheHostNothing) {
  const std::uint64_t calls = standin::witness().calls();
  EXPECT_EQ(mst::ReadSkelegonProperties(nullptr)[Slot::Strength], "100.000000");
  EXPECT_EQ(standin::witness().calls(), calls);
}

TEST_F(PropertyStore, StoredTextsAreReadAsTheyStandInOneEdit) {
  mesh.setTag("Hips", copyTag(Slot::Strength), "no number");
  mesh.setTag("Hips", lw::kTagBoneWeight, "Map");
  const skg::SkelegonProperties properties = read("Hips");
  EXPECT_EQ(properties[Slot::Name], "Hips");
  EXPECT_EQ(properties[Slot::Strength], "no number");
  EXPECT_EQ(properties[Slot::WeightMap], "Map");
  EXPECT_EQ(onlyEdit().mode, 0);
}

TEST_F(PropertyStore, AnEmptyTagReadsAsTheDefault) {
  mesh.setTag("Hips", copyTag(Slot::Strength), "");
  EXPECT_EQ(read("Hips")[Slot::Strength], "100.000000");
}

TEST_F(PropertyStore, AColourOnlyInTheCopyIsRead) {
  mesh.setTag("Hips", lw::kTagColour, "");
  mesh.setTag("Hips", skg::kColourCopyTag, "Blue");
  mesh.setTag("Chest", skg::kColourCopyTag, "Green");
  EXPECT_EQ(read("Hips")[Slot::Colour], "Blue");
  EXPECT_EQ(read("Chest")[Slot::Colour], "Green");
}

TEST_F(PropertyStore, TheHostsColourComesBeforeTheCopy) {
  mesh.setTag("Hips", lw::kTagColour, "Red");
  mesh.setTag("Hips", skg::kColourCopyTag, "Blue");
  EXPECT_EQ(read("Hips")[Slot::Colour], "Red");
}

// --- the panel's scan ----------------------------------------------------------------------------------------------------

TEST_F(PropertyStore, ThePanelsScanKnowsTheForeground) {
  mesh.host.showLayers({1});
  const std::vector<skg::SkelegonInfo> skelegons = scanned({"Tail"});
  ASSERT_EQ(skelegons.size(), 2U);
  EXPECT_EQ(skelegons[0].name, "Tail");
  EXPECT_EQ(skelegons[0].layer, 1);
  EXPECT_EQ(mst::selectedPolygons(skelegons), mesh.ids({"Tail"}));
}

// --- writing -------------------------------------------------------------------------------------------------------------

TEST_F(PropertyStore, AValueGoesToTheSelectedSkelegonsInOneStep) {
  const auto skelegons = scanned({"Hips", "Tail"});
  const std::size_t steps = mesh.object->undoSteps();
  const std::size_t edits = mesh.host.edits().size();
  mst::WriteSlotValue(skelegons, Slot::Strength, "50.000000");
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::Strength)), "50.000000");
  EXPECT_EQ(mesh.storedTag("Tail", copyTag(Slot::Strength)), "50.000000");
  EXPECT_EQ(mesh.storedTag("Chest", copyTag(Slot::Strength)), std::nullopt);
  EXPECT_EQ(mesh.object->undoSteps(), steps + 1);
  EXPECT_EQ(mesh.host.edits().size(), edits + 1);
}

TEST_F(PropertyStore, SettingStrengthBackTo100RemovesItsTag) {
  const auto skelegons = scanned({"Hips"});
  mst::WriteSlotValue(skelegons, Slot::Strength, mst::formatReal(50));
  mst::WriteSlotValue(skelegons, Slot::Strength, mst::formatReal(100));
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::Strength)), std::nullopt);
}

TEST_F(PropertyStore, ARealIsStoredWithAPointInACommaLocale) {
  const standin::CommaLocale locale;
  mst::WriteSlotValue(scanned({"Hips"}), Slot::Strength, mst::formatReal(62.5));
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::Strength)), "62.500000");
}

TEST_F(PropertyStore, SettingJointCompensationTo100StoresIt) {
  mst::WriteSlotValue(scanned({"Hips"}), Slot::JointCompAmount, mst::formatReal(100));
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::JointCompAmount)), "100.000000");
}

TEST_F(PropertyStore, FalloffTypeChangesTheWholeLayerAndNoOther) {
  mst::WriteSlotValue(scanned({"Chest"}), Slot::FalloffType, "2");
  for (const char* name : {"Hips", "Chest", "Head"})
    EXPECT_EQ(mesh.storedTag(name, copyTag(Slot::FalloffType)), "2") << name;
  EXPECT_EQ(mesh.storedTag("Tail", copyTag(Slot::FalloffType)), std::nullopt);
}

TEST_F(PropertyStore, WithNothingSelectedNoEditIsBegun) {
  const auto skelegons = scanned({});
  const std::size_t edits = mesh.host.edits().size();
  mst::WriteSlotValue(skelegons, Slot::Strength, "50.000000");
  EXPECT_EQ(mesh.host.edits().size(), edits);
}

TEST_F(PropertyStore, DarkCyanLeavesTheHostsColourEmpty) {
  mst::applyWrites(mst::writesForColour(scanned({"Hips"}), 3));
  EXPECT_EQ(mesh.storedTag("Hips", lw::kTagColour), Text(""));
  EXPECT_EQ(mesh.storedTag("Hips", skg::kColourCopyTag), "DkCyn");
  EXPECT_EQ(read("Hips")[Slot::Colour], "DkCyn");
}

TEST_F(PropertyStore, ModelerSettingIsStoredInBothColours) {
  mst::applyWrites(mst::writesForColour(scanned({"Hips"}), 15));
  EXPECT_EQ(mesh.storedTag("Hips", lw::kTagColour), "Modeler");
  EXPECT_EQ(mesh.storedTag("Hips", skg::kColourCopyTag), "Modeler");
}

TEST_F(PropertyStore, AnEmptyNameLeavesNameAndPartBlank) {
  const lw::PolygonId hips = mesh.id("Hips");
  mst::applyWrites(mst::writesForName(scanned({"Hips"}), ""));
  EXPECT_EQ(mesh.storedTag(hips, lw::kTagBone), Text(""));
  EXPECT_EQ(mesh.storedTag(hips, lw::kTagPart), Text(""));
}

TEST_F(PropertyStore, WeightMapByNameTakesTheMapOrSwitchesTheBoneOff) {
  mst::applyWrites(mst::writesForWeightMapsByName(scanned({"Head", "Hips"}), lw::WeightMapNames()));
  EXPECT_EQ(mesh.storedTag("Head", lw::kTagBoneWeight), "Head");
  EXPECT_EQ(mesh.storedTag("Head", copyTag(Slot::BoneActive)), "1");
  EXPECT_EQ(mesh.storedTag("Hips", lw::kTagBoneWeight), Text(""));
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::BoneActive)), "0");
}

TEST_F(PropertyStore, LinkedNamesAreEachSkelegonsOwn) {
  mst::applyWrites(mst::writesForLinkedNames(scanned({"Hips", "Tail"}), Slot::GoalObject));
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::GoalObject)), "Hips_goal");
  EXPECT_EQ(mesh.storedTag("Tail", copyTag(Slot::GoalObject)), "Tail_goal");
}

TEST_F(PropertyStore, ResetKeepsNameWeightMapPartAndColour) {
  const std::vector<std::uint32_t> kept = {lw::kTagBone, lw::kTagPart, lw::kTagBoneWeight, lw::kTagColour};
  for (const std::uint32_t type : kept) {
    if (type != lw::kTagBone) mesh.setTag("Hips", type, "kept");
  }
  for (std::size_t slot = 0; slot < skg::kSlotCount; ++slot) mesh.setTag("Hips", skg::plainSlotTagId(slot), "gone");
  mst::applyWrites(mst::writesForReset({mesh.id("Hips")}));
  for (const std::uint32_t type : kept) EXPECT_TRUE(mesh.storedTag("Hips", type).has_value()) << type;
  for (std::size_t slot = 0; slot < skg::kSlotCount; ++slot) {
    EXPECT_EQ(mesh.storedTag("Hips", skg::plainSlotTagId(slot)), std::nullopt) << slot;
  }
}

TEST_F(PropertyStore, ResetLeavesOtherSkelegonsAlone) {
  mesh.setTag("Chest", copyTag(Slot::Strength), "50.000000");
  mst::applyWrites(mst::writesForReset({mesh.id("Hips")}));
  EXPECT_EQ(mesh.storedTag("Chest", copyTag(Slot::Strength)), "50.000000");
}

TEST_F(PropertyStore, SkelegonsDeletedSinceTheScanAreLeftOut) {
  const auto skelegons = scanned({"Hips", "Chest"});
  mesh.host.deleteSkelegons({"Chest"});
  mst::WriteSlotValue(skelegons, Slot::Strength, "50.000000");
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::Strength)), "50.000000");
}

TEST_F(PropertyStore, SkelegonsOfAClosedObjectAreLeftOut) {
  const auto skelegons = scanned({"Hips"});
  mesh.host.close(*mesh.object);
  mesh.object = &mesh.host.add(smallRig(), "other.lwo");
  mst::WriteSlotValue(skelegons, Slot::Strength, "50.000000");
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::Strength)), std::nullopt);
}

// Hosts whose identifiers are addresses give that of a deleted skelegon to what is made next.
class PropertyStoreOfUsedIdentifiers : public PropertyStore {
 protected:
  PropertyStoreOfUsedIdentifiers() { standin::modelerSession()->handles.useAgain(); }

  const standin::MeshPolygon& faceInPlaceOf(const std::string& name) {
    const lw::PolygonId gone = mesh.id(name);
    mesh.host.deleteSkelegons({name});
    const auto& points = mesh.object->points();
    const standin::MeshPolygon& face = mesh.object->addFace(0, {points[0].id, points[1].id, points[2].id});
    EXPECT_EQ(face.id, gone);
    return face;
  }
};

TEST_F(PropertyStoreOfUsedIdentifiers, AFaceInTheSkelegonsPlaceGetsNoTags) {
  const auto skelegons = scanned({"Hips", "Chest"});
  const standin::MeshPolygon& face = faceInPlaceOf("Chest");
  mst::WriteSlotValue(skelegons, Slot::Strength, "50.000000");
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::Strength)), "50.000000");
  EXPECT_EQ(face.tag(copyTag(Slot::Strength)), "");
}

// --- looking for the skelegons that are written to, beside all the others -----------------------------------------------------

TEST_F(PropertyStore, AWriteLooksThroughTheForegroundOnly) {
  mst::WriteSlotValue(scanned({"Hips", "Tail"}), Slot::Strength, "50.000000");
  EXPECT_EQ(mesh.host.edits().back().scans, std::vector<int>({lw::kLayersForeground}));
}

TEST_F(PropertyStore, AWriteLooksThroughAllLayersWhereOneIsHiddenByNow) {
  const auto skelegons = scanned({"Hips", "Tail"});
  mesh.host.showLayers({1});
  mst::WriteSlotValue(skelegons, Slot::Strength, "50.000000");
  EXPECT_EQ(mesh.host.edits().back().scans, std::vector<int>({lw::kLayersForeground, lw::kLayersAll}));
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::Strength)), "50.000000");
}

// A million faces beside the skelegons must cost nothing but the scan itself.
TEST_F(PropertyStore, AWriteAsksNothingAboutOtherPolygons) {
  const auto skelegons = scanned({"Hips"});
  const auto callsOfAWrite = [&] {
    const std::uint64_t before = standin::witness().calls();
    mst::WriteSlotValue(skelegons, Slot::Strength, "50.000000");
    return standin::witness().calls() - before;
  };
  const std::uint64_t calls = callsOfAWrite();
  const auto& points = mesh.object->points();
  for (int face = 0; face < 20; ++face) mesh.object->addFace(0, {points[0].id, points[1].id, points[2].id});
  EXPECT_EQ(callsOfAWrite(), calls);
}

// A host that does not tell the type of a living skelegon must not make it look like a face.
TEST_F(PropertyStore, ARefusedTypeWritesNothing) {
  const auto skelegons = scanned({"Hips", "Chest"});
  standin::witness().refuseNext("MeshEditOp::polyType");
  EXPECT_EQ(thrownBy([&] { mst::WriteSlotValue(skelegons, Slot::Strength, "50.000000"); }), "polyType() !");
  EXPECT_EQ(mesh.storedTag("Hips", copyTag(Slot::Strength)), std::nullopt);
  EXPECT_EQ(mesh.storedTag("Chest", copyTag(Slot::Strength)), std::nullopt);
}

TEST_F(PropertyStore, WithoutAnObjectTheWriteFailsAndIsThrown) {
  const auto skelegons = scanned({"Hips"});
  mesh.host.closeAll();
  EXPECT_EQ(thrownBy([&] { mst::WriteSlotValue(skelegons, Slot::Strength, "1"); }), "lw::mod::edit::begin( 0, 0, 0, 0 ) !");
}

TEST(PropertyStoreFailures, WhateverFailsAllOfAChangeIsThereOrNothing) {
  std::vector<skg::SkelegonInfo> skelegons;
  const auto select = [&](Mesh& mesh) {
    mesh.host.select({"Hips", "Tail"});
    skelegons = mst::ScanPanelSkelegons();
  };
  const auto rename = [&](Mesh&) { mst::applyWrites(mst::writesForName(skelegons, "Same")); };
  const auto nothingIsRenamed = [](Mesh& mesh) {
    for (const standin::MeshPolygon* skelegon : mesh.object->skelegons()) {
      EXPECT_NE(skelegon->tag(lw::kTagBone), "Same");
      EXPECT_NE(skelegon->tag(lw::kTagPart), "Same");
    }
  };
  // Begin, scan, the type of each of the two, a record for each, two tags for each, done.
  EXPECT_EQ(refuseEach(rename, nothingIsRenamed, select), 11U);
}

TEST(PropertyStoreFailures, AFailedReadIsThrown) {
  const Refused refused =
      refuseFirst("MeshEditOp::polyInfo", [](Mesh& mesh) { mst::ReadSkelegonProperties(mesh.id("Hips")); });
  EXPECT_EQ(refused.thrown, "polyInfo() !");
}

// --- the tree ------------------------------------------------------------------------------------------------------------

using BuildSkelegonList = MeshTest;

TEST_F(BuildSkelegonList, ReadsNamesPointsAndPositionsAndLinksThem) {
  const lw::PolygonIds polygons = lw::CollectSkelegons();
  lw::CMeshEdit edit(lw::kEditForTags);
  const skg::SkelegonList list = mst::BuildSkelegonList(edit.host(), polygons);
  edit.done();
  ASSERT_EQ(list.size(), 5U);
  EXPECT_EQ(list[1].polygon, mesh.id("Chest"));
  EXPECT_EQ(list[1].name, "Chest");
  EXPECT_EQ(list[1].parent, &list[0]);
  EXPECT_EQ(list[1].headPos, (skg::Position{0, 1, 0}));
  EXPECT_EQ(list[1].tailPos, (skg::Position{0, 2, 0}));
  EXPECT_EQ(list[4].name, "");
  EXPECT_EQ(list[4].parent, nullptr);
}

TEST(BuildSkelegonListOf, ASkelegonWithoutItsTwoPointsLeavesItAlone) {
  lw::PolygonIds polygons;
  skg::SkelegonList list;
  const auto build = [&](Mesh&) {
    lw::CMeshEdit edit(lw::kEditForTags);
    list = mst::BuildSkelegonList(edit.host(), polygons);
    edit.done();
  };
  const Refused refused = refuseFirst("MeshEditOp::polyPoints", build, [&](Mesh&) { polygons = lw::CollectSkelegons(); });
  ASSERT_EQ(list.size(), 5U);
  EXPECT_EQ(list[0].tailPoint, nullptr);
  EXPECT_TRUE(list[0].children.empty());
  EXPECT_EQ(list[1].parent, nullptr);
  EXPECT_EQ(list[2].parent, &list[1]);
}

}  // namespace
}  // namespace varnel::test
