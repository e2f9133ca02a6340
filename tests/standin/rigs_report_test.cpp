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
  const std::string text = treeText(sound.rig(), {Language::English, true});
  EXPECT_THAT(text, HasSubstr("Bone Type: Z axis (default)"));
  EXPECT_THAT(text, HasSubstr("tag PART: \"Root\""));
  EXPECT_THAT(text, HasSubstr("Color (bone): not stored, will become orange"));
  EXPECT_THAT(text, Not(HasSubstr("Color (bone): Modeler Setting")));
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
  EXPECT_EQ(json[0]["findings"][0]["setting"], "Goal Object");
}

TEST(RigReport, EachFindingNamesItsEntryInTheManual) {
  SoundRig sound;
  sound.set(sound.hand, 55, "Hand_goal");
  Inspected file{"rig.lwo", {}, sound.rig(), {}};
  file.findings = findingsOf(file.rig, CodePage(932));
  EXPECT_THAT(findingsText(file.rig, file.findings, 932, Language::English),
              HasSubstr(" (see manual/en/messages.html#becomes-null)\n"));
  EXPECT_THAT(findingsText(file.rig, file.findings, 932, Language::Japanese),
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
