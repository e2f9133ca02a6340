// The drawing of the tree where something lies at or beyond the view's edges, where OpenGL refuses, and of the tree view
// itself.
#include "modeler/selector/selector_colours.h"
#include "tests/unit/tree_drawing_fixture.h"
#include "tests/unit/tree_view_fixture.h"

namespace mst {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TreeAtTheEdge : public DrawnTree {};

// The text begins at 4: scrolled by 10, its first cell lies before the view and the wide character that begins there goes
// whole.
TEST_F(TreeAtTheEdge, AWideCharacterThatBeginsLeftOfTheViewIsLeftOut) {
  tree.nodes[0].text = "日ab";
  drawScrolled(10, 0);
  EXPECT_EQ(lettersOf(gl), "ab");
  EXPECT_EQ(gl.characters.at(0).at.x, 6);
}

TEST_F(TreeAtTheEdge, ATextThatEndsLeftOfTheViewIsNotDrawn) {
  tree.nodes[0].text = "ab";
  drawScrolled(50, 0);
  EXPECT_THAT(gl.characters, IsEmpty());
}

TEST_F(TreeAtTheEdge, ATextThatBeginsRightOfTheViewIsNotDrawn) {
  std::size_t above = 0;
  for (int depth = 0; depth < 4; ++depth) above = tree.add(above, "x");
  TreePicture picture = tree.picture(40, kHeight);
  draw(picture);
  EXPECT_EQ(lettersOf(gl), "[Top]xxx");  // at 4, 16, 28 and 40, but not at 52
}

TEST_F(TreeAtTheEdge, GuideLinesLeftOfTheViewAreNotDrawn) {
  tree.add(0, "a");
  drawScrolled(50, 0);
  EXPECT_THAT(gl.shapesOf(gl::kLines), IsEmpty());
}

TEST_F(TreeAtTheEdge, AViewWithoutHeightIsNotDrawn) {
  draw(tree.picture(kWidth, 0));
  EXPECT_EQ(gl.callCount, 0);
}

TEST_F(TreeAtTheEdge, APictureWithoutAnOwnerShowsStripesAndBarsOnly) {
  TreePicture picture = tree.picture(kWidth, kHeight);
  picture.owner = nullptr;
  draw(picture);
  EXPECT_EQ(gl.shapesOf(gl::kQuads).size(), 5U + 5U);
  EXPECT_THAT(gl.characters, IsEmpty());
}

// ---------------------------------------------------------------------------------------------------------------------
// Lists that cannot be made

TEST_F(TreeAtTheEdge, ListsThatWereNotMadeAreTriedAgain) {
  calls.makeByteLists = [](void*, unsigned, unsigned, unsigned) { return false; };
  draw(tree.picture(kWidth, kHeight));
  EXPECT_THAT(gl.characters, IsEmpty());
  calls.makeByteLists = GlRecorder::calls().makeByteLists;
  draw(tree.picture(kWidth, kHeight));
  EXPECT_EQ(lettersOf(gl), "[Top]");
}

TEST_F(TreeAtTheEdge, AFontThatIsGoneShowsNewCharactersAsQuestionMarks) {
  draw(tree.picture(kWidth, kHeight));
  gl.hasFont = false;
  tree.nodes[0].text = "a日";
  draw(tree.picture(kWidth, kHeight));
  EXPECT_EQ(lettersOf(gl), "a?");
}

// A device context that shares the lists of another, which has made none but those of the bytes.
TEST_F(TreeAtTheEdge, AnotherDeviceContextWithoutOwnListsDeletesNothing) {
  draw(tree.picture(kWidth, kHeight));
  gl.device = &tree;
  draw(tree.picture(kWidth, kHeight));
  EXPECT_THAT(gl.deletedLists, IsEmpty());
  EXPECT_EQ(gl.byteListRuns, 1);
  EXPECT_EQ(lettersOf(gl), "[Top]");
}

// Without a current context some systems tell of an error whenever they are asked.
TEST_F(TreeAtTheEdge, ErrorsWithoutEndEndTheAsking) {
  static int asked;
  asked = 0;
  calls.getError = [] {
    ++asked;
    return 0x0502U;
  };
  draw(tree.picture(kWidth, kHeight));
  EXPECT_EQ(asked, 16);
}

// ---------------------------------------------------------------------------------------------------------------------
// The tree view's own picture

class TreeViewDrawn : public TreeViewTest {
 protected:
  void draw() {
    gl.clear();
    drawing.draw(tree.picture());
    EXPECT_THAT(gl.faults, IsEmpty());
  }

  GlRecorder gl;
  CTreeDrawing drawing{&GlRecorder::calls()};
};

TEST_F(TreeViewDrawn, ShowsTheTextsOfItsRows) {
  draw();
  EXPECT_EQ(lettersOf(gl), "[Top][Layer1]:LABCD[WMaps]");
}

TEST_F(TreeViewDrawn, HasTheFirstLetterOfATextBelongToItsTriangle) {
  draw();
  const auto pressLetter = [&](std::size_t letter) {
    return tree.press({static_cast<int>(gl.characters.at(letter).at.x) + 3, middleOf(0), kLeft | kDown, 1});
  };
  EXPECT_EQ(pressLetter(0), (TreeChange{true, false}));  // closes [Top]
  EXPECT_EQ(pressLetter(1), (TreeChange{true, true}));   // selects it
}

TEST_F(TreeViewDrawn, MarksItsSelectedRows) {
  pressLabel(3);
  draw();
  const std::vector<DrawnShape> stripes = gl.shapesOf(gl::kQuads);
  EXPECT_EQ(stripes.at(3).colour, (Rgb{0.6598039, 0.6401961, 0.5970588}));
  EXPECT_EQ(stripes.at(4).colour, (Rgb{0.4, 0.4, 0.4}));
}

TEST_F(TreeViewDrawn, GivesItsMarkersTheColoursOfTheirRows) {
  draw();
  // Expanded rows have triangles; the root's comes first.
  const Rgba colour = rowColour(tree.nodes()[kRootNode].colour).value();
  const Rgb drawn = gl.shapesOf(gl::kTriangles).at(0).colour;
  EXPECT_THAT(drawn, ElementsAre(colour[0] / 255.0, colour[1] / 255.0, colour[2] / 255.0));
}

TEST(TreeChange, TellsLooksAndSelectionApart) {
  EXPECT_EQ((TreeChange{true, false}), (TreeChange{true, false}));
  EXPECT_NE((TreeChange{true, false}), (TreeChange{false, false}));
  EXPECT_NE((TreeChange{true, true}), (TreeChange{true, false}));
}

}  // namespace
}  // namespace mst
