#include "probe/panel_paint.h"

#include <array>

#include "host/gl_calls.h"
#include "host/platform.h"

namespace probe {
namespace {

// What another user of the context may have switched on and would show in the picture.
constexpr std::array kUnwanted = {gl::kTexture1D,   gl::kTexture2D, gl::kLighting, gl::kFog,      gl::kDepthTest,
                                  gl::kStencilTest, gl::kAlphaTest, gl::kBlend,    gl::kCullFace, gl::kPolygonStipple};

using Matrix = std::array<float, 16>;

void quad(const GlCalls& gl, double left, double right, double height) {
  gl.begin(gl::kQuads);
  gl.vertex(left, 0);
  gl.vertex(left, height);
  gl.vertex(right, height);
  gl.vertex(right, 0);
  gl.end();
}

void drawHalves(const GlCalls& gl, double width, double height) {
  gl.matrixMode(gl::kProjection);
  gl.loadIdentity();
  gl.ortho(0, width, height, 0, -1, 1);
  gl.matrixMode(gl::kModelView);
  gl.loadIdentity();
  for (const unsigned capability : kUnwanted) gl.disable(capability);
  gl.polygonMode(gl::kFrontAndBack, gl::kFill);
  gl.colour3(0.25, 0.35, 0.55);
  quad(gl, 0, width / 2, height);
  gl.colour3(0.65, 0.55, 0.35);
  quad(gl, width / 2, width, height);
}

}  // namespace

void paintHalves(int width, int height) {
  const GlCalls* const gl = platform::glCalls();
  if (gl == nullptr || gl->currentContext() == nullptr || width <= 0 || height <= 0) return;
  int depth = 0;
  int most = 0;
  gl->getIntegers(gl::kAttribStackDepth, &depth);
  gl->getIntegers(gl::kMostAttribStackDepth, &most);
  if (depth >= most) return;  // no level left to keep the state in
  Matrix projection{};
  Matrix modelView{};
  gl->pushAttrib(gl::kAllAttributes);
  gl->getFloats(gl::kProjectionMatrix, projection.data());
  gl->getFloats(gl::kModelViewMatrix, modelView.data());
  drawHalves(*gl, width, height);
  gl->matrixMode(gl::kProjection);
  gl->loadMatrix(projection.data());
  gl->matrixMode(gl::kModelView);
  gl->loadMatrix(modelView.data());
  gl->popAttrib();
}

}  // namespace probe
