// "OpenGLControl": a window with a context of its own, current around the module's callbacks, left as it was found.
#include "tests/pictures/front_fixture.h"
// After windows.h, which it needs.
#include <GL/gl.h>

namespace standin {
namespace {

using testing::HasSubstr;

HGLRC inDraw = nullptr;
HGLRC inEvent = nullptr;
int draws = 0;
void (*drawing)() = nullptr;

class FrontDrawing : public FrontTest {
 protected:
  void SetUp() override {
    FrontTest::SetUp();
    inDraw = inEvent = nullptr;
    draws = 0;
    panelId = make();
    area = record(add(panelId, ControlKind::OpenGL));
    setPointer(area->face, lw::kControlDrawCallback, reinterpret_cast<void*>(&draw));
    onEvent(area->face, [](lw::LWControl*, void*) { inEvent = wglGetCurrentContext(); });
    setNumber(panelId, lw::kPanelWidth, 240);
    setNumber(panelId, lw::kPanelHeight, 160);
  }
  static void draw(lw::LWControl*, void*, int) {
    ++draws;
    inDraw = wglGetCurrentContext();
    if (drawing != nullptr) drawing();
  }
  void openDrawing(void (*how)()) {
    drawing = how;
    open();
  }
  Control* area = nullptr;
};

// Fills the area with a colour and leaves everything as it was.
void fillRed() {
  glPushAttrib(GL_ALL_ATTRIB_BITS);
  glClearColor(1, 0, 0, 1);
  glClear(GL_COLOR_BUFFER_BIT);
  glPopAttrib();
}

constexpr std::uint32_t kRed = 0xFF0000FFU;

TEST_F(FrontDrawing, ContextIsCurrentInDrawAndEvent) {
  openDrawing(&fillRed);
  ASSERT_TRUE(driver->clickAt(*area, 10, 10));
  EXPECT_NE(nullptr, inDraw);
  EXPECT_EQ(inDraw, inEvent);
  EXPECT_EQ(nullptr, wglGetCurrentContext());
}

TEST_F(FrontDrawing, TwoAreasHaveContextsOfTheirOwn) {
  openDrawing(&fillRed);
  HGLRC const first = inDraw;
  const lw::PanelId other = make("Other");
  Control& second = *record(add(other, ControlKind::OpenGL));
  setPointer(second.face, lw::kControlDrawCallback, reinterpret_cast<void*>(&draw));
  services->open(other, kFlags);
  front->settle();
  EXPECT_NE(first, inDraw);
}

TEST_F(FrontDrawing, PictureShowsWhatWasDrawn) {
  openDrawing(&fillRed);
  const Picture picture = driver->picture(*area);
  ASSERT_EQ(100, picture.width);
  ASSERT_EQ(30, picture.height);
  EXPECT_EQ(kRed, picture.at(0, 0));
  EXPECT_EQ(kRed, picture.at(99, 29));
}

TEST_F(FrontDrawing, PictureIsTheRightWayUp) {
  openDrawing([] {
    fillRed();
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glEnable(GL_SCISSOR_TEST);
    glScissor(0, 20, 50, 10);  // from the bottom: the upper left
    glClearColor(0, 0, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glPopAttrib();
  });
  const Picture picture = driver->picture(*area);
  EXPECT_EQ(0xFFFF0000U, picture.at(5, 5));
  EXPECT_EQ(kRed, picture.at(5, 25));
  EXPECT_EQ(kRed, picture.at(95, 5));
}

TEST_F(FrontDrawing, RedrawThatTheModuleAsksForCallsTheCallback) {
  openDrawing(&fillRed);
  const int before = draws;
  area->face->draw(area->face, lw::kDrawRefresh);
  front->settle();
  EXPECT_EQ(before + 1, draws);
}

TEST_F(FrontDrawing, ResizedAreaIsDrawnInItsNewSize) {
  openDrawing(&fillRed);
  setInteger(area->face, lw::kControlWidth, 200);
  setInteger(area->face, lw::kControlHeight, 90);
  const Picture picture = driver->picture(*area);
  EXPECT_EQ(200, picture.width);
  EXPECT_EQ(kRed, picture.at(199, 89));
}

TEST_F(FrontDrawing, DoubleClickIsCountedAndTheButtonTold) {
  static std::vector<int> clicks;
  clicks.clear();
  onEvent(area->face, [](lw::LWControl* control, void*) { clicks.push_back(getInteger(control, lw::kControlClickCount)); });
  openDrawing(&fillRed);
  ASSERT_TRUE(driver->clickAt(*area, 10, 10, MouseButton::Left, {}, 2));
  EXPECT_THAT(clicks, testing::ElementsAre(1, 1, 2, 2));  // press and release, twice
}

struct Leak {
  const char* name;  // as the fault names it
  void (*draw)();
  friend std::ostream& operator<<(std::ostream& out, const Leak& leak) { return out << leak.name; }
};
class FrontLeaks : public FrontDrawing, public testing::WithParamInterface<Leak> {};

TEST_P(FrontLeaks, AreFoundAndNamed) {
  openDrawing(GetParam().draw);
  EXPECT_THAT(takeFaults(), HasSubstr(GetParam().name));
  drawing = nullptr;
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, FrontLeaks,
    testing::Values(
        Leak{"line stipple", [] { glEnable(GL_LINE_STIPPLE); }}, Leak{"matrix mode", [] { glMatrixMode(GL_PROJECTION); }},
        Leak{"model-view stack depth", [] { glPushMatrix(); }}, Leak{"model-view matrix", [] { glTranslatef(1, 0, 0); }},
        Leak{"list base", [] { glListBase(1000); }}, Leak{"current colour", [] { glColor3f(0, 1, 0); }},
        Leak{"attribute stack depth", [] { glPushAttrib(GL_ENABLE_BIT); }},
        Leak{"raster position", [] { glRasterPos2f(0.5F, 0); }}, Leak{"viewport", [] { glViewport(1, 2, 3, 4); }},
        Leak{"line width", [] { glLineWidth(3); }}, Leak{"clear colour", [] { glClearColor(1, 1, 1, 1); }},
        Leak{"unpack alignment", [] { glPixelStorei(GL_UNPACK_ALIGNMENT, 1); }},
        Leak{"too many pops", [] { glPopAttrib(); }}, Leak{"an unknown name", [] { glEnable(0x1234); }},
        Leak{"another context", [] { wglMakeCurrent(nullptr, nullptr); }}));

TEST_F(FrontDrawing, LeakInTheEventCallbackIsFoundToo) {
  onEvent(area->face, [](lw::LWControl*, void*) { glEnable(GL_BLEND); });
  openDrawing(&fillRed);
  ASSERT_TRUE(driver->clickAt(*area, 10, 10));
  EXPECT_THAT(takeFaults(), HasSubstr("blending"));
}

}  // namespace
}  // namespace standin
