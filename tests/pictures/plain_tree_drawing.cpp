#include "tests/pictures/plain_tree_drawing.h"

#include "standin/windows/system.h"
// After windows.h, which it needs.
#include <GL/gl.h>

#include <algorithm>
#include <cmath>

namespace pictures {
namespace {

void drawStripes(const mst::TreePicture& picture) {
  const int fit = static_cast<int>(std::ceil(picture.height / 14.0));
  const int stripes = std::max(fit, static_cast<int>(picture.rows.size()));
  const int width = std::max(picture.contentWidth, picture.width);
  for (int i = 0; i < stripes; ++i) {
    const auto row = static_cast<std::size_t>(i);
    const bool isSelected = row < picture.rows.size() && (picture.owner->stateOf(picture.rows[row].node) & 4) != 0;
    if (isSelected) {
      i % 2 == 1 ? glColor3d(0.6598039, 0.6401961, 0.5970588) : glColor3d(0.6098039, 0.5901961, 0.5470588);
    } else {
      i % 2 == 1 ? glColor3d(0.5, 0.5, 0.5) : glColor3d(0.4, 0.4, 0.4);
    }
    glRecti(0, 14 * i, width, 14 * i + 14);
  }
}

// The rows after a row that are one level deeper, up to the next row of its own level or above.
void drawGuideLinesOf(std::size_t row, const mst::TreePicture& picture) {
  const int depth = picture.rows[row].depth;
  std::size_t last = 0;
  glPushMatrix();
  glTranslated(12 * depth - 2, (static_cast<double>(row) + 0.5) * 14, 0);
  glBegin(GL_LINES);
  for (std::size_t k = 1; row + k < picture.rows.size() && picture.rows[row + k].depth > depth; ++k) {
    if (picture.rows[row + k].depth != depth + 1) continue;
    last = k;
    glVertex2d(0, 14.0 * static_cast<double>(k));
    glVertex2d(12, 14.0 * static_cast<double>(k));
  }
  if (last != 0) {
    glVertex2d(0, 0);
    glVertex2d(0, 14.0 * static_cast<double>(last));
  }
  glEnd();
  glPopMatrix();
}

void drawMarker(const mst::TreePicture& picture, std::size_t node) {
  const mst::Rgba colour = picture.owner->colourOf(node).value_or(mst::Rgba{205, 205, 205, 255});
  glColor4ub(colour[0], colour[1], colour[2], colour[3]);
  if (picture.owner->childCountOf(node) == 0) return glRectd(-0.24, -0.12, 0.24, 0.12);
  glBegin(GL_TRIANGLES);
  if ((picture.owner->stateOf(node) & 2) != 0) {
    glVertex2d(-0.5, -0.333);
    glVertex2d(0, 0.533);
    glVertex2d(0.5, -0.333);
  } else {
    glVertex2d(-0.866, 0.25);
    glVertex2d(-0.866, -0.25);
    glVertex2d(0.866, 0);
  }
  glEnd();
}

void drawMarkerAndText(std::size_t row, const mst::TreePicture& picture) {
  glPushMatrix();
  glTranslated(10, 14.0 * static_cast<double>(row) + 7, 0);
  glScaled(6, 12, 1);
  glTranslated(2 * picture.rows[row].depth - 2, 0, 0);
  drawMarker(picture, picture.rows[row].node);
  glTranslated(1, 0, 0);
  glColor3d(0, 0, 0);
  for (const char c : picture.owner->textOf(picture.rows[row].node)) {
    glPushMatrix();
    glScaled(1, -1, 1);
    glTranslated(0, -0.4, 0);
    glRasterPos2d(0, 0);
    glPopMatrix();
    glCallList(1000U + static_cast<unsigned char>(c));
    glTranslated(1, 0, 0);
  }
  glPopMatrix();
}

}  // namespace

void drawPlainTree(const mst::TreePicture& picture, double margin) {
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glOrtho(0, picture.width, picture.height, 0, -1, 1);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  glClear(GL_COLOR_BUFFER_BIT);
  glTranslated(margin - picture.scrollX, margin - picture.scrollY, 0);
  drawStripes(picture);
  glColor3d(0.2, 0.2, 0.2);
  glLineWidth(1);
  glLineStipple(1, 0xAAAA);
  glEnable(GL_LINE_STIPPLE);
  for (std::size_t row = 0; row < picture.rows.size(); ++row) drawGuideLinesOf(row, picture);
  glDisable(GL_LINE_STIPPLE);
  for (std::size_t row = 0; row < picture.rows.size(); ++row) drawMarkerAndText(row, picture);
}

}  // namespace pictures
