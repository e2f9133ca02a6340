// What one redraw of the selector's tree asks of OpenGL, and the time that the drawing itself takes, by the number of rows. OpenGL
// is a counter here, so that only the module's own work is measured.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

#include "modeler/tree_drawing.h"
#include "tests/unit/tree_fixture.h"

namespace {

int calls = 0;

template <class... Arguments>
void count(Arguments...) {
  ++calls;
}
template <class Result, class... Arguments>
Result countAndGive(Arguments...) {
  ++calls;
  return Result{1};
}

// OpenGL with room on its stacks and every list made; a device context that is there.
GlCalls countingCalls() {
  GlCalls gl = {};
  gl.pushAttrib = count;
  gl.popAttrib = count;
  gl.getIntegers = [](unsigned what, int* value) { ++calls, *value = what == gl::kMostAttribStackDepth ? 16 : 0; };
  gl.getFloats = count;
  gl.enable = count;
  gl.disable = count;
  gl.polygonMode = count;
  gl.pixelStore = count;
  gl.matrixMode = count;
  gl.loadIdentity = count;
  gl.loadMatrix = count;
  gl.ortho = count;
  gl.translate = count;
  gl.scale = count;
  gl.clear = count;
  gl.colour3 = count;
  gl.colour4 = count;
  gl.lineWidth = count;
  gl.lineStipple = count;
  gl.begin = count;
  gl.end = count;
  gl.vertex = count;
  gl.rasterPosition = count;
  gl.callList = count;
  gl.isList = countAndGive<std::uint8_t>;
  gl.deleteLists = count;
  gl.getError = [] { return 0U; };
  gl.currentDevice = []() -> void* { return &calls; };
  gl.selectFont = [](void*) { return SelectedFont{&calls, nullptr}; };
  gl.giveFontBack = [](void*, const SelectedFont&) {};
  gl.makeByteLists = countAndGive<bool>;
  gl.makeWideList = countAndGive<bool>;
  return gl;
}

struct Cost {
  double microseconds = 0;
  int calls = 0;
};

Cost costOf(mst::CTreeDrawing& drawing, const mst::TreePicture& picture) {
  constexpr int kRepetitions = 200;
  using Clock = std::chrono::steady_clock;
  drawing.draw(picture);
  Cost cost;
  for (int i = 0; i < kRepetitions; ++i) {
    calls = 0;
    const Clock::time_point start = Clock::now();
    drawing.draw(picture);
    const double spent = std::chrono::duration<double, std::micro>(Clock::now() - start).count();
    cost.microseconds = i == 0 ? spent : std::min(cost.microseconds, spent);
  }
  cost.calls = calls;
  return cost;
}

}  // namespace

int main() {
  constexpr int kWidth = 340;
  constexpr int kHeight = 240;
  const GlCalls gl = countingCalls();
  std::printf("one redraw of the selector's tree in a view of %d by %d: OpenGL calls, and time of the drawing in us\n",
              kWidth, kHeight);
  std::printf("%10s %12s %10s %12s %10s %12s %10s\n", "rows", "at the top", "calls", "at the end", "calls", "long names",
              "calls");
  for (const std::size_t size : {10U, 100U, 1000U, 10'000U}) {
    mst::CTreeDrawing drawing(&gl);
    mst::TestTree tree = mst::mixedTree(size);
    mst::TreePicture picture = tree.picture(kWidth, kHeight);
    const Cost top = costOf(drawing, picture);
    picture.scrollY =
        std::max(0.0, static_cast<double>(picture.rows.size()) * mst::kRowHeight - kHeight + mst::kScrollBarSize);
    const Cost end = costOf(drawing, picture);
    for (auto& node : tree.nodes) node.text = std::string(1000, 'x');
    const Cost longNames = costOf(drawing, picture);
    std::printf("%10zu %12.1f %10d %12.1f %10d %12.1f %10d\n", picture.rows.size(), top.microseconds, top.calls,
                end.microseconds, end.calls, longNames.microseconds, longNames.calls);
  }
  return 0;
}
