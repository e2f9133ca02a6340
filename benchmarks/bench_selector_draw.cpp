// What one redraw of the selector's tree asks of OpenGL, and the time that the drawing itself takes, by the number of rows.
// OpenGL is a counter here, so that only the module's own work is measured.
#include <algorithm>
#include <cstdio>
#include <string>

#include "benchmarks/module_cost.h"
#include "modeler/selector/tree_drawing.h"
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
  gl.genLists = countAndGive<unsigned>;
  gl.deleteLists = count;
  gl.getError = [] { return 0U; };
  gl.currentDevice = []() -> void* { return &calls; };
  gl.currentContext = []() -> void* { return &calls; };
  gl.selectFont = [](void*) { return SelectedFont{&calls, nullptr}; };
  gl.giveFontBack = [](void*, const SelectedFont&) {};
  gl.makeByteLists = countAndGive<bool>;
  gl.makeWideList = countAndGive<bool>;
  return gl;
}

void measureRedraw(varnel::bench::ModuleCost& cost, mst::CTreeDrawing& drawing, const mst::TreePicture& picture) {
  constexpr int kRedraws = 200;
  const auto redraw = [&] { standin::callModule("draw", [&] { drawing.draw(picture); }); };
  redraw();
  for (int i = 0; i < kRedraws; ++i) {
    calls = 0;
    varnel::bench::measure(cost, redraw);
    cost.calls = static_cast<std::uint64_t>(calls);
  }
}

}  // namespace

int main() {
  constexpr int kWidth = 340;
  constexpr int kHeight = 240;
  const GlCalls gl = countingCalls();
  varnel::bench::CostTable costs;
  for (const std::size_t size : {10U, 100U, 1000U, 5000U, 10'000U}) {
    mst::CTreeDrawing drawing(&gl);
    mst::TestTree tree = mst::mixedTree(size);
    mst::TreePicture picture = tree.picture(kWidth, kHeight);
    measureRedraw(costs.at("redraw at the top", size), drawing, picture);
    picture.scrollY =
        std::max(0.0, static_cast<double>(picture.rows.size()) * mst::kRowHeight - kHeight + mst::kScrollBarSize);
    measureRedraw(costs.at("redraw at the end", size), drawing, picture);
    for (auto& node : tree.nodes) node.text = std::string(1000, 'x');
    measureRedraw(costs.at("with names of 1,000 letters", size), drawing, picture);
  }
  std::puts("### Redraw of the selector\n");
  std::printf("A view of %d by %d; only the rows in view are drawn, so the cost hardly depends on their number.\n\n", kWidth,
              kHeight);
  costs.print("rows", "OpenGL calls");
  return 0;
}
