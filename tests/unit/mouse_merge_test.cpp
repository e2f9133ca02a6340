// One stream of mouse input made of the two ways in which a host may tell of it.
#include "modeler/mouse_merge.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mst {
namespace {

constexpr int kLeftDown = 32 | 128;
constexpr int kLeftUp = 32;
constexpr MouseReport kPress{10, 20, kLeftDown, 1};
constexpr MouseReport kRelease{10, 20, kLeftUp, 1};
constexpr MouseReport kDragged{15, 25, kLeftDown, 1};

class MouseMerge : public testing::Test {
 protected:
  // "P" press, "M" move, "R" release, "-" nothing.
  void took(MouseStep step) { steps += "-PMR"[static_cast<std::size_t>(step)]; }
  void hook(const MouseReport& report) { took(mouse.button(MouseWay::Hooks, report)); }
  void hookMoved(const MouseReport& report) { took(mouse.motion(MouseWay::Hooks, report)); }
  void event(const MouseReport& report) { took(mouse.any(MouseWay::ControlEvent, report)); }

  CMouseMerge mouse;
  std::string steps;
};

TEST_F(MouseMerge, TheHooksAlone) {
  hook(kPress);
  hookMoved(kDragged);
  hook(kRelease);
  EXPECT_EQ(steps, "PMR");
}

TEST_F(MouseMerge, TheEventAlone) {
  event(kPress);
  event(kDragged);
  event(kRelease);
  EXPECT_EQ(steps, "PMR");
}

TEST_F(MouseMerge, OnePressInBothWaysIsOne) {
  hook(kPress);
  event(kPress);
  hook(kRelease);
  event(kRelease);
  EXPECT_EQ(steps, "P-RR");
}

TEST_F(MouseMerge, TheEventMayComeFirst) {
  event(kPress);
  hook(kPress);
  event(kRelease);
  hook(kRelease);
  EXPECT_EQ(steps, "P-RR");
}

TEST_F(MouseMerge, TheSecondWayMayComeAfterTheRelease) {
  hook(kPress);
  hook(kRelease);
  event(kPress);
  event(kRelease);
  EXPECT_EQ(steps, "PR-R");
}

TEST_F(MouseMerge, TwoPressesAtOnePlaceAreTwoInEachWay) {
  for (int i = 0; i < 2; ++i) {
    hook(kPress);
    hook(kRelease);
  }
  EXPECT_EQ(steps, "PRPR");
  steps.clear();
  mouse.reset();
  for (int i = 0; i < 2; ++i) {
    event(kPress);
    event(kRelease);
  }
  EXPECT_EQ(steps, "PRPR");
}

TEST_F(MouseMerge, TwoPressesAtOnePlaceAreTwoInBothWays) {
  for (int i = 0; i < 2; ++i) {
    hook(kPress);
    event(kPress);
    hook(kRelease);
    event(kRelease);
  }
  EXPECT_EQ(steps, "P-RRP-RR");
}

TEST_F(MouseMerge, APressElsewhereInTheOtherWayIsAnother) {
  hook(kPress);
  hook(kRelease);
  event(kDragged);
  EXPECT_EQ(steps, "PRP");
}

TEST_F(MouseMerge, APressAtAnotherHeightInTheOtherWayIsAnother) {
  hook(kPress);
  event({10, 21, kLeftDown, 1});
  EXPECT_EQ(steps, "PP");
}

TEST_F(MouseMerge, MotionWithAButtonThatWentDownElsewhereIsNothing) {
  hookMoved(kDragged);
  EXPECT_EQ(steps, "-");
}

TEST_F(MouseMerge, APressWithOtherQualifiersInTheOtherWayIsAnother) {
  hook(kPress);
  hook(kRelease);
  event({10, 20, kLeftDown | 1, 1});
  EXPECT_EQ(steps, "PRP");
}

TEST_F(MouseMerge, BitsOfTheHostsOwnDoNotMakeAnother) {
  hook({10, 20, kLeftDown | 8, 1});
  event(kPress);
  EXPECT_EQ(steps, "P-");
}

TEST_F(MouseMerge, MotionWithoutAButtonIsNothing) {
  hookMoved({1, 2, 0, 0});
  event({1, 2, 0, 0});
  EXPECT_EQ(steps, "--");
}

TEST_F(MouseMerge, AReleaseThatWentUnheardShowsInTheNextMotion) {
  hook(kPress);
  hookMoved({1, 2, 0, 0});
  EXPECT_EQ(steps, "PR");
}

TEST_F(MouseMerge, AReleaseThatWentUnheardShowsInTheCountOfClicks) {
  event(kPress);
  event({10, 20, kLeftDown, 2});
  EXPECT_EQ(steps, "PP");
}

TEST_F(MouseMerge, APressOfTheHookIsOneWithoutARelease) {
  hook(kPress);
  hook(kPress);
  EXPECT_EQ(steps, "PP");
}

}  // namespace
}  // namespace mst
