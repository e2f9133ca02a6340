// What the drawing of the tree asks of OpenGL, and where.
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "tests/unit/tree_drawing_fixture.h"

namespace mst {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The four sides of what was drawn; a line has two equal ones.
struct Box {
  double left, top, right, bottom;
  bool operator==(const Box& other) const {
    const auto near = [](double a, double b) { return std::abs(a - b) < 1e-9; };
    return near(left, other.left) && near(top, other.top) && near(right, other.right) && near(bottom, other.bottom);
  }
  friend std::ostream& operator<<(std::ostream& out, const Box& box) {
    return out << "(" << box.left << ", " << box.top << ")-(" << box.right << ", " << box.bottom << ")";
  }
};

Box boxOf(const DrawnShape& shape) {
  const auto [left, right] = std::minmax_element(shape.corners.begin(), shape.corners.end(),
                                                 [](const Spot& a, const Spot& b) { return a.x < b.x; });
  const auto [top, bottom] = std::minmax_element(shape.corners.begin(), shape.corners.end(),
                                                 [](const Spot& a, const Spot& b) { return a.y < b.y; });
  return {left->x, top->y, right->x, bottom->y};
}

class TreeDrawing : public DrawnTree {
 protected:
  // Stripes are the quads as wide as the content; markers are smaller and scroll bars come last.
  std::vector<DrawnShape> stripes() const {
    std::vector<DrawnShape> found = gl.shapesOf(gl::kQuads);
    found.erase(std::find_if(found.begin(), found.end(),
                             [](const DrawnShape& s) { return boxOf(s).right - boxOf(s).left < kWidth; }),
                found.end());
    return found;
  }
  // The last five quads: two strips, two thumbs, the corner.
  DrawnShape scrollBarPart(std::size_t part) const {
    const std::vector<DrawnShape> quads = gl.shapesOf(gl::kQuads);
    return quads.at(quads.size() - 5 + part);
  }
  std::vector<Box> guideLines() const {
    std::vector<Box> lines;
    for (const DrawnShape& line : gl.shapesOf(gl::kLines)) lines.push_back(boxOf(line));
    std::sort(lines.begin(), lines.end(), [](const Box& a, const Box& b) {
      return std::tie(a.left, a.top, a.right) < std::tie(b.left, b.top, b.right);
    });
    return lines;
  }
};

TEST_F(TreeDrawing, NothingIsDrawnWithoutADeviceContext) {
  gl.device = nullptr;
  draw();
  EXPECT_EQ(gl.callCount, 0);
}

TEST_F(TreeDrawing, NothingIsDrawnWhereTheSystemHasNoOpenGl) {
  CTreeDrawing without(nullptr);
  without.draw(tree.picture(kWidth, kHeight));
  EXPECT_EQ(gl.callCount, 0);
}

TEST_F(TreeDrawing, AViewWithoutSizeIsNotDrawn) {
  draw(tree.picture(0, kHeight));
  EXPECT_EQ(gl.callCount, 0);
}

TEST_F(TreeDrawing, TheViewIsClearedAndMeasuredInPixelsFromItsTop) {
  draw();
  EXPECT_EQ(gl.clears, 1);
  EXPECT_THAT(gl.ortho, ElementsAre(0, kWidth, kHeight, 0, -1, 1));
}

// Stripes.

TEST_F(TreeDrawing, StripesFillTheViewUnderFewRows) {
  draw(tree.picture(kWidth, kHeight + 1));
  const auto drawn = stripes();
  ASSERT_EQ(drawn.size(), 6u);
  for (std::size_t row = 0; row < drawn.size(); ++row) {
    const double top = 14.0 * static_cast<double>(row);
    EXPECT_EQ(boxOf(drawn[row]), (Box{0, top, kWidth, top + 14}));
    const double grey = row % 2 == 0 ? 0.4 : 0.5;
    EXPECT_EQ(drawn[row].colour, (Rgb{grey, grey, grey})) << row;
  }
}

TEST_F(TreeDrawing, SelectedRowsHaveStripesOfTheirOwn) {
  for (const char* name : {"a", "b", "c"}) tree.add(0, name);
  tree.nodes[1].state |= kStateSelected;
  tree.nodes[2].state |= kStateSelected;
  draw();
  const auto drawn = stripes();
  EXPECT_EQ(drawn.at(0).colour, (Rgb{0.4, 0.4, 0.4}));
  EXPECT_EQ(drawn.at(1).colour, (Rgb{0.6598039, 0.6401961, 0.5970588}));
  EXPECT_EQ(drawn.at(2).colour, (Rgb{0.6098039, 0.5901961, 0.5470588}));
  EXPECT_EQ(drawn.at(3).colour, (Rgb{0.5, 0.5, 0.5}));
}

TEST_F(TreeDrawing, StripesReachToTheEndOfWideContent) {
  TreePicture picture = tree.picture(kWidth, kHeight);
  picture.contentWidth = 250;
  picture.scrollX = 30;
  draw(picture);
  EXPECT_EQ(boxOf(stripes().front()), (Box{-30, 0, 220, 14}));
}

TEST_F(TreeDrawing, AScrolledStripeKeepsTheColourOfItsRow) {
  for (int i = 0; i < 20; ++i) tree.add(0, "a");
  drawScrolled(0, 3 * 14 + 5);
  EXPECT_EQ(boxOf(stripes().front()), (Box{0, -5, kWidth, 9}));
  EXPECT_EQ(stripes().front().colour, (Rgb{0.5, 0.5, 0.5}));
}

// Guide lines.

TEST_F(TreeDrawing, ARowWithoutChildrenGetsNoGuideLines) {
  draw();
  EXPECT_THAT(gl.shapesOf(gl::kLines), IsEmpty());
}

TEST_F(TreeDrawing, ABranchGoesToItsLastChildWithATwigToEach) {
  const std::size_t first = tree.add(0, "first");
  tree.add(first, "below");
  tree.add(0, "last");
  drawScrolled(-20, 0);
  EXPECT_THAT(guideLines(), ElementsAre(Box{18, 7, 18, 49}, Box{18, 21, 30, 21}, Box{18, 49, 30, 49},  // of the root
                                        Box{30, 21, 30, 35}, Box{30, 35, 42, 35}));                    // of the first child
}

TEST_F(TreeDrawing, ACollapsedRowHidesTheLinesBelowIt) {
  tree.add(tree.add(0, "collapsed"), "below");
  tree.nodes[1].state = kStateSet;
  drawScrolled(-20, 0);
  EXPECT_THAT(guideLines(), ElementsAre(Box{18, 7, 18, 21}, Box{18, 21, 30, 21}));
}

TEST_F(TreeDrawing, GuideLinesAreDarkThinAndDotted) {
  tree.add(0, "a");
  gl.state.width = 3;  // of whoever drew before
  draw();
  ASSERT_FALSE(gl.shapesOf(gl::kLines).empty());
  for (const DrawnShape& line : gl.shapesOf(gl::kLines)) {
    EXPECT_EQ(line.width, 1);
    EXPECT_EQ(line.colour, (Rgb{0.2, 0.2, 0.2}));
    EXPECT_TRUE(line.isDotted);
    EXPECT_EQ(line.pattern, 0xAAAAu);
  }
}

TEST_F(TreeDrawing, DotsStayWhereTheyAreWhenTheTreeIsScrolled) {
  for (int i = 0; i < 20; ++i) tree.add(0, "a");
  // The root's line begins at 7: ten pixels above the view, then eleven.
  drawScrolled(-2, 17);
  EXPECT_EQ(gl.shapesOf(gl::kLines).front().pattern, 0xAAAAu);
  drawScrolled(-2, 18);
  EXPECT_EQ(gl.shapesOf(gl::kLines).front().pattern, 0x5555u);
}

TEST_F(TreeDrawing, BranchesOfAllRowsAboveTheViewReachIntoIt) {
  const std::size_t top = tree.add(0, "top");
  for (int i = 0; i < 20; ++i) tree.add(top, "a");
  tree.add(0, "last");
  drawScrolled(-10, 10 * 14);
  std::vector<double> columns;
  for (const Box& line : guideLines()) {
    if (line.left == line.right) columns.push_back(line.left);
  }
  EXPECT_THAT(columns, ElementsAre(8, 20));
}

// Markers.

TEST_F(TreeDrawing, ALeafIsMarkedWithASquare) {
  draw();
  EXPECT_EQ(boxOf(gl.shapesOf(gl::kQuads).at(5)), (Box{-2 - 1.44, 7 - 1.44, -2 + 1.44, 7 + 1.44}));
}

TEST_F(TreeDrawing, AnExpandedRowIsMarkedWithATrianglePointingDown) {
  tree.add(0, "a");
  draw();
  const DrawnShape marker = gl.shapesOf(gl::kTriangles).at(0);
  EXPECT_EQ(boxOf(marker), (Box{-2 - 3, 7 - 3.996, -2 + 3, 7 + 6.396}));
  EXPECT_EQ(marker.corners.at(1).x, -2);
}

TEST_F(TreeDrawing, ACollapsedRowIsMarkedWithATrianglePointingRight) {
  tree.add(tree.add(0, "a"), "b");
  tree.nodes[1].state = kStateSet;
  draw();
  const DrawnShape marker = gl.shapesOf(gl::kTriangles).at(1);
  EXPECT_EQ(boxOf(marker), (Box{10 - 5.196, 21 - 3, 10 + 5.196, 21 + 3}));
  EXPECT_EQ(marker.corners.at(2).y, 21);
}

// Deliberate: it is the number of children that counts, and an expanded row whose children are not laid out yet has some.
TEST_F(TreeDrawing, AnExpandedRowWithoutChildrenIsALeaf) {
  tree.nodes[0].state = kStateSet | kStateExpanded;
  draw();
  EXPECT_THAT(gl.shapesOf(gl::kTriangles), IsEmpty());
}

TEST_F(TreeDrawing, AMarkerHasTheOwnersColour) {
  tree.nodes[0].colour = Rgba{255, 0, 51, 255};
  draw();
  EXPECT_EQ(gl.shapesOf(gl::kQuads).at(5).colour, (Rgb{1, 0, 0.2}));
}

TEST_F(TreeDrawing, AMarkerWithoutAColourAmongOthersIsLightGrey) {
  draw();
  const double grey = 205 / 255.0;
  EXPECT_EQ(gl.shapesOf(gl::kQuads).at(5).colour, (Rgb{grey, grey, grey}));
}

TEST_F(TreeDrawing, MarkersOfAnOwnerWithoutColoursAreGrey) {
  tree.hasColours = false;
  draw();
  EXPECT_EQ(gl.shapesOf(gl::kQuads).at(5).colour, (Rgb{0.8, 0.8, 0.8}));
}

// Scroll bars.

TEST_F(TreeDrawing, ScrollBarsStayWhereTheyAreWhenTheTreeIsScrolled) {
  TreePicture picture = tree.picture(kWidth, kHeight);
  picture.scrollX = 33;
  picture.scrollY = 9;
  picture.horizontalThumb = {5, 40};
  picture.verticalThumb = {20, 33};
  draw(picture);
  EXPECT_EQ(boxOf(scrollBarPart(0)), (Box{0, kHeight - 12, kWidth - 12, kHeight}));
  EXPECT_EQ(boxOf(scrollBarPart(1)), (Box{kWidth - 12, 0, kWidth, kHeight - 12}));
  EXPECT_EQ(boxOf(scrollBarPart(2)), (Box{5, kHeight - 12, 40, kHeight}));
  EXPECT_EQ(boxOf(scrollBarPart(3)), (Box{kWidth - 12, 20, kWidth, 33}));
  EXPECT_EQ(boxOf(scrollBarPart(4)), (Box{kWidth - 12, kHeight - 12, kWidth, kHeight}));
}

TEST_F(TreeDrawing, ScrollBarsAreGrey) {
  draw();
  constexpr std::array kGreys = {0.3, 0.3, 0.7, 0.7, 0.2};
  for (std::size_t part = 0; part < kGreys.size(); ++part) {
    EXPECT_EQ(scrollBarPart(part).colour, (Rgb{kGreys[part], kGreys[part], kGreys[part]})) << part;
  }
}

// Only what is in view.

TEST_F(TreeDrawing, OnlyRowsInViewAreDrawn) {
  for (int i = 0; i < 100; ++i) tree.add(0, std::to_string(i));
  drawScrolled(-20, 50 * 14 + 1);
  EXPECT_EQ(lettersOf(gl), "495051525354");  // the root is row 0
  EXPECT_EQ(stripes().size(), 6u);
}

TEST_F(TreeDrawing, TenThousandRowsCostNoMoreCallsThanTen) {
  for (int i = 0; i < 10; ++i) tree.add(0, "name");
  draw();
  draw();
  const int few = gl.callCount;
  for (int i = 0; i < 10'000; ++i) tree.add(0, "name");
  draw();
  EXPECT_EQ(gl.callCount, few);
}

TEST_F(TreeDrawing, ALongNameCostsOnlyWhatIsInView) {
  tree.nodes[0].text = std::string(65'536, 'x');
  draw();
  EXPECT_EQ(gl.characters.size(), 17u);  // 4 to 100, the last one at 100
}

TEST_F(TreeDrawing, ALongNameIsFoundAgainFarToTheRight) {
  tree.nodes[0].text = std::string(30'000, 'x') + "右a" + std::string(100, 'y');
  drawScrolled(30'000 * 6 + 4 - 12, 0);
  EXPECT_EQ(lettersOf(gl), "xx#a" + std::string(12, 'y'));
  EXPECT_EQ(gl.characters.at(3).at.x, 24);
}

TEST_F(TreeDrawing, AViewBeyondTheLastRowShowsStripesOnly) {
  drawScrolled(0, 14 * 1000);
  EXPECT_THAT(gl.characters, IsEmpty());
}

// OpenGL's state.

TEST_F(TreeDrawing, OpenGlIsLeftAsItWasFound) {
  gl.state = {.enabled = {gl::kLighting, gl::kLineStipple},
              .matrixMode = gl::kProjection,
              .colour = {1, 0, 1},
              .pattern = 3,
              .width = 2};
  gl.modelView = {{3, 4}, {5, 6}};
  gl.projection = {{7, 8}, {9, 10}};
  gl.pixelStore = {{gl::kUnpackAlignment, 1}, {gl::kUnpackRowLength, 7}, {gl::kUnpackLeastBitFirst, 1}};
  const auto state = gl.state;
  const auto [modelView, projection] = std::pair(gl.modelView, gl.projection);
  tree.add(0, "右");
  draw();
  EXPECT_EQ(gl.state, state);
  EXPECT_EQ(gl.modelView, modelView);
  EXPECT_EQ(gl.projection, projection);
  EXPECT_EQ(gl.pixelStore[gl::kUnpackAlignment], 1);
  EXPECT_EQ(gl.pixelStore[gl::kUnpackRowLength], 7);
  EXPECT_EQ(gl.pixelStore[gl::kUnpackLeastBitFirst], 1);
}

// Throws at the n-th question.
class FailingTree : public TestTree {
 public:
  std::uint32_t stateOf(std::size_t node) const override { return ask(), TestTree::stateOf(node); }
  std::size_t childCountOf(std::size_t node) const override { return ask(), TestTree::childCountOf(node); }
  std::string_view textOf(std::size_t node) const override { return ask(), TestTree::textOf(node); }
  std::optional<Rgba> colourOf(std::size_t node) const override { return ask(), TestTree::colourOf(node); }
  mutable int left = 0;

 private:
  void ask() const {
    if (left-- == 0) throw std::runtime_error("the owner fails");
  }
};

TEST_F(TreeDrawing, OpenGlIsLeftAsItWasFoundAlsoWhenTheOwnerThrows) {
  FailingTree failing;
  failing.add(0, "a");
  gl.state.enabled = {gl::kLighting};
  gl.modelView = {{3, 4}, {5, 6}};
  const auto state = gl.state;
  const auto modelView = gl.modelView;
  bool isFailing = true;
  for (int n = 0; isFailing; ++n) {
    failing.left = n;
    isFailing = false;
    try {
      drawing.draw(failing.picture(kWidth, kHeight));
    } catch (const std::runtime_error&) {
      isFailing = true;
    }
    EXPECT_EQ(gl.state, state) << n;
    EXPECT_EQ(gl.modelView, modelView) << n;
    EXPECT_EQ(gl.fontsOut, 0) << n;
    ASSERT_LT(n, 100);
  }
}

TEST_F(TreeDrawing, NothingIsDrawnWhereTheStateCannotBeKept) {
  gl.mostAttribDepth = 0;
  draw();
  EXPECT_THAT(gl.shapes, IsEmpty());
}

}  // namespace
}  // namespace mst
