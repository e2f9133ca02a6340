// A panel's window as a whole: its frame, the mouse over it, its end.
#include "tests/pictures/front_fixture.h"

namespace standin {
namespace {

using testing::ElementsAre;

struct Mouse {
  int bits;
  int x;
  int y;
  bool operator==(const Mouse&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Mouse& m) { return out << m.bits << "@" << m.x << "," << m.y; }
};

std::vector<Mouse> presses;
std::vector<Mouse> moves;
std::vector<int> notches;
std::vector<SIZE> sizes;
int closes = 0;

class FrontWindow : public FrontTest {
 protected:
  void SetUp() override {
    FrontTest::SetUp();
    presses.clear();
    moves.clear();
    notches.clear();
    sizes.clear();
    closes = 0;
    panelId = make();
    addButton(panelId, "Run");
    setNumber(panelId, lw::kPanelWidth, 240);
    setNumber(panelId, lw::kPanelHeight, 160);
  }
  template <class Hook>
  void hook(int attribute, Hook function) {
    services->set(panelId, attribute, reinterpret_cast<void*>(function));
  }
  void recordMouse() {
    hook(
        lw::kPanelMouseButtonHook, +[](lw::PanelId, void*, int bits, int x, int y) {
          presses.push_back({bits, x, y});
        });
    hook(
        lw::kPanelMouseMoveHook, +[](lw::PanelId, void*, int bits, int x, int y) {
          moves.push_back({bits, x, y});
        });
    hook(
        lw::kPanelMouseWheelHook, +[](lw::PanelId, void*, int count, int, int) { notches.push_back(count); });
  }
  void recordSizes() {
    hook(
        lw::kPanelResizeHook, +[](lw::PanelId, void*, int width, int height) {
          sizes.push_back({width, height});
        });
  }
  void recordClosing() {
    hook(
        lw::kPanelCloseHook, +[](lw::PanelId, void*) { ++closes; });
  }
  SIZE inside() const {
    RECT area{};
    GetClientRect(window().handle(), &area);
    return {area.right, area.bottom};
  }
};

TEST_F(FrontWindow, HasThePanelsSizeAndTitle) {
  open();
  EXPECT_EQ(240, inside().cx);
  EXPECT_EQ(160, inside().cy);
  EXPECT_EQ(L"Tool", textOf(window().handle()));
}

TEST_F(FrontWindow, FollowsASizeThatTheModuleSets) {
  open();
  setNumber(panelId, lw::kPanelWidth, 333);
  front->settle();
  EXPECT_EQ(333, inside().cx);
}

TEST_F(FrontWindow, DraggedFrameCallsTheResizeHook) {
  recordSizes();
  open();
  ASSERT_TRUE(driver->resize(panel(), 41, 23));
  ASSERT_FALSE(sizes.empty());
  EXPECT_EQ(281, sizes.back().cx);
  EXPECT_EQ(183, sizes.back().cy);
  EXPECT_EQ(281, panel().width);
}

TEST_F(FrontWindow, DraggedFrameStopsAtThePanelsLimits) {
  setNumber(panelId, lw::kPanelLeastWidth, 200);
  setNumber(panelId, lw::kPanelLeastHeight, 100);
  open();
  ASSERT_TRUE(driver->resize(panel(), -150, -150));
  EXPECT_EQ(200, panel().width);
  EXPECT_EQ(100, panel().height);
  EXPECT_EQ(200, inside().cx);
}

TEST_F(FrontWindow, WindowOfAFixedPanelKeepsItsSize) {
  recordSizes();
  open(lw::kOpenNoButtons);
  ASSERT_TRUE(driver->resize(panel(), 40, 40));
  EXPECT_TRUE(sizes.empty());
  EXPECT_EQ(240, inside().cx);
}

TEST_F(FrontWindow, ClosingTheWindowClosesThePanelAndRunsTheHook) {
  recordClosing();
  open();
  ASSERT_TRUE(driver->close(panel()));
  EXPECT_EQ(1, closes);
  EXPECT_FALSE(panel().isOpen());
  EXPECT_EQ(nullptr, front->windowOf(panel()));
}

TEST_F(FrontWindow, PanelThatItsOwnButtonClosesLosesItsWindow) {
  static lw::LWPanelFuncs* table = nullptr;
  static lw::PanelId own = nullptr;
  table = services;
  own = panelId;
  Control& button = *record(panelId).at(0);
  onEvent(button.face, [](lw::LWControl*, void*) { table->close(own); });
  open();
  HWND const handle = window().handle();
  ASSERT_TRUE(driver->click(button));
  EXPECT_EQ(nullptr, front->windowOf(panel()));
  EXPECT_FALSE(IsWindow(handle));
}

TEST_F(FrontWindow, ClosedPanelOpensAgain) {
  open();
  ASSERT_TRUE(driver->close(panel()));
  open();
  EXPECT_TRUE(IsWindowVisible(window().handle()));
}

TEST_F(FrontWindow, DestroyedPanelHasNoWindow) {
  open();
  services->close(panelId);
  services->destroy(panelId);
  front->settle();
  EXPECT_TRUE(panels().all().empty());
}

// ---------------------------------------------------------------------------------------------------------------------
// The mouse

TEST_F(FrontWindow, PressAndReleaseReachTheHook) {
  recordMouse();
  open();
  ASSERT_TRUE(driver->clickAt(panel(), 200, 120));
  EXPECT_THAT(presses, ElementsAre(Mouse{lw::kMouseLeft | lw::kMouseDown, 200, 120}, Mouse{lw::kMouseLeft, 200, 120}));
}

TEST_F(FrontWindow, RightButtonIsBothBits) {
  recordMouse();
  open();
  ASSERT_TRUE(driver->clickAt(panel(), 200, 120, MouseButton::Right));
  ASSERT_FALSE(presses.empty());
  EXPECT_EQ(lw::kMouseRight | lw::kMouseDown, presses[0].bits);
}

struct HeldRow {
  Held held;
  int bit;
};
class FrontQualifiers : public FrontWindow, public testing::WithParamInterface<HeldRow> {};

TEST_P(FrontQualifiers, HeldKeyIsABitOfThePress) {
  recordMouse();
  open();
  ASSERT_TRUE(driver->clickAt(panel(), 200, 120, MouseButton::Left, GetParam().held));
  ASSERT_FALSE(presses.empty());
  EXPECT_EQ(GetParam().bit | lw::kMouseLeft | lw::kMouseDown, presses[0].bits);
}

INSTANTIATE_TEST_SUITE_P(Keys, FrontQualifiers,
                         testing::Values(HeldRow{{.control = true}, lw::kMouseCtrl},
                                         HeldRow{{.shift = true}, lw::kMouseShift}, HeldRow{{.alt = true}, lw::kMouseAlt},
                                         HeldRow{{.control = true, .shift = true}, lw::kMouseCtrl | lw::kMouseShift}));

TEST_F(FrontWindow, DragGoesOnOutsideTheWindow) {
  recordMouse();
  open();
  ASSERT_TRUE(driver->drag(panel(), {200, 120}, {300, 130}));
  ASSERT_FALSE(moves.empty());
  EXPECT_EQ(300, moves.back().x);
  EXPECT_EQ(2u, presses.size());
}

TEST_F(FrontWindow, MotionWithoutAButtonIsNotDelivered) {
  recordMouse();
  open();
  ASSERT_TRUE(driver->clickAt(panel(), 200, 120));
  moves.clear();
  ASSERT_TRUE(driver->wheel(panel(), 180, 110, 1));
  EXPECT_TRUE(moves.empty());
}

TEST_F(FrontWindow, WheelGivesItsNotchesWithTheirSign) {
  recordMouse();
  open();
  ASSERT_TRUE(driver->wheel(panel(), 200, 120, -2));
  EXPECT_EQ(-2, std::accumulate(notches.begin(), notches.end(), 0));
}

TEST_F(FrontWindow, ReleaseIsNotLostWhenAnotherWindowTakesTheMouse) {
  recordMouse();
  open();
  PostMessageW(window().handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(200, 120));
  front->settle();
  ReleaseCapture();
  front->settle();
  ASSERT_EQ(2u, presses.size());
  EXPECT_EQ(lw::kMouseLeft, presses[1].bits);
}

}  // namespace
}  // namespace standin
