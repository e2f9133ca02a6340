// The two ways of the mouse to a module, and painting.
#include "tests/standin/panels_fixture.h"

namespace standin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int kShift = lw::kMouseShift;

struct MouseOverPanel : PanelsTest {
  lw::PanelId panel = nullptr;
  lw::LWControl* area = nullptr;
  static inline std::vector<std::string> seen;
  static inline lw::LWPanelFuncs* table = nullptr;

  static std::string place(int bits, int x, int y) {
    return std::to_string(bits) + " at " + std::to_string(x) + "," + std::to_string(y);
  }
  static void hook(lw::PanelId, void*, int bits, int x, int y) { seen.push_back("hook " + place(bits, x, y)); }
  static void moved(lw::PanelId, void*, int bits, int x, int y) { seen.push_back("move " + place(bits, x, y)); }
  static void wheel(lw::PanelId, void*, int notches, int x, int y) { seen.push_back("wheel " + place(notches, x, y)); }
  static void event(lw::LWControl* control, void*) {
    int bits = 0;
    table->get(record(control)->panel->id, lw::kPanelQualifiers, &bits);
    seen.push_back("event " + place(bits, getInteger(control, lw::kControlMouseX), getInteger(control, lw::kControlMouseY)) +
                   " button " + std::to_string(getInteger(control, lw::kControlMouseButton)) + " clicks " +
                   std::to_string(getInteger(control, lw::kControlClickCount)));
  }

  void SetUp() override {
    PanelsTest::SetUp();
    seen.clear();
    table = services;
    panel = make();
    area = add(panel, "OpenGLControl", describedArea(300, 200));
    setInteger(area, lw::kControlX, 5);
    setInteger(area, lw::kControlY, 5);
    onEvent(area, &event);
    services->set(panel, lw::kPanelMouseButtonHook, reinterpret_cast<void*>(&hook));
    services->set(panel, lw::kPanelMouseMoveHook, reinterpret_cast<void*>(&moved));
    services->set(panel, lw::kPanelMouseWheelHook, reinterpret_cast<void*>(&wheel));
  }
  Panel* opened(int flags) {
    services->open(panel, flags);
    return &record(panel);
  }
};

TEST_F(MouseOverPanel, WithoutTheMouseFlagOnlyTheControlHears) {
  EXPECT_TRUE(person::mousePress(opened(192), 20, 30, MouseButton::Left, kShift));
  EXPECT_THAT(seen, ElementsAre("event 162 at 20,30 button 1 clicks 1"));
}

TEST_F(MouseOverPanel, WithTheMouseFlagBothHear) {
  EXPECT_TRUE(person::mousePress(opened(192 | lw::kOpenMouse), 20, 30));
  EXPECT_THAT(seen, ElementsAre("hook 160 at 20,30", "event 160 at 20,30 button 1 clicks 1"));
}

TEST_F(MouseOverPanel, AHostMayDeliverToTheHooksOnly) {
  panels().options.mouse = MouseDelivery::Hooks;
  panels().options.hooksNeedMouseFlag = false;
  EXPECT_TRUE(person::mousePress(opened(192), 20, 30));
  EXPECT_THAT(seen, ElementsAre("hook 160 at 20,30"));
}

TEST_F(MouseOverPanel, AHostMayDeliverToTheControlOnly) {
  panels().options.mouse = MouseDelivery::Control;
  EXPECT_TRUE(person::mousePress(opened(192 | lw::kOpenMouse), 20, 30));
  EXPECT_THAT(seen, ElementsAre("event 160 at 20,30 button 1 clicks 1"));
}

TEST_F(MouseOverPanel, AHostMayCallTheEventFirst) {
  panels().options.eventBeforeHooks = true;
  EXPECT_TRUE(person::mousePress(opened(192 | lw::kOpenMouse), 20, 30));
  EXPECT_THAT(seen, ElementsAre("event 160 at 20,30 button 1 clicks 1", "hook 160 at 20,30"));
}

TEST_F(MouseOverPanel, AHostMayTellTheControlOfPressesOnly) {
  panels().options.eventMouse = EventMouse::Presses;
  Panel* shown = opened(192);
  EXPECT_TRUE(person::mousePress(shown, 20, 30));
  EXPECT_TRUE(person::mouseMove(shown, 21, 30));
  EXPECT_TRUE(person::mouseRelease(shown, 21, 30));
  EXPECT_THAT(seen, ElementsAre("event 160 at 20,30 button 1 clicks 1"));
}

TEST_F(MouseOverPanel, AHostMayTellTheControlOfPressesAndReleasesOnly) {
  panels().options.eventMouse = EventMouse::Buttons;
  Panel* shown = opened(192);
  EXPECT_TRUE(person::mousePress(shown, 20, 30));
  EXPECT_TRUE(person::mouseMove(shown, 21, 30));
  EXPECT_TRUE(person::mouseRelease(shown, 21, 30));
  EXPECT_THAT(seen, ElementsAre("event 160 at 20,30 button 1 clicks 1", "event 32 at 21,30 button 1 clicks 1"));
}

TEST_F(MouseOverPanel, AHostMayKeepFromTheHooksWhatAControlHears) {
  panels().options.hooksBesideControlsOnly = true;
  Panel* shown = opened(192 | lw::kOpenMouse);
  EXPECT_TRUE(person::click(shown, 20, 30));
  EXPECT_THAT(seen, testing::Not(testing::Contains(HasSubstr("hook"))));
  seen.clear();
  EXPECT_TRUE(person::click(shown, 2, 2));
  EXPECT_THAT(seen, ElementsAre("hook 160 at 2,2", "hook 32 at 2,2"));
}

TEST_F(MouseOverPanel, AHostMayTellTheHookOfButtonsOfMoves) {
  panels().options.mouse = MouseDelivery::Hooks;
  panels().options.dragHook = DragHook::Button;
  Panel* shown = opened(192 | lw::kOpenMouse);
  EXPECT_TRUE(person::mousePress(shown, 20, 30));
  EXPECT_TRUE(person::mouseMove(shown, 20, 40));
  EXPECT_THAT(seen, ElementsAre("hook 160 at 20,30", "hook 160 at 20,40"));
}

TEST_F(MouseOverPanel, AHostMayCountFromTheControlsCorner) {
  panels().options.mouseFromControl = true;
  EXPECT_TRUE(person::mousePress(opened(192), 20, 30));
  EXPECT_THAT(seen, ElementsAre("event 160 at 15,25 button 1 clicks 1"));
}

TEST_F(MouseOverPanel, AHostMayKeepTheQualifiersOfTheLastEventThatWasTold) {
  panels().options.qualifiersAreOfTold = true;
  panels().options.eventMouse = EventMouse::Presses;
  EXPECT_TRUE(person::click(opened(192), 20, 30));
  EXPECT_EQ(160, getNumber(panel, lw::kPanelQualifiers));
}

TEST_F(MouseOverPanel, AHostMayCountTheWheelTheOtherWay) {
  panels().options.wheelCountsDown = true;
  EXPECT_TRUE(person::wheel(opened(192 | lw::kOpenMouse), 20, 30, -2));
  EXPECT_THAT(seen, ElementsAre("wheel 2 at 20,30"));
}

// Three quick presses, the first elsewhere than the others.
struct Counting : MouseOverPanel {
  std::vector<int> countsOfThree(ClickCount rule) {
    panels().options.clickCount = rule;
    Panel* shown = opened(192);
    std::vector<int> counts;
    for (const auto& [y, quick] : {std::pair{30, 1}, std::pair{60, 2}, std::pair{60, 3}}) {
      EXPECT_TRUE(person::click(shown, 20, y, MouseButton::Left, 0, quick));
      counts.push_back(record(area)->clickCount);
    }
    return counts;
  }
};

TEST_F(Counting, ByPlace) { EXPECT_THAT(countsOfThree(ClickCount::ByPlace), ElementsAre(1, 1, 2)); }
TEST_F(Counting, ByTime) { EXPECT_THAT(countsOfThree(ClickCount::ByTime), ElementsAre(1, 2, 3)); }
TEST_F(Counting, Constant) { EXPECT_THAT(countsOfThree(ClickCount::Constant), ElementsAre(1, 1, 1)); }
TEST_F(Counting, Never) { EXPECT_THAT(countsOfThree(ClickCount::Never), ElementsAre(0, 0, 0)); }

TEST_F(MouseOverPanel, TheRightButtonIsBothButtonBits) {
  EXPECT_TRUE(person::mousePress(opened(192), 20, 30, MouseButton::Right, 0, 2));
  EXPECT_THAT(seen, ElementsAre("event 224 at 20,30 button 3 clicks 2"));
}

TEST_F(MouseOverPanel, AReleaseHasTheDownBitCleared) {
  EXPECT_TRUE(person::click(opened(192), 20, 30));
  EXPECT_THAT(seen, ElementsAre("event 160 at 20,30 button 1 clicks 1", "event 32 at 20,30 button 1 clicks 1"));
}

TEST_F(MouseOverPanel, ADragGoesToTheControlWhereItBegan) {
  Panel* shown = opened(192 | lw::kOpenMouse);
  EXPECT_TRUE(person::mousePress(shown, 20, 30));
  seen.clear();
  EXPECT_TRUE(person::mouseMove(shown, -10, 500));
  EXPECT_THAT(seen, ElementsAre("move 160 at -10,500", "event 160 at -10,500 button 1 clicks 1"));
}

TEST_F(MouseOverPanel, PassiveMotionHasToBeAskedFor) {
  EXPECT_TRUE(person::mouseMove(opened(192 | lw::kOpenMouse), 20, 30));
  EXPECT_THAT(seen, IsEmpty());
}

TEST_F(MouseOverPanel, PassiveMotionComesWhenAskedFor) {
  EXPECT_TRUE(person::mouseMove(opened(192 | lw::kOpenMouse | lw::kOpenMouseMotion), 20, 30));
  EXPECT_THAT(seen, ElementsAre("move 0 at 20,30"));
}

TEST_F(MouseOverPanel, TheWheelGivesSignedClicks) {
  EXPECT_TRUE(person::wheel(opened(192 | lw::kOpenMouse), 20, 30, -2));
  EXPECT_THAT(seen, ElementsAre("wheel -2 at 20,30"));
}

TEST_F(MouseOverPanel, AClickIntoAControlCountsFromItsCorner) {
  opened(192);
  EXPECT_TRUE(person::click(record(area), 0, 0));
  EXPECT_THAT(seen.front(), HasSubstr("at 5,5"));
}

TEST_F(MouseOverPanel, APressOutsideThePanelDoesNotReachIt) {
  EXPECT_FALSE(person::mousePress(opened(192), 5000, 30));
  EXPECT_THAT(seen, IsEmpty());
}

TEST_F(MouseOverPanel, AReleaseNeedsAPress) {
  EXPECT_THAT(person::mouseRelease(opened(192), 20, 30).why, HasSubstr("no mouse button is down"));
}

TEST_F(MouseOverPanel, ThePanelKnowsWhereTheMouseWas) {
  EXPECT_TRUE(person::mousePress(opened(192), 20, 30));
  EXPECT_EQ(20, getNumber(panel, lw::kPanelMouseX));
  EXPECT_EQ(30, getNumber(panel, lw::kPanelMouseY));
}

struct Painting : MouseOverPanel {
  static void draws(lw::LWControl*, void*, int mode) { seen.push_back("paint " + std::to_string(mode)); }
  void SetUp() override {
    MouseOverPanel::SetUp();
    setPointer(area, lw::kControlDrawCallback, reinterpret_cast<void*>(&draws));
  }
};

TEST_F(Painting, HappensOnlyWhenAskedFor) {
  opened(192);
  area->draw(area, lw::kDrawRefresh);
  EXPECT_THAT(seen, IsEmpty());
  EXPECT_TRUE(panels().paint(*record(area)));
  EXPECT_THAT(seen, ElementsAre("paint 1"));
}

TEST_F(Painting, IsWantedOnceAfterEachExposure) {
  Panel* shown = opened(192);
  EXPECT_EQ(1, panels().paintWanted(*shown));
  EXPECT_EQ(0, panels().paintWanted(*shown));
  area->draw(area, lw::kDrawRefresh);
  EXPECT_EQ(1, panels().paintWanted(*shown));
  EXPECT_TRUE(person::resize(shown, 400, 400));
  EXPECT_EQ(1, panels().paintWanted(*shown));
}

TEST_F(Painting, MayBeByTheEventCallback) {
  panels().options.painter = Painter::EventCallback;
  EXPECT_EQ(1, panels().paintWanted(*opened(192)));
  EXPECT_THAT(seen, ElementsAre("event 0 at 0,0 button 0 clicks 0"));
}

TEST_F(Painting, MayBeByBothCallbacks) {
  panels().options.painter = Painter::Both;
  EXPECT_EQ(1, panels().paintWanted(*opened(192)));
  EXPECT_THAT(seen, ElementsAre("paint 1", "event 0 at 0,0 button 0 clicks 0"));
}

TEST_F(Painting, MayHappenWithinTheCallThatAsksForIt) {
  panels().options.paintsAtOnce = true;
  opened(192);
  area->draw(area, lw::kDrawRefresh);
  EXPECT_THAT(seen, ElementsAre("paint 1"));
}

TEST_F(Painting, AHiddenControlIsNotPainted) {
  opened(192);
  area->draw(area, lw::kDrawErase);
  EXPECT_FALSE(panels().paint(*record(area)));
}

struct Front : PanelListener {
  std::vector<std::string> told;
  void opened(Panel&) override { told.emplace_back("opened"); }
  void closed(Panel&) override { told.emplace_back("closed"); }
  void destroyed(Panel&) override { told.emplace_back("destroyed"); }
  void resized(Panel&) override { told.emplace_back("resized"); }
  void changed(Control&) override { told.emplace_back("changed"); }
  void withContext(Control&, const std::function<void()>& call) override {
    told.emplace_back("context on");
    call();
    told.emplace_back("context off");
  }
};

TEST_F(Painting, AFrontMakesTheContextCurrentAroundCallbacks) {
  Front front;
  opened(192);
  panels().listener = &front;
  panels().paint(*record(area));
  panels().fire(*record(area));
  EXPECT_THAT(front.told, ElementsAre("context on", "context off", "context on", "context off"));
}

TEST_F(Painting, AHostMayMakeTheContextCurrentInHooksToo) {
  Front front;
  panels().options.contextInHooks = true;
  Panel* shown = opened(192 | lw::kOpenMouse);
  panels().listener = &front;
  panels().callMouseHook(*shown, shown->mouseButtonHook, "panel mouse-button hook", 0);
  EXPECT_THAT(front.told, ElementsAre("context on", "context off"));
}

TEST_F(Painting, AFrontIsToldOfWhatChanges) {
  Front front;
  panels().listener = &front;
  opened(192);
  setInteger(area, lw::kControlX, 7);
  EXPECT_TRUE(person::resize(&record(panel), 400, 400));
  services->close(panel);
  services->destroy(panel);
  EXPECT_THAT(front.told, ElementsAre("opened", "changed", "resized", "closed", "destroyed"));
}

}  // namespace
}  // namespace standin
