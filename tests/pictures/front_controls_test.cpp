// Each kind of control in a real window: what a person does reaches the module, what the module sets is shown.
#include "tests/pictures/front_fixture.h"

namespace standin {
namespace {

using testing::ElementsAre;

using FrontControls = FrontTest;

TEST_F(FrontControls, ClickOnButtonPressesIt) {
  const Control& button = open(ControlKind::Button, "Run");
  ASSERT_TRUE(driver->click(button));
  EXPECT_EQ(1, button.eventsFired);
}

TEST_F(FrontControls, SpacePressesTheButtonWithTheFocus) {
  const Control& button = open(ControlKind::Button, "Run");
  SetFocus(windowOf(button));
  driver->key(VK_SPACE);
  EXPECT_EQ(1, button.eventsFired);
}

class FrontToggles : public FrontTest, public testing::WithParamInterface<ControlKind> {};

TEST_P(FrontToggles, ClickSwitchesOnAndOff) {
  const Control& check = open(GetParam());
  ASSERT_TRUE(driver->click(check));
  EXPECT_EQ(1, check.integer);
  ASSERT_TRUE(driver->click(check));
  EXPECT_EQ(0, check.integer);
  EXPECT_EQ(2, check.eventsFired);
}

TEST_P(FrontToggles, ShowsWhatTheModuleSets) {
  Control& check = open(GetParam());
  const Picture off = driver->picture(check);
  setInteger(check.face, lw::kControlValue, 1);
  EXPECT_NE(off, driver->picture(check));
  EXPECT_EQ(0, check.eventsFired);
}

INSTANTIATE_TEST_SUITE_P(Kinds, FrontToggles, testing::Values(ControlKind::Bool, ControlKind::BoolButton));

// ---------------------------------------------------------------------------------------------------------------------
// Fields

TEST_F(FrontControls, TypedTextIsTakenWhenTheFieldIsLeft) {
  Control& field = open(ControlKind::Edit);
  ASSERT_TRUE(driver->type(field, "Tail_01"));
  EXPECT_EQ("", field.text);
  driver->key(VK_RETURN);
  EXPECT_EQ("Tail_01", field.text);
  EXPECT_EQ(1, field.eventsFired);
}

TEST_F(FrontControls, TabLeavesTheFieldForTheNext) {
  panelId = make();
  const Control& first = *record(add(panelId, ControlKind::Edit, "First"));
  const Control& second = *record(add(panelId, ControlKind::Edit, "Second"));
  open();
  ASSERT_TRUE(driver->type(first, "one"));
  driver->key(VK_TAB);
  EXPECT_EQ("one", first.text);
  EXPECT_EQ(windowOf(second), GetFocus());
}

TEST_F(FrontControls, ClickOnButtonTakesWhatWasTypedFirst) {
  panelId = make();
  const Control& field = *record(add(panelId, ControlKind::Edit, "Name"));
  const Control& button = *record(addButton(panelId, "Run"));
  static std::string atPress;
  static const Control* typed = nullptr;
  typed = &field;
  onEvent(button.face, [](lw::LWControl*, void*) { atPress = typed->text; });
  open();
  ASSERT_TRUE(driver->type(field, "Bone"));
  ASSERT_TRUE(driver->click(button));
  EXPECT_EQ("Bone", atPress);
}

TEST_F(FrontControls, FieldThatIsLeftUnchangedFiresNothing) {
  const Control& field = open(ControlKind::Percent);
  setReal(field.face, 15.2345678);
  ASSERT_TRUE(driver->click(field));
  driver->key(VK_RETURN);
  EXPECT_EQ(0, field.eventsFired);
  EXPECT_EQ(15.2345678, field.real);
}

TEST_F(FrontControls, EscapePutsTheOldTextBack) {
  const Control& field = open(ControlKind::Edit);
  setText(field.face, "old");
  ASSERT_TRUE(driver->type(field, "new"));
  driver->key(VK_ESCAPE);
  driver->key(VK_RETURN);
  EXPECT_EQ("old", field.text);
  EXPECT_EQ(L"old", textOf(windowOf(field)));
}

TEST_F(FrontControls, JapaneseTextIsTypedAndShown) {
  const Control& field = open(ControlKind::Edit);
  ASSERT_TRUE(driver->type(field, "尻尾の骨"));
  driver->key(VK_RETURN);
  EXPECT_EQ("尻尾の骨", field.text);
}

TEST_F(FrontControls, AngleIsTypedInDegreesAndShownWithItsUnit) {
  const Control& field = open(ControlKind::Angle);
  ASSERT_TRUE(driver->type(field, "90"));
  driver->key(VK_RETURN);
  EXPECT_NEAR(1.5707963, field.real, 1e-6);
  EXPECT_EQ(L"90\x00B0", textOf(windowOf(field)));
}

TEST_F(FrontControls, WhatIsNoNumberIsRefusedAndTheFieldShowsItsValueAgain) {
  const Control& field = open(ControlKind::Num);
  ASSERT_TRUE(driver->type(field, "many"));
  driver->key(VK_RETURN);
  EXPECT_EQ(L"0", textOf(windowOf(field)));
  EXPECT_EQ(0, field.eventsFired);
  EXPECT_EQ(1u, front->refusals().size());
  front.emplace();  // one without refusals
}

TEST_F(FrontControls, FieldShowsWhatTheModuleSets) {
  const Control& field = open(ControlKind::MiniDistance);
  setReal(field.face, 1.5);
  front->settle();
  EXPECT_EQ(L"1.5 m", textOf(windowOf(field)));
}

TEST_F(FrontControls, DraggedSliderFiresAtEachStep) {
  const Control& field = open(ControlKind::Percent);
  ASSERT_TRUE(driver->dragSlider(field, 20));
  EXPECT_NEAR(20, field.real, 1);
  EXPECT_GE(field.eventsFired, 3);
}

// ---------------------------------------------------------------------------------------------------------------------
// Lists

class FrontLists : public FrontTest, public testing::WithParamInterface<ControlKind> {};

TEST_P(FrontLists, ClickedItemIsChosen) {
  const Control& list = open(GetParam());
  ASSERT_TRUE(driver->choose(list, 2));
  EXPECT_EQ(2, list.integer);
  EXPECT_EQ(1, list.eventsFired);
}

TEST_P(FrontLists, ChoosingTheChosenItemAgainIsAnEvent) {
  const Control& list = open(GetParam());
  ASSERT_TRUE(driver->choose(list, 1));
  ASSERT_TRUE(driver->choose(list, 1));
  EXPECT_EQ(2, list.eventsFired);
}

INSTANTIATE_TEST_SUITE_P(Kinds, FrontLists, testing::Values(ControlKind::Popup, ControlKind::CustomPopup));

TEST_F(FrontControls, IndexOutsideTheListIsShownAndKept) {
  const Control& list = open(ControlKind::Popup);
  const Picture before = driver->picture(list);
  setInteger(list.face, lw::kControlValue, 7);
  EXPECT_NE(before, driver->picture(list));
  EXPECT_EQ(7, list.integer);
}

TEST_F(FrontControls, CustomPopupAsksItsFunctionsEachTimeItOpens) {
  static int count = 0;
  static int asked = 0;
  count = 2;
  asked = 0;
  const auto countItems = [](void*) { return ++asked, count; };
  panelId = make();
  const Control& list = *record(add(panelId, "CustomPopupControl", describedPopup(countItems), "List"));
  open();
  ASSERT_TRUE(driver->choose(list, 1));
  const int askedBefore = asked;
  count = 3;
  ASSERT_TRUE(driver->choose(list, 2));
  EXPECT_GT(asked, askedBefore);
  EXPECT_EQ(2, list.integer);
}

TEST_F(FrontControls, ItemFarDownALongListIsChosen) {
  static std::array<std::string, 60> names;
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = "Item " + std::to_string(i);
  panelId = make();
  const auto count = [](void*) { return static_cast<int>(names.size()); };
  const auto name = [](void*, int i) -> const char* {
    return i >= 0 && i < 60 ? names[static_cast<std::size_t>(i)].c_str() : "";
  };
  const Control& list = *record(add(panelId, "CustomPopupControl", describedPopup(count, name), "List"));
  open();
  ASSERT_TRUE(driver->choose(list, 57));
  EXPECT_EQ(57, list.integer);
  EXPECT_EQ(1, list.eventsFired);
}

TEST_F(FrontControls, ClickedTabIsChosen) {
  const Control& tabs = open(ControlKind::TabChoice);
  ASSERT_TRUE(driver->chooseTab(tabs, 1));
  EXPECT_EQ(1, tabs.integer);
  EXPECT_EQ(1, tabs.eventsFired);
}

TEST_F(FrontControls, TabsFollowTheModule) {
  const Control& tabs = open(ControlKind::TabChoice);
  setInteger(tabs.face, lw::kControlValue, 2);
  front->settle();
  EXPECT_EQ(2, TabCtrl_GetCurSel(windowOf(tabs)));
}

// ---------------------------------------------------------------------------------------------------------------------
// What the module changes

TEST_F(FrontControls, HiddenControlVanishesAndComesBack) {
  const Control& button = open(ControlKind::Button, "Run");
  button.face->draw(button.face, lw::kDrawErase);
  front->settle();
  EXPECT_FALSE(isSeen(button));
  button.face->draw(button.face, lw::kDrawRender);
  front->settle();
  EXPECT_TRUE(isSeen(button));
}

TEST_F(FrontControls, MovedControlStandsAtItsNewPlace) {
  panelId = make();
  const Control& button = *record(addButton(panelId, "Run"));
  setNumber(panelId, lw::kPanelWidth, 300);
  open();
  setInteger(button.face, lw::kControlX, 150);
  front->settle();
  RECT place{};
  GetWindowRect(windowOf(button), &place);
  POINT corner{place.left, place.top};
  ScreenToClient(window().handle(), &corner);
  EXPECT_EQ(150, corner.x);
}

}  // namespace
}  // namespace standin
