// The tree as it is seen: drawn by the system's OpenGL, read back pixel by pixel.
#include <algorithm>
#include <array>

#include "tests/pictures/tree_picture_fixture.h"

namespace pictures {
namespace {

using standin::Picture;

TEST_F(TreePictures, StripesAlternateBelowTheLastRowToo) {
  const Picture seen = drawn();
  for (int y = 0; y < kHeight - 12; ++y) {
    EXPECT_PRED2(isLike, seen.at(200, y), (y / 14) % 2 == 0 ? kEvenStripe : kOddStripe) << y;
  }
}

TEST_F(TreePictures, SelectedRowsAreTinted) {
  for (const char* name : {"a", "b", "c"}) tree.add(0, name);
  tree.nodes[1].state |= mst::kStateSelected;
  tree.nodes[2].state |= mst::kStateSelected;
  const Picture seen = drawn();
  for (int y = 0; y < 14; ++y) {
    EXPECT_PRED2(isLike, seen.at(200, 14 + y), kOddSelected);
    EXPECT_PRED2(isLike, seen.at(200, 28 + y), kEvenSelected);
    EXPECT_PRED2(isLike, seen.at(200, 42 + y), kOddStripe);
  }
}

// The line lies between two columns of pixels; which one it takes is OpenGL's choice.
TEST_F(TreePictures, ABranchIsEveryOtherPixel) {
  const std::size_t top = tree.add(0, "");
  for (int i = 0; i < 5; ++i) tree.add(top, "");
  const Picture seen = drawn();
  // From the middle of row 1 to that of row 6, where no marker and no twig is in the way.
  const int column = countOf(seen.part({9, 29, 1, 60}), kGuide) > 0 ? 9 : 10;
  EXPECT_EQ(countOf(seen.part({19 - column, 29, 1, 60}), kGuide), 0);
  int dots = 0;
  for (int y = 28; y < 6 * 14; ++y) {
    const bool isDot = isLike(seen.at(column, y), kGuide);
    EXPECT_NE(isDot, isLike(seen.at(column, y + 1), kGuide)) << y;
    dots += isDot ? 1 : 0;
  }
  EXPECT_EQ(dots, 28);
  EXPECT_EQ(countOf(seen.part({9, 6 * 14 + 9, 2, 100}), kGuide), 0);
}

TEST_F(TreePictures, ATwigIsEveryOtherPixelFromTheBranchToTheMarker) {
  tree.add(tree.add(0, ""), "");
  const Picture seen = drawn();
  const int row = countOf(seen.part({12, 34, 6, 1}), kGuide) > 0 ? 34 : 35;
  EXPECT_EQ(countOf(seen.part({11, row, 9, 1}), kGuide) + countOf(seen.part({12, row, 9, 1}), kGuide), 9);
  EXPECT_EQ(countOf(seen.part({24, 28, 100, 14}), kGuide), 0);
}

struct Corner {
  double x, y;
};

// Whether a pixel's middle lies within a convex shape; pixels on its edge are nobody's business.
enum class Where { Inside, OnEdge, Outside };
template <std::size_t kCorners>
Where whereIs(double x, double y, const std::array<Corner, kCorners>& shape) {
  bool anyLeft = false;
  bool anyRight = false;
  for (std::size_t i = 0; i < kCorners; ++i) {
    const Corner a = shape[i];
    const Corner b = shape[(i + 1) % kCorners];
    const double side = (b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x);
    if (std::abs(side) < 0.2) return Where::OnEdge;
    (side < 0 ? anyLeft : anyRight) = true;
  }
  return anyLeft && anyRight ? Where::Outside : Where::Inside;
}

constexpr Pixel kMarker = rgb(255, 0, 200);

class Markers : public TreePictures {
 protected:
  // The marker of row 1, at (10, 21); its shape in cells of 6 by 12 pixels.
  template <std::size_t kCorners>
  void expectShape(const std::array<Corner, kCorners>& cells) {
    std::array<Corner, kCorners> pixels{};
    for (std::size_t i = 0; i < kCorners; ++i) pixels[i] = {10 + 6 * cells[i].x, 21 + 12 * cells[i].y};
    tree.nodes[1].colour = mst::Rgba{255, 0, 200, 255};
    const Picture seen = drawn();
    for (int y = 0; y < 60; ++y) {
      for (int x = 0; x < 60; ++x) {
        const Where where = whereIs(x + 0.5, y + 0.5, pixels);
        if (where == Where::OnEdge) continue;
        EXPECT_EQ(isLike(seen.at(x, y), kMarker), where == Where::Inside) << x << ", " << y;
      }
    }
  }
};

TEST_F(Markers, ALeafIsASmallSquare) {
  tree.add(0, "");
  expectShape(std::array<Corner, 4>{{{-0.24, -0.12}, {0.24, -0.12}, {0.24, 0.12}, {-0.24, 0.12}}});
}

TEST_F(Markers, AnExpandedRowPointsDown) {
  tree.add(tree.add(0, ""), "");
  expectShape(std::array<Corner, 3>{{{-0.5, -0.333}, {0, 0.533}, {0.5, -0.333}}});
}

TEST_F(Markers, ACollapsedRowPointsRight) {
  tree.add(tree.add(0, ""), "");
  tree.nodes[1].state = mst::kStateSet;
  expectShape(std::array<Corner, 3>{{{-0.866, 0.25}, {-0.866, -0.25}, {0.866, 0}}});
}

TEST_F(TreePictures, ScrollBarsAndCornerFillTheirStrips) {
  mst::TreePicture view = scrolled(7, 3);
  view.horizontalThumb = {30, 150};
  view.verticalThumb = {50, 90};
  const Picture seen = drawn(view);
  for (int x = 0; x < kWidth; ++x) {
    const Pixel expected = x >= kWidth - 12 ? kCorner : x >= 30 && x < 150 ? kThumb : kStrip;
    for (int y = kHeight - 12; y < kHeight; ++y) EXPECT_PRED2(isLike, seen.at(x, y), expected) << x << ", " << y;
  }
  for (int y = 0; y < kHeight - 12; ++y) {
    for (int x = kWidth - 12; x < kWidth; ++x) {
      EXPECT_PRED2(isLike, seen.at(x, y), y >= 50 && y < 90 ? kThumb : kStrip) << x << ", " << y;
    }
  }
  EXPECT_FALSE(isLike(seen.at(kWidth - 13, 40), kStrip));
  EXPECT_FALSE(isLike(seen.at(200, kHeight - 13), kStrip));
}

TEST_F(TreePictures, TheSamePictureTwiceIsEqual) {
  tree = mst::mixedTree(60);
  tree.nodes[1].text = "[Layer1]:リグ";
  tree.nodes[5].text = "右腕_上|ｱﾝｶｰ";
  tree.nodes[7].state = mst::kStateSet;
  tree.nodes[4].state |= mst::kStateSelected;
  tree.nodes[5].state |= mst::kStateSelected;
  mst::TreePicture view = picture();
  view.horizontalThumb = {0, 300};
  view.verticalThumb = {0, 64};
  const Picture first = drawn(view);
  save(first, "tree");
  EXPECT_EQ(drawn(view), first);
  view = scrolled(15, 47);
  view.contentWidth = kWidth + 3;
  view.horizontalThumb = {15, 315};
  view.verticalThumb = {30, 94};
  save(drawn(view), "tree-scrolled");
  EXPECT_EQ(drawn(), drawn());
}

}  // namespace
}  // namespace pictures
