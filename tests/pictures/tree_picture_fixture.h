// A tree drawn in a hidden window, and what its pixels are asked for.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "modeler/selector/tree_drawing.h"
#include "objectfile/file_bytes.h"
#include "standin/core/program_folder.h"
#include "standin/windows/gl_state.h"
#include "tests/pictures/gl_window.h"
#include "tests/unit/tree_fixture.h"

namespace pictures {

using Pixel = std::uint32_t;

constexpr Pixel rgb(unsigned red, unsigned green, unsigned blue) { return 0xFF000000U | blue << 16 | green << 8 | red; }
constexpr Pixel kBlack = rgb(0, 0, 0);
constexpr Pixel kEvenStripe = rgb(102, 102, 102);
constexpr Pixel kOddStripe = rgb(128, 128, 128);
constexpr Pixel kEvenSelected = rgb(156, 151, 140);
constexpr Pixel kOddSelected = rgb(168, 163, 152);
constexpr Pixel kGuide = rgb(51, 51, 51);
constexpr Pixel kStrip = rgb(77, 77, 77);
constexpr Pixel kThumb = rgb(179, 179, 179);
constexpr Pixel kCorner = rgb(51, 51, 51);

// OpenGL may round a colour up or down.
inline bool isLike(Pixel a, Pixel b) {
  for (int shift = 0; shift < 24; shift += 8) {
    if (std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF)) > 1) return false;
  }
  return true;
}

inline int countOf(const standin::Picture& picture, Pixel colour) {
  int count = 0;
  for (const Pixel pixel : picture.pixels) count += isLike(pixel, colour) ? 1 : 0;
  return count;
}

inline void save(const standin::Picture& picture, const std::string& name) {
  const std::string folder = standin::programFolder() + "/../pictures";
  std::error_code error;
  std::filesystem::create_directories(standin::pathFromUtf8(folder), error);
  EXPECT_TRUE(standin::savePng(picture, folder + "/" + name + ".png")) << name;
}

constexpr int kWidth = 340;
constexpr int kHeight = 240;

class TreePictures : public testing::Test {
 protected:
  mst::TreePicture picture() { return tree.picture(kWidth, kHeight); }
  mst::TreePicture scrolled(double x, double y) {
    mst::TreePicture view = picture();
    view.scrollX = x;
    view.scrollY = y;
    return view;
  }
  standin::Picture drawn(const mst::TreePicture& view) {
    drawing.draw(view);
    EXPECT_EQ(standin::takeGlErrors(), "");
    return window.read();
  }
  standin::Picture drawn() { return drawn(picture()); }
  // The character's cell: the text of a row begins at 4 and 12 further for each level.
  static standin::Picture cell(const standin::Picture& of, int row, int depth, int column, int cells = 1) {
    return of.part({12 * depth + 4 + 6 * column, 14 * row, 6 * cells, 14});
  }

  GlWindow window{kWidth, kHeight};
  mst::TestTree tree;
  mst::CTreeDrawing drawing;
};

}  // namespace pictures
