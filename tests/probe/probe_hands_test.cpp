// The probe's panels in the hands of people who do not do all that they are asked for.
#include <algorithm>
#include <chrono>
#include <thread>

#include "standin/panels/geometry.h"
#include "tests/probe/hands_fixture.h"

namespace standin {
namespace {

TEST_F(ProbeInHands, WhatTheUserSkipsIsNotTold) {
  start();
  press("Next");
  for (int step = 0; step < 3; ++step) press("Skip");
  EXPECT_EQ(valueIn(facts(), "resize-hook"), "user");
  for (const char* const name : {"mouse", "clicks", "typing", "same-choice", "wheel"}) {
    EXPECT_EQ(valueIn(facts(), name), "");
    EXPECT_EQ(seen(name), "the user skipped it") << name;
  }
}

TEST_F(ProbeInHands, WhoWantsToDoNothingByHandSkipsItAtOnce) {
  start();
  press("Skip the rest");
  EXPECT_EQ(shown(), nullptr);
  EXPECT_EQ(valueIn(facts(), "close-hook"), "always");
  EXPECT_EQ(seen("mouse"), "the user skipped it");
}

TEST_F(ProbeInHands, ClosingAPanelEndsTheTrialAndTheFileTellsIt) {
  start();
  press("Next");
  mustBeDone(person::close(shown()));
  EXPECT_EQ(shown(), nullptr);
  EXPECT_EQ(valueIn(facts(), "sets"), "silent");
  EXPECT_EQ(seen("typing"), "the user closed the panel");
}

TEST_F(ProbeInHands, StartingAnewBeginsWithTheFirstPanel) {
  start();
  press("Next");
  start();
  ASSERT_NE(shown(), nullptr);
  EXPECT_EQ(shown()->title.read(), "Varnel probe 1 of 4");
  EXPECT_EQ(panels().open().size(), 2U);
}

TEST_F(ProbeInHands, ActivatingAgainLeavesThePanelThatIsShown) {
  start();
  press("Next");
  activate();
  ASSERT_NE(shown(), nullptr);
  EXPECT_EQ(shown()->title.read(), "Varnel probe 2 of 4");
}

TEST_F(ProbeInHands, ThePanelsOfATrialAreDestroyedByTheNext) {
  start();
  playHands();
  const std::size_t left = panels().all().size();
  start();
  playHands();
  EXPECT_EQ(panels().all().size(), left);
}

TEST_F(ProbeInHands, NothingDoneIsToldAsNothingDone) {
  start();
  press("Next");
  for (int step = 0; step < 3; ++step) press("Done");
  for (const char* const name : {"mouse", "clicks", "qualifiers", "typing", "same-choice", "range", "wheel", "drag-hook"})
    EXPECT_EQ(valueIn(facts(), name), "") << seen(name);
}

TEST_F(ProbeInHands, OnePanelOfTheFourIsOpenAtATime) {
  start();
  for (const char* const button : {"Next", "Done", "Done", "Done"}) {
    EXPECT_EQ(panels().open().size(), 2U) << button;
    press(button);
  }
  EXPECT_EQ(panels().open().size(), 1U);
}

TEST_F(ProbeInHands, WhatWasSkippedBeforeThePanelsWereClosedIsToldAsSkipped) {
  start();
  press("Next");
  press("Skip");
  mustBeDone(person::close(shown()));
  EXPECT_EQ(seen("mouse"), "the user skipped it");
  EXPECT_EQ(seen("typing"), "the user closed the panel");
}

TEST_F(ProbeInHands, AnotherEntryThanTheShownOneTellsNothing) {
  start();
  press("Next");
  press("Skip");
  mustBeDone(person::choose(shown()->find("List"), 2));
  press("Done");
  press("Skip");
  EXPECT_EQ(valueIn(facts(), "same-choice"), "");
  EXPECT_EQ(seen("same-choice"), "another entry was chosen than the one that was shown");
}

TEST_F(ProbeInHands, ClicksThatAreNotQuickTellNothing) {
  start();
  press("Next");
  const Rectangle hot = shown()->find(ControlKind::OpenGL)->hot();
  mustBeDone(person::click(shown(), hot.x, hot.y));
  std::this_thread::sleep_for(std::chrono::milliseconds(600));
  mustBeDone(person::click(shown(), hot.x, hot.y));
  mustBeDone(person::click(shown(), hot.x + hot.width - 1, hot.y));
  press("Done");
  press("Skip");
  press("Skip");
  EXPECT_EQ(valueIn(facts(), "clicks"), "") << seen("clicks");
}

TEST_F(ProbeInHands, TheCallsOfTheMouseAreToldOneByOne) {
  start();
  press("Next");
  press("Skip");
  press("Skip");
  const Rectangle hot = shown()->find(ControlKind::OpenGL)->hot();
  const std::string place = std::to_string(hot.x) + "," + std::to_string(hot.y);
  mustBeDone(person::mousePress(shown(), hot.x, hot.y));
  mustBeDone(person::wheel(shown(), hot.x, hot.y, -2));
  press("Done");
  const std::string mouse = " panel " + place + " control " + place + " qualifiers 160 clicks 1";
  EXPECT_EQ(figureIn(facts(), "mouse over the panel with its flag"),
            "button hook " + place + " bits 160" + mouse + "; event" + mouse + "; wheel hook " + place + " bits -2" + mouse);
  EXPECT_EQ(figureIn(facts(), "mouse over the panel without its flag"), "the user skipped it");
}

TEST_F(ProbeInHands, AWheelTurnedTowardsTheUserTellsTheOtherWay) {
  start();
  press("Next");
  press("Skip");
  press("Skip");
  const Control* const area = shown()->find(ControlKind::OpenGL);
  mustBeDone(person::wheel(shown(), area->hot().x, area->hot().y, -1));
  press("Done");
  EXPECT_EQ(valueIn(facts(), "wheel"), "down");
}

// The width that the probe tried is that which holds all controls again, and what it hid for a trial is there.
TEST_F(ProbeInHands, TrialsLeaveAPanelAsItWas) {
  end();
  HostChoice choice;
  ASSERT_EQ(choice.take("panel-size=always"), "");
  begin(choice.options());
  start();
  EXPECT_TRUE(person::toggle(shown()->find("Mark")));
  for (const char* const button : {"Next", "Skip"}) {
    int right = 0;
    for (const auto& control : shown()->controls) right = std::max(right, control->x + control->width());
    EXPECT_EQ(shown()->width, right + 8) << shown()->title.read();
    press(button);
  }
}

TEST_F(ProbeInHands, TheSizesOfControlsAreTold) {
  start();
  const std::string sizes = figureIn(facts(), "sizes of controls");
  EXPECT_TRUE(sizes.starts_with("EditControl of 12: 108 by 20, label 28, hot 80 by 18; PopupControl: ")) << sizes;
}

// ---------------------------------------------------------------------------------------------------------------------

struct ProbeLayout : ProbeInHands, testing::WithParamInterface<const char*> {};

TEST_P(ProbeLayout, HoldsAllThatItsPanelsShow) {
  end();
  HostChoice choice;
  ASSERT_EQ(choice.take(GetParam()), "");
  begin(choice.options());
  EXPECT_EQ(layoutComplaints(*own()), "");
  start();
  for (const char* const button : {"Next", "Skip", "Skip", "Skip"}) {
    EXPECT_EQ(layoutComplaints(*shown()), "");
    press(button);
  }
}

INSTANTIATE_TEST_SUITE_P(Metrics, ProbeLayout, testing::Values("rows=18", "rows=20", "rows=22", "padding=3"));

}  // namespace
}  // namespace standin
