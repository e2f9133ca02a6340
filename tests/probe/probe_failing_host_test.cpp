// The probe's panels in hosts that fail.
#include <stdexcept>

#include "standin/core/shared_library.h"
#include "tests/probe/hands_fixture.h"

namespace standin {
namespace {

// From the first panel on: what comes before needs no hands.
TEST_F(ProbeInHands, AHostThatRefusesACallDoesNotBreakTheProbe) {
  std::uint64_t refused = 0;
  for (std::uint64_t n = 1;; n += 1 + n / 12) {
    end();
    begin();
    start();
    witness().refuseCall(n);
    try {
      playHands();
    } catch (const std::runtime_error&) {
      // A panel that did not come: that is the host's doing.
    }
    if (!witness().refusalHappened()) break;
    ++refused;
  }
  witness().refuseCall(0);
  EXPECT_GT(refused, 20U);
}

TEST_F(ProbeInHands, AHostThatMakesNoPanelIsToldAllButThePanels) {
  witness().refuseNext("panel create");
  start();
  EXPECT_EQ(shown(), nullptr);
  EXPECT_NE(valueIn(facts(), "empty-tag"), "");
  EXPECT_EQ(seen("mouse"), "the host makes no panel");
}

TEST_F(ProbeInHands, AHostThatMakesNoControlIsToldAllButThePanels) {
  witness().refuseNext("panel addControl");
  start();
  EXPECT_EQ(shown(), nullptr);
  EXPECT_EQ(seen("mouse"), "the host makes no TextControl");
}

// A host may tell of a press late, or leave a panel on the screen that is closed.
TEST_F(ProbeInHands, AButtonOfAClosedPanelDoesNothing) {
  start();
  const Control* const next = shown()->find("Next");
  mustBeDone(person::close(shown()));
  next->event(next->face, next->user);
  EXPECT_EQ(shown(), nullptr);
  EXPECT_EQ(seen("mouse"), "the user closed the panel");
}

// A host that tells of other controls while it is asked for the value of one.
void (*getOfTheHost)(lw::LWControl*, int, lw::LWValue*) = nullptr;
const Control* toldMeanwhile = nullptr;

TEST_F(ProbeInHands, WhatTheHostTellsWhileItIsAskedSpoilsNoAnswer) {
  start();
  press("Next");
  press("Skip");
  Control* const list = shown()->find("List");
  toldMeanwhile = shown()->find("Percent");
  getOfTheHost = std::exchange(list->face->get, [](lw::LWControl* control, int attribute, lw::LWValue* value) {
    constexpr int kMany = 1000;
    control->get = getOfTheHost;
    for (int i = 0; i < kMany; ++i) toldMeanwhile->event(toldMeanwhile->face, toldMeanwhile->user);
    getOfTheHost(control, attribute, value);
  });
  mustBeDone(person::choose(list, 1));
  press("Done");
  press("Skip");
  EXPECT_EQ(seen("same-choice"), "the entry that was shown was chosen, and the event came");
}

TEST_F(ProbeInHands, ACallThatComesBehindTheEndOfTheModuleAsksTheHostNothing) {
  start();
  std::string why;
  void* const library = openLibrary(probePath(), why);
  ASSERT_NE(library, nullptr) << why;
  static_cast<const lw::ModuleDescriptor*>(findSymbol(library, "_mod_descrip"))->shutdown(nullptr);
  const std::uint64_t calls = witness().calls();
  mustBeDone(person::press(shown()->find("Next")));
  mustBeDone(person::press(own()->find("Start")));
  mustBeDone(person::close(shown()));
  EXPECT_EQ(witness().calls(), calls);
  closeLibrary(library);
}

TEST_F(ProbeInHands, APanelThatWasMadeInPartIsMadeAnew) {
  end();
  host.emplace(HostOptions());
  excuseTrials();
  module.emplace();
  ASSERT_EQ(module->load(probePath()), "");
  witness().refuseNext("panel addControl");
  activate();
  EXPECT_EQ(own(), nullptr);
  activate();
  ASSERT_NE(own(), nullptr);
  EXPECT_NE(own()->find("Start"), nullptr);
}

}  // namespace
}  // namespace standin
