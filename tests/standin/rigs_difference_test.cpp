// What differs between two states of a rig.
#include "rigs/difference.h"

#include <gmock/gmock.h>

#include "rigs/report.h"
#include "tests/standin/rigs_fixture.h"

namespace standin::rigs {
namespace {

using testing::IsEmpty;

std::string differences(const SoundRig& before, const SoundRig& after) {
  return differencesText(differencesOf(before.rig(), after.rig("other.lwo"), Language::English), Language::English);
}

ObjectPolygon& polygonOf(ObjectFile& object, std::size_t i) { return object.layers[0].groups[0].polygons[i]; }

class Differences : public testing::Test {
 protected:
  std::string changed(ObjectFile after) const {
    return differencesText(differencesOf(before.rig(), rigOf(after, kFileName), Language::English), Language::English);
  }

  SoundRig before;
  SoundRig after;
  ObjectFile object = before.object();
};

TEST_F(Differences, OfEqualRigsThereAreNoneWhateverTheirFilesAreCalled) {
  EXPECT_THAT(differences(before, after), IsEmpty());
}

TEST_F(Differences, AChangedSettingIsShownFromAndTo) {
  after.set(after.root, 31, "50.000000");
  EXPECT_EQ(differences(before, after), "Rig / Root\n  Strength: 80 % -> 50 %\n");
}

TEST_F(Differences, WhatIsNotStoredIsShownAsTheDefault) {
  polygonOf(object, 0).removeTag(settingTag(31));
  polygonOf(object, 1).setTag(settingTag(32), "0");
  EXPECT_EQ(changed(object),
            "Rig / Root\n  Strength: 80 % -> 100 % (default)\n"
            "Rig / Hand\n  Multiply Strength by Rest Length: on (default) -> off\n");
}

TEST_F(Differences, ANameThatIsNotStoredIsNone) {
  polygonOf(object, 0).setTag(settingTag(52), "Hand");
  EXPECT_EQ(changed(object), "Rig / Root\n  Target Item: (none) -> Hand\n");
}

// It becomes orange, whatever the panel's list says.
TEST_F(Differences, AColourThatIsNotStoredIsNone) {
  polygonOf(object, 1).setTag(lw::kTagColour, "Modeler");
  EXPECT_EQ(changed(object), "Rig / Hand\n  Color (bone): (none) -> Modeler Setting\n");
}

TEST_F(Differences, EqualNumbersAreNone) {
  after.set(after.root, 31, "80");
  EXPECT_THAT(differences(before, after), IsEmpty());
}

TEST_F(Differences, AStoredDefaultIsNone) {
  after.set(after.root, 27, "1");
  after.set(after.root, 37, "100.000000");
  EXPECT_THAT(differences(before, after), IsEmpty());
}

TEST_F(Differences, ValuesThatAreShownAlikeStandAsTheyAreStored) {
  after.set(after.root, 97, "-3.141593");  // what the panel stores for 180 degrees, and not the default
  EXPECT_EQ(differences(before, after), "Rig / Root\n  Min (Heading Limits): \"-3.141592\" (default) -> \"-3.141593\"\n");
}

TEST_F(Differences, NumbersThatReadOnlyInPartAreShownAsTheyStand) {
  after.set(after.root, 31, "80 %");
  EXPECT_EQ(differences(before, after), "Rig / Root\n  Strength: 80 % -> \"80 %\"\n");
}

TEST_F(Differences, AnotherOrderIsShownFromTheFirstToTheLastThatStandsElsewhere) {
  for (const char* name : {"A", "B", "C", "D"}) {
    for (SoundRig* rig : {&before, &after}) rig->builder.root(name, {0, 0, static_cast<float>(*name)}, {1, 0, 0});
  }
  object = after.object();
  auto& polygons = object.layers[0].groups[0].polygons;
  std::swap(polygons[2], polygons[4]);
  EXPECT_EQ(changed(object), "Rig\n  order of the skelegons: A, B, C -> C, B, A\n");
}

TEST_F(Differences, AnAddedSkelegonIsNoOtherOrder) {
  auto& polygons = object.layers[0].groups[0].polygons;
  polygons.insert(polygons.begin(), polygons[0]);
  polygons[0].setTag(lw::kTagBone, "New");
  EXPECT_THAT(changed(object), testing::Not(testing::HasSubstr("order")));
}

TEST_F(Differences, ALongOrderIsCutShort) {
  for (int i = 0; i < 9; ++i) before.builder.root("B" + std::to_string(i), {0, 0, static_cast<float>(i)}, {1, 0, 0});
  object = before.object();
  auto& polygons = object.layers[0].groups[0].polygons;
  std::swap(polygons[2], polygons[10]);
  EXPECT_EQ(changed(object), "Rig\n  order of the skelegons: B0, B1, B2, B3, B4, B5, ... -> B8, B1, B2, B3, B4, B5, ...\n");
}

TEST_F(Differences, ALayerOfAnotherNumberIsTheLayerOfItsName) {
  object.layers[0].number = 3;
  EXPECT_EQ(changed(object), "Rig\n  layer number: 0 -> 3\n");
}

TEST_F(Differences, AreInJapaneseToTheLastWord) {
  object.layers[0].name.clear();
  polygonOf(object, 0).removeTag(settingTag(31));
  polygonOf(object, 1).removeTag(lw::kTagBone);
  std::swap(object.layers[0].groups[0].polygons[0], object.layers[0].groups[0].polygons[1]);
  const std::string text =
      differencesText(differencesOf(before.rig(), rigOf(object, kFileName), Language::Japanese), Language::Japanese);
  EXPECT_EQ(text,
            "レイヤー 0\n  レイヤー改名: \"Rig\" -> \"\"\n  スケルゴンの順序: Root, Hand -> Hand, Root\n"
            "レイヤー 0 / (名前なし)\n  改名: Hand -> (名前なし)\n"
            "レイヤー 0 / Root\n  強さ: 80 % -> 100 % (初期値)\n");
}

TEST_F(Differences, AnotherNameAtTheSamePointsIsARenaming) {
  polygonOf(object, 1).setTag(lw::kTagBone, "Paw");
  EXPECT_EQ(changed(object), "Rig / Paw\n  renamed: Hand -> Paw\n");
}

TEST_F(Differences, TwoNamesThatWereExchangedAreTwoMoves) {
  polygonOf(object, 0).setTag(lw::kTagBone, "Hand");
  polygonOf(object, 1).setTag(lw::kTagBone, "Root");
  EXPECT_THAT(changed(object), testing::HasSubstr("Rig / Hand\n  moved: "));
}

TEST_F(Differences, AnotherNameAtOtherPointsIsAnotherSkelegon) {
  polygonOf(object, 1).tags = {{lw::kTagBone, "Paw"}};
  object.layers[0].points[2] = {1, 2, 3};
  EXPECT_EQ(changed(object), "Rig / Paw\n  added\nRig / Hand\n  removed\n");
}

TEST_F(Differences, AMovedSkelegonShowsItsEnds) {
  object.layers[0].points[2] = {0, 2.5F, 0};
  EXPECT_EQ(changed(object), "Rig / Hand\n  moved: (0, 1, 0) - (0, 2, 0) -> (0, 1, 0) - (0, 2.5, 0)\n");
}

TEST_F(Differences, AnotherParentIsShownThoughNothingMoved) {
  object.layers[0].points.push_back({0, 1, 0});
  polygonOf(object, 1).points[0] = 3;
  EXPECT_EQ(changed(object), "Rig / Hand\n  parent: Root -> (none)\n");
}

TEST_F(Differences, ARenamedParentIsNoOtherParent) {
  polygonOf(object, 0).setTag(lw::kTagBone, "Trunk");
  EXPECT_EQ(changed(object), "Rig / Trunk\n  renamed: Root -> Trunk\n");
}

TEST_F(Differences, SkelegonsOfOneNameKeepTheirPartnersByPlace) {
  SoundRig one;
  SoundRig two;
  const auto first = one.builder.child(one.hand, "Twin", {1, 2, 0});
  one.builder.child(one.hand, "Twin", {2, 2, 0});
  two.builder.child(two.hand, "Twin", {2, 2, 0});
  const auto same = two.builder.child(two.hand, "Twin", {1, 2, 0});
  one.set(first, 27, "0");
  two.set(same, 27, "0");
  EXPECT_EQ(differences(one, two), "Rig\n  order of the skelegons: Twin [1], Twin [2] -> Twin [2], Twin [1]\n");
}

TEST_F(Differences, AddedLayersBringTheirSkelegonsAndSettings) {
  after.builder.layer(1, "Tail");
  const auto tail = after.builder.root("Tail_01", {0, 0, 0}, {0, 0, 1});
  after.set(tail, 27, "0");
  EXPECT_EQ(differences(before, after), "Tail\n  layer added\nTail / Tail_01\n  added\n  Bone Active: (none) -> off\n");
  EXPECT_EQ(differences(after, before), "Tail\n  layer removed\nTail / Tail_01\n  removed\n");
}

TEST_F(Differences, ARenamedLayerIsTheLayerOfItsNumber) {
  object.layers[0].name = "Body";
  EXPECT_EQ(changed(object), "Body\n  layer renamed: \"Rig\" -> \"Body\"\n");
}

TEST_F(Differences, TagsOfNoSettingAreComparedToo) {
  polygonOf(object, 0).setTag(settingTag(144), "x");
  EXPECT_EQ(changed(object), "Rig / Root\n  tag sg1+144: (none) -> \"x\"\n");
}

TEST_F(Differences, TheSecondPlaceOfTheNameIsNoDifference) {
  polygonOf(object, 0).setTag(lw::kTagPart, "Root");
  EXPECT_THAT(changed(object), IsEmpty());
}

}  // namespace
}  // namespace standin::rigs
