// The selector on hosts that tell of the mouse in other ways than the usual ones, count clicks otherwise, or paint by the
// event.
#include "tests/tools/selector_fixture.h"

namespace varnel::test {
namespace {

using standin::ClickCount;
using standin::DragHook;
using standin::EventMouse;
using standin::MouseDelivery;
using standin::Painter;
using standin::PanelOptions;

// One host, by what differs.
struct Host {
  const char* name;
  void (*set)(PanelOptions&);
  bool tellsMoves;
  friend std::ostream& operator<<(std::ostream& out, const Host& host) { return out << host.name; }
};

void pressesOnly(PanelOptions& options) {
  options.mouse = MouseDelivery::Control;
  options.eventMouse = EventMouse::Presses;
}
void hooks(PanelOptions& options) {
  options.mouse = MouseDelivery::Hooks;
  options.hooksNeedMouseFlag = false;
}
void bothWays(PanelOptions& options) { options.hooksNeedMouseFlag = false; }

constexpr Host kHosts[] = {
    // clang-format off
    {"Presses", pressesOnly, false},
    {"PressesUncounted", [](PanelOptions& o) { pressesOnly(o); o.clickCount = ClickCount::Never; }, false},
    {"PressesAlwaysCountedOne", [](PanelOptions& o) { pressesOnly(o); o.clickCount = ClickCount::Constant; }, false},
    {"PressesWithOldQualifiers", [](PanelOptions& o) { pressesOnly(o); o.qualifiersAreOfTold = true; }, false},
    {"Buttons", [](PanelOptions& o) { o.eventMouse = EventMouse::Buttons; }, false},
    {"Moves", [](PanelOptions& o) { o.mouse = MouseDelivery::Control; }, true},
    {"FromControl", [](PanelOptions& o) { o.mouseFromControl = true; }, true},
    {"Hooks", hooks, true},
    {"HooksOfButtonsForMoves", [](PanelOptions& o) { hooks(o); o.dragHook = DragHook::Button; }, true},
    {"HooksBesideControls", [](PanelOptions& o) { bothWays(o); o.hooksBesideControlsOnly = true; }, true},
    {"Both", bothWays, true},
    {"BothEventFirst", [](PanelOptions& o) { bothWays(o); o.eventBeforeHooks = true; }, true},
    {"BothEventOfPresses", [](PanelOptions& o) { bothWays(o); o.eventMouse = EventMouse::Presses; }, true},
    {"BothFromControl", [](PanelOptions& o) { bothWays(o); o.mouseFromControl = true; }, true},
    // clang-format on
};

constexpr Painter kPainters[] = {Painter::DrawCallback, Painter::EventCallback, Painter::Both};

// Each host with each painter; the host paints after everything that the user does.
class SelectorHosts : public testing::TestWithParam<std::tuple<Host, Painter>>, protected SelectorSession {
 protected:
  explicit SelectorHosts(standin::ObjectFile file = panelRig()) : SelectorSession(std::move(file)) {
    PanelOptions& options = standin::panels().options;
    host().set(options);
    options.painter = std::get<Painter>(GetParam());
  }
  static const Host& host() { return std::get<Host>(GetParam()); }

  void open() {
    openTool();
    paint();
  }
  bool paint() const { return standin::panels().paintWanted(*panel) > 0; }
  void useAt(int x, int y, int qualifiers = 0, int quick = 1) {
    EXPECT_TRUE(person::mousePress(panel, tree()->x + x, tree()->y + y, standin::MouseButton::Left, qualifiers, quick));
    paint();
    releaseAt(x, y);
    paint();
  }
  void use(SeenRow row, int qualifiers = 0, int quick = 1) { useAt(labelX(row), middleOf(row), qualifiers, quick); }
  void drag(int x, int y, int toX, int toY) {
    pressAt(x, y);
    paint();
    for (const int part : {1, 2, 3}) {
      moveTo(x + (toX - x) * part / 3, y + (toY - y) * part / 3);
      paint();
    }
    releaseAt(toX, toY);
    paint();
  }
};

std::string nameOfHost(const testing::TestParamInfo<std::tuple<Host, Painter>>& info) {
  constexpr const char* kNames[] = {"PaintsByDraw", "PaintsByEvent", "PaintsByBoth"};
  return std::get<Host>(info.param).name + std::string(kNames[static_cast<std::size_t>(std::get<Painter>(info.param))]);
}
INSTANTIATE_TEST_SUITE_P(All, SelectorHosts, testing::Combine(testing::ValuesIn(kHosts), testing::ValuesIn(kPainters)),
                         &nameOfHost);

TEST_P(SelectorHosts, EveryClickSelectsItsRow) {
  open();
  for (const auto& [row, name] : {std::pair{row::kHips, "Hips"}, std::pair{row::kChest, "Chest"},
                                  std::pair{row::kTail2, "Tail_02"}, std::pair{row::kHead, "Head"}}) {
    use(row);
    EXPECT_EQ(selected(), Names{name});
  }
}

TEST_P(SelectorHosts, EveryClickIsPushedOnce) {
  open();
  startCounting();
  for (const SeenRow row : {row::kHips, row::kChest, row::kTail2}) use(row);
  EXPECT_EQ(pushes(), 3U);
}

TEST_P(SelectorHosts, CtrlTogglesEachTime) {
  open();
  use(row::kChest, kCtrl);
  EXPECT_EQ(selected(), Names{"Chest"});
  useAt(labelX(row::kChest) + 9, middleOf(row::kChest), kCtrl);
  EXPECT_EQ(selected(), Names{});
}

TEST_P(SelectorHosts, AClickAFewPixelsBesideTheLastIsOne) {
  open();
  int clicks = 0;
  for (const int x : {0, 1, 3, 6, 10}) {
    useAt(labelX(row::kChest) + x, middleOf(row::kChest), kCtrl);
    EXPECT_EQ(selected().size(), ++clicks % 2) << x;
  }
}

TEST_P(SelectorHosts, TheTreeIsPaintedAfterEachClick) {
  open();
  for (const SeenRow row : {row::kHips, row::kChest, row::kHips}) {
    EXPECT_TRUE(person::mousePress(panel, tree()->x + labelX(row), tree()->y + middleOf(row)));
    EXPECT_TRUE(paint());
    releaseAt(labelX(row), middleOf(row));
    paint();
  }
}

TEST_P(SelectorHosts, QuickClicksOnTwoRowsSelectTheSecond) {
  open();
  standin::panels().options.clickCount = ClickCount::ByTime;
  use(row::kHips, 0, 1);
  use(row::kTail1, 0, 2);
  EXPECT_EQ(selected(), Names{"Tail_01"});
}

TEST_P(SelectorHosts, ADragOverRowsSelectsThePressedOne) {
  open();
  use(row::kTail1);
  drag(labelX(row::kHips), middleOf(row::kHips), labelX(row::kTail2), middleOf(row::kTail2));
  EXPECT_EQ(selected(), Names{"Hips"});
}

TEST_P(SelectorHosts, ExposuresPressNothing) {
  open();
  use(row::kChest, kCtrl);
  for (int i = 0; i < 3; ++i) standin::panels().paint(*tree());
  EXPECT_EQ(selected(), Names{"Chest"});
  use(row::kHips);
  EXPECT_EQ(selected(), Names{"Hips"});
}

TEST_P(SelectorHosts, APaintWhileAButtonIsDownBesideTheTreePressesNothing) {
  open();
  use(row::kChest, kCtrl);
  EXPECT_TRUE(person::mousePress(panel, 2, 40));
  pressSync();
  paint();
  EXPECT_TRUE(person::mouseRelease(panel, 2, 40));
  EXPECT_EQ(selected(), Names{"Chest"});
  use(row::kHips);
  EXPECT_EQ(selected(), Names{"Hips"});
}

TEST_P(SelectorHosts, ReopenedItHearsNoOldPress) {
  open();
  use(row::kChest, kCtrl);
  ASSERT_TRUE(person::close(panel));
  open();
  paint();
  EXPECT_EQ(selected(), Names{"Chest"});
  use(row::kHips);
  EXPECT_EQ(selected(), Names{"Hips"});
}

// ---------------------------------------------------------------------------------------------------------------------
// More rows than are seen

standin::ObjectFile manyRows() {
  standin::RigBuilder rig;
  rig.layer(0, "Row");
  for (int i = 0; i < 24; ++i) rig.root("B" + std::to_string(i), {0, 0, 0}, {0, 1, 0});
  return rig.take();
}

class SelectorHostsScroll : public SelectorHosts {
 protected:
  SelectorHostsScroll() : SelectorHosts(manyRows()) {
    open();
    EXPECT_TRUE(person::resize(panel, 250, 167));  // the tree: 240 by 112
    paint();
  }
  std::string lastShown() {
    useAt(100, 85);
    return selected().empty() ? "" : selected().front();
  }
};
INSTANTIATE_TEST_SUITE_P(All, SelectorHostsScroll, testing::Combine(testing::ValuesIn(kHosts), testing::ValuesIn(kPainters)),
                         &nameOfHost);

TEST_P(SelectorHostsScroll, TheScrollBarFollowsTheMouse) {
  drag(235, 5, 235, 98);
  if (host().tellsMoves || standin::panels().options.eventMouse == EventMouse::Buttons) {
    EXPECT_EQ(lastShown(), "B23");
  } else {  // a press on the bar and one further down
    useAt(235, 98);
    EXPECT_EQ(lastShown(), "B23");
  }
}

class SelectorDrags : public SelectorHostsScroll {};

std::vector<Host> hostsThatTellMoves() {
  std::vector<Host> hosts;
  for (const Host& host : kHosts) {
    if (host.tellsMoves) hosts.push_back(host);
  }
  return hosts;
}
INSTANTIATE_TEST_SUITE_P(All, SelectorDrags,
                         testing::Combine(testing::ValuesIn(hostsThatTellMoves()), testing::ValuesIn(kPainters)),
                         &nameOfHost);

TEST_P(SelectorDrags, TheTreeIsPaintedAtEachStep) {
  pressAt(235, 5);
  paint();
  for (const int y : {20, 35, 50}) {
    moveTo(235, y);
    EXPECT_TRUE(paint()) << y;
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Single things

class SelectorDelivery : public Selector {
 protected:
  PanelOptions& options = standin::panels().options;
};

// Until the first release is heard, a long step is a press by all that is known.
TEST_F(SelectorDelivery, TheFirstDragOfAllEndsWithWhatWasPressed) {
  deliver(Delivery::ControlOnly);
  openTool();
  pressAt(labelX(row::kHips), middleOf(row::kHips));
  moveTo(labelX(row::kHead), middleOf(row::kHead));
  moveTo(labelX(row::kTail1), middleOf(row::kTail1));
  releaseAt(labelX(row::kTail1), middleOf(row::kTail1));
  EXPECT_EQ(selected(), Names{"Hips"});
}

TEST_F(SelectorDelivery, ATrembleOfTheFirstClickOfAllChangesNothing) {
  deliver(Delivery::ControlOnly);
  openTool();
  pressAt(labelX(row::kHips), middleOf(row::kHips), kCtrl);
  moveTo(labelX(row::kHips) + 2, middleOf(row::kHips));
  releaseAt(labelX(row::kHips) + 2, middleOf(row::kHips));
  EXPECT_EQ(selected(), Names{"Hips"});
}

TEST_F(SelectorDelivery, TwoTogglesAtOnePlaceAreTwoWithoutARelease) {
  pressesOnly(options);
  options.clickCount = ClickCount::Never;
  openTool();
  click(row::kChest, kCtrl);
  EXPECT_EQ(selected(), Names{"Chest"});
  click(row::kChest, kCtrl);
  EXPECT_EQ(selected(), Names{});
}

TEST_F(SelectorDelivery, ADoubleClickIsOneWithoutARelease) {
  pressesOnly(options);
  openTool();
  doubleClick(row::kHips);
  EXPECT_EQ(shownIn(4), "Tail_01");
}

// The host calls the callback while it is asked to paint.
TEST_F(SelectorDelivery, AHostThatPaintsAtOncePressesNothingByIt) {
  options.paintsAtOnce = true;
  for (const Delivery delivery : {Delivery::ControlOnly, Delivery::HooksOnly, Delivery::Both}) {
    deliver(delivery);
    for (const Painter painter : kPainters) {
      options.painter = painter;
      openTool();
      startCounting();
      click(row::kChest, kCtrl);
      EXPECT_EQ(selected(), Names{"Chest"});
      click(row::kChest, kCtrl);
      EXPECT_EQ(selected(), Names{});
      EXPECT_EQ(pushes(), 2U);
      ASSERT_TRUE(person::close(panel));
    }
  }
}

TEST_F(SelectorDelivery, TheResizeHookMayBeCalledWhenThePanelOpens) {
  options.resizeHookOnOpen = true;
  openTool();
  EXPECT_EQ(selectedBy(row::kHips), Names{"Hips"});
}

}  // namespace
}  // namespace varnel::test
