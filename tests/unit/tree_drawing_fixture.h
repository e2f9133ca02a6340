// The drawing of a small tree, against a recorder in OpenGL's place. Each test ends with a look at what was left behind.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "modeler/selector/tree_drawing.h"
#include "tests/unit/gl_recorder.h"
#include "tests/unit/tree_fixture.h"

namespace mst {

inline constexpr int kWidth = 100;
inline constexpr int kHeight = 70;  // five rows

// The characters that were drawn; "#" for one that has a list of its own.
inline std::string lettersOf(const GlRecorder& gl) {
  std::string text;
  for (const DrawnCharacter& c : gl.characters) {
    const bool isOfBytes = c.list >= kFirstList && c.list < kFirstList + kByteLists;
    text += isOfBytes ? static_cast<char>(c.list - kFirstList) : '#';
  }
  return text;
}

class DrawnTree : public testing::Test {
 protected:
  ~DrawnTree() override {
    EXPECT_THAT(gl.faults, testing::IsEmpty());
    EXPECT_EQ(gl.fontsOut, 0);
    EXPECT_EQ(gl.attribDepth, 0);
  }

  void draw() { draw(tree.picture(kWidth, kHeight)); }
  void draw(const TreePicture& picture) {
    gl.clear();
    drawing.draw(picture);
  }
  void drawScrolled(double x, double y) {
    TreePicture picture = tree.picture(kWidth, kHeight);
    picture.scrollX = x;
    picture.scrollY = y;
    draw(picture);
  }

  GlRecorder gl;
  GlCalls calls = GlRecorder::calls();
  CTreeDrawing drawing{&calls};
  TestTree tree;
};

}  // namespace mst
