// However the tree is scrolled, the view shows what the whole tree, plainly drawn in a window as high as itself, shows
// there.
#include <string>

#include "tests/pictures/plain_tree_drawing.h"
#include "tests/pictures/tree_picture_fixture.h"

namespace pictures {
namespace {

using standin::Picture;

std::string differences(const Picture& a, const Picture& b) {
  std::string places;
  int count = 0;
  for (int y = 0; y < a.height; ++y) {
    for (int x = 0; x < a.width; ++x) {
      if (a.at(x, y) == b.at(x, y)) continue;
      if (++count <= 10) places += " (" + std::to_string(x) + ", " + std::to_string(y) + ")";
    }
  }
  return std::to_string(count) + " pixels differ, first" + places;
}

class PartsOfTheWhole : public TreePictures {
 protected:
  static constexpr int kMargin = 30;
  static constexpr int kWholeWidth = 500;
  static constexpr int kWholeHeight = 1300;

  // The lists of the font belong to the context of the small window.
  PartsOfTheWhole() { window.makeCurrent(); }

  // 'part' lies in the view, above and left of the scroll bars.
  void expectTheSame(const standin::Rectangle& part, int x, int y) {
    mst::TreePicture view = scrolled(x, y);
    view.contentWidth = kWholeWidth;
    const Picture seen = drawn(view).part(part);
    const Picture expected = plain(x, y).part(part);
    if (seen == expected) return;
    ADD_FAILURE() << "scrolled by " << x << ", " << y << ": " << differences(seen, expected);
    save(seen, "part-seen");
    save(expected, "part-expected");
  }

 private:
  Picture plain(int x, int y) {
    const mst::TreePicture all = tree.picture(kWholeWidth, kWholeHeight);
    whole.makeCurrent(window.context());
    drawPlainTree(all, kMargin);
    const Picture picture = whole.read();
    window.makeCurrent();
    return picture.part({kMargin + x, kMargin + y, kWidth, kHeight});
  }

  GlWindow whole{kWholeWidth, kWholeHeight};
};

constexpr standin::Rectangle kTreeArea{0, 0, kWidth - 12, kHeight - 12};

TEST_F(PartsOfTheWhole, LinesAndMarkersAreTheSameAtEveryOffset) {
  tree = mst::mixedTree(80);
  for (auto& node : tree.nodes) node.text.clear();
  tree.nodes[4].state |= mst::kStateSelected;
  tree.nodes[30].state = mst::kStateSet | mst::kStateSelected;
  for (const int y : {0, 1, 7, 13, 14, 45, 300, 401, 500, 731}) {
    for (const int x : {0, 1, 3, 10, 17, 22, 40, 41}) expectTheSame(kTreeArea, x, y);
  }
}

// Where the upper edge cuts a row, OpenGL leaves its text out once the baseline is above the view, and at the left edge
// every character that begins outside. Between whole pixels OpenGL may take another column for a line, but its dots still
// follow each other.
TEST_F(PartsOfTheWhole, DotsFollowEachOtherAtPartsOfPixelsToo) {
  const std::size_t top = tree.add(0, "");
  for (int i = 0; i < 60; ++i) tree.add(top, "");
  for (int eighths = 800; eighths < 832; ++eighths) {
    if (eighths % 8 == 4) continue;  // at the middle of a pixel a line's first dot may fall to either side
    const double y = eighths / 8.0;
    const Picture seen = drawn(scrolled(0, y));
    const int column = countOf(seen.part({9, 0, 1, kHeight - 12}), kGuide) > 50 ? 9 : 10;
    for (int row = 0; row + 1 < kHeight - 12; ++row) {
      EXPECT_NE(isLike(seen.at(column, row), kGuide), isLike(seen.at(column, row + 1), kGuide)) << y << ", " << row;
    }
  }
}

TEST_F(PartsOfTheWhole, TextsAreTheSameWhereNoEdgeCutsThem) {
  tree = mst::mixedTree(80);
  for (const int y : {0, 14, 10 * 14, 33 * 14}) {
    for (const int x : {0, 4, 10, 40}) expectTheSame(kTreeArea, x, y);
  }
}

TEST_F(PartsOfTheWhole, TextsOfRowsCutByAnEdgeAreTheSameUpToTheirBaseline) {
  tree = mst::mixedTree(80);
  for (const int y : {1, 5, 11, 20, 66}) expectTheSame(kTreeArea, 0, y);
}

}  // namespace
}  // namespace pictures
