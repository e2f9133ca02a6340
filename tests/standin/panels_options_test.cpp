// What hosts may differ in, as the options of the panel services say it.
#include "tests/standin/panels_fixture.h"

namespace standin {
namespace {

class PanelsOptions : public PanelsTest {
 protected:
  void SetUp() override {
    PanelsTest::SetUp();
    panel = make();
  }
  // Counts the open hooks in the panel's user data.
  void countOpenHooks() {
    services->set(panel, lw::kPanelUserData, &hooks);
    const lw::PanelHook hook = [](lw::PanelId, void* user) { ++*static_cast<int*>(user); };
    services->set(panel, lw::kPanelOpenHook, reinterpret_cast<void*>(hook));
  }
  int open() const { return services->open(panel, lw::kOpenNoButtons); }

  lw::PanelId panel = nullptr;
  int hooks = 0;
};

TEST_F(PanelsOptions, OpenAnswersWhatTheyAreSetTo) {
  panels().options.openAnswer = -7;
  EXPECT_EQ(open(), -7);
  EXPECT_EQ(open(), -7);
  EXPECT_TRUE(record(panel).isOpen());
}

TEST_F(PanelsOptions, TheOpenHookMayComeLater) {
  panels().options.openHook = OpenHook::Later;
  countOpenHooks();
  open();
  EXPECT_EQ(hooks, 0);
  panels().turn();
  EXPECT_EQ(hooks, 1);
  panels().turn();
  EXPECT_EQ(hooks, 1);
}

TEST_F(PanelsOptions, AnOpenHookThatIsDueDiesWithItsPanel) {
  panels().options.openHook = OpenHook::Later;
  countOpenHooks();
  open();
  services->close(panel);
  services->destroy(panel);
  panels().turn();
  EXPECT_EQ(hooks, 0);
}

TEST_F(PanelsOptions, CloseMayCallNoHook) {
  panels().options.closeCallsHook = false;
  services->set(panel, lw::kPanelUserData, &hooks);
  const lw::PanelHook hook = [](lw::PanelId, void* user) { ++*static_cast<int*>(user); };
  services->set(panel, lw::kPanelCloseHook, reinterpret_cast<void*>(hook));
  open();
  services->close(panel);
  EXPECT_EQ(hooks, 0);
  open();
  EXPECT_TRUE(person::close(&record(panel)));
  EXPECT_EQ(hooks, 1);
}

TEST_F(PanelsOptions, AnIndexOutsideAListIsTakenByTheRule) {
  lw::LWControl* const list = add(panel, ControlKind::CustomPopup);
  struct Case {
    OutsideIndex rule;
    int set, taken;
  };
  for (const Case& one :
       {Case{OutsideIndex::Kept, -1, -1}, Case{OutsideIndex::Kept, 9, 9}, Case{OutsideIndex::Clamped, -1, 0},
        Case{OutsideIndex::Clamped, 9, 2}, Case{OutsideIndex::NotNegative, -1, 0}, Case{OutsideIndex::NotNegative, 9, 9},
        Case{OutsideIndex::Ignored, -1, 1}, Case{OutsideIndex::Ignored, 9, 1}}) {
    panels().options.outsideIndex = one.rule;
    setInteger(list, lw::kControlValue, 1);
    setInteger(list, lw::kControlValue, one.set);
    EXPECT_EQ(getInteger(list, lw::kControlValue), one.taken) << static_cast<int>(one.rule) << " " << one.set;
  }
}

TEST_F(PanelsOptions, ErasingPaintsOverWhatIsThereUntilItIsDrawn) {
  lw::LWControl* const below = addButton(panel, "Below");
  lw::LWControl* const above = addButton(panel, "Above");
  lw::LWControl* const beside = addButton(panel, "Beside");
  setInteger(above, lw::kControlY, getInteger(below, lw::kControlY));
  open();
  above->draw(above, lw::kDrawErase);
  EXPECT_FALSE(isVisible(*record(below)));
  EXPECT_FALSE(person::press(record(below)).ok);
  EXPECT_TRUE(isVisible(*record(beside)));
  below->draw(below, lw::kDrawRender);
  EXPECT_TRUE(isVisible(*record(below)));
}

TEST_F(PanelsOptions, ErasingPaintsOverAgainWhatWasDrawnSince) {
  lw::LWControl* const below = addButton(panel, "Below");
  lw::LWControl* const above = addButton(panel, "Above");
  setInteger(above, lw::kControlY, getInteger(below, lw::kControlY));
  open();
  above->draw(above, lw::kDrawErase);
  below->draw(below, lw::kDrawRender);
  above->draw(above, lw::kDrawRender);
  above->draw(above, lw::kDrawErase);
  EXPECT_FALSE(isVisible(*record(below)));
  below->draw(below, lw::kDrawRender);
  below->draw(below, lw::kDrawErase);
  below->draw(below, lw::kDrawRender);
  above->draw(above, lw::kDrawErase);
  EXPECT_FALSE(isVisible(*record(below))) << "it was hidden and shown meanwhile";
}

TEST_F(PanelsOptions, DrawingThePanelShowsWhatWasPaintedOver) {
  lw::LWControl* const below = addButton(panel, "Below");
  lw::LWControl* const above = addButton(panel, "Above");
  setInteger(above, lw::kControlY, getInteger(below, lw::kControlY));
  open();
  above->draw(above, lw::kDrawErase);
  services->draw(panel, lw::kDrawRefresh);
  EXPECT_TRUE(isVisible(*record(below)));
  EXPECT_FALSE(isVisible(*record(above)));
}

TEST_F(PanelsOptions, AMoveMayBeSeenOnlyWhenItIsDrawn) {
  panels().options.movesRepaint = false;
  lw::LWControl* const button = addButton(panel, "Button");
  open();
  setInteger(button, lw::kControlX, 30);
  EXPECT_FALSE(isVisible(*record(button)));
  button->draw(button, lw::kDrawRender);
  EXPECT_TRUE(isVisible(*record(button)));
}

TEST_F(PanelsOptions, AValueMayBeSeenOnlyWhenItIsDrawn) {
  panels().options.setsRepaint = false;
  lw::LWControl* const edit = add(panel, ControlKind::Edit);
  setText(edit, "one");
  open();
  EXPECT_EQ(record(edit)->shown(), "one");
  setText(edit, "two");
  EXPECT_EQ(record(edit)->shown(), "one");
  edit->draw(edit, lw::kDrawRefresh);
  EXPECT_EQ(record(edit)->shown(), "two");
}

TEST_F(PanelsOptions, TypingMayFireAtEachLetter) {
  panels().options.firesAtEachLetter = true;
  static std::vector<std::string> seen;
  seen.clear();
  lw::LWControl* const edit = add(panel, ControlKind::Edit);
  onEvent(edit, [](lw::LWControl* control, void*) { seen.push_back(getText(control)); });
  open();
  EXPECT_TRUE(person::type(record(edit), "aß骨"));
  EXPECT_EQ(seen, (std::vector<std::string>{"a", "aß", "aß骨"}));
}

TEST_F(PanelsOptions, AFieldMayHoldFewBytes) {
  panels().options.longestText = 4;
  lw::LWControl* const edit = add(panel, ControlKind::Edit);
  open();
  EXPECT_TRUE(person::type(record(edit), "typed"));
  EXPECT_EQ(getText(edit), "type");
  setText(edit, "other");
  EXPECT_EQ(getText(edit), "othe");
}

TEST_F(PanelsOptions, RangesMayHoldForWhatIsSetAndInTheValuesUnit) {
  panels().options.limitsTypedValues = true;
  panels().options.limitsSetValues = true;
  panels().options.rangesInValueUnit = true;
  lw::LWControl* const angle = add(panel, "AngleControl", describedRange(-1, 1));
  setReal(angle, 5);
  EXPECT_EQ(getReal(angle), 1);
}

TEST_F(PanelsOptions, PopupsMayBeAskedForAnythingAtAnyTime) {
  panels().options.asksPopupsAnytime = true;
  static std::vector<int> asked;
  asked.clear();
  const auto name = [](void*, int index) -> const char* {
    asked.push_back(index);
    return "name";
  };
  add(panel, "CustomPopupControl", describedPopup(&fruitCount, name));
  EXPECT_EQ(asked, (std::vector<int>{-1, 0, 2, 3, 1'000'000}));
}

}  // namespace
}  // namespace standin
