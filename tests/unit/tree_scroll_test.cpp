// Scroll offsets and thumbs.
#include <cmath>

#include "tests/unit/tree_view_fixture.h"

namespace mst {
namespace {

CScrollAxis axis(int seen, int content) {
  CScrollAxis axis;
  axis.setLengths(seen, content);
  return axis;
}

TEST(TreeScroll, TheThumbIsAsLongInProportionAsWhatIsSeen) {
  EXPECT_EQ(axis(100, 400).thumb().from, 0);
  EXPECT_EQ(axis(100, 400).thumb().to, 25);
}

TEST(TreeScroll, TheThumbIsNeverShorterThanTwelvePixels) {
  EXPECT_EQ(axis(100, 833).thumb().to, 12);
  EXPECT_EQ(axis(100, 2'000'000).thumb().to, 12);
}

TEST(TreeScroll, InAVeryShortStripTheThumbIsAllOfIt) { EXPECT_EQ(axis(7, 1000).thumb().to, 7); }

TEST(TreeScroll, WhereAllIsSeenTheThumbIsAllOfTheStrip) {
  for (const int content : {0, 50, 100}) {
    EXPECT_EQ(axis(100, content).thumb().from, 0);
    EXPECT_EQ(axis(100, content).thumb().to, 100);
  }
}

TEST(TreeScroll, AtTheEndTheThumbTouchesTheEnd) {
  CScrollAxis bar = axis(100, 401);
  bar.scrollTo(1'000'000);
  EXPECT_EQ(bar.offset(), 301 * 8);
  EXPECT_EQ(bar.thumb().to, 100);
}

TEST(TreeScroll, OffsetsStayInRange) {
  CScrollAxis bar = axis(100, 400);
  EXPECT_FALSE(bar.scrollTo(-5));
  EXPECT_TRUE(bar.scrollTo(2401));
  EXPECT_EQ(bar.offset(), 2400);
  EXPECT_FALSE(bar.scrollBy(8));
}

TEST(TreeScroll, LessContentBringsTheOffsetBack) {
  CScrollAxis bar = axis(100, 400);
  bar.scrollTo(2400);
  bar.setLengths(100, 150);
  EXPECT_EQ(bar.offset(), 400);
  bar.setLengths(200, 150);
  EXPECT_EQ(bar.offset(), 0);
}

// Over all sizes that matter the thumb is where the pointer is, to the pixel.
TEST(TreeScroll, TheThumbFollowsThePointerToThePixel) {
  for (int seen = 13; seen < 700; seen += 61) {
    for (int content = seen + 1; content < 20000; content = content * 5 / 4 + 3) {
      CScrollAxis bar = axis(seen, content);
      const int room = seen - bar.thumb().to;
      for (int distance = 0; distance <= room; ++distance) {
        bar.scrollTo(bar.offsetAfterDrag(0, distance));
        ASSERT_EQ(bar.thumb().from, distance) << seen << " of " << content;
      }
    }
  }
}

TEST(TreeScroll, ExtremeLengthsDoNotOverflow) {
  CScrollAxis bar = axis(2'000'000'000, 2'147'483'647);
  bar.scrollTo(4'000'000'000'000);
  EXPECT_GE(bar.offset(), 0);
  bar.setLengths(-50, 100);
  EXPECT_EQ(bar.thumb().to, 0);
  EXPECT_EQ(bar.offsetAfterDrag(3, 1'000'000), 3);
}

// ---------------------------------------------------------------------------------------------------------------------
// In the view: 40 rows of 14 pixels below 200 by 150, the longest reaching to pixel 24 + 4 + 40 * 6.

class TreeScrolling : public TreeViewTest {
 protected:
  TreeScrolling() {
    SkelegonInfos skelegons;
    for (int i = 0; i < 37; ++i) skelegons.push_back(skelegon("S" + std::to_string(i), 0, 0));
    skelegons.push_back(skelegon(std::string(40, 'x'), 0, 0));
    tree.setNodes(buildSelectorNodes(std::move(skelegons), {"L"}, {}));
  }
  static constexpr int kRows = 41;
  static constexpr int kGreatestX = (28 + 240 - 200) * 8;
  static constexpr int kGreatestY = (kRows * 14 - 150) * 8;

  void dragFrom(int x, int y) { tree.press({x, y, kLeft | kDown, 1}); }
};

TEST_F(TreeScrolling, TheContentIsAsWideAsTheLongestRow) { EXPECT_EQ(tree.picture().contentWidth, 28 + 240); }

TEST_F(TreeScrolling, AHiddenRowDoesNotCount) {
  pressExpander(1);
  EXPECT_EQ(tree.picture().contentWidth, 12 + 4 + 10 * 6);  // "[Layer1]:L"
}

TEST_F(TreeScrolling, TheVerticalThumbMovesTheRows) {
  dragFrom(205, 10);
  EXPECT_TRUE(tree.drag(205, 20).looks);
  EXPECT_GT(tree.scrollY(), 0);
  EXPECT_EQ(tree.scrollX(), 0);
  tree.drag(205, 10000);
  EXPECT_EQ(tree.scrollY(), kGreatestY);
}

TEST_F(TreeScrolling, TheHorizontalThumbMovesThemSideways) {
  dragFrom(10, 155);
  tree.drag(10000, 155);
  EXPECT_EQ(tree.scrollX(), kGreatestX);
  EXPECT_EQ(tree.scrollY(), 0);
}

TEST_F(TreeScrolling, BackAtThePressTheViewIsAsBefore) {
  tree.wheel(-2);
  const int before = tree.scrollY();
  dragFrom(205, 30);
  tree.drag(205, 90);
  tree.drag(205, 30);
  EXPECT_EQ(tree.scrollY(), before);
}

TEST_F(TreeScrolling, ASecondDragSidewaysBeginsWhereTheFirstEnded) {
  dragFrom(10, 155);
  tree.drag(60, 155);
  tree.release();
  const int before = tree.scrollX();
  ASSERT_GT(before, 0);
  dragFrom(60, 155);
  tree.drag(70, 155);
  EXPECT_GT(tree.scrollX(), before);
  tree.drag(60, 155);
  EXPECT_EQ(tree.scrollX(), before);
}

TEST_F(TreeScrolling, AMoveThatChangesNothingAsksForNoDrawing) {
  dragFrom(205, 10);
  EXPECT_FALSE(tree.drag(205, 5).looks);
  EXPECT_FALSE(tree.drag(150, 10).looks);
}

TEST_F(TreeScrolling, AfterTheReleaseNothingMoves) {
  dragFrom(205, 10);
  tree.release();
  EXPECT_FALSE(tree.drag(205, 100).looks);
}

TEST_F(TreeScrolling, ADragOverTheRowsScrollsNothing) {
  dragFrom(50, 50);
  EXPECT_FALSE(tree.drag(50, 150).looks);
}

TEST_F(TreeScrolling, TheWheelMovesThreeRowsEachClick) {
  tree.wheel(-2);
  EXPECT_EQ(tree.scrollY(), 6 * 14 * 8);
  tree.wheel(1);
  EXPECT_EQ(tree.scrollY(), 3 * 14 * 8);
}

TEST_F(TreeScrolling, TheWheelStopsAtTheEnds) {
  tree.wheel(-2'000'000'000);
  EXPECT_EQ(tree.scrollY(), kGreatestY);
  tree.wheel(2'000'000'000);
  EXPECT_EQ(tree.scrollY(), 0);
}

TEST_F(TreeScrolling, CollapsingBringsTheOffsetBackIntoRange) {
  dragFrom(10, 155);
  tree.drag(10000, 155);
  tree.release();
  tree.press({0, middleOf(1), kRight | kDown, 1});
  EXPECT_EQ(tree.scrollX(), 0);
}

TEST_F(TreeScrolling, FewerNodesBringTheOffsetsBackIntoRange) {
  tree.wheel(-1000);
  tree.setNodes(buildSelectorNodes({skelegon("A", 0, 0)}, {"L"}, {}));
  EXPECT_EQ(tree.scrollY(), 0);
}

TEST_F(TreeScrolling, AsManyNodesKeepTheOffsets) {
  tree.wheel(-3);
  SelectorNodes same = tree.nodes();
  tree.setNodes(std::move(same));
  EXPECT_EQ(tree.scrollY(), 9 * 14 * 8);
}

TEST_F(TreeScrolling, AnotherSizeBeginsAtTheTop) {
  tree.wheel(-3);
  pressLabel(20);
  tree.setView(212, 163);
  EXPECT_EQ(tree.scrollY(), 0);
  EXPECT_EQ(tree.anchor(), kNoRow);
}

TEST_F(TreeScrolling, AnotherSizeEndsADrag) {
  for (const auto& [x, y] : {std::pair{205, 10}, std::pair{10, 155}}) {
    dragFrom(x, y);
    tree.setView(212, 162);
    EXPECT_FALSE(tree.drag(x + 50, y + 50).looks);
  }
}

TEST_F(TreeScrolling, ThePictureTellsPixels) {
  tree.wheel(-1);
  const TreePicture picture = tree.picture();
  EXPECT_EQ(picture.width, 212);
  EXPECT_EQ(picture.height, 162);
  EXPECT_EQ(picture.scrollY, 42);
  EXPECT_EQ(picture.rows.size(), 41U);
  EXPECT_EQ(tree.viewWidth(), 212 * 8);
  EXPECT_EQ(picture.verticalThumb.to - picture.verticalThumb.from, 150 * 150 / (kRows * 14));
}

TEST(TreeWidth, FullWidthCharactersTakeTwoCellsAndBrokenBytesOne) {
  CTreeView tree;
  tree.setNodes(buildSelectorNodes({skelegon("腰の骨\xFF\xFE 12345678", 0, 0)}, {"L"}, {}));
  EXPECT_EQ(tree.picture().contentWidth, 2 * 12 + 4 + 6 * (6 + 2 + 9));
}

}  // namespace
}  // namespace mst
