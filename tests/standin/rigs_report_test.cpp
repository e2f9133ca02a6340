// Rigs as text.
#include "rigs/report.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/standin/rigs_fixture.h"

namespace standin::rigs {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(RigReport, ShowsTheTreeWithWhatDiffersFromTheDefaults) {
  SoundRig sound;
  sound.set(sound.root, 32, "1");  // the default, stored
  EXPECT_EQ(treeText(sound.rig(), {}),
            "layer 0 \"Rig\", in Layout \"rig\": 2 skelegons, 2 with settings\n"
            "  Root\n"
            "  │  Falloff Type: Inverse Distance^4\n"
            "  │  Bone Weight Map: Root\n"
            "  │  Strength: 80 %\n"
            "  │  Color (bone): Green\n"
            "  │  Color (bone) as chosen: Green\n"
            "  └─ Hand\n"
            "        Bone Active: off\n"
            "        Target Item: Root\n"
            "        Min (Heading Limits): -90°\n"
            "        Target Item Parent: rig\n");
}

TEST(RigReport, SpeaksJapanese) {
  const std::string text = treeText(SoundRig().rig(), {Language::Japanese, false});
  EXPECT_THAT(text, HasSubstr("レイヤー 0 \"Rig\"、レイアウトでは \"rig\""));
  EXPECT_THAT(text, HasSubstr("フォールオフ種: 反比例^4"));
  EXPECT_THAT(text, HasSubstr("最小 (ヘディング制限): -90°"));
}

TEST(RigReport, ShowsDefaultsAndFurtherTagsWhenAskedForAll) {
  SoundRig sound;
  sound.builder.tag(sound.root, lw::kTagPart, "Root");
  sound.builder.child(sound.hand, "Finger", {0, 3, 0});
  const std::string text = treeText(rigOf(sound.object(), kFileName), {Language::English, true});
  EXPECT_THAT(text, HasSubstr("Bone Type: Z axis (default)"));
  EXPECT_THAT(text, HasSubstr("tag PART: \"Root\""));
  EXPECT_THAT(text, HasSubstr("Color (bone): not stored, will become orange"));
  EXPECT_THAT(text, Not(HasSubstr("Color (bone): Modeler Setting")));
}

TEST(RigReport, CallsADefaultAsTheManualDoes) {
  ReportOptions options;
  options.language = Language::Japanese;
  options.all = true;
  EXPECT_THAT(treeText(SoundRig().rig(), options), testing::HasSubstr("ボーン有効: オン (初期値)\n"));
}

TEST(RigReport, ShowsARingOfSkelegonsOnce) {
  RigBuilder builder;
  builder.point({0, 0, 0});
  builder.point({0, 1, 0});
  builder.between(0, 1, "A");
  builder.between(1, 0, "B");
  builder.between(0, 0, "Self");
  const std::string text = treeText(rigOf(builder.object(), kFileName), {});
  EXPECT_THAT(text, HasSubstr("  Self\n  └─ A\n     └─ B\n"));
}

TEST(RigReport, AChainOfThousandsStaysReadable) {
  RigBuilder builder;
  auto last = builder.root("0", {0, 0, 0}, {0, 1, 0});
  for (int i = 1; i < 3000; ++i) last = builder.child(last, std::to_string(i), {0, static_cast<float>(i), 0});
  const std::string text = treeText(rigOf(builder.object(), kFileName), {});
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3001);
  EXPECT_LT(text.size(), 3000U * 200U);
}

TEST(RigReport, PolygonsOfFewerPointsAreShownWithoutAPlaceInTheTree) {
  ObjectFile object = SoundRig().object();
  object.layers[0].groups[0].polygons[0].points.clear();
  object.layers[0].groups[0].polygons[1].points.resize(1);
  EXPECT_THAT(treeText(rigOf(object, kFileName), {}), HasSubstr("  Root\n"));
}

TEST(RigReport, JsonHoldsTreeAndFindings) {
  SoundRig sound;
  sound.set(sound.hand, 55, "Hand_goal");
  Inspected file{"folder/rig.lwo", {}, sound.rig(), {}};
  file.findings = findingsOf(file.rig, CodePage(932));
  const auto json = nlohmann::json::parse(inspectionJson({file}, {}));
  EXPECT_EQ(json[0]["file"], "folder/rig.lwo");
  const auto& hand = json[0]["layers"][0]["skelegons"][1];
  EXPECT_EQ(hand["parent"], "Root");
  EXPECT_EQ(hand["settings"][0]["name"], "Bone Active");
  EXPECT_EQ(hand["settings"][0]["text"], "0");
  EXPECT_EQ(json[0]["findings"][0]["id"], "becomes-null");
  EXPECT_EQ(json[0]["findings"][0]["weight"], "note");
  EXPECT_EQ(json[0]["problems"], 0);
  EXPECT_EQ(json[0]["notes"], 1);
  EXPECT_EQ(json[0]["findings"][0]["setting"], "Goal Object");
}

// A chain of that many skelegons, none with a colour.
Rig rigOfOrangeBones(int count) {
  RigBuilder builder;
  builder.layer(0, "Rig");
  auto last = builder.root("Bone0", {0, 0, 0}, {0, 1, 0});
  for (int i = 1; i < count; ++i) last = builder.child(last, "Bone" + std::to_string(i), {0, static_cast<float>(i + 1), 0});
  return rigOf(builder.object(), kFileName);
}

TEST(RigReport, FindingsThatSayTheSameAreOneLine) {
  const auto lines = [](int bones, Language language) {
    const Rig rig = rigOfOrangeBones(bones);
    return findingsText(rig, findingsOf(rig, CodePage(932)), language);
  };
  EXPECT_THAT(lines(1, Language::English), testing::StartsWith("  problem [colour-missing] Rig / Bone0 / Color (bone): no"));
  EXPECT_THAT(lines(3, Language::English),
              testing::StartsWith("  problem [colour-missing] 3 × Rig / Bone0, Bone1, Bone2 / Color (bone): no"));
  const std::string many = lines(22, Language::English);
  EXPECT_THAT(many, HasSubstr("22 × Rig / Bone0, Bone1, Bone2 and 19 more / Color (bone): no"));
  EXPECT_EQ(std::count(many.begin(), many.end(), '\n'), 1);
  EXPECT_THAT(lines(22, Language::Japanese), HasSubstr("22 × Rig / Bone0、Bone1、Bone2、ほか 19 個 / 色 (ボーン): "));
}

TEST(RigReport, ProblemsWithDifferentTextsStayApart) {
  SoundRig sound;
  sound.set(sound.root, 51, "Here");
  sound.set(sound.hand, 51, "There");
  const std::string text = findingsText(sound.rig(), findingsOf(sound.rig(), CodePage(932)), Language::English);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2);
}

TEST(RigReport, NamesThatBecomeNullsAreOneLine) {
  SoundRig sound;
  sound.set(sound.root, 55, "Root_goal");
  sound.set(sound.hand, 55, "Hand_goal");
  const auto text = [&] { return findingsText(sound.rig(), findingsOf(sound.rig(), CodePage(932)), Language::English); };
  EXPECT_THAT(text(),
              testing::StartsWith("  note [becomes-null] 2 × Rig / Root, Hand / Goal Object: nothing in the file bears "
                                  "the name \"Root_goal\", \"Hand_goal\": "));
  sound.set(sound.hand, 53, "Hand_pole");
  sound.set(sound.hand, 92, "Hand_rot");
  EXPECT_THAT(text(), HasSubstr("4 × Rig / Root, Hand: nothing in the file bears the name \"Root_goal\", "
                                "\"Hand_pole\", \"Hand_goal\" and 1 more: "));
  const std::string all = text();
  EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 1);
}

TEST(RigReport, TheSummaryCountsProblemsAndNotes) {
  SoundRig sound;
  sound.set(sound.root, 31, "strong");
  sound.set(sound.root, 33, "1");
  sound.set(sound.hand, 33, "1");
  const auto findings = findingsOf(sound.rig(), CodePage(932));
  EXPECT_EQ(summaryText("a.lwo", findings, 932, Language::English), "a.lwo: 1 problem, 2 notes (code page 932)\n");
  EXPECT_EQ(summaryText("a.lwo", findings, 932, Language::Japanese), "a.lwo: 問題 1、注意 2 (コードページ 932)\n");
}

TEST(RigReport, EachFindingNamesItsEntryInTheManual) {
  SoundRig sound;
  sound.set(sound.hand, 55, "Hand_goal");
  Inspected file{"rig.lwo", {}, sound.rig(), {}};
  file.findings = findingsOf(file.rig, CodePage(932));
  EXPECT_THAT(findingsText(file.rig, file.findings, Language::English),
              HasSubstr(" (see manual/en/messages.html#becomes-null)\n"));
  EXPECT_THAT(findingsText(file.rig, file.findings, Language::Japanese),
              HasSubstr("（manual/ja/messages.html#becomes-null を参照）\n"));
  const auto json = nlohmann::json::parse(inspectionJson({file}, {}));
  EXPECT_EQ(json[0]["findings"][0]["manual"], "manual/en/messages.html#becomes-null");
}

TEST(RigReport, JsonSurvivesTextsThatAreNoUtf8) {
  SoundRig sound;
  sound.set(sound.hand, 55, "\xff");
  const Inspected file{"rig.lwo", {}, sound.rig(), {}};
  EXPECT_TRUE(nlohmann::json::accept(inspectionJson({file}, {})));
}

}  // namespace
}  // namespace standin::rigs
