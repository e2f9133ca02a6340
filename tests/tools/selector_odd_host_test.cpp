// The selector on hosts that behave as no host should: events out of turn, without or with wrong handles, buttons by number.
#include "standin/panels/panel.h"
#include "tests/tools/selector_fixture.h"

namespace varnel::test {
namespace {

using standin::callModule;

// What a host may do to the panel whenever it likes.
class SelectorOddHost : public Selector {
 protected:
  static void use(Control* told, const Control* with) {
    callModule("control event callback", [&] { told->event(with->face, told->user); });
  }
  static void draw(Control* told, const Control* with, int mode) {
    callModule("control draw callback", [&] { told->drawCallback(with->face, told->user, mode); });
  }
  // Everything that the host can call, at a place where a row is.
  void callEverything() {
    panel->mouseX = tree()->x + labelX(row::kHips);
    panel->mouseY = tree()->y + middleOf(row::kHips);
    panel->qualifiers = lw::kMouseLeft | lw::kMouseDown;
    tree()->mouseX = panel->mouseX;
    tree()->mouseY = panel->mouseY;
    standin::Panels& all = standin::panels();
    all.callMouseHook(*panel, panel->mouseButtonHook, "panel mouse-button hook", panel->qualifiers);
    all.callMouseHook(*panel, panel->mouseMoveHook, "panel mouse-move hook", panel->qualifiers);
    all.callMouseHook(*panel, panel->mouseWheelHook, "panel mouse-wheel hook", -1);
    all.callResizeHook(*panel);
    use(tree(), tree());
    use(sync(), sync());
    draw(tree(), tree(), lw::kDrawRender);
    callModule("panel close hook", [&] { panel->closeHook(panel->id, panel->user); });
  }
  Control* tree() const { return panel->find(standin::ControlKind::OpenGL, std::nullopt, 0, false); }
  Control* sync() const { return panel->find(standin::ControlKind::Button, std::nullopt, 0, false); }
};

TEST_F(SelectorOddHost, WithoutTheUserPointerNothingHappens) {
  openWith({"Tail_01"});
  startCounting();
  panel->user = tree()->user = sync()->user = nullptr;
  callEverything();
  EXPECT_EQ(selected(), Names{"Tail_01"});
  EXPECT_EQ(editsOf(lw::kEditDirect), 0U);
}

TEST_F(SelectorOddHost, AClosedPanelIsDeaf) {
  openWith({"Tail_01"});
  ASSERT_TRUE(person::close(panel));
  startCounting();
  callEverything();
  EXPECT_EQ(selected(), Names{"Tail_01"});
  EXPECT_EQ(editsOf(lw::kEditDirect), 0U);
  openTool();
  EXPECT_EQ(selectedBy(row::kHips), Names{"Hips"});
}

TEST_F(SelectorOddHost, AnEventOfAnotherControlIsNone) {
  openWith({"Tail_01"});
  startCounting();
  tree()->mouseX = tree()->x + labelX(row::kHips);
  tree()->mouseY = tree()->y + middleOf(row::kHips);
  panel->qualifiers = lw::kMouseLeft | lw::kMouseDown;
  use(tree(), frame());
  use(sync(), frame());
  draw(tree(), frame(), lw::kDrawRender);
  EXPECT_EQ(selected(), Names{"Tail_01"});
  EXPECT_EQ(editsOf(lw::kEditDirect), 0U);
}

TEST_F(SelectorOddHost, AnErasedTreeIsNotDrawn) {
  openTool();
  startCounting();
  draw(tree(), tree(), lw::kDrawErase);
  EXPECT_EQ(selectedBy(row::kHips), Names{"Hips"});
}

TEST_F(SelectorOddHost, APanelThatCouldNotBeMadeIsNoneWhenTheModuleGoes) { unloadAfterRefusedPanel(kSelectorTool); }

TEST_F(SelectorOddHost, ARefusedPanelIsTriedAgain) {
  runRefused(kSelectorTool, "panel open");
  openTool();
  EXPECT_EQ(selectedBy(row::kHips), Names{"Hips"});
  EXPECT_EQ(standin::panels().all().size(), 1U);
}

// Whatever the module sets, this host at once paints the control and tells the panel's size, also while the panel is made.
class PaintsAtOnce : public standin::PanelListener {
 public:
  PaintsAtOnce() { standin::panels().listener = this; }
  ~PaintsAtOnce() override { standin::panels().listener = nullptr; }
  PaintsAtOnce(const PaintsAtOnce&) = delete;
  PaintsAtOnce& operator=(const PaintsAtOnce&) = delete;

  void changed(standin::Control& control) override {
    if (isBusy_ || control.drawCallback == nullptr) return;
    isBusy_ = true;
    ++calls;
    callModule("control draw callback", [&] { control.drawCallback(control.face, control.user, lw::kDrawRender); });
    isBusy_ = false;
  }
  void resized(standin::Panel& panel) override {
    if (isBusy_ || panel.resizeHook == nullptr) return;
    isBusy_ = true;
    ++calls;
    standin::panels().callResizeHook(panel);
    isBusy_ = false;
  }

  int calls = 0;

 private:
  bool isBusy_ = false;
};

TEST_F(SelectorOddHost, MayPaintAndResizeThePanelWhileItIsMade) {
  const PaintsAtOnce paints;
  openTool();
  EXPECT_GT(paints.calls, 2);
  EXPECT_EQ(selectedBy(row::kHips), Names{"Hips"});
}

// ---------------------------------------------------------------------------------------------------------------------
// A host that names the button by its number, not by bits

class SelectorButtonNumber : public SelectorOddHost {
 protected:
  SelectorButtonNumber() { deliver(Delivery::ControlOnly); }

  void pressWith(int button) {
    openWith({"Tail_01"});
    tree()->mouseX = tree()->x + labelX(row::kHips);
    tree()->mouseY = tree()->y + middleOf(row::kHips);
    tree()->mouseButton = button;
    tree()->clickCount = 1;
    for (const int bits : {int{lw::kMouseDown}, 0}) {
      panel->qualifiers = bits;
      EXPECT_TRUE(standin::oddhost::fire(tree()));
    }
  }
};

TEST_F(SelectorButtonNumber, OneIsTheLeftButton) {
  pressWith(1);
  EXPECT_EQ(selected(), Names{"Hips"});
}

TEST_F(SelectorButtonNumber, TwoIsTheMiddleOneWhichDoesNothing) {
  pressWith(2);
  EXPECT_EQ(selected(), Names{"Tail_01"});
}

// The right button collapses: the row below is then another.
TEST_F(SelectorButtonNumber, ThreeIsTheRightButton) {
  pressWith(3);
  EXPECT_EQ(selected(), Names{"Tail_01"});
  EXPECT_EQ(shownIn(4), "Tail_01");
}

TEST_F(SelectorButtonNumber, NoOtherNumberIsAButton) {
  for (const int number : {0, 4, -1}) {
    pressWith(number);
    EXPECT_EQ(selected(), Names{"Tail_01"}) << number;
  }
}

}  // namespace
}  // namespace varnel::test
