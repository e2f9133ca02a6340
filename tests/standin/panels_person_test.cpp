// What a person does to controls, and what the module hears of it.
#include <numbers>

#include "tests/standin/panels_fixture.h"

namespace standin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct PersonAtPanel : PanelsTest {
  lw::PanelId panel = nullptr;
  static inline std::vector<std::string> events;  // what the control showed at each event

  void SetUp() override {
    PanelsTest::SetUp();
    panel = make();
    events.clear();
  }
  static void heard(lw::LWControl* control, void*) { events.push_back(record(control)->shown()); }
  Control* shown(ControlKind kind, const char* label = nullptr) { return shown(add(panel, kind, label)); }
  Control* shown(lw::LWControl* control) {
    onEvent(control, &heard);
    services->open(panel, lw::kOpenNoButtons | lw::kOpenResizable);
    return record(control);
  }
};

TEST_F(PersonAtPanel, PressingAButtonFiresItsEventWithItsUserData) {
  static void* user = nullptr;
  lw::LWControl* button = addButton(panel, "Run");
  onEvent(button, [](lw::LWControl*, void* data) { user = data; });
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_TRUE(person::press(record(panel).find("Run")));
  EXPECT_EQ(this, user);
}

TEST_F(PersonAtPanel, TogglingSwitchesOnAndOff) {
  Control* check = shown(ControlKind::Bool);
  EXPECT_TRUE(person::toggle(check));
  EXPECT_TRUE(person::toggle(check));
  EXPECT_THAT(events, ElementsAre("on", "off"));
}

TEST_F(PersonAtPanel, SwitchingToWhatItIsFiresNothing) {
  EXPECT_TRUE(person::switchTo(shown(ControlKind::BoolButton), false));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(PersonAtPanel, ChoosingByTextOrIndexSetsTheIndex) {
  Control* popup = shown(ControlKind::Popup);
  EXPECT_TRUE(person::choose(popup, "Fig"));
  EXPECT_TRUE(person::choose(popup, 1));
  EXPECT_THAT(events, ElementsAre("Fig", "Pear"));
  EXPECT_EQ(1, popup->integer);
}

TEST_F(PersonAtPanel, ChoosingTheSameItemAgainIsAnEvent) {
  EXPECT_TRUE(person::choose(shown(ControlKind::TabChoice), 0));
  EXPECT_THAT(events, ElementsAre("Apple"));
}

TEST_F(PersonAtPanel, ChoosingTheSameItemAgainMayBeSilent) {
  panels().options.repeatedChoiceFires = false;
  EXPECT_TRUE(person::choose(shown(ControlKind::TabChoice), 0));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(PersonAtPanel, WhatIsNotInTheListCannotBeChosen) {
  Control* popup = shown(ControlKind::Popup);
  EXPECT_THAT(person::choose(popup, 3).why, HasSubstr("has no item 3 but 3 items"));
  EXPECT_THAT(person::choose(popup, "Plum").why, HasSubstr("has no item \"Plum\""));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(PersonAtPanel, ACustomPopupAsksItsFunctionsEachTime) {
  static int asked = 0;
  asked = 0;
  Control* popup = shown(
      add(panel, "CustomPopupControl", describedPopup([](void*) { return ++asked; }, [](void*, int) { return "Item"; })));
  EXPECT_THAT(person::menu(popup), ElementsAre("Item"));
  EXPECT_THAT(person::menu(popup), ElementsAre("Item", "Item"));
}

TEST_F(PersonAtPanel, ACustomPopupsNamesAreReadAfterAllWereAsked) {
  static std::string buffer;
  const auto name = [](void*, int index) -> const char* {
    buffer = std::to_string(index);
    return buffer.c_str();
  };
  Control* popup = shown(add(panel, "CustomPopupControl", describedPopup(&fruitCount, name)));
  EXPECT_THAT(person::menu(popup), ElementsAre("2", "2", "2"));
}

TEST_F(PersonAtPanel, ANullNameWithinTheListIsAFault) {
  Control* popup = shown(add(panel, "CustomPopupControl",
                             describedPopup([](void*) { return 1; }, [](void*, int) -> const char* { return nullptr; })));
  EXPECT_THAT(person::menu(popup), ElementsAre(""));
  EXPECT_THAT(takeFaults(), HasSubstr("null name"));
}

TEST_F(PersonAtPanel, TypingTheSameTextFiresNothing) {
  Control* edit = shown(ControlKind::Edit);
  EXPECT_TRUE(person::type(edit, "Bone"));
  EXPECT_TRUE(person::type(edit, "Bone"));
  EXPECT_THAT(events, ElementsAre("Bone"));
}

TEST_F(PersonAtPanel, NumbersAreTypedAsTheyAreShown) {
  EXPECT_TRUE(person::type(shown(ControlKind::Num), "42"));
  EXPECT_THAT(events, ElementsAre("42"));
}

struct TypedNumber {
  ControlKind kind;
  const char* typed;
  double value;
};
struct TypingNumbers : PersonAtPanel, testing::WithParamInterface<TypedNumber> {};

INSTANTIATE_TEST_SUITE_P(Units, TypingNumbers,
                         testing::Values(TypedNumber{ControlKind::Percent, "15.2", 15.2},
                                         TypedNumber{ControlKind::Percent, "15.2 %", 15.2},
                                         TypedNumber{ControlKind::Angle, "180", std::numbers::pi},
                                         TypedNumber{ControlKind::MiniDistance, "1.5", 1.5},
                                         TypedNumber{ControlKind::MiniDistance, "150 mm", 0.15},
                                         TypedNumber{ControlKind::MiniFloat, "-2.5e-3", -0.0025}));

TEST_P(TypingNumbers, GivesTheModuleItsUnit) {
  Control* field = shown(GetParam().kind);
  EXPECT_TRUE(person::type(field, GetParam().typed));
  EXPECT_DOUBLE_EQ(GetParam().value, getReal(field->face));
}

TEST_F(PersonAtPanel, WhatIsNoNumberIsNotTaken) {
  Control* field = shown(ControlKind::Angle);
  EXPECT_THAT(person::type(field, "much").why, HasSubstr("does not take \"much\""));
  EXPECT_FALSE(person::type(field, "3 mm"));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(PersonAtPanel, ASlidersTypedValueStaysInItsRange) {
  Control* slider = shown(add(panel, "MiniSliderControl", describedRange(0, 10)));
  EXPECT_TRUE(person::enter(slider, 99));
  EXPECT_THAT(events, ElementsAre("10"));
}

TEST_F(PersonAtPanel, ATypedPercentMayLeaveItsRange) {
  EXPECT_TRUE(person::enter(shown(ControlKind::Percent), 250));
  EXPECT_THAT(events, ElementsAre("250 %"));
}

TEST_F(PersonAtPanel, ATypedPercentStaysInItsRangeOnAHostThatLimits) {
  panels().options.limitsTypedValues = true;
  EXPECT_TRUE(person::enter(shown(ControlKind::Percent), 250));
  EXPECT_THAT(events, ElementsAre("100 %"));
}

TEST_F(PersonAtPanel, DraggingASliderFiresOnTheWay) {
  EXPECT_TRUE(person::drag(shown(ControlKind::Percent), 100, 4));
  EXPECT_THAT(events, ElementsAre("25 %", "50 %", "75 %", "100 %"));
}

TEST_F(PersonAtPanel, ADisplayTakesNoText) {
  EXPECT_THAT(person::type(shown(ControlKind::NumInfo), "3").why, HasSubstr("takes no text"));
}

TEST_F(PersonAtPanel, AHiddenControlCannotBeUsed) {
  Control* button = shown(ControlKind::Button, "Run");
  button->face->draw(button->face, lw::kDrawErase);
  EXPECT_THAT(person::press(button).why, HasSubstr("is hidden"));
}

TEST_F(PersonAtPanel, AControlOfAClosedPanelCannotBeUsed) {
  Control* button = shown(ControlKind::Button, "Run");
  services->close(panel);
  EXPECT_THAT(person::press(button).why, HasSubstr("the panel is not open"));
}

TEST_F(PersonAtPanel, AControlOutsideThePanelCannotBeUsed) {
  Control* button = shown(ControlKind::Button, "Run");
  setInteger(button->face, lw::kControlX, 800);
  EXPECT_THAT(person::press(button).why, HasSubstr("lies outside the panel"));
}

TEST_F(PersonAtPanel, AControlIsUsedOnlyAsWhatItIs) {
  EXPECT_THAT(person::toggle(shown(ControlKind::Button, "Run")).why, HasSubstr("cannot be toggled"));
}

TEST_F(PersonAtPanel, WhatDoesNotExistCannotBeUsed) {
  shown(ControlKind::Button, "Run");
  EXPECT_THAT(person::press(record(panel).find("Stop")).why, HasSubstr("no such control"));
  EXPECT_THAT(person::close(panels().find("Elsewhere")).why, HasSubstr("no such panel"));
}

TEST_F(PersonAtPanel, SettingAValueFiresNothing) {
  setInteger(shown(ControlKind::Bool)->face, lw::kControlValue, 1);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(PersonAtPanel, SettingAValueFiresOnAnOddHost) {
  panels().options.setsFireEvents = true;
  setInteger(shown(ControlKind::Bool)->face, lw::kControlValue, 1);
  EXPECT_THAT(events, ElementsAre("on"));
}

TEST_F(PersonAtPanel, AnOddHostChoosesWhatIsNotInTheList) {
  EXPECT_TRUE(oddhost::choose(shown(ControlKind::Popup), -1));
  EXPECT_THAT(events, ElementsAre("(-1)"));
}

TEST_F(PersonAtPanel, AnOddHostFiresAHiddenControl) {
  Control* button = shown(ControlKind::Button, "Run");
  button->isErased = true;
  EXPECT_TRUE(oddhost::fire(button));
  EXPECT_EQ(1, button->eventsFired);
}

TEST_F(PersonAtPanel, AnExceptionOutOfAnEventIsAFault) {
  lw::LWControl* button = addButton(panel, "Run");
  onEvent(button, [](lw::LWControl*, void*) { throw 1; });
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_TRUE(person::press(record(button)));
  EXPECT_THAT(takeFaults(), HasSubstr("control event callback: let an exception out"));
}

TEST_F(PersonAtPanel, ControlsAreFoundByKindLabelAndPlace) {
  lw::LWControl* first = add(panel, ControlKind::Num, "Min");
  lw::LWControl* second = add(panel, ControlKind::Num, "Min");
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_EQ(second, record(panel).find("Min", 1)->face);
  EXPECT_EQ(first, record(panel).find(ControlKind::Num)->face);
  EXPECT_EQ(second, record(panel).at(1)->face);
}

TEST_F(PersonAtPanel, HiddenControlsAreNotFoundUnlessAskedFor) {
  Control* button = shown(ControlKind::Button, "Run");
  button->isErased = true;
  EXPECT_EQ(nullptr, record(panel).find("Run"));
  EXPECT_EQ(button, record(panel).find(std::nullopt, "Run", 0, false));
}

struct Resizing : PersonAtPanel {
  static inline std::vector<int> sizes;
  void SetUp() override {
    PersonAtPanel::SetUp();
    sizes.clear();
    const lw::PanelResizeHook hook = [](lw::PanelId, void*, int w, int h) { sizes.insert(sizes.end(), {w, h}); };
    services->set(panel, lw::kPanelResizeHook, reinterpret_cast<void*>(hook));
  }
};

TEST_F(Resizing, CallsTheHookOnce) {
  services->open(panel, 192);
  EXPECT_TRUE(person::resize(&record(panel), 500, 400));
  EXPECT_THAT(sizes, ElementsAre(500, 400));
}

TEST_F(Resizing, StaysWithinTheLimits) {
  setNumber(panel, lw::kPanelLeastWidth, 250);
  setNumber(panel, lw::kPanelGreatestHeight, 300);
  services->open(panel, 192);
  EXPECT_TRUE(person::resize(&record(panel), 10, 1000));
  EXPECT_THAT(sizes, ElementsAre(250, 300));
}

TEST_F(Resizing, NeedsAResizablePanel) {
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_THAT(person::resize(&record(panel), 500, 400).why, HasSubstr("not resizable"));
}

TEST_F(Resizing, TheSameSizeIsNoChange) {
  setNumber(panel, lw::kPanelWidth, 300);
  setNumber(panel, lw::kPanelHeight, 200);
  services->open(panel, 192);
  EXPECT_TRUE(person::resize(&record(panel), 300, 200));
  EXPECT_THAT(sizes, IsEmpty());
}

}  // namespace
}  // namespace standin
