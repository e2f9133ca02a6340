// The probe's panels in the hands of people who do not do all that they are asked for, and in hosts that fail.
#include <algorithm>
#include <chrono>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

#include "standin/core/shared_library.h"
#include "standin/core/witness.h"
#include "standin/measure/hands.h"
#include "standin/panels/geometry.h"
#include "standin/panels/person.h"
#include "standin/variants/played_host.h"
#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

struct ProbeInHands : testing::Test {
  void SetUp() override { begin(); }
  void TearDown() override { end(); }

  void begin(const HostOptions& options = {}) {
    host.emplace(options);
    excuseTrials();
    module.emplace();
    ASSERT_EQ(module->load(probePath()), "");
    activate();
    usualFile = own()->find("File")->shown();
    mustBeDone(person::type(own()->find("File"), folder.path() + "/facts.json"));
  }
  void end() {
    if (!host) return;
    panels().moduleUnloaded();
    module->unload();
    EXPECT_EQ(witness().report(), "");
    module.reset();
    host.reset();
  }
  void activate() { host->activate(*module, "Varnel:HostFacts"); }

  static Panel* own() { return panels().find("Varnel:HostFacts"); }
  // The one of the four that is open.
  static Panel* shown() {
    Panel* const panel = panels().find("Varnel probe ");
    return panel != nullptr && panel->isOpen() ? panel : nullptr;
  }
  static void press(const char* button) { mustBeDone(person::press(shown()->find(button))); }
  static void pressStart() { mustBeDone(person::press(own()->find("Start"))); }
  // Where no file is in the way.
  void start() {
    std::error_code ignored;
    std::filesystem::remove(pathFromUtf8(folder.path() + "/facts.json"), ignored);
    pressStart();
  }
  std::string facts() const {
    const Outcome<std::string> bytes = readFileBytes(folder.path() + "/facts.json");
    return bytes ? *bytes : "{\"facts\": []}";
  }
  std::string seen(const std::string& name) const { return seenIn(facts(), name); }

  TemporaryFolder folder;
  std::string usualFile;
  std::optional<PlayedModeler> host;
  std::optional<ModuleFile> module;
};

TEST_F(ProbeInHands, AFileThatIsThereIsKeptUntilTheUserStartsAgain) {
  ASSERT_FALSE(writeFileBytes(folder.path() + "/facts.json", "mine"));
  pressStart();
  EXPECT_EQ(shown(), nullptr);
  EXPECT_EQ(*readFileBytes(folder.path() + "/facts.json"), "mine");
  EXPECT_EQ(own()->find("Now")->shown(), "There is such a file. Press Start again to write over it.");
  pressStart();
  EXPECT_NE(shown(), nullptr);
  EXPECT_NE(*readFileBytes(folder.path() + "/facts.json"), "mine");
}

TEST_F(ProbeInHands, APlaceThatCannotBeWrittenIsToldBeforeAnythingIsMeasured) {
  mustBeDone(person::type(own()->find("File"), folder.path() + "/nowhere/facts.json"));
  start();
  EXPECT_EQ(shown(), nullptr);
  EXPECT_NE(own()->find("Now")->shown().find("nowhere"), std::string::npos);
  EXPECT_TRUE(host->commands().empty());
}

// Much was done by hand for it.
TEST_F(ProbeInHands, AFileThatIsDoneIsKeptUntilTheUserStartsTwice) {
  start();
  playHands();
  const std::string done = facts();
  pressStart();
  EXPECT_EQ(shown(), nullptr);
  EXPECT_EQ(facts(), done);
  EXPECT_EQ(own()->find("Now")->shown(), "There is such a file. Press Start again to write over it.");
}

TEST_F(ProbeInHands, AFileThatMayNotBeWrittenOverIsToldBeforeAnythingIsMeasured) {
  const std::string path = folder.path() + "/facts.json";
  ASSERT_FALSE(writeFileBytes(path, "mine"));
  std::filesystem::permissions(pathFromUtf8(path), std::filesystem::perms::owner_read);
  pressStart();
  pressStart();
  EXPECT_EQ(own()->find("Now")->shown(), "cannot write " + path + ": it is read-only");
  EXPECT_TRUE(host->commands().empty());
  std::filesystem::permissions(pathFromUtf8(path), std::filesystem::perms::owner_all);
}

TEST_F(ProbeInHands, AFolderInPlaceOfAFileIsToldBeforeAnythingIsMeasured) {
  mustBeDone(person::type(own()->find("File"), folder.path()));
  pressStart();
  pressStart();
  EXPECT_EQ(own()->find("Now")->shown(), "Name a file, not only a folder.");
  EXPECT_TRUE(host->commands().empty());
}

TEST_F(ProbeInHands, WithoutAFileNameNothingIsMeasured) {
  mustBeDone(person::type(own()->find("File"), ""));
  pressStart();
  EXPECT_EQ(own()->find("Now")->shown(), "Name a file, not only a folder.");
  EXPECT_TRUE(host->commands().empty());
}

// The host's current folder is a place where nobody looks.
TEST_F(ProbeInHands, AFileWithoutAFolderIsLookedForInTheUsers) {
  const std::string name = "varnel-modeler.json";
  ASSERT_TRUE(usualFile.ends_with(name)) << usualFile;
  const std::string usersFolder = usualFile.substr(0, usualFile.size() - name.size());
  mustBeDone(person::type(own()->find("File"), "no such folder/facts.json"));
  pressStart();
  EXPECT_NE(own()->find("Now")->shown().find(usersFolder), std::string::npos) << own()->find("Now")->shown();
}

TEST_F(ProbeInHands, AFileWithLettersOfAnyLanguageIsWritten) {
  const std::string path = folder.path() + "/実測 facts.json";
  mustBeDone(person::type(own()->find("File"), path));
  pressStart();
  EXPECT_TRUE(readFileBytes(path)) << own()->find("Now")->shown();
}

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

// ---------------------------------------------------------------------------------------------------------------------

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

TEST_F(ProbeInHands, AFolderIsNoPlaceForTheFile) {
  for (const std::string& path : {folder.path(), folder.path() + "/", std::string()}) {
    mustBeDone(person::type(own()->find("File"), path));
    pressStart();
    EXPECT_EQ(own()->find("Now")->shown(), "Name a file, not only a folder.") << path;
    EXPECT_TRUE(host->commands().empty());
  }
}

TEST_F(ProbeInHands, WhoDoesNotGoOnHasAFileThatTellsIt) {
  start();
  EXPECT_EQ(valueIn(facts(), "sets"), "silent");
  EXPECT_EQ(seen("mouse"), "the user did not come to this");
}

std::vector<std::string> namesIn(const std::string& facts) {
  std::vector<std::string> names;
  const auto file = nlohmann::json::parse(facts);
  for (const auto& fact : file.at("facts")) names.push_back(fact.at("name"));
  return names;
}

TEST_F(ProbeInHands, WhoDoesNotGoOnHasAFileOfAllQuestions) {
  start();
  const std::vector<std::string> early = namesIn(facts());
  playHands();
  EXPECT_EQ(early, namesIn(facts()));
}

// ---------------------------------------------------------------------------------------------------------------------

TEST_F(ProbeInHands, AnotherVersionOfTheProgramIsToldSo) {
  EXPECT_EQ(host->activate(*module, "Varnel:HostFacts", {}, lw::kModCommandVersion + 1), lw::kActivationBadVersion);
}

TEST_F(ProbeInHands, AProgramWithoutPanelsIsToldThatTheProbeCannotRun) {
  globals().withhold("LWPanelServices 3");
  EXPECT_EQ(host->activate(*module, "Varnel:HostFacts"), lw::kActivationBadGlobal);
}

// What the line says whenever it is drawn.
struct LinesOfNow : PanelListener {
  void drawn(Control& control, int /*mode*/) override {
    if (control.panel == panels().find("Varnel:HostFacts")) lines.push_back(control.shown());
  }
  std::vector<std::string> lines;
};

TEST_F(ProbeInHands, EachStepIsShownBeforeItIsDone) {
  LinesOfNow now;
  panels().listener = &now;
  start();
  panels().listener = nullptr;
  ASSERT_GE(now.lines.size(), 3U);
  EXPECT_EQ(now.lines[0], "Measuring what only eyes can tell");
  EXPECT_EQ(now.lines[1], "Measuring the process");
  EXPECT_EQ(now.lines[2], "Measuring objects and edits");
  EXPECT_EQ(now.lines.back(), "Now it needs your hand: see the panel \"Varnel probe 1 of 4\"");
}

TEST_F(ProbeInHands, TheFileTellsReleaseBuildYearAndLanguage) {
  end();
  HostOptions options;
  options.modeler.productInfo = 0x0AF1ABC1;
  options.modeler.localeInfo = 0x30411;
  begin(options);
  start();
  const auto told = nlohmann::json::parse(facts()).at("host");
  const nlohmann::json wanted{
      {"release", "15.1"}, {"build", 0xABC}, {"year", 2025}, {"language", "0x411"}, {"word", "0xaf1abc1"}};
  EXPECT_EQ(told, wanted);
}

// The year's bits count from that release on.
TEST_F(ProbeInHands, TheFileTellsNoYearOfAnotherRelease) {
  end();
  HostOptions options;
  options.modeler.productInfo = 0x0A21ABC1;
  begin(options);
  start();
  const auto told = nlohmann::json::parse(facts()).at("host");
  EXPECT_EQ(told.at("release"), "2.1");
  EXPECT_TRUE(told.at("year").is_null());
}

}  // namespace
}  // namespace standin
