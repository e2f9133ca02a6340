// OpenGL's state around the drawing: it does not show in the picture, and it is left as it was found.
#include "tests/pictures/tree_picture_fixture.h"
// After windows.h, which it needs.
#include <GL/gl.h>

namespace pictures {
namespace {

using standin::GlState;
using standin::Picture;

// As another user of the context may leave it.
void disturb() {
  for (const GLenum capability :
       {GL_LIGHTING, GL_LIGHT0, GL_TEXTURE_2D, GL_TEXTURE_1D, GL_FOG, GL_DEPTH_TEST, GL_BLEND, GL_ALPHA_TEST, GL_CULL_FACE,
        GL_LINE_STIPPLE, GL_LINE_SMOOTH, GL_POLYGON_STIPPLE, GL_STENCIL_TEST, GL_COLOR_LOGIC_OP}) {
    glEnable(capability);
  }
  glDepthFunc(GL_NEVER);
  glAlphaFunc(GL_NEVER, 0);
  glStencilFunc(GL_NEVER, 1, 1);
  glLogicOp(GL_INVERT);
  glBlendFunc(GL_ZERO, GL_ONE);
  glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
  glShadeModel(GL_FLAT);
  glLineWidth(3);
  glLineStipple(5, 0x00FF);
  glColor3d(1, 0, 1);
  glRasterPos2d(0.5, 0.25);
  glListBase(77);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
  glPixelStorei(GL_UNPACK_ROW_LENGTH, 33);
  glPixelStorei(GL_UNPACK_SKIP_ROWS, 2);
  glPixelStorei(GL_UNPACK_LSB_FIRST, GL_TRUE);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  glRotated(30, 1, 2, 3);
  glTranslated(5, 0.3, 7);
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glFrustum(-1, 1.5, -1, 1, 0.3, 90);
  glMatrixMode(GL_TEXTURE);
}

class TreeState : public TreePictures {
 protected:
  TreeState() {
    tree = mst::mixedTree(40);
    tree.nodes[3].text = "右腕";
    tree.nodes[3].state |= mst::kStateSelected;
  }
};

TEST_F(TreeState, IsLeftAsItWasFound) {
  disturb();
  const GlState before = GlState::now();
  drawing.draw(scrolled(3, 20));
  EXPECT_EQ(before.differenceTo(GlState::now()), "");
  EXPECT_EQ(standin::takeGlErrors(), "");
}

TEST_F(TreeState, DoesNotShowInThePicture) {
  const Picture expected = drawn();
  GlWindow other(kWidth, kHeight);
  disturb();
  mst::CTreeDrawing fresh;
  fresh.draw(picture());
  EXPECT_EQ(other.read(), expected);
}

TEST_F(TreeState, IsLeftAsItWasFoundWithAllMatrixStacksInUse) {
  for (const auto& [mode, most] :
       {std::pair(GL_PROJECTION, GL_MAX_PROJECTION_STACK_DEPTH), {GL_MODELVIEW, GL_MAX_MODELVIEW_STACK_DEPTH}}) {
    GLint depth = 0;
    glGetIntegerv(static_cast<GLenum>(most), &depth);
    glMatrixMode(static_cast<GLenum>(mode));
    for (int i = 1; i < depth; ++i) glPushMatrix();
  }
  ASSERT_EQ(standin::takeGlErrors(), "");
  const GlState before = GlState::now();
  const Picture seen = drawn();
  EXPECT_EQ(before.differenceTo(GlState::now()), "");
  EXPECT_GT(countOf(seen, kBlack), 100);
}

}  // namespace
}  // namespace pictures
