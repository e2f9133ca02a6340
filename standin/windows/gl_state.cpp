#include "standin/windows/gl_state.h"

#include "standin/windows/system.h"
// After windows.h, which it needs.
#include <GL/gl.h>

#include <cmath>
#include <cstdio>

namespace standin {
namespace {

enum class Read { Switch, Number };

struct StateRow {
  const char* name;
  GLenum code;
  Read how;
  int count;
};

// clang-format off
constexpr std::array kState{
    //       name                        code                            how           count
    StateRow{"matrix mode",              GL_MATRIX_MODE,                 Read::Number, 1},
    StateRow{"model-view stack depth",   GL_MODELVIEW_STACK_DEPTH,       Read::Number, 1},
    StateRow{"projection stack depth",   GL_PROJECTION_STACK_DEPTH,      Read::Number, 1},
    StateRow{"texture stack depth",      GL_TEXTURE_STACK_DEPTH,         Read::Number, 1},
    StateRow{"attribute stack depth",    GL_ATTRIB_STACK_DEPTH,          Read::Number, 1},
    StateRow{"client stack depth",       GL_CLIENT_ATTRIB_STACK_DEPTH,   Read::Number, 1},
    StateRow{"name stack depth",         GL_NAME_STACK_DEPTH,            Read::Number, 1},
    StateRow{"model-view matrix",        GL_MODELVIEW_MATRIX,            Read::Number, 16},
    StateRow{"projection matrix",        GL_PROJECTION_MATRIX,           Read::Number, 16},
    StateRow{"texture matrix",           GL_TEXTURE_MATRIX,              Read::Number, 16},
    StateRow{"list base",                GL_LIST_BASE,                   Read::Number, 1},
    StateRow{"open display list",        GL_LIST_INDEX,                  Read::Number, 1},
    StateRow{"render mode",              GL_RENDER_MODE,                 Read::Number, 1},
    StateRow{"viewport",                 GL_VIEWPORT,                    Read::Number, 4},
    StateRow{"scissor box",              GL_SCISSOR_BOX,                 Read::Number, 4},
    StateRow{"scissor test",             GL_SCISSOR_TEST,                Read::Switch, 1},
    StateRow{"current colour",           GL_CURRENT_COLOR,               Read::Number, 4},
    StateRow{"current normal",           GL_CURRENT_NORMAL,              Read::Number, 3},
    StateRow{"texture coordinates",      GL_CURRENT_TEXTURE_COORDS,      Read::Number, 4},
    StateRow{"raster position",          GL_CURRENT_RASTER_POSITION,     Read::Number, 4},
    StateRow{"raster colour",            GL_CURRENT_RASTER_COLOR,        Read::Number, 4},
    StateRow{"edge flag",                GL_EDGE_FLAG,                   Read::Number, 1},
    StateRow{"clear colour",             GL_COLOR_CLEAR_VALUE,           Read::Number, 4},
    StateRow{"clear depth",              GL_DEPTH_CLEAR_VALUE,           Read::Number, 1},
    StateRow{"colour mask",              GL_COLOR_WRITEMASK,             Read::Number, 4},
    StateRow{"draw buffer",              GL_DRAW_BUFFER,                 Read::Number, 1},
    StateRow{"read buffer",              GL_READ_BUFFER,                 Read::Number, 1},
    StateRow{"dithering",                GL_DITHER,                      Read::Switch, 1},
    StateRow{"depth test",               GL_DEPTH_TEST,                  Read::Switch, 1},
    StateRow{"depth function",           GL_DEPTH_FUNC,                  Read::Number, 1},
    StateRow{"depth mask",               GL_DEPTH_WRITEMASK,             Read::Number, 1},
    StateRow{"alpha test",               GL_ALPHA_TEST,                  Read::Switch, 1},
    StateRow{"stencil test",             GL_STENCIL_TEST,                Read::Switch, 1},
    StateRow{"blending",                 GL_BLEND,                       Read::Switch, 1},
    StateRow{"blend source",             GL_BLEND_SRC,                   Read::Number, 1},
    StateRow{"blend destination",        GL_BLEND_DST,                   Read::Number, 1},
    StateRow{"logic operation",          GL_COLOR_LOGIC_OP,              Read::Switch, 1},
    StateRow{"lighting",                 GL_LIGHTING,                    Read::Switch, 1},
    StateRow{"colour material",          GL_COLOR_MATERIAL,              Read::Switch, 1},
    StateRow{"normalising",              GL_NORMALIZE,                   Read::Switch, 1},
    StateRow{"fog",                      GL_FOG,                         Read::Switch, 1},
    StateRow{"face culling",             GL_CULL_FACE,                   Read::Switch, 1},
    StateRow{"front face",               GL_FRONT_FACE,                  Read::Number, 1},
    StateRow{"polygon mode",             GL_POLYGON_MODE,                Read::Number, 2},
    StateRow{"polygon smoothing",        GL_POLYGON_SMOOTH,              Read::Switch, 1},
    StateRow{"polygon stipple",          GL_POLYGON_STIPPLE,             Read::Switch, 1},
    StateRow{"shade model",              GL_SHADE_MODEL,                 Read::Number, 1},
    StateRow{"line width",               GL_LINE_WIDTH,                  Read::Number, 1},
    StateRow{"line smoothing",           GL_LINE_SMOOTH,                 Read::Switch, 1},
    StateRow{"line stipple",             GL_LINE_STIPPLE,                Read::Switch, 1},
    StateRow{"line stipple's pattern",   GL_LINE_STIPPLE_PATTERN,        Read::Number, 1},
    StateRow{"line stipple's factor",    GL_LINE_STIPPLE_REPEAT,         Read::Number, 1},
    StateRow{"point size",               GL_POINT_SIZE,                  Read::Number, 1},
    StateRow{"texturing",                GL_TEXTURE_2D,                  Read::Switch, 1},
    StateRow{"bound texture",            GL_TEXTURE_BINDING_2D,          Read::Number, 1},
    StateRow{"unpack alignment",         GL_UNPACK_ALIGNMENT,            Read::Number, 1},
    StateRow{"unpack row length",        GL_UNPACK_ROW_LENGTH,           Read::Number, 1},
    StateRow{"pack alignment",           GL_PACK_ALIGNMENT,              Read::Number, 1},
};

struct ErrorRow {
  GLenum code;
  const char* name;
};
constexpr std::array kErrors{
    ErrorRow{GL_INVALID_ENUM,      "an unknown name"},
    ErrorRow{GL_INVALID_VALUE,     "a value out of range"},
    ErrorRow{GL_INVALID_OPERATION, "a call that is not allowed at that moment"},
    ErrorRow{GL_STACK_OVERFLOW,    "too many pushes"},
    ErrorRow{GL_STACK_UNDERFLOW,   "too many pops"},
    ErrorRow{GL_OUT_OF_MEMORY,     "no more memory"},
};
// clang-format on

std::string textOf(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.6g", value);
  return text.data();
}

std::string nameOfError(GLenum code) {
  for (const ErrorRow& row : kErrors) {
    if (row.code == code) return row.name;
  }
  return "error " + std::to_string(code);
}

}  // namespace

GlState GlState::now() {
  GlState state;
  for (const StateRow& row : kState) {
    Values values{};
    if (row.how == Read::Switch) {
      values[0] = glIsEnabled(row.code);
    } else {
      glGetDoublev(row.code, values.data());
    }
    state.values_.push_back(values);
  }
  return state;
}

std::string GlState::differenceTo(const GlState& after) const {
  std::string text;
  for (std::size_t i = 0; i < kState.size(); ++i) {
    for (int k = 0; k < kState[i].count; ++k) {
      const double was = values_[i][static_cast<std::size_t>(k)];
      const double is = after.values_[i][static_cast<std::size_t>(k)];
      if (was == is) continue;
      text += std::string(text.empty() ? "" : "; ") + kState[i].name + " was " + textOf(was) + ", is " + textOf(is);
      break;
    }
  }
  return text;
}

std::string takeGlErrors() {
  constexpr int most = 16;  // between glBegin and glEnd the flag cannot be taken; it would be reported for ever
  std::string text;
  GLenum code = GL_NO_ERROR;
  for (int i = 0; i < most && (code = glGetError()) != GL_NO_ERROR; ++i) {
    const std::string name = nameOfError(code);
    if (text.find(name) == std::string::npos) text += (text.empty() ? "" : ", ") + name;
  }
  return text;
}

}  // namespace standin
