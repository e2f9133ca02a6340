// The tree's texts: which bitmap lists are made when, and which are called where.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "modeler/selector/tree_drawing.h"
#include "tests/unit/gl_recorder.h"
#include "tests/unit/tree_fixture.h"

namespace mst {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string utf8(char16_t c) {
  const auto byte = [](int bits) { return static_cast<char>(bits); };
  return {byte(0xE0 | c >> 12), byte(0x80 | (c >> 6 & 0x3F)), byte(0x80 | (c & 0x3F))};
}

constexpr unsigned kFirstFreeList = 1;  // that the recorder gives out

class TreeText : public testing::Test {
 protected:
  ~TreeText() override {
    EXPECT_THAT(gl.faults, IsEmpty());
    EXPECT_EQ(gl.fontsOut, 0);
  }

  void draw(const std::string& text, int width = 400) {
    tree.nodes[0].text = text;
    gl.clear();
    drawing.draw(tree.picture(width, 40));
  }
  std::vector<unsigned> listsCalled() const {
    std::vector<unsigned> lists;
    for (const DrawnCharacter& c : gl.characters) lists.push_back(c.list);
    return lists;
  }
  std::vector<double> columns() const {
    std::vector<double> xs;
    for (const DrawnCharacter& c : gl.characters) xs.push_back(c.at.x);
    return xs;
  }

  GlRecorder gl;
  CTreeDrawing drawing{&GlRecorder::calls()};
  TestTree tree;
};

TEST_F(TreeText, EachPlainCharacterIsOneCallOfTheListOfItsCode) {
  draw("Az 09");
  EXPECT_THAT(listsCalled(), ElementsAre(1065, 1122, 1032, 1048, 1057));
}

TEST_F(TreeText, CharactersStandOneCellApartBlackOnTheBaselineOfTheirRow) {
  tree.add(0, "bc");
  draw("a");
  EXPECT_THAT(columns(), ElementsAre(4, 16, 22));
  EXPECT_NEAR(gl.characters.at(0).at.y, 7 + 4.8, 1e-9);
  EXPECT_NEAR(gl.characters.at(1).at.y, 21 + 4.8, 1e-9);
  for (const DrawnCharacter& c : gl.characters) EXPECT_EQ(c.colour, (Rgb{0, 0, 0}));
}

TEST_F(TreeText, AFullWidthCharacterHasAListOfItsOwnAndTwoCells) {
  draw("右a");
  EXPECT_THAT(listsCalled(), ElementsAre(kFirstFreeList, 1097));
  EXPECT_THAT(columns(), ElementsAre(4, 16));
  EXPECT_THAT(gl.wideLists, ElementsAre(u'右'));
}

TEST_F(TreeText, AListIsMadeOnceForACharacter) {
  draw("右右左");
  draw("左右");
  EXPECT_THAT(listsCalled(), ElementsAre(kFirstFreeList + 1, kFirstFreeList));
  EXPECT_THAT(gl.wideLists, IsEmpty());
}

TEST_F(TreeText, BytesThatAreNoTextShowAsQuestionMarks) {
  draw("a\xFF\x80z");
  EXPECT_THAT(listsCalled(), ElementsAre(1097, 1063, 1063, 1122));
}

TEST_F(TreeText, Letter255HasNoByteListAndGetsItsOwn) {
  draw("ÿ");
  EXPECT_THAT(listsCalled(), ElementsAre(kFirstFreeList));
  EXPECT_THAT(gl.wideLists, ElementsAre(u'ÿ'));
}

TEST_F(TreeText, ACharacterThatTheFontCannotGiveShowsAsQuestionMark) {
  gl.makesWideLists = false;
  draw("右");
  EXPECT_THAT(listsCalled(), ElementsAre(1063));
}

TEST_F(TreeText, TheListOfACharacterThatTheFontCannotGiveIsGivenBack) {
  gl.makesWideLists = false;
  draw("右");
  EXPECT_EQ(gl.lists.size(), kByteLists);
}

TEST_F(TreeText, WithoutAFreeListACharacterShowsAsQuestionMark) {
  gl.hasNoMoreLists = true;
  draw("右a");
  EXPECT_THAT(listsCalled(), ElementsAre(1063, 1097));
}

TEST_F(TreeText, SymbolsOfTheFontsCodePageTakeTwoCells) {
  draw("①Ⅳж→★a");
  EXPECT_THAT(columns(), ElementsAre(4, 16, 28, 40, 52, 64));
}

TEST_F(TreeText, ListsOfTheHostKeepTheirNumbers) {
  const std::set<unsigned> hosts = {1, 2, 999, 1255, 1256, 1300};
  gl.lists = hosts;
  draw("右左");
  EXPECT_THAT(listsCalled(), ElementsAre(3, 4));
  drawing.giveFontBack();
  for (const unsigned list : hosts) EXPECT_TRUE(gl.lists.contains(list)) << list;
}

TEST_F(TreeText, ACharacterOfTwoUnitsShowsAsQuestionMark) {
  draw("\U00020BB7");
  EXPECT_THAT(listsCalled(), ElementsAre(1063));
}

TEST_F(TreeText, TheFontIsMadeOnceForADeviceContext) {
  draw("a");
  EXPECT_EQ(gl.byteListRuns, 1);
  draw("a");
  EXPECT_EQ(gl.byteListRuns, 0);
  EXPECT_EQ(gl.fontsMade, 0);
}

TEST_F(TreeText, AnotherDeviceContextRemakesTheFont) {
  draw("右");
  gl.device = &tree;
  draw("右");
  EXPECT_EQ(gl.byteListRuns, 1);
  EXPECT_THAT(gl.deletedLists, ElementsAre(kFirstFreeList));
  EXPECT_THAT(gl.wideLists, ElementsAre(u'右'));
}

// In another context those numbers may be anybody's.
TEST_F(TreeText, AnotherOpenGlContextKeepsItsLists) {
  draw("右");
  gl.device = gl.context = &tree;
  draw("右");
  EXPECT_THAT(gl.deletedLists, IsEmpty());
  EXPECT_EQ(gl.byteListRuns, 1);
}

TEST_F(TreeText, GivenBackTheFontLeavesTheListsWithFixedNumbersOnly) {
  draw("右左a");
  drawing.giveFontBack();
  EXPECT_EQ(gl.lists.size(), kByteLists);
  EXPECT_EQ(*gl.lists.begin(), kFirstList);
}

TEST_F(TreeText, NothingIsGivenBackWhereNoContextOrAnotherIsCurrent) {
  draw("右");
  for (void* const other : {static_cast<void*>(nullptr), static_cast<void*>(&tree)}) {
    gl.context = other;
    drawing.giveFontBack();
    EXPECT_THAT(gl.deletedLists, IsEmpty());
  }
}

TEST_F(TreeText, AfterTheFontWasGivenBackItIsDrawnAgain) {
  draw("右");
  drawing.giveFontBack();
  draw("右a");
  EXPECT_THAT(listsCalled(), ElementsAre(kFirstFreeList, 1097));
}

TEST_F(TreeText, ADrawWithoutDeviceContextKeepsTheFont) {
  draw("a");
  void* const device = gl.device;
  gl.device = nullptr;
  draw("a");
  gl.device = device;
  draw("a");
  EXPECT_EQ(gl.byteListRuns, 0);
}

// The handle of a closed window's device context can come back for another window.
TEST_F(TreeText, AContextWithoutTheListsGetsThemUnderTheSameHandleToo) {
  draw("右");
  gl.lists = {kFirstFreeList};  // somebody else's
  draw("右");
  EXPECT_EQ(gl.byteListRuns, 1);
  EXPECT_THAT(gl.deletedLists, IsEmpty());
}

TEST_F(TreeText, MakingListsLeavesNoError) {
  draw("a右");
  EXPECT_EQ(gl.error, 0u);
}

TEST_F(TreeText, ErrorsOfOthersStayWhereNoListIsMade) {
  draw("a");
  gl.error = 7;
  draw("a");
  EXPECT_EQ(gl.error, 7u);
}

TEST_F(TreeText, WithoutAFontEverythingButTextIsDrawn) {
  gl.hasFont = false;
  draw("a右");
  EXPECT_THAT(gl.characters, IsEmpty());
  EXPECT_FALSE(gl.shapes.empty());
}

TEST_F(TreeText, AFontThatWasMissingIsTriedAgain) {
  gl.hasFont = false;
  draw("a");
  gl.hasFont = true;
  draw("a");
  EXPECT_THAT(listsCalled(), ElementsAre(1097));
}

TEST_F(TreeText, ManyDifferentCharactersUseABoundedNumberOfLists) {
  std::size_t most = 0;
  for (int c = 0x3400; c < 0x9FFF; c += 32) {
    std::string text;
    for (int i = 0; i < 32; ++i) text += utf8(static_cast<char16_t>(c + i));
    draw(text);
    most = std::max(most, gl.lists.size());
  }
  EXPECT_EQ(most, kByteLists + kMostOwnLists);
}

TEST_F(TreeText, ThePictureIsRightWhereTheListsBeginAnew) {
  std::string text;
  for (unsigned c = 0; c < kMostOwnLists + 3; ++c) text += utf8(static_cast<char16_t>(0x4E00 + c));
  draw(text, 12 * static_cast<int>(kMostOwnLists + 4));
  EXPECT_EQ(gl.characters.size(), kMostOwnLists + 3u);
  EXPECT_EQ(gl.characters.back().list, kFirstFreeList + 2);
}

}  // namespace
}  // namespace mst
