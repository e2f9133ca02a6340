// When the selector's tree is drawn, and what it shows of the mesh. Here the panel is the test's own, not the built module's, so
// that it draws into a recorder.
#include <functional>

#include "modeler/selector/MST_CSkgSelPanel.h"
#include "modeler/selector/selector_colours.h"
#include "tests/tools/panel_listener.h"
#include "tests/tools/selector_fixture.h"
#include "tests/unit/gl_recorder.h"

namespace varnel::test {
namespace {

using standin::Painter;

class Recorded {
 protected:
  mst::GlRecorder gl;
};

class SelectorDrawing : protected Recorded, public OwnPanel<mst::CSkgSelPanel> {
 protected:
  SelectorDrawing() : OwnPanel(panelRig(), {}) {}

  void open(Painter painter = Painter::DrawCallback) {
    standin::panels().options.painter = painter;
    EXPECT_TRUE(tool->OpenSelectorPanel());
    panel = standin::panels().find(kSelectorTool);
    paint();
  }
  standin::Control* tree() const { return panel->find(standin::ControlKind::OpenGL); }
  // The host paints what is to be painted. How often the tree was drawn then.
  int paint() {
    gl.clear();
    EXPECT_GT(standin::panels().paintWanted(*panel), 0);
    return gl.clears;
  }
  int drawnBy(const std::function<void()>& call) {
    gl.clear();
    standin::callModule("callback", [&] { call(); });
    return gl.clears;
  }
};

TEST_F(SelectorDrawing, IsDrawnOnceByEachCallByWhichAHostPaints) {
  for (const auto& [painter, calls] :
       {std::pair{Painter::DrawCallback, 1}, std::pair{Painter::EventCallback, 1}, std::pair{Painter::Both, 2}}) {
    open(painter);
    tree()->wantsPaint = true;
    EXPECT_EQ(paint(), calls);
    ASSERT_TRUE(person::close(panel));
  }
}

TEST_F(SelectorDrawing, IsDrawnByTheEventOfAClickToo) {
  open();
  gl.clear();
  ASSERT_TRUE(person::click(tree(), SelectorSession::labelX(row::kHips), SelectorSession::middleOf(row::kHips)));
  EXPECT_GT(gl.clears, 0);
}

// This host paints before the call that asks for it returns.
TEST_F(SelectorDrawing, IsDrawnByAnEventWithinTheAsking) {
  open(Painter::EventCallback);
  standin::panels().options.paintsAtOnce = true;
  gl.clear();
  ASSERT_TRUE(person::press(panel->find("Sync")));
  EXPECT_GT(gl.clears, 0);
}

TEST_F(SelectorDrawing, IsNotDrawnWhileItIsErased) {
  open();
  const auto call = [&](int mode) { return drawnBy([&] { tree()->drawCallback(tree()->face, tree()->user, mode); }); };
  EXPECT_EQ(call(lw::kDrawErase), 0);
  EXPECT_EQ(call(lw::kDrawRender), 1);
}

TEST_F(SelectorDrawing, IsNotDrawnByAnEventOfAnotherControl) {
  open();
  EXPECT_EQ(drawnBy([&] { tree()->event(panel->find("Sync")->face, tree()->user); }), 0);
}

// The rows of a chain but the last have triangles for markers. The colour that Modeler itself keeps goes before our copy of it.
TEST_F(SelectorDrawing, ShowsTheColourOfASkelegonBeforeItsCopy) {
  object->setTag(*object->skelegon("Hips"), lw::kTagColour, "Blue");
  object->setTag(*object->skelegon("Hips"), skg::kColourCopyTag, "Red");
  object->setTag(*object->skelegon("Chest"), skg::kColourCopyTag, "Red");
  open();
  const auto colourOfMarker = [&](std::size_t number) { return gl.shapesOf(gl::kTriangles).at(number).colour; };
  const auto colourNamed = [](std::string_view word) {
    const mst::Rgba colour = mst::rowColour(skg::colourIndex(word)).value();
    return mst::Rgb{colour[0] / 255.0, colour[1] / 255.0, colour[2] / 255.0};
  };
  EXPECT_EQ(colourOfMarker(2), colourNamed("Blue"));
  EXPECT_EQ(colourOfMarker(3), colourNamed("Red"));
}

}  // namespace
}  // namespace varnel::test
