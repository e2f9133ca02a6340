// OpenGL for tests: works out where things would be drawn, writes them down, and notes what may not be done. One at a time,
// for OpenGL's functions have no object.
#pragma once

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "host/gl_calls.h"

namespace mst {

struct Spot {
  double x = 0;
  double y = 0;
};

using Rgb = std::array<double, 3>;

struct DrawnShape {
  unsigned primitive = 0;
  Rgb colour{};
  bool isDotted = false;
  unsigned pattern = 0;
  double width = 0;           // of a line
  std::vector<Spot> corners;  // in pixels of the view
};

struct DrawnCharacter {
  unsigned list = 0;
  Rgb colour{};
  Spot at;
};

class GlRecorder {
 public:
  GlRecorder();
  ~GlRecorder();
  GlRecorder(const GlRecorder&) = delete;
  GlRecorder& operator=(const GlRecorder&) = delete;

  static const GlCalls& calls();
  // Forgets what was drawn and counted, not the lists.
  void clear();
  std::vector<DrawnShape> shapesOf(unsigned primitive) const;

  // The host's side.
  void* device = this;
  void* context = this;
  bool hasFont = true;
  bool makesWideLists = true;
  bool hasNoMoreLists = false;
  std::set<unsigned> lists;
  int attribDepth = 0;
  int mostAttribDepth = 16;

  // OpenGL's state, as far as it matters here.
  struct Matrix {
    Spot scale{1, 1};
    Spot move;
    bool operator==(const Matrix& other) const {
      return scale.x == other.scale.x && scale.y == other.scale.y && move.x == other.move.x && move.y == other.move.y;
    }
  };
  struct State {
    std::set<unsigned> enabled;
    unsigned matrixMode = gl::kModelView;
    Rgb colour{};
    unsigned pattern = 0;
    double width = 1;
    bool operator==(const State&) const = default;
  };
  State state;
  Matrix modelView;
  Matrix projection;
  std::map<unsigned, int> pixelStore;
  unsigned error = 0;

  // What was done.
  int callCount = 0;
  int clears = 0;
  std::array<double, 6> ortho{};
  std::vector<DrawnShape> shapes;
  std::vector<DrawnCharacter> characters;
  int fontsMade = 0;
  int fontsOut = 0;  // made and not given back
  int byteListRuns = 0;
  std::vector<char16_t> wideLists;
  std::set<unsigned> deletedLists;
  std::vector<std::string> faults;

 private:
  friend struct RecordedCalls;
  Matrix& matrix() { return state.matrixMode == gl::kProjection ? projection : modelView; }

  bool isDrawing_ = false;
  Spot raster_;
  Rgb rasterColour_{};
  std::vector<State> pushed_;
};

}  // namespace mst
