// The five simple modes, through the panel, with and without the bone properties.
#include "skelegon/slot_table.h"
#include "tests/tools/renamer_fixture.h"

namespace varnel::test {
namespace {

TEST_F(Renamer, ChangeGivesAllSelectedOnesOneName) {
  host.select({"Arm_L_01", "Arm_L_02"});
  runSimple(RenameMode::Change, "Bone");
  EXPECT_EQ(names(4), (Names{"Bone", "Bone", "Arm_L_03", "Arm_R_01"}));
}

TEST_F(Renamer, ChangeWithAnEmptyTextClearsNames) {
  host.select({"Arm_L_01"});
  runSimple(RenameMode::Change, "");
  EXPECT_EQ(names(2), (Names{"", "Arm_L_02"}));
}

TEST_F(Renamer, PrefixStandsBeforeTheName) {
  host.select(kLeftArm);
  runSimple(RenameMode::Prefix, "My");
  EXPECT_EQ(names(4), (Names{"MyArm_L_01", "MyArm_L_02", "MyArm_L_03", "Arm_R_01"}));
}

TEST_F(Renamer, SuffixStandsBehindTheName) {
  host.select(kLeftArm);
  runSimple(RenameMode::Suffix, "_end");
  EXPECT_EQ(names(4), (Names{"Arm_L_01_end", "Arm_L_02_end", "Arm_L_03_end", "Arm_R_01"}));
}

TEST_F(Renamer, ReplaceTurnsLeftIntoRight) {
  host.select(kLeftArm);
  openIn(RenameMode::Replace);
  run();
  EXPECT_EQ(names(3), kRightArm);
}

TEST_F(Renamer, RegularExpressionTurnsLeftIntoRight) {
  host.select(kLeftArm);
  openIn(RenameMode::RegularExpression);
  run();
  EXPECT_EQ(names(3), kRightArm);
}

TEST_F(Renamer, ReplaceAndRegularExpressionDoNothingWithAnEmptyFirstText) {
  host.select(kLeftArm);
  for (const RenameMode mode : {RenameMode::Replace, RenameMode::RegularExpression}) {
    runSimple(mode, "", "x");
    EXPECT_EQ(names(3), kLeftArm);
    EXPECT_TRUE(host.messages().empty());
  }
}

TEST_F(Renamer, ASimpleModeTakesCountersLiterally) {
  host.select({"Root"});
  runSimple(RenameMode::Suffix, "_[col]%d[row]");
  EXPECT_NE(object->skelegon("Root_[col]%d[row]"), nullptr);
}

TEST_F(Renamer, ASimpleModeChecksNoOverlap) {
  host.select(kRightArm);
  runSimple(RenameMode::Replace, "R", "L");
  EXPECT_EQ(names(6), (Names{"Arm_L_01", "Arm_L_02", "Arm_L_03", "Arm_L_01", "Arm_L_02", "Arm_L_03"}));
}

TEST_F(Renamer, ASimpleModeNeedsASelection) {
  for (const RenameMode mode : kEveryMode) {
    if (!mst::isSimple(mode)) continue;
    host.forgetRecords();
    openIn(mode);
    run();
    EXPECT_EQ(onlyMessage(), kNeedSelection);
    EXPECT_EQ(changingEdits(), 0U);
  }
}

TEST_F(Renamer, ASelectedFaceIsNoSelection) {
  host.selectPolygons({&object->polygons().front()});
  runSimple(RenameMode::Change, "Bone");
  EXPECT_EQ(onlyMessage(), kNeedSelection);
}

TEST_F(Renamer, ComplainsInJapanese) {
  host.options().localeInfo = kJapanese;
  runSimple(RenameMode::Change, "Bone");
  EXPECT_EQ(onlyMessage(), "スケルゴンを選択してください！");
}

TEST_F(Renamer, ASimpleModeWorksInTheForegroundOnly) {
  host.options().layerSwitchDeselects = false;
  host.select({"Arm_L_01", "Root"});
  host.showLayers({1});
  runSimple(RenameMode::Prefix, "My");
  EXPECT_NE(object->skelegon("MyRoot"), nullptr);
  EXPECT_NE(object->skelegon("Arm_L_01"), nullptr);
}

TEST_F(Renamer, ASkelegonWithoutANameHasAnEmptyOne) {
  store("Root", lw::kTagBone, std::nullopt);
  host.selectPolygons({object->skelegons()[6]});
  runSimple(RenameMode::Prefix, "My");
  EXPECT_NE(object->skelegon("My"), nullptr);
}

TEST_F(Renamer, LeavesThePartTagAlone) {
  store("Root", lw::kTagPart, "part");
  host.select({"Root"});
  runSimple(RenameMode::Change, "Hips");
  EXPECT_EQ(stored("Hips", lw::kTagPart), "part");
}

TEST_F(Renamer, WithoutBonePropertyOnlyTheNameIsWritten) {
  store("Root", lw::kTagBoneWeight, "Root");
  store("Root", Slot::TargetItem, "Root_tar");
  host.select({"Root"});
  runSimple(RenameMode::Replace, "Root", "Hips");
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "Root");
  EXPECT_EQ(stored("Hips", Slot::TargetItem), "Root_tar");
  EXPECT_EQ(host.edits().back().changes, 1U);
}

TEST_F(Renamer, IsDrawnAnewAfterARun) {
  host.select({"Root"});
  openIn(RenameMode::Replace);
  at(Item::Mode)->wantsPaint = false;
  run();
  EXPECT_TRUE(at(Item::Mode)->wantsPaint);
}

TEST_F(Renamer, IsNotDrawnAnewAfterARunThatRenamedNothing) {
  openIn(RenameMode::Replace);
  at(Item::Mode)->wantsPaint = false;
  run();
  EXPECT_EQ(onlyMessage(), kNeedSelection);
  EXPECT_FALSE(at(Item::Mode)->wantsPaint);
}

TEST_F(Renamer, TheRunIsOneStepToUndo) {
  host.select(kLeftArm);
  const std::string before = everythingStored();
  runSimple(RenameMode::Replace, "_L_", "_R_", true);
  EXPECT_EQ(changingEdits(), 1U);
  EXPECT_TRUE(host.undo());
  EXPECT_EQ(everythingStored(), before);
}

// ---------------------------------------------------------------------------------------------------------------------
// With the bone properties

struct ModeRow {
  RenameMode mode;
  const char* first;
  const char* second;
  const char* expected;  // of the text "a_L_b"
};
void PrintTo(const ModeRow& row, std::ostream* out) { *out << "mode " << static_cast<int>(row.mode); }

class EverySimpleMode : public testing::TestWithParam<ModeRow>, protected RenamerSession {
 protected:
  void storeInAllSlots(const char* text) {
    for (const skg::SlotRow& row : skg::kSlotTable) {
      if (row.slot != Slot::Name) store("Root", skg::plainSlotTagId(skg::indexOf(row.slot)), text);
    }
    store("Root", lw::kTagBoneWeight, text);
    store("Root", lw::kTagColour, text);
    store("Root", lw::kTagPart, text);
    store("Root", lw::kTagBone, text);
  }
  const standin::MeshPolygon& root() const { return *object->skelegons()[6]; }
};
INSTANTIATE_TEST_SUITE_P(Renamer, EverySimpleMode,
                         testing::Values(ModeRow{RenameMode::Change, "new", "", "new"},
                                         ModeRow{RenameMode::Prefix, "p", "", "pa_L_b"},
                                         ModeRow{RenameMode::Suffix, "s", "", "a_L_bs"},
                                         ModeRow{RenameMode::Replace, "_L_", "_R_", "a_R_b"},
                                         ModeRow{RenameMode::RegularExpression, "(.*)_L(.*)", "$1_R$2", "a_R_b"}));

TEST_P(EverySimpleMode, RenamesTheEighteenTagsAndNoOther) {
  storeInAllSlots("a_L_b");
  host.selectPolygons({&root()});
  runSimple(GetParam().mode, GetParam().first, GetParam().second, true);
  std::vector<std::uint32_t> renamed;
  for (const Slot slot : mst::kSimpleModeSlots) renamed.push_back(skg::SlotTagId(slot));
  for (const standin::PolygonTag& tag : root().content.tags) {
    const bool isOne = std::find(renamed.begin(), renamed.end(), tag.type) != renamed.end();
    if (tag.type != standin::kTagSurface) {
      EXPECT_EQ(tag.text, isOne ? GetParam().expected : "a_L_b") << std::hex << tag.type;
    }
  }
  EXPECT_EQ(host.edits().back().changes, 18U);
}

TEST_P(EverySimpleMode, RenamesTheNameAloneWithoutThem) {
  storeInAllSlots("a_L_b");
  host.selectPolygons({&root()});
  runSimple(GetParam().mode, GetParam().first, GetParam().second, false);
  for (const standin::PolygonTag& tag : root().content.tags) {
    const bool isName = tag.type == lw::kTagBone;
    if (tag.type != standin::kTagSurface) {
      EXPECT_EQ(tag.text, isName ? GetParam().expected : "a_L_b") << std::hex << tag.type;
    }
  }
  EXPECT_EQ(host.edits().back().changes, 1U);
}

TEST_F(Renamer, WithBonePropertyAllEighteenTagsAreWrittenEvenUnchanged) {
  host.select(kLeftArm);
  runSimple(RenameMode::Replace, "no such text", "x", true);
  EXPECT_EQ(host.edits().back().changes, 3U * 18U);
  EXPECT_EQ(names(3), kLeftArm);
  // An empty weight map is written blank, as the host's own tags are.
  EXPECT_EQ(stored("Arm_L_01", lw::kTagBoneWeight), "");
  EXPECT_EQ(stored("Arm_L_01", Slot::TargetItem), std::nullopt);
}

TEST_F(Renamer, WithBonePropertyEmptyTextsGetPrefixesToo) {
  host.select({"Root"});
  runSimple(RenameMode::Prefix, "My", "", true);
  for (const Slot slot : mst::kSimpleModeSlots) EXPECT_NE(stored("MyRoot", slot), std::nullopt) << skg::indexOf(slot);
  EXPECT_EQ(stored("MyRoot", Slot::TargetItem), "My");
}

// What a saved object has behind each other, and what another plug-in sees come in.
TEST_F(Renamer, WithBonePropertyTheTagsAreWrittenInTheirOrder) {
  store("Root", lw::kTagBone, std::nullopt);
  host.selectPolygons({object->skelegons()[6]});
  runSimple(RenameMode::Prefix, "My", "", true);
  EXPECT_EQ(slotsInFileOrder("My"), (Slots{6, 12, 28, 51, 52, 130, 53, 131, 55, 132, 73, 133, 92, 134, 110, 135, 142, 144}));
}

TEST_F(Renamer, WithBonePropertyChangeToNothingRemovesTheLinks) {
  store("Root", Slot::TargetItem, "Root_tar");
  store("Root", lw::kTagBoneWeight, "Root");
  host.select({"Root"});
  runSimple(RenameMode::Change, "", "", true);
  EXPECT_EQ(stored("", Slot::TargetItem), std::nullopt);
  EXPECT_EQ(stored("", lw::kTagBoneWeight), "");
}

// ---------------------------------------------------------------------------------------------------------------------
// Patterns that are none

class BadPattern : public testing::TestWithParam<const char*>, protected RenamerSession {};
INSTANTIATE_TEST_SUITE_P(Renamer, BadPattern, testing::Values("(", "[", "[a", "a{2,1}", "\\1", "(a*)*b", "a{50000}"));

TEST_P(BadPattern, RenamesNothingAndSaysWhatTheLibrarySays) {
  store("Arm_L_02", lw::kTagBone, std::string(60, 'a'));
  host.selectPolygons({object->skelegons()[0], object->skelegons()[1]});
  const std::string before = everythingStored();
  runSimple(RenameMode::RegularExpression, GetParam(), "x", true);
  EXPECT_EQ(everythingStored(), before);
  EXPECT_NE(onlyMessage(), "");
  EXPECT_EQ(changingEdits(), 0U);
  EXPECT_TRUE(panel->isOpen());
}

TEST_F(Renamer, ALongNameUnderAPatternEndsNoSession) {
  store("Arm_L_01", lw::kTagBone, std::string(65'536, 'a'));
  host.selectPolygons({object->skelegons()[0]});
  openIn(RenameMode::RegularExpression);
  run();
  EXPECT_NE(onlyMessage(), "");
  EXPECT_EQ(changingEdits(), 0U);
}

TEST_F(Renamer, AnEverydayPatternDoesOnALongName) {
  const std::string name = std::string(1'000, 'a') + "_R";
  store("Arm_L_01", lw::kTagBone, name);
  host.selectPolygons({object->skelegons()[0]});
  runSimple(RenameMode::RegularExpression, "(.*)_L$", "$1_R");
  EXPECT_EQ(names(1), Names{name});
  runSimple(RenameMode::RegularExpression, "(.*)_R$", "$1_L");
  EXPECT_EQ(names(1), Names{std::string(1'000, 'a') + "_L"});
}

// ---------------------------------------------------------------------------------------------------------------------
// Names that cannot be made

TEST_F(Renamer, AHalfLetterIsNoNameAndTheSkelegonIsTold) {
  store("Arm_L_02", lw::kTagBone, "腕_L");
  host.selectPolygons({object->skelegons()[0], object->skelegons()[1]});
  const std::string before = everythingStored();
  runSimple(RenameMode::RegularExpression, "^.", "x");
  EXPECT_EQ(everythingStored(), before);
  EXPECT_EQ(onlyMessage(), "The regular expression cuts a letter in two! (腕_L)");
}

TEST_F(Renamer, AHardNameIsTold) {
  store("Arm_L_02", lw::kTagBone, std::string(60, 'a'));
  host.selectPolygons({object->skelegons()[0], object->skelegons()[1]});
  runSimple(RenameMode::RegularExpression, "(a*)*b", "x");
  EXPECT_EQ(onlyMessage(), "The regular expression takes too long for this name! (" + std::string(60, 'a') + ")");
}

TEST_F(Renamer, ANameThatGetsTooLongIsToldWithoutAWordOfPatterns) {
  host.select({"Root"});
  store("Root", lw::kTagBone, std::string(65'530, 'r'));
  runSimple(RenameMode::Prefix, "My_Prefix_", "");
  EXPECT_EQ(onlyMessage().substr(0, 34), "The name gets too long! (rrrrrrrrr");
}

}  // namespace
}  // namespace varnel::test
