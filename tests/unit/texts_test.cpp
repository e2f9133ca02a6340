#include "texts/texts.h"

#include <gtest/gtest.h>

#include <string>

namespace texts {
namespace {

constexpr Language kBoth[] = {Language::English, Language::Japanese};

std::string choice(ChoiceList list, std::size_t index, Language language = Language::English) {
  return propertyChoices()[static_cast<std::size_t>(list)].in(language)[index];
}

TEST(PropertyLabels, HaveTextsInTheSamePlacesInBothLanguages) {
  std::size_t labelled = 0;
  for (std::size_t i = 0; i < kPropertyLabelCount; ++i) {
    const std::string english = propertyLabels(Language::English)[i];
    EXPECT_EQ(english.empty(), std::string(propertyLabels(Language::Japanese)[i]).empty()) << i;
    labelled += english.empty() ? 0 : 1;
  }
  EXPECT_EQ(labelled, 157u);
}

TEST(PropertyLabels, ShowAnImageOnTheFillButtonsInBothLanguages) {
  for (const Language language : kBoth) {
    for (const std::size_t button : {17, 43, 50, 57, 66, 93, 127, 160}) {
      EXPECT_EQ(std::string(propertyLabels(language)[button]), "\x03(i:MIMG_LEFTARROW)") << button;
    }
  }
}

// Spelled so in the system's own texts.
TEST(PropertyLabels, KeepTheSpellingOfTheJapaneseBlendingLabel) {
  EXPECT_EQ(std::string(propertyLabels(Language::Japanese)[76]), "IK/FKブレンディグ");
}

TEST(PropertyChoices, CountTheirClosingNull) {
  const unsigned counts[] = {5, 9, 5, 3, 4, 3, 5, 5, 4, 4, 3, 8, 10, 17, 7};
  for (std::size_t i = 0; i < kChoiceListCount; ++i) EXPECT_EQ(propertyChoices()[i].count, counts[i]) << i;
}

TEST(PropertyChoices, SpellMagendaSo) { EXPECT_EQ(choice(ChoiceList::Colour, 12), "\x03(i:BLOCK8, 32567392)Magenda"); }

TEST(PropertyChoices, DifferInTheLastColourOnly) {
  for (std::size_t i = 0; i < 15; ++i) {
    EXPECT_EQ(choice(ChoiceList::Colour, i, Language::English), choice(ChoiceList::Colour, i, Language::Japanese));
  }
  EXPECT_EQ(choice(ChoiceList::Colour, 15, Language::English), "Modeler Setting");
  EXPECT_EQ(choice(ChoiceList::Colour, 15, Language::Japanese), "モデラー設定");
}

TEST(PropertyChoices, AreTheSameInBothLanguagesForChannelsAndOrders) {
  for (const ChoiceList list : {ChoiceList::FollowChannel, ChoiceList::RotationOrder}) {
    const ChoiceListRow& row = propertyChoices()[static_cast<std::size_t>(list)];
    EXPECT_EQ(row.english, row.japanese);
  }
}

TEST(RenamerChoices, CountTheirClosingNull) {
  const unsigned counts[] = {7, 5, 18, 27};
  for (std::size_t i = 0; i < kRenamerListCount; ++i) EXPECT_EQ(renamerChoices()[i].count, counts[i]) << i;
}

TEST(RenamerMessages, ArePairsOfTitleAndTextClosedByAnEmptyEntry) {
  for (const Language language : kBoth) {
    const RenamerMessages& messages = renamerMessages(language);
    EXPECT_STREQ(messages[0], "Error");
    EXPECT_STREQ(messages[2], "");
    EXPECT_STREQ(messages[3], "Error");
    EXPECT_STREQ(messages[5], "");
  }
  EXPECT_STREQ(renamerMessages(Language::English)[1], "Need select the skelegon!");
  EXPECT_STREQ(renamerMessages(Language::Japanese)[4], "スケルゴン名が重複します！");
}

TEST(LayoutTexts, StandAtTheirThreeIndices) {
  EXPECT_STREQ(layoutTexts(Language::English)[2], "Execute SkelegonToBone");
  EXPECT_STREQ(layoutTexts(Language::Japanese)[3], "ボーンの中心点回転記録を実行する");
  EXPECT_STREQ(layoutTexts(Language::Japanese)[4], "実行");
  for (const std::size_t empty : {0, 1, 5}) EXPECT_STREQ(layoutTexts(Language::English)[empty], "");
}

}  // namespace
}  // namespace texts
