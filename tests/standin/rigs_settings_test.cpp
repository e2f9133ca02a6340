// Names and values of settings as a person reads them.
#include "rigs/settings.h"

#include <gtest/gtest.h>

#include <set>

#include "interface/lightwave.h"
#include "rigs/code_page.h"
#include "rigs/text.h"
#include "rigs/values.h"

namespace standin::rigs {
namespace {

const Setting& named(const char* english) {
  const Setting* const setting = settingNamed(english);
  if (setting == nullptr) throw std::runtime_error(english);
  return *setting;
}

TEST(RigSettings, EverySettingHasANameOfItsOwnInBothLanguages) {
  std::set<std::string> english;
  std::set<std::string> japanese;
  for (const Setting& setting : allSettings()) {
    EXPECT_TRUE(english.insert(setting.english).second) << setting.english;
    EXPECT_TRUE(japanese.insert(setting.japanese).second) << setting.english << ": " << setting.japanese;
    EXPECT_FALSE(setting.japanese.empty()) << setting.english;
  }
  EXPECT_EQ(english.size(), 165U);  // 187 less 22 reserved and the name, and the colour twice
}

TEST(RigSettings, SharedLabelsSayWhoseTheyAre) {
  EXPECT_EQ(named("Max (Y Pos Limits)").japanese, "最大 (Y位置制限)");
  EXPECT_EQ(named("Color (Goal Object)").japanese, "色 (ゴールオブジェクト)");
  EXPECT_EQ(named("Offset (Heading)").japanese, "オフセット (ヘディング制御)");
  EXPECT_EQ(named("Twist amount").japanese, "量 (ツイスト)");
  EXPECT_EQ(named("Scale blend amount").japanese, "ブレンド量 (スケールアイテム)");
  EXPECT_EQ(named("Visibility (bone)").japanese, "表示 (ボーン)");
}

TEST(RigSettings, TagsOfTheHostStandForTheirSettings) {
  EXPECT_EQ(settingOfTag(lw::fourCharacters('B', 'N', 'W', 'T'))->english, "Bone Weight Map");
  EXPECT_EQ(settingOfTag(lw::fourCharacters('C', 'O', 'L', 'R'))->english, "Color (bone)");
  EXPECT_EQ(settingOfTag(skg::kColourCopyTag)->english, "Color (bone) as chosen");
  EXPECT_EQ(settingOfTag(skg::plainSlotTagId(28)), nullptr);
  EXPECT_EQ(settingOfTag(skg::plainSlotTagId(144)), nullptr);
}

TEST(RigSettings, ChoicesAreThoseOfThePanelWithoutDrawingCodes) {
  EXPECT_EQ(named("Falloff Type").englishChoices.at(2), "Inverse Distance^4");
  EXPECT_EQ(named("Falloff Type").japaneseChoices.at(2), "反比例^4");
  EXPECT_EQ(named("Color (bone)").englishChoices.at(4), "Dark Red");
  EXPECT_EQ(named("Color (bone)").japaneseChoices.at(15), "モデラー設定");
}

struct ShownRow {
  const char* setting;
  const char* text;
  const char* english;
  const char* japanese;
};

TEST(RigSettings, ValuesAreShownWithTheirUnitsAndWords) {
  constexpr ShownRow kRows[] = {
      {"Strength", "80.000000", "80 %", "80 %"},
      {"Max (Limited Range)", "0.250000", "0.25 m", "0.25 m"},
      {"Min (Heading Limits)", "-1.570796", "-90°", "-90°"},
      {"Max (Heading Limits)", "3.141592", "180°", "180°"},
      {"Min (Pitch Limits)", "-2.500000", "-143.239°", "-143.239°"},
      {"Goal Strength", "-0.000000", "0", "0"},
      {"Bone Active", "0", "off", "オフ"},
      {"Bone Type", "1", "Joint", "ジョイント"},
      {"Frame (IK initial state frame)", "-12", "-12", "-12"},
      {"Color (bone)", "DkRed", "Dark Red", "Dark Red"},
      {"Goal Object", "Hand_goal", "Hand_goal", "Hand_goal"},
      {"Goal Object", "", "\"\"", "\"\""},
      // what does not read as its kind
      {"Strength", "80 percent", "\"80 percent\"", "\"80 percent\""},
      {"Strength", "", "\"\"", "\"\""},
      {"Bone Type", "2", "\"2\"", "\"2\""},
      {"Color (bone)", "Pink", "\"Pink\"", "\"Pink\""},
      {"Goal Object", "a\nb", "a\\x0ab", "a\\x0ab"},
  };
  for (const ShownRow& row : kRows) {
    EXPECT_EQ(shown(named(row.setting), row.text, Language::English), row.english) << row.setting;
    EXPECT_EQ(shown(named(row.setting), row.text, Language::Japanese), row.japanese) << row.setting;
  }
}

TEST(RigSettings, TextsOfOneMeaningAreTheSame) {
  EXPECT_TRUE(meansTheSame(named("Strength"), "100", "100.000000"));
  EXPECT_FALSE(meansTheSame(named("Strength"), "100", "100.5"));
  EXPECT_TRUE(meansTheSame(named("Bone Active"), "2", "1"));
  EXPECT_FALSE(meansTheSame(named("Bone Type"), "2", "1"));
  EXPECT_FALSE(meansTheSame(named("Goal Object"), "a", "A"));
}

TEST(RigSettings, ReadingTellsHowMuchOfATextIsTheNumber) {
  EXPECT_EQ(readingOf(skg::SlotKind::Number, " +1.5"), Reading::Whole);
  EXPECT_EQ(readingOf(skg::SlotKind::Number, "1.5m"), Reading::Beginning);
  EXPECT_EQ(readingOf(skg::SlotKind::Number, "inf"), Reading::Nothing);
  EXPECT_EQ(readingOf(skg::SlotKind::Number, "1e999"), Reading::Nothing);
  EXPECT_EQ(readingOf(skg::SlotKind::Integer, "1.5"), Reading::Beginning);
  EXPECT_EQ(readingOf(skg::SlotKind::Integer, "99999999999"), Reading::Beginning);
  EXPECT_EQ(readingOf(skg::SlotKind::Flag, "yes"), Reading::Nothing);
  EXPECT_EQ(readingOf(skg::SlotKind::Choice, ""), Reading::Nothing);
}

TEST(RigTexts, BytesThatAreNoUtf8AreShownAsNumbers) {
  EXPECT_EQ(printable("頭\x82\xa0z\x7f"), "頭\\x82\\xa0z\\x7f");
  EXPECT_EQ(printable("\xc2\x85"), "\\xc2\\x85");
  EXPECT_EQ(printable("a\u202eb\u2069"), "a\\xe2\\x80\\xaeb\\xe2\\x81\\xa9");  // they turn what follows
  EXPECT_EQ(printable("שלום"), "שלום");
  EXPECT_FALSE(isUtf8("\xc0\x80"));
  EXPECT_FALSE(isUtf8("\xed\xa0\x80"));
  EXPECT_FALSE(isUtf8("\xe9\xa0"));
  EXPECT_TRUE(isUtf8("\xf0\x9f\xa6\x8e"));
}

TEST(CodePages, HoldTheCharactersOfTheirCountries) {
  const CodePage japanese(932);
  const CodePage western(1252);
  ASSERT_TRUE(japanese.isKnown() && western.isKnown());
  EXPECT_TRUE(japanese.holds("頭ソ"));
  EXPECT_FALSE(western.holds("頭ソ"));
  EXPECT_FALSE(japanese.holds("é"));
  EXPECT_TRUE(western.holds("é"));
  EXPECT_TRUE(CodePage(kUtf8CodePage).holds("頭é🦎"));
  EXPECT_FALSE(CodePage(kUtf8CodePage).holds("\xff"));
  EXPECT_TRUE(japanese.holds(""));
}

TEST(CodePages, OneThatTheSystemLacksIsNotKnown) { EXPECT_FALSE(CodePage(4711).isKnown()); }

}  // namespace
}  // namespace standin::rigs
