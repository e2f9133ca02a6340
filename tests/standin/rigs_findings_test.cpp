// Each kind of finding: a rig that has it, and the sound rig that has none.
#include "rigs/findings.h"

#include <gmock/gmock.h>

#include "host/lwtool2_panels.h"
#include "layout/narrow_path.h"
#include "objectfile/chunk_records.h"
#include "rigs/names_in_layout.h"
#include "standin/layout/layout_host.h"
#include "tests/standin/rigs_fixture.h"

namespace standin::rigs {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// "id place: ...", the sentence left out.
std::vector<std::string> found(const Rig& rig, int codePage = 932) {
  std::vector<std::string> list;
  for (const Finding& finding : findingsOf(rig, CodePage(codePage))) {
    const std::string place = joined(placeOf(rig, finding, Language::English));
    list.push_back(findingRow(finding.kind).id + (place.empty() ? "" : " " + place));
  }
  return list;
}

std::string sentence(const Rig& rig, int codePage = 932) {
  const auto findings = findingsOf(rig, CodePage(codePage));
  return findings.empty() ? "" : sentenceOf(findings.front(), Language::English);
}

// Stays sound when skelegons are added.
struct ColouredRig : SoundRig {
  Rig rig(const std::string& fileName = kFileName) const { return colouredRigOf(object(), fileName); }
};

class Findings : public testing::Test {
 protected:
  ColouredRig sound;
};

TEST_F(Findings, OfASoundRigThereAreNone) { EXPECT_THAT(found(sound.rig()), IsEmpty()); }

TEST_F(Findings, AFileNameInCapitalsIsPassedOver) {
  EXPECT_THAT(found(sound.rig("rig.LWO")), ElementsAre("file-extension"));
  EXPECT_THAT(found(sound.rig("rig.lwo.bak")), testing::Contains("file-extension"));
}

TEST_F(Findings, ALayerNameWithABlankIsNotFound) {
  sound.builder.layer(1, "Left Arm");
  sound.builder.root("Other", {0, 0, 0}, {1, 0, 0});
  EXPECT_THAT(found(sound.rig()), testing::Contains("layer-name Left Arm"));
  EXPECT_THAT(found(sound.rig()), testing::Not(testing::Contains("layer-name Rig")));
}

TEST_F(Findings, ALayerNameThatEndsLikeACounterIsNotFound) {
  RigBuilder builder;
  builder.layer(3, "Arm (2)");
  builder.root("A", {0, 0, 0}, {1, 0, 0});
  EXPECT_THAT(found(colouredRigOf(builder.object())), ElementsAre("layer-name Arm (2)"));
}

TEST_F(Findings, ALayerWithoutSkelegonsMayBeCalledAnything) {
  RigBuilder builder;
  builder.layer(3, "Left Arm");
  builder.point({0, 0, 0});
  EXPECT_THAT(found(colouredRigOf(builder.object())), IsEmpty());
}

TEST_F(Findings, TwoLayersOfOneNameGetTheSettingsOfTheFirst) {
  RigBuilder builder;
  for (const std::uint16_t number : std::initializer_list<std::uint16_t>{0, 1}) {
    builder.layer(number, "Arm");
    builder.root("Bone" + std::to_string(number), {0, 0, 0}, {1, 0, 0});
  }
  EXPECT_THAT(found(colouredRigOf(builder.object())), ElementsAre("layer-twice Arm"));
}

TEST_F(Findings, ASkelegonWithoutANameGetsNoSettings) {
  sound.builder.between(0, 2, std::nullopt);
  sound.builder.between(0, 2, "Named");
  EXPECT_THAT(found(sound.rig()), ElementsAre("no-name Rig / (no name)"));
}

TEST_F(Findings, ANameBorneTwiceInALayerIsToldOnce) {
  sound.builder.child(sound.root, "Root", {1, 1, 1});
  const Rig rig = sound.rig();
  EXPECT_THAT(found(rig), testing::Contains("name-twice Rig / Root [1]").Times(1));
  EXPECT_THAT(sentence(rig), HasSubstr("2 skelegons of this layer"));
}

TEST_F(Findings, ANameBorneInTwoLayersSendsBothToTheFirst) {
  sound.builder.layer(1, "Second");
  sound.builder.root("Hand", {0, 0, 0}, {1, 0, 0});
  EXPECT_THAT(found(sound.rig()), testing::Contains("name-in-two-layers Second / Hand"));
}

TEST_F(Findings, ASkelegonOfTheItemsNameLosesItsSettingsToTheItem) {
  EXPECT_THAT(found(sound.rig("Hand.lwo")), testing::Contains("name-of-item Rig / Hand"));
}

TEST_F(Findings, ALinkedNameThatNothingBearsBecomesANull) {
  sound.set(sound.hand, 55, "Hand_goal");
  EXPECT_THAT(found(sound.rig()), ElementsAre("becomes-null Rig / Hand / Goal Object"));
  EXPECT_THAT(sentence(sound.rig()), HasSubstr("\"Hand_goal\""));
}

TEST_F(Findings, ALinkedNameIsLookedUpWithTheObjectsNameForThePlaceholder) {
  ColouredRig rig;
  rig.builder.layer(1, "Body");
  rig.set(rig.hand, 130, "");
  rig.builder.settings(rig.root, {{51, "[file]:Body"}});
  EXPECT_THAT(found(rig.rig()), IsEmpty());
  rig.set(rig.root, 51, "[file]:Bodie");
  EXPECT_THAT(found(rig.rig()), ElementsAre("parent-missing Rig / Root / Parent Item"));
  EXPECT_THAT(sentence(rig.rig()), HasSubstr("\"rig:Bodie\""));
}

TEST_F(Findings, AParentMayBeANullOfThisOrAnEarlierSkelegon) {
  sound.set(sound.root, 55, "Root_goal");
  sound.set(sound.root, 51, "Root_goal");
  sound.set(sound.hand, 51, "Root_goal");
  EXPECT_THAT(found(sound.rig()), ElementsAre("becomes-null Rig / Root / Goal Object"));
}

TEST_F(Findings, ANullOfALaterSkelegonComesTooLateForAParent) {
  sound.set(sound.hand, 55, "Hand_goal");
  sound.set(sound.root, 51, "Hand_goal");
  EXPECT_THAT(found(sound.rig()),
              ElementsAre("parent-late Rig / Root / Parent Item", "becomes-null Rig / Hand / Goal Object"));
}

TEST_F(Findings, OnlyANullOfAnEarlierSkelegonIsThereToTakeBonesFrom) {
  sound.set(sound.root, 55, "Root_goal");
  sound.set(sound.hand, 12, "Root_goal");
  EXPECT_THAT(found(sound.rig()), testing::Not(testing::Contains(HasSubstr("bones-from-missing"))));
  sound.set(sound.root, 12, "Root_goal");
  EXPECT_THAT(found(sound.rig()), testing::Contains("bones-from-missing Rig / Root / Use Bones From Object"));
}

TEST_F(Findings, WhatBelongsToALinkedItemWithoutANameIsNotLookedAt) {
  sound.builder.settings(sound.root, {{131, "Nobody"}, {146, "7"}, {153, "Pink"}});
  EXPECT_THAT(found(sound.rig()), IsEmpty());
  sound.set(sound.root, 53, "Hand");
  EXPECT_THAT(found(sound.rig()),
              ElementsAre("parent-missing Rig / Root / Pole Item Parent", "flag-outside Rig / Root / Visibility (Pole Item)",
                          "colour-unknown Rig / Root / Color (Pole Item)"));
}

TEST_F(Findings, TheInitialPositionItemSharesAParent) {
  sound.set(sound.root, 133, "Nobody");
  EXPECT_THAT(found(sound.rig()), IsEmpty());
  sound.set(sound.root, 142, "Hand");
  EXPECT_THAT(found(sound.rig()), ElementsAre("parent-missing Rig / Root / Position Item Parent"));
}

TEST_F(Findings, OfASkelegonWithoutANameNoSettingIsJudged) {
  sound.builder.tag(sound.hand, lw::kTagBone, "");
  sound.builder.settings(sound.hand, {{13, "99"}, {48, "1"}, {55, "Goal"}});
  EXPECT_THAT(found(sound.rig()), ElementsAre("no-name Rig / (no name)"));
}

TEST_F(Findings, ABoneTypeOrAVisibilityOfTwoCountsAsOne) {
  sound.builder.settings(sound.root, {{26, "2"}, {128, "2"}});
  EXPECT_THAT(found(sound.rig()),
              ElementsAre("flag-outside Rig / Root / Bone Type", "flag-outside Rig / Root / Visibility (bone)"));
}

TEST_F(Findings, BonesFromAMissingObjectEndTheLayer) {
  sound.set(sound.root, 12, "Elsewhere");
  EXPECT_THAT(found(sound.rig()), ElementsAre("bones-from-missing Rig / Root / Use Bones From Object"));
}

TEST_F(Findings, AChoiceHasToBeOneOfItsList) {
  sound.set(sound.root, 13, "7");
  EXPECT_THAT(found(sound.rig()), IsEmpty());
  sound.set(sound.root, 13, "8");
  EXPECT_THAT(found(sound.rig()), ElementsAre("choice-outside Rig / Root / Falloff Type"));
  sound.set(sound.root, 13, "-1");
  EXPECT_THAT(found(sound.rig()), ElementsAre("choice-outside Rig / Root / Falloff Type"));
}

TEST_F(Findings, AFlagOfTwoCountsAsOn) {
  sound.set(sound.root, 27, "2");
  EXPECT_THAT(found(sound.rig()), ElementsAre("flag-outside Rig / Root / Bone Active"));
}

TEST_F(Findings, AnUnknownColourBecomesOrange) {
  sound.set(sound.hand, 152, "Pink");
  EXPECT_THAT(found(sound.rig()), ElementsAre("colour-unknown Rig / Hand / Color (Target Item)"));
}

TEST_F(Findings, AnEmptyColourOfTheHostsHidesTheChosenOne) {
  sound.builder.tag(sound.root, lw::kTagColour, "");
  EXPECT_THAT(found(sound.rig()), ElementsAre("colour-empty Rig / Root / Color (bone)"));
}

TEST_F(Findings, ABoneOfWhichNoColourIsStoredBecomesOrange) {
  RigBuilder builder;
  builder.layer(0, "Rig");
  const auto root = builder.root("Root", {0, 0, 0}, {0, 1, 0});
  EXPECT_THAT(found(rigOf(builder.object(), kFileName)), ElementsAre("colour-missing Rig / Root / Color (bone)"));
  builder.settings(root, {{129, "Modeler"}});
  EXPECT_THAT(found(rigOf(builder.object(), kFileName)), IsEmpty());
}

TEST_F(Findings, ASkelegonWithoutANameGetsNoColourEither) {
  RigBuilder builder;
  builder.layer(0, "Rig");
  builder.between(builder.point({0, 0, 0}), builder.point({0, 1, 0}), std::nullopt);
  EXPECT_THAT(found(rigOf(builder.object(), kFileName)), ElementsAre("no-name Rig / (no name)"));
}

TEST_F(Findings, TheCopyOfTheColourCountsOnlyAlone) {
  sound.set(sound.root, 129, "Pink");
  EXPECT_THAT(found(sound.rig()), IsEmpty());
  sound.set(sound.hand, 129, "Pink");
  EXPECT_THAT(found(sound.rig()), ElementsAre("colour-unknown Rig / Hand / Color (bone) as chosen"));
}

TEST_F(Findings, ATextWithoutANumberCountsAsZero) {
  sound.set(sound.root, 31, "strong");
  EXPECT_THAT(found(sound.rig()), ElementsAre("number-unreadable Rig / Root / Strength"));
}

TEST_F(Findings, OfANumberWithARestTheBeginningCounts) {
  sound.set(sound.root, 31, "50,5");
  EXPECT_THAT(found(sound.rig()), ElementsAre("number-partly Rig / Root / Strength"));
  EXPECT_THAT(sentence(sound.rig()), HasSubstr("count as 50"));
}

TEST_F(Findings, ACommandMayHave511Bytes) {
  const std::size_t left = kLongestCommand - std::string("BoneWeightMapName ").size();
  sound.builder.tag(sound.root, lw::kTagBoneWeight, std::string(left, 'x'));
  EXPECT_THAT(found(sound.rig()), IsEmpty());
  sound.builder.tag(sound.root, lw::kTagBoneWeight, std::string(left + 1, 'x'));
  EXPECT_THAT(found(sound.rig()), ElementsAre("command-too-long Rig / Root / Bone Weight Map"));
}

TEST_F(Findings, TheNameOfANullCountsWithTheObjectsName) {
  const std::size_t left = kLongestCommand - std::string("AddNull ").size();
  sound.set(sound.hand, 55, "[file]:" + std::string(left - 4, 'x'));  // "rig:" comes before it
  EXPECT_THAT(found(sound.rig()), ElementsAre("becomes-null Rig / Hand / Goal Object"));
  sound.set(sound.hand, 55, "[file]:" + std::string(left - 3, 'x'));
  EXPECT_THAT(found(sound.rig()), testing::Contains("command-too-long Rig / Hand / Goal Object"));
}

TEST_F(Findings, APathThatIsTooLongIsNotOpened) {
  static_assert(kLongestPath == lwp::kPathBufferUnits - 1);
  Rig rig = sound.rig();
  rig.pathLength = kLongestPath;
  EXPECT_THAT(found(rig), IsEmpty());
  rig.pathLength = kLongestPath + 1;
  EXPECT_THAT(found(rig), ElementsAre("path-too-long"));
  EXPECT_THAT(sentence(rig), HasSubstr("has 260 characters, more than the 259"));
}

TEST_F(Findings, ANameThatIsLongerThanAFieldIsNoted) {
  static_assert(kLongestFieldText == lw::CControl::kLongestText);
  sound.builder.child(sound.hand, std::string(kLongestFieldText, 'x'), {1, 1, 1});
  EXPECT_THAT(found(sound.rig()), IsEmpty());
  sound.set(sound.hand, 52, std::string(kLongestFieldText + 1, 'x'));
  EXPECT_THAT(found(sound.rig()), testing::Contains("name-too-long Rig / Hand / Target Item"));
}

TEST_F(Findings, AFileNameOutsideTheCodePageIsNotFound) {
  EXPECT_THAT(found(sound.rig("頭.lwo"), 1252), testing::Contains("path-code-page"));
  EXPECT_THAT(found(sound.rig("頭.lwo"), 932), testing::Not(testing::Contains("path-code-page")));
}

TEST_F(Findings, AWeightMapOutsideTheCodePageBecomesAnotherName) {
  sound.builder.tag(sound.root, lw::kTagBoneWeight, "頭");
  EXPECT_THAT(found(sound.rig(), 1252), ElementsAre("command-code-page Rig / Root / Bone Weight Map"));
  EXPECT_THAT(found(sound.rig(), 932), IsEmpty());
}

TEST_F(Findings, ALinkedNameThatIsFoundIsNotSent) {
  sound.builder.child(sound.hand, "頭", {1, 1, 1});
  sound.set(sound.hand, 55, "頭");
  EXPECT_THAT(found(sound.rig(), 1252), IsEmpty());
}

TEST_F(Findings, ATagOfNoSettingIsNamed) {
  for (const std::uint8_t slot : std::initializer_list<std::uint8_t>{3, 28, 144, 187, 255}) {
    ColouredRig rig;
    rig.set(rig.root, slot, "x");
    EXPECT_THAT(found(rig.rig()), ElementsAre("unknown-slot Rig / Root"));
    EXPECT_THAT(sentence(rig.rig()), HasSubstr("sg1+" + std::to_string(slot)));
  }
}

TEST_F(Findings, OtherTagsOfPolygonsAreLeftAlone) {
  sound.builder.tag(sound.root, lw::kTagPart, "Root");
  sound.builder.tag(sound.root, kTagSurface, "Default");
  EXPECT_THAT(found(sound.rig()), IsEmpty());
}

TEST_F(Findings, BothWeightSwitchesOfABoneWithAMapComeLate) {
  sound.builder.settings(sound.root, {{29, "1"}, {30, "1"}});
  EXPECT_THAT(found(sound.rig()), ElementsAre("weight-only-late Rig / Root / Use Weight Map Only"));
}

TEST_F(Findings, TheWeightMapOnlyWithoutNormalizationIsLost) {
  sound.set(sound.root, 29, "1");
  EXPECT_THAT(found(sound.rig()), ElementsAre("weight-only-lost Rig / Root / Use Weight Map Only"));
  sound.set(sound.root, 30, "0");
  EXPECT_THAT(found(sound.rig()), ElementsAre("weight-only-lost Rig / Root / Use Weight Map Only"));
}

TEST_F(Findings, WeightSwitchesThatAreNotSentAreTold) {
  sound.set(sound.root, 30, "1");                              // not without the map only
  sound.builder.settings(sound.hand, {{29, "1"}, {30, "1"}});  // no map
  EXPECT_THAT(found(sound.rig()), ElementsAre("weight-not-sent Rig / Root / Weight Normalization",
                                              "weight-not-sent Rig / Hand / Use Weight Map Only",
                                              "weight-not-sent Rig / Hand / Weight Normalization"));
}

TEST_F(Findings, TwistNeedsAJoint) {
  sound.set(sound.root, 48, "1");
  EXPECT_THAT(found(sound.rig()), ElementsAre("twist-without-joint Rig / Root / Twist"));
  sound.set(sound.root, 26, "1");
  EXPECT_THAT(found(sound.rig()), IsEmpty());
}

TEST_F(Findings, ALimitedRangeArrivesAsAHundredth) {
  sound.builder.settings(sound.root, {{34, "10.000000"}, {35, "250.000000"}});
  EXPECT_THAT(found(sound.rig()), IsEmpty());
  sound.set(sound.root, 33, "1");
  EXPECT_THAT(found(sound.rig()), ElementsAre("limited-range Rig / Root / Limited Range"));
  EXPECT_THAT(sentence(sound.rig()), HasSubstr("10–250 m will arrive as 0.1–2.5 m"));
}

// Both are as the conversion sends them, by the word of the Y scale's controller.
TEST_F(Findings, WhatTheZScaleFollowsIsLostWithoutTheYScale) {
  sound.set(sound.root, 123, "6");
  EXPECT_THAT(found(sound.rig()), ElementsAre("z-follow-lost Rig / Root / Follow (Z Scale)"));
  sound.set(sound.root, 118, "6");
  EXPECT_THAT(found(sound.rig()), IsEmpty());
}

TEST_F(Findings, WhatTheZScaleFollowsIsSentWithTheYScale) {
  sound.set(sound.root, 118, "6");
  EXPECT_THAT(found(sound.rig()), IsEmpty());
  for (const std::uint8_t slot : std::initializer_list<std::uint8_t>{183, 184, 185}) {
    ColouredRig rig = sound;
    rig.set(rig.root, slot, "2");
    EXPECT_THAT(found(rig.rig()), ElementsAre("z-follow-sent Rig / Root / Follow (Z Scale)"));
    rig.set(rig.root, 123, "6");
    EXPECT_THAT(found(rig.rig()), IsEmpty());
  }
}

TEST_F(Findings, BranchesAreCountedAlike) {
  const auto thumb = sound.builder.child(sound.hand, "Thumb", {1, 3, 0});
  sound.builder.child(thumb, "Thumb_tip", {1, 4, 0});
  EXPECT_THAT(found(sound.rig()), IsEmpty());
  const auto finger = sound.builder.child(sound.hand, "Finger", {0, 3, 0});
  sound.builder.child(finger, "Finger_tip", {0, 4, 0});
  EXPECT_THAT(found(sound.rig()), ElementsAre("counters-twice Rig"));
  EXPECT_THAT(
      sentence(sound.rig()),
      HasSubstr("2 of this layer's skelegons would get a name that another has, first \"Finger\" that of \"Thumb\""));
}

TEST_F(Findings, ColumnsThatAre24ApartAreCountedAlike) {
  RigBuilder builder;
  builder.layer(0, "Rig");
  for (int i = 0; i < 24; ++i) builder.root("Head" + std::to_string(i), {0, 0, 0}, {0, 1, 0});
  EXPECT_THAT(found(colouredRigOf(builder.object())), IsEmpty());
  builder.root("Last", {0, 0, 0}, {0, 1, 0});
  EXPECT_THAT(found(colouredRigOf(builder.object())), ElementsAre("counters-twice Rig"));
}

TEST_F(Findings, ARingOfSkelegonsCanBeCounted) {
  RigBuilder builder;
  builder.layer(0, "Rig");
  builder.point({0, 0, 0});
  builder.point({0, 1, 0});
  builder.between(0, 1, "A");
  builder.between(1, 0, "B");
  EXPECT_THAT(found(colouredRigOf(builder.object())), ElementsAre("counters-twice Rig"));
}

TEST_F(Findings, ProblemsStandBeforeNotes) {
  sound.set(sound.root, 33, "1");
  sound.set(sound.hand, 31, "strong");
  EXPECT_THAT(found(sound.rig()),
              ElementsAre("number-unreadable Rig / Hand / Strength", "limited-range Rig / Root / Limited Range"));
}

// "頭" as a host with that code page stores it.
constexpr const char* kHeadIn932 = "\x93\xaa";

TEST_F(Findings, TextsInTheJapaneseCodePageAreReadInIt) {
  if (!CodePage(932).isKnown()) GTEST_SKIP() << "this system has no tables of code page 932";
  sound.builder.tag(sound.root, lw::kTagBoneWeight, kHeadIn932);
  EXPECT_THAT(found(sound.rig(), 932), ElementsAre("text-code-page"));
  EXPECT_THAT(found(sound.rig(), 1252), testing::Contains("command-code-page Rig / Root / Bone Weight Map"));
  EXPECT_THAT(sentence(sound.rig(), 1252), HasSubstr("\"頭\""));
}

TEST_F(Findings, TextsThatAreInNoCodePageAreLeftAlone) {
  sound.builder.tag(sound.root, lw::kTagBoneWeight, kHeadIn932);
  sound.builder.tag(sound.hand, lw::kTagBoneWeight, "\xff");
  EXPECT_THAT(found(sound.rig(), 932), testing::Not(testing::Contains("text-code-page")));
  EXPECT_THAT(sentence(sound.rig(), 932), HasSubstr("\\x93\\xaa"));
}

TEST_F(Findings, AnObjectsSettingThatDiffersInItsLayerIsTheLastOnes) {
  sound.set(sound.root, 16, "3");
  EXPECT_THAT(found(sound.rig()), ElementsAre("group-differs Rig / Bone Calc"));
  EXPECT_THAT(sentence(sound.rig()), HasSubstr("the last one, \"Hand\""));
  sound.set(sound.hand, 16, "3");
  EXPECT_THAT(found(sound.rig()), IsEmpty());
}

TEST_F(Findings, AnObjectsSettingThatOnlyTheUnnamedHaveDoesNotDiffer) {
  sound.set(sound.builder.between(0, 2, std::nullopt), 16, "3");
  EXPECT_THAT(found(sound.rig()), ElementsAre("no-name Rig / (no name)"));
}

TEST_F(Findings, AnEmptyObjectNameIsNotSentAndDoesNotDiffer) {
  sound.set(sound.root, 12, "rig");
  EXPECT_THAT(found(sound.rig()), IsEmpty());
  sound.set(sound.hand, 12, "Root");
  EXPECT_THAT(found(sound.rig()), ElementsAre("group-differs Rig / Use Bones From Object"));
}

// What only a file can hold: the tags of the sound rig, and one more chunk of tags behind them.
Rig rigWithTags(const SoundRig& sound, std::uint32_t type, std::vector<records::TagPair> pairs) {
  ObjectFile object = *parseObject(*serializeObject(sound.object()));
  object.chunks.push_back({records::kPolygonTags, records::writeTags({type, std::move(pairs)})});
  return rigOf(*parseObject(*joinForm({object.form, std::move(object.chunks)}), TextlessTags::LeaveOut), kFileName);
}

std::uint16_t textNumber(const SoundRig& sound, const std::string& text) {
  const ObjectFile object = *parseObject(*serializeObject(sound.object()));
  for (const Chunk& chunk : object.chunks) {
    if (chunk.id != records::kTags) continue;
    const auto texts = *records::readTexts(chunk.bytes);
    return static_cast<std::uint16_t>(std::find(texts.begin(), texts.end(), text) - texts.begin());
  }
  return 0;
}

TEST_F(Findings, ASettingStoredTwiceIsToldWithBothTexts) {
  const Rig rig = rigWithTags(sound, settingTag(13), {{0, textNumber(sound, "Green")}});
  EXPECT_THAT(found(rig), testing::Contains("tag-repeated Rig / Root / Falloff Type"));
  const auto findings = findingsOf(rig, CodePage(932));
  EXPECT_THAT(sentenceOf(findings.back(), Language::English),
              HasSubstr("2 times, first with the text \"2\", last with \"Green\""));
}

TEST_F(Findings, ANameStoredTwiceIsToldToo) {
  EXPECT_THAT(found(rigWithTags(sound, lw::kTagBone, {{0, textNumber(sound, "Hand")}})),
              testing::Contains("tag-repeated Rig / Hand [1] / name"));
}

TEST_F(Findings, ATagStoredTwiceWithOneTextDoesNoHarm) {
  EXPECT_THAT(found(rigWithTags(sound, settingTag(13), {{0, textNumber(sound, "2")}})), IsEmpty());
}

TEST_F(Findings, ATagWhoseTextIsMissingCountsAsNotStored) {
  const Rig rig = rigWithTags(sound, settingTag(26), {{1, 999}});
  EXPECT_THAT(found(rig), ElementsAre("text-missing Rig / Hand / Bone Type"));
  EXPECT_THAT(sentence(rig), HasSubstr("the text 999"));
}

TEST_F(Findings, ATextlessTagBehindAnotherOfItsTypeDoesNoHarm) {
  EXPECT_THAT(found(rigWithTags(sound, settingTag(13), {{0, 999}})), IsEmpty());
}

TEST(FindingPlaces, AreNamedInJapaneseToo) {
  RigBuilder builder;
  builder.layer(0, "");
  builder.between(builder.point({0, 0, 0}), builder.point({1, 0, 0}), std::nullopt);
  const Rig rig = rigOf(builder.object(), kFileName);
  EXPECT_EQ(joined(placeOf(rig, findingsOf(rig, CodePage(932)).front(), Language::Japanese)), "レイヤー 0 / (名前なし)");
}

TEST(FindingTable, HasAnIdAndASentenceInBothLanguagesInEachRow) {
  std::set<std::string> ids;
  for (const FindingRow& row : findingTable()) {
    EXPECT_TRUE(ids.insert(row.id).second) << row.id;
    EXPECT_STRNE(row.english, "");
    for (const char* part : {"{text}", "{other}", "{number}"}) {
      EXPECT_EQ(std::string(row.english).find(part) == std::string::npos,
                std::string(row.japanese).find(part) == std::string::npos)
          << row.id << part;
    }
  }
}

// The host's own naming, as the stand-in plays it, against that of the inspector, which cannot ask it.
class ItemNames : public OnSamples {};

TEST_F(ItemNames, AreThoseOfTheItemsThatLayoutMakes) {
  for (const std::string& path : sampleObjects("rigs")) {
    LayoutHost host;
    const auto items = host.loadObject(path);
    const Rig rig = rigOf(*readObject(path), utf8Of(pathFromUtf8(path).filename()));
    ASSERT_EQ(items.size(), rig.layers.size()) << path;
    for (std::size_t i = 0; i < items.size(); ++i) EXPECT_EQ(host.scene().nameOf(*items[i]), rig.layers[i].itemName) << path;
  }
}

}  // namespace
}  // namespace standin::rigs
