// What a press at each place of the view hits, and what mouse bits ask for.
#include "modeler/selector/tree_hits.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace mst {
namespace {

constexpr int kWidth = 100;
constexpr int kHeight = 80;
constexpr TreeWindow kWindow = {kWidth, kHeight, 0, 0};

// Rows of depth 0, 1, 2, 3.
constexpr std::array kRows = {TreeRow{0, 0}, TreeRow{1, 1}, TreeRow{2, 2}, TreeRow{3, 3}};

char letterOf(TreePart part) {
  switch (part) {
    case TreePart::Outside: return 'o';
    case TreePart::HorizontalBar: return 'h';
    case TreePart::VerticalBar: return 'v';
    case TreePart::Expander: return 'E';
    case TreePart::Label: return 'L';
    case TreePart::Neither: return 'n';
  }
  return '?';
}

// What is hit along a row, one letter for each pixel.
std::string alongRow(int row, const TreeWindow& window = kWindow) {
  std::string letters;
  for (int x = 0; x < window.width; ++x) letters += letterOf(hitAt(x, 14 * row + 7, window, kRows).part);
  return letters;
}
std::string runs(int label, int neither, int expander) {
  std::string letters = std::string(static_cast<std::size_t>(label), 'L') +
                        std::string(static_cast<std::size_t>(neither), 'n') +
                        std::string(static_cast<std::size_t>(expander), 'E');
  letters += std::string(kWidth - 12 - letters.size(), 'L');
  return letters + std::string(12, 'v');
}

TEST(TreeHits, EachPixelOfARowAtDepth0) { EXPECT_EQ(alongRow(0), runs(0, 0, 10)); }
TEST(TreeHits, EachPixelOfARowAtDepth1) { EXPECT_EQ(alongRow(1), runs(0, 0, 22)); }
// From here the gap of three pixels left of the expander is in sight, and the label left of that, deliberately.
TEST(TreeHits, EachPixelOfARowAtDepth2) { EXPECT_EQ(alongRow(2), runs(7, 3, 24)); }
TEST(TreeHits, EachPixelOfARowAtDepth3) { EXPECT_EQ(alongRow(3), runs(19, 3, 24)); }

TEST(TreeHits, ARowReachesOverFourteenPixels) {
  EXPECT_EQ(hitAt(50, 13, kWindow, kRows).row, 0U);
  EXPECT_EQ(hitAt(50, 14, kWindow, kRows).row, 1U);
  EXPECT_EQ(hitAt(50, 27, kWindow, kRows).row, 1U);
  EXPECT_EQ(hitAt(50, 28, kWindow, kRows).row, 2U);
}

TEST(TreeHits, BelowTheLastRowNothingIsHit) {
  EXPECT_EQ(hitAt(50, 55, kWindow, kRows).part, TreePart::Label);
  EXPECT_EQ(hitAt(50, 56, kWindow, kRows).part, TreePart::Neither);
  EXPECT_EQ(hitAt(50, 56, kWindow, kRows).row, kNoRow);
}

TEST(TreeHits, OutsideOfTheViewNothingIsHit) {
  for (const auto& [x, y] : {std::pair{-1, 20}, {100, 20}, {20, -1}, {20, 80}, {-5, -5}, {1000, 1000}}) {
    EXPECT_EQ(hitAt(x, y, kWindow, kRows).part, TreePart::Outside) << x << "," << y;
  }
}

TEST(TreeHits, TheBottomTwelvePixelsAreTheHorizontalBar) {
  EXPECT_NE(hitAt(20, 67, kWindow, kRows).part, TreePart::HorizontalBar);
  EXPECT_EQ(hitAt(20, 68, kWindow, kRows).part, TreePart::HorizontalBar);
  EXPECT_EQ(hitAt(0, 79, kWindow, kRows).part, TreePart::HorizontalBar);
  EXPECT_EQ(hitAt(87, 79, kWindow, kRows).part, TreePart::HorizontalBar);
}

TEST(TreeHits, TheRightTwelvePixelsAreTheVerticalBar) {
  EXPECT_EQ(hitAt(87, 20, kWindow, kRows).part, TreePart::Label);
  EXPECT_EQ(hitAt(88, 20, kWindow, kRows).part, TreePart::VerticalBar);
  EXPECT_EQ(hitAt(99, 0, kWindow, kRows).part, TreePart::VerticalBar);
  EXPECT_EQ(hitAt(99, 67, kWindow, kRows).part, TreePart::VerticalBar);
}

// Deliberate: no bar reaches into the corner, and what is behind it counts.
TEST(TreeHits, TheCornerBetweenTheBarsHitsWhatIsBehindIt) {
  EXPECT_EQ(hitAt(88, 68, kWindow, kRows).part, TreePart::Neither);
  const TreeWindow low = {kWidth, 40, 0, 0};
  EXPECT_EQ(hitAt(99, 39, low, kRows).part, TreePart::Label);
  EXPECT_EQ(hitAt(99, 39, low, kRows).row, 2U);
}

TEST(TreeHits, ScrollOffsetsCountInEighthsOfAPixel) {
  const TreeWindow scrolled = {kWidth, kHeight, 5 * 8, 14 * 8};
  EXPECT_EQ(hitAt(50, 0, scrolled, kRows).row, 1U);
  EXPECT_EQ(hitAt(16, 0, scrolled, kRows).part, TreePart::Expander);
  EXPECT_EQ(hitAt(17, 0, scrolled, kRows).part, TreePart::Label);
}

TEST(TreeHits, PartsOfAPixelDoNotCount) {
  EXPECT_EQ(hitAt(50, 13, {kWidth, kHeight, 0, 7}, kRows).row, 0U);
  EXPECT_EQ(hitAt(50, 13, {kWidth, kHeight, 0, 8}, kRows).row, 1U);
}

TEST(TreeHits, ScrolledToTheRightTheGapComesIntoSight) {
  EXPECT_EQ(alongRow(3, {kWidth, kHeight, 10 * 8, 0}).substr(0, 14), "LLLLLLLLLnnnEE");
}

TEST(TreeHits, AViewSmallerThanItsBarsHasOnlyBars) {
  const TreeWindow tiny = {8, 8, 0, 0};
  EXPECT_EQ(hitAt(4, 4, tiny, kRows).part, TreePart::Expander);  // all corner
  EXPECT_EQ(hitAt(0, 0, {0, 0, 0, 0}, kRows).part, TreePart::Outside);
}

TEST(TreeHits, AnEmptyTreeIsHitNowhere) { EXPECT_EQ(hitAt(20, 7, kWindow, {}).part, TreePart::Neither); }

// ---------------------------------------------------------------------------------------------------------------------
// Mouse bits

// "t" toggle, "e" extend, "s" subtree, "c" click, "d" double.
std::string asked(int bits) {
  const TreeAction action = actionOf(bits);
  std::string letters;
  if (action.toggle) letters += 't';
  if (action.extend) letters += 'e';
  if (action.subtree) letters += 's';
  if (action.click) letters += 'c';
  if (action.doubleClick) letters += 'd';
  return letters;
}

TEST(TreeActions, WithoutAButtonDownNothingIsAskedFor) {
  for (int bits = 0; bits < 128; ++bits) EXPECT_EQ(asked(bits), "");
}

TEST(TreeActions, TheFirstButtonBitAloneIsAClick) { EXPECT_EQ(asked(128 | 32), "c"); }
TEST(TreeActions, BothButtonBitsAreADoubleClick) { EXPECT_EQ(asked(128 | 32 | 64), "d"); }
TEST(TreeActions, TheSecondButtonBitAloneIsNeither) { EXPECT_EQ(asked(128 | 64), ""); }

TEST(TreeActions, QualifiersAreBitsOfTheirOwn) {
  for (int bits = 0; bits < 8; ++bits) {
    const std::string wanted =
        std::string((bits & 1) != 0 ? "t" : "") + ((bits & 2) != 0 ? "e" : "") + ((bits & 4) != 0 ? "s" : "");
    EXPECT_EQ(asked(128 | bits), wanted);
    EXPECT_EQ(asked(128 | 32 | bits | 8 | 16), wanted + "c");
  }
}

}  // namespace
}  // namespace mst
