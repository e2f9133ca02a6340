// One stream of mouse input made of the two ways in which a host may tell of it.
#include "modeler/selector/mouse_merge.h"

#include <gtest/gtest.h>

#include <string>

namespace mst {
namespace {

constexpr int kLeftDown = 32 | 128;
constexpr int kLeftUp = 32;
constexpr MouseReport kPress{10, 20, kLeftDown, 1};
constexpr MouseReport kRelease{10, 20, kLeftUp, 1};
constexpr MouseReport kDragged{15, 25, kLeftDown, 1};

class MouseMerge : public testing::Test {
 protected:
  // "P" press, "G" guess, "M" move, "R" release, "L" late release, "T" take back, "-" nothing.
  void took(MouseStep step) { steps += "-PGMRLT"[static_cast<std::size_t>(step)]; }
  void hook(const MouseReport& report) { took(mouse.button(report)); }
  void hookMoved(const MouseReport& report) { took(mouse.motion(report)); }
  void event(const MouseReport& report) { took(mouse.event(report)); }
  // The host has told by the event that a button went up.
  void eventHasTold() {
    event(kPress);
    event(kRelease);
    steps.clear();
  }
  // The host has painted by the event, before any button was used.
  void eventHasPainted() {
    mouse.reset();
    event({});
    steps.clear();
  }

  CMouseMerge mouse;
  std::string steps;
};

MouseReport at(int x, int y, int bits = kLeftDown, int clicks = 1) { return {x, y, bits, clicks}; }
MouseReport outside(MouseReport report) {
  report.isInside = false;
  return report;
}
MouseReport onDraggedBar(MouseReport report) {
  report.isOnDraggedBar = true;
  return report;
}

// ---------------------------------------------------------------------------------------------------------------------
// The hooks alone

TEST_F(MouseMerge, TheHooksAlone) {
  hook(kPress);
  hookMoved(kDragged);
  hook(kRelease);
  EXPECT_EQ(steps, "PMR");
}

TEST_F(MouseMerge, TwoPressesOfTheHookAtOnePlaceAreTwo) {
  for (int i = 0; i < 2; ++i) {
    hook(kPress);
    hook(kRelease);
  }
  EXPECT_EQ(steps, "PRPR");
}

TEST_F(MouseMerge, APressOfTheHookIsOneWithoutARelease) {
  hook(kPress);
  hook(kPress);
  hook(at(100, 90));
  EXPECT_EQ(steps, "PGG");
}

TEST_F(MouseMerge, MovesToldByTheHookOfButtonsAreMoves) {
  hook(kPress);
  hook(kRelease);
  hook(kPress);
  hook(at(10, 40));
  hook(at(10, 200));
  hook(kRelease);
  EXPECT_EQ(steps, "PRPMMR");
}

TEST_F(MouseMerge, AnotherButtonIsAnotherPress) {
  hook(kPress);
  hook(kRelease);
  hook(kPress);
  hook(at(10, 20, 64 | 128));
  EXPECT_EQ(steps, "PRPP");
}

TEST_F(MouseMerge, MotionWithAButtonThatWentDownElsewhereIsNothing) {
  hookMoved(kDragged);
  EXPECT_EQ(steps, "-");
}

TEST_F(MouseMerge, AReleaseThatWentUnheardShowsInTheNextMotion) {
  hook(kPress);
  hookMoved({1, 2, 0, 0});
  EXPECT_EQ(steps, "PL");
}

// ---------------------------------------------------------------------------------------------------------------------
// The event alone, of presses only

TEST_F(MouseMerge, PressesWithoutReleaseAndCountAreOneEach) {
  for (const int y : {20, 34, 48, 34}) event(at(10, y, kLeftDown, 0));
  EXPECT_EQ(steps, "PGGG");
}

TEST_F(MouseMerge, PressesAtOnePlaceAreOneEach) {
  for (int i = 0; i < 3; ++i) event(kPress);
  EXPECT_EQ(steps, "PGG");
}

TEST_F(MouseMerge, APressAFewPixelsBesideTheLastIsOne) {
  event(kPress);
  for (int pixels = 1; pixels <= 4; ++pixels) event(at(10 + pixels, 20));
  EXPECT_EQ(steps, "PGGGG");
}

TEST_F(MouseMerge, ACountThatRisesShowsAPress) {
  event(kPress);
  event(at(10, 20, kLeftDown, 2));
  EXPECT_EQ(steps, "PP");
}

TEST_F(MouseMerge, ACountThatBeginsAnewShowsAPress) {
  event(kPress);
  event(at(10, 20, kLeftDown, 2));
  event(at(11, 20, kLeftDown, 1));
  EXPECT_EQ(steps, "PPG");
}

TEST_F(MouseMerge, APressWithAQualifierIsOneAtTheSamePlaceToo) {
  event(kPress);
  event(at(11, 20, kLeftDown | 1));
  EXPECT_EQ(steps, "PG");
}

// ---------------------------------------------------------------------------------------------------------------------
// The event alone, of releases and moves too

TEST_F(MouseMerge, TheEventAlone) {
  eventHasTold();
  event(kPress);
  event(at(200, 300));
  event(kRelease);
  EXPECT_EQ(steps, "PMR");
}

TEST_F(MouseMerge, TwoPressesOfTheEventAtOnePlaceAreTwo) {
  for (int i = 0; i < 2; ++i) {
    event(kPress);
    event(kRelease);
  }
  EXPECT_EQ(steps, "PRPR");
}

TEST_F(MouseMerge, WhereReleasesAreToldARepeatedPressIsNone) {
  eventHasTold();
  event(kPress);
  event(kPress);
  EXPECT_EQ(steps, "P-");
}

TEST_F(MouseMerge, AShortStepIsTakenBackByTheFirstRelease) {
  event(kPress);
  event(at(13, 17));
  event(at(13, 17, kLeftUp));
  EXPECT_EQ(steps, "PGT");
}

TEST_F(MouseMerge, WhereReleasesAreToldAShortStepIsAMove) {
  eventHasTold();
  event(kPress);
  event(at(13, 17));
  EXPECT_EQ(steps, "PM");
}

TEST_F(MouseMerge, AStepOutOfTheTreeIsAMoveFromTheBeginning) {
  event(kPress);
  event(outside(at(10, -50)));
  EXPECT_EQ(steps, "PM");
}

TEST_F(MouseMerge, AStepAlongTheDraggedBarIsAMoveFromTheBeginning) {
  event(kPress);
  event(onDraggedBar(at(10, 300)));
  EXPECT_EQ(steps, "PM");
}

// The first release of all shows that what looked like presses were moves.
TEST_F(MouseMerge, ShortStepsWhileABarIsDraggedAreMovesFromTheBeginning) {
  event(kPress);
  for (int x = 12; x < 40; x += 2) {
    MouseReport beside = at(x, 20);
    beside.isBarDragged = true;
    event(beside);
  }
  EXPECT_EQ(steps, "P" + std::string(14, 'M'));
}

TEST_F(MouseMerge, LongStepsOfTheFirstDragAreTakenBack) {
  event(kPress);
  event(at(10, 60));
  event(at(10, 90));
  event(at(10, 90, kLeftUp));
  EXPECT_EQ(steps, "PGGT");
}

TEST_F(MouseMerge, OnlyTheFirstDragIsTakenBack) {
  eventHasTold();
  for (int i = 0; i < 2; ++i) {
    event(kPress);
    event(at(10, 60));
    event(at(10, 60, kLeftUp));
  }
  EXPECT_EQ(steps, "PMRPMR");
}

TEST_F(MouseMerge, MotionWithoutAButtonIsNothing) {
  hookMoved({1, 2, 0, 0});
  event({1, 2, 0, 0});
  EXPECT_EQ(steps, "--");
}

// ---------------------------------------------------------------------------------------------------------------------
// The event paints too

TEST_F(MouseMerge, AnEventThatTellsNothingNewPaints) {
  eventHasPainted();
  event(kPress);
  for (int i = 0; i < 3; ++i) event(kPress);
  EXPECT_EQ(steps, "P---");
}

TEST_F(MouseMerge, WhatStoodBeforeThePanelOpenedIsNoPress) {
  mouse.reset(kPress);
  event(kPress);
  event(at(10, 60));
  EXPECT_EQ(steps, "-P");
}

// A button is down beside the tree; the place is that of the last press in it.
TEST_F(MouseMerge, APaintWhileAButtonIsDownElsewhereIsNoPress) {
  eventHasPainted();
  event(kPress);
  event(kRelease);
  mouse.askedToPaint();
  for (int i = 0; i < 2; ++i) event(kPress);
  event(kRelease);
  event(at(10, 60));
  EXPECT_EQ(steps, "PR---P");
}

// The same by a host that paints by both callbacks.
TEST_F(MouseMerge, AnEventRightAfterThePaintIsNoPressEither) {
  eventHasPainted();
  event(kPress);
  event(kRelease);
  mouse.painted();
  event(kPress);
  event(at(10, 60));
  EXPECT_EQ(steps, "PR-P");
}

// Asked to paint, the host called when the button had been up for long: no release was told.
TEST_F(MouseMerge, APaintThatShowsTheButtonUpTeachesNothingOfReleases) {
  eventHasPainted();
  event(kPress);
  mouse.askedToPaint();
  event(kRelease);
  event(at(10, 60));
  event(at(10, 90));
  EXPECT_EQ(steps, "PLPG");
}

TEST_F(MouseMerge, AfterThePaintTheReleaseIsHeard) {
  eventHasPainted();
  event(kPress);
  mouse.askedToPaint();
  event(kPress);
  event(kRelease);
  event(at(10, 60));
  event(at(10, 90));
  EXPECT_EQ(steps, "P-RPM");
}

TEST_F(MouseMerge, APressAFewPixelsBesideTheLastIsOneWhereTheEventPaintsToo) {
  eventHasPainted();
  event(kPress);
  mouse.askedToPaint();
  event(kPress);
  event(at(12, 20));
  EXPECT_EQ(steps, "P-G");
}

// The mouse is where it is when the host comes to painting.
TEST_F(MouseMerge, APaintWhileTheHandTremblesIsNoPress) {
  eventHasPainted();
  event(kPress);
  mouse.askedToPaint();
  event(at(12, 20));
  event(at(14, 20));
  EXPECT_EQ(steps, "PMG");
}

// Such a release may be no more than the state that a paint shows.
// A host that paints by both calls: the event is the other half of the paint.
TEST_F(MouseMerge, TheOtherHalfOfAPaintIsNoPressWhileTheHandTrembles) {
  eventHasPainted();
  event(kPress);
  mouse.askedToPaint();
  mouse.painted();
  event(at(12, 20));
  EXPECT_EQ(steps, "PM");
}

TEST_F(MouseMerge, TheOtherHalfOfAPaintThatShowsTheButtonUpTeachesNothingOfReleases) {
  eventHasPainted();
  event(kPress);
  mouse.askedToPaint();
  mouse.painted();
  event(kRelease);
  event(kPress);
  event(at(30, 40));
  EXPECT_EQ(steps, "PLPG");
}

TEST_F(MouseMerge, APressRightAfterAPaintByTheEventIsOne) {
  eventHasPainted();
  event(kPress);
  mouse.askedToPaint();
  mouse.painted();
  mouse.paintedByEvent();
  event(at(12, 20));
  EXPECT_EQ(steps, "PG");
}

TEST_F(MouseMerge, NothingIsTakenBackWhereTheEventPaints) {
  eventHasPainted();
  event(kPress);
  event(at(10, 90));
  event(at(10, 90, kLeftUp));
  EXPECT_EQ(steps, "PGR");
}

// ---------------------------------------------------------------------------------------------------------------------
// Both ways

TEST_F(MouseMerge, OnePressInBothWaysIsOne) {
  for (int i = 0; i < 3; ++i) {
    hook(kPress);
    event(kPress);
    hook(kRelease);
    event(kRelease);
  }
  EXPECT_EQ(steps, "P-R-P-R-P-R-");
}

TEST_F(MouseMerge, TheEventMayComeFirst) {
  for (int i = 0; i < 3; ++i) {
    event(kPress);
    hook(kPress);
    event(kRelease);
    hook(kRelease);
  }
  EXPECT_EQ(steps, "P--R-P-R-P-R");
}

TEST_F(MouseMerge, TheSecondWayMayComeAfterTheRelease) {
  hook(kPress);
  hook(kRelease);
  event(kPress);
  event(kRelease);
  EXPECT_EQ(steps, "PR--");
  steps.clear();
  mouse.reset();
  event(kPress);
  event(kRelease);
  hook(kPress);
  hook(kRelease);
  EXPECT_EQ(steps, "PR-R");
}

TEST_F(MouseMerge, TheEventMayTellOfPressesOnly) {
  for (const int y : {20, 34, 34, 48}) {
    hook(at(10, y));
    event(at(10, y));
    hook(at(10, y, kLeftUp));
  }
  EXPECT_EQ(steps, "P-RP-RP-RP-R");
}

TEST_F(MouseMerge, MovesMayComeByTheEventOnly) {
  hook(kPress);
  event(kPress);
  event(at(10, 60));
  hook(at(10, 60, kLeftUp));
  EXPECT_EQ(steps, "P-MR");
}

TEST_F(MouseMerge, TheHookMayTellOfTheReleaseOnly) {
  event(kPress);
  hook(kRelease);
  event(at(10, 60));
  EXPECT_EQ(steps, "PRP");
}

// Hosts may call the hooks for presses beside the tree only.
TEST_F(MouseMerge, AHookBesideTheTreeDoesNotSilenceTheEvent) {
  hook(outside(at(-3, 20)));
  hook(outside(at(-3, 20, kLeftUp)));
  steps.clear();
  event(kPress);
  EXPECT_EQ(steps, "P");
}

TEST_F(MouseMerge, APressElsewhereOfTheHookIsAnother) {
  event(kPress);
  hook(at(10, 21));
  EXPECT_EQ(steps, "PP");
}

TEST_F(MouseMerge, APressOfTheHookWithOtherQualifiersIsAnother) {
  event(kPress);
  event(kRelease);
  hook(at(10, 20, kLeftDown | 1));
  EXPECT_EQ(steps, "PRP");
}

TEST_F(MouseMerge, BitsOfTheHostsOwnDoNotMakeAnother) {
  event(kPress);
  hook(at(10, 20, kLeftDown | 8));
  EXPECT_EQ(steps, "P-");
}

}  // namespace
}  // namespace mst
