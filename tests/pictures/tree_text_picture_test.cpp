// The tree's texts as they are seen, and what making their font leaves behind.
#include "tests/pictures/tree_picture_fixture.h"
// After windows.h, which it needs.
#include <GL/gl.h>

namespace pictures {
namespace {

using standin::Picture;

class TreeTextPictures : public TreePictures {
 protected:
  Picture drawnText(const std::string& text) {
    tree.nodes[0].text = text;
    return drawn();
  }
  static bool isBlank(const Picture& part) { return countOf(part, kBlack) == 0; }
};

TEST_F(TreeTextPictures, ACharacterFillsItsCellAndNotTheOneBeside) {
  const Picture seen = drawnText("A B");
  EXPECT_GT(countOf(cell(seen, 0, 0, 0), kBlack), 8);
  EXPECT_TRUE(isBlank(cell(seen, 0, 0, 1)));
  EXPECT_GT(countOf(cell(seen, 0, 0, 2), kBlack), 8);
  EXPECT_TRUE(isBlank(cell(seen, 0, 0, 3, 20)));
}

TEST_F(TreeTextPictures, TextStaysInItsRow) {
  tree.add(0, "");
  tree.add(0, "[Layer1]:gjpqy");
  tree.add(0, "");
  const Picture seen = drawn();
  EXPECT_GT(countOf(cell(seen, 2, 1, 0, 14), kBlack), 60);
  EXPECT_TRUE(isBlank(cell(seen, 1, 1, 0, 14)));
  EXPECT_TRUE(isBlank(cell(seen, 3, 1, 0, 14)));
}

TEST_F(TreeTextPictures, JapaneseTakesTwoCellsAndReadsAsItself) {
  const Picture seen = drawnText("右左a");
  const Picture right = cell(seen, 0, 0, 0, 2);
  const Picture left = cell(seen, 0, 0, 2, 2);
  EXPECT_FALSE(isBlank(right));
  EXPECT_NE(right, left);
  EXPECT_FALSE(isBlank(cell(seen, 0, 0, 4)));
  EXPECT_NE(right, cell(drawnText("??"), 0, 0, 0, 2));
}

// The font.

TEST_F(TreeTextPictures, AnotherDeviceContextOfTheSameOpenGlContextRemakesTheFont) {
  const Picture before = drawnText("A");
  const auto spoil = [] {
    glNewList(1000 + 'A', GL_COMPILE);
    glEndList();
  };
  spoil();
  EXPECT_TRUE(isBlank(drawn().part({0, 0, 60, 14}))) << "the font was remade for the same device context";
  GlWindow other(kWidth, kHeight);
  other.makeCurrent(window.context());
  spoil();
  drawing.draw(picture());
  EXPECT_EQ(other.read(), before);
  window.makeCurrent();
}

TEST_F(TreeTextPictures, AnotherWindowShowsTheSameText) {
  const Picture before = drawnText("A右");
  GlWindow other(kWidth, kHeight);
  drawing.draw(picture());
  EXPECT_EQ(other.read(), before);
}

TEST_F(TreeTextPictures, WindowsOpenedOneAfterTheOtherAllShowText) {
  const Picture before = drawnText("A右");
  for (int i = 0; i < 5; ++i) {
    GlWindow other(kWidth, kHeight);
    drawing.draw(picture());
    EXPECT_EQ(other.read(), before) << i;
  }
}

TEST_F(TreeTextPictures, TheFontLeavesTheDeviceContextAsItWas) {
  const HGDIOBJ before = GetCurrentObject(window.device(), OBJ_FONT);
  drawnText("a右");
  EXPECT_EQ(GetCurrentObject(window.device(), OBJ_FONT), before);
}

TEST_F(TreeTextPictures, AnotherOpenGlContextOfTheSameDeviceContextShowsTheSameText) {
  const Picture before = drawnText("A右");
  const HGLRC other = wglCreateContext(window.device());
  window.makeCurrent(other);
  drawing.draw(picture());
  EXPECT_EQ(window.read(), before);
  window.makeCurrent();
  wglDeleteContext(other);
}

TEST_F(TreeTextPictures, TheFontIsAskedForWithTheseNumbers) {
  const GlCalls& gl = *platform::glCalls();
  const SelectedFont selected = gl.selectFont(window.device());
  LOGFONTA font{};
  GetObjectA(selected.font, sizeof font, &font);
  gl.giveFontBack(window.device(), selected);
  EXPECT_EQ(font.lfHeight, 12);
  EXPECT_EQ(font.lfWidth, 6);
  EXPECT_EQ(font.lfEscapement, 0);
  EXPECT_EQ(font.lfOrientation, 0);
  EXPECT_EQ(font.lfWeight, 100);
  EXPECT_EQ(font.lfItalic + font.lfUnderline + font.lfStrikeOut, 0);
  EXPECT_EQ(font.lfCharSet, SHIFTJIS_CHARSET);
  EXPECT_EQ(font.lfOutPrecision, 7);
  EXPECT_EQ(font.lfClipPrecision, 0);
  EXPECT_EQ(font.lfQuality, 4);
  EXPECT_EQ(font.lfPitchAndFamily, 0);
  EXPECT_STREQ(font.lfFaceName, platform::exactNarrow("ＭＳ ゴシック").value_or("").c_str());
}

TEST_F(TreeTextPictures, AFontGivenBackIsSelectedNoMoreAndDeleted) {
  const HGDIOBJ before = GetCurrentObject(window.device(), OBJ_FONT);
  const GlCalls& gl = *platform::glCalls();
  const SelectedFont selected = gl.selectFont(window.device());
  EXPECT_EQ(GetCurrentObject(window.device(), OBJ_FONT), selected.font);
  gl.giveFontBack(window.device(), selected);
  EXPECT_EQ(GetCurrentObject(window.device(), OBJ_FONT), before);
  EXPECT_EQ(GetObjectType(selected.font), 0U);
}

TEST_F(TreeTextPictures, SymbolsFillTwoCellsEachAndDoNotOverlap) {
  for (const char* const symbol : {"①", "★", "Ⅳ", "→", "※", "α", "Ω", "ж"}) {
    const Picture alone = drawnText(symbol);
    EXPECT_FALSE(isBlank(cell(alone, 0, 0, 0, 2))) << symbol;
    EXPECT_TRUE(isBlank(cell(alone, 0, 0, 2, 4))) << symbol << " reaches beyond its cells";
    const Picture followed = drawnText(symbol + std::string("A"));
    EXPECT_EQ(cell(followed, 0, 0, 0, 2), cell(alone, 0, 0, 0, 2)) << symbol;
    EXPECT_EQ(cell(followed, 0, 0, 2), cell(drawnText("A"), 0, 0, 0)) << symbol;
  }
}

TEST_F(TreeTextPictures, NamesWithSymbolsAsTheyAreSeen) {
  for (const char* const name : {"①腰_L", "Bone★※→", "Ⅳ番目_Ⅱ", "αβγΩ_tail", "Кость_Ёж", "ﾎﾞｰﾝ①"}) tree.add(0, name);
  save(drawn(), "tree-symbols");
}

}  // namespace
}  // namespace pictures
