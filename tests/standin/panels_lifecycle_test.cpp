// Making, opening, closing and destroying panels, and what a module must not do meanwhile.
#include "tests/standin/panels_fixture.h"

namespace standin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct PanelLife : PanelsTest {
  // What the hooks saw, in order.
  static inline std::vector<std::string> seen;
  static inline lw::LWPanelFuncs* table = nullptr;

  void SetUp() override {
    PanelsTest::SetUp();
    seen.clear();
    table = services;
  }

  static bool isOpenNow(lw::PanelId panel) { return record(panel).isOpen(); }
  static void sawOpen(lw::PanelId panel, void*) { seen.emplace_back(isOpenNow(panel) ? "opened" : "opened while closed"); }
  static void sawClose(lw::PanelId, void*) { seen.emplace_back("closed"); }
  static void destroys(lw::PanelId panel, void*) { table->destroy(panel); }
  static void opens(lw::PanelId panel, void*) { table->open(panel, lw::kOpenNoButtons); }

  void hook(lw::PanelId panel, int attribute, lw::PanelHook function) const {
    services->set(panel, attribute, reinterpret_cast<void*>(function));
  }
};

TEST_F(PanelLife, OpeningGives1AndCallsTheOpenHookOnceShown) {
  const lw::PanelId panel = make();
  hook(panel, lw::kPanelOpenHook, &sawOpen);
  EXPECT_EQ(1, services->open(panel, lw::kOpenNoButtons));
  EXPECT_THAT(seen, ElementsAre("opened"));
}

TEST_F(PanelLife, ClosingCallsTheCloseHook) {
  const lw::PanelId panel = make();
  hook(panel, lw::kPanelCloseHook, &sawClose);
  services->open(panel, lw::kOpenNoButtons);
  services->close(panel);
  EXPECT_THAT(seen, ElementsAre("closed"));
  EXPECT_FALSE(isOpenNow(panel));
}

TEST_F(PanelLife, APersonsClosingCallsTheCloseHook) {
  const lw::PanelId panel = make();
  hook(panel, lw::kPanelCloseHook, &sawClose);
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_TRUE(person::close(panels().find("Tool")));
  EXPECT_THAT(seen, ElementsAre("closed"));
}

TEST_F(PanelLife, OpeningTwiceCallsNoHookAgain) {
  const lw::PanelId panel = make();
  hook(panel, lw::kPanelOpenHook, &sawOpen);
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_EQ(1, services->open(panel, lw::kOpenNoButtons));
  EXPECT_THAT(seen, ElementsAre("opened"));
}

TEST_F(PanelLife, ValuesOutliveClosing) {
  const lw::PanelId panel = make();
  lw::LWControl* edit = add(panel, ControlKind::Edit);
  services->open(panel, lw::kOpenNoButtons);
  setText(edit, "kept");
  services->close(panel);
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_EQ("kept", getText(edit));
}

TEST_F(PanelLife, CreatingBeforeTheLookupFunctionIsWrittenIsAFault) {
  services->globalFun = nullptr;
  EXPECT_NE(nullptr, make());
  EXPECT_THAT(takeFaults(), HasSubstr("lookup function"));
}

TEST_F(PanelLife, AHostMayNotNeedTheLookupFunction) {
  panels().options.wantsLookupFunction = false;
  services->globalFun = nullptr;
  EXPECT_NE(nullptr, make());
}

TEST_F(PanelLife, ANullTitleIsAFault) {
  EXPECT_EQ(nullptr, make(nullptr));
  EXPECT_THAT(takeFaults(), HasSubstr("null title"));
}

TEST_F(PanelLife, DestroyingAnOpenPanelIsAFault) {
  const lw::PanelId panel = make();
  services->open(panel, lw::kOpenNoButtons);
  services->destroy(panel);
  EXPECT_THAT(takeFaults(), HasSubstr("destroyed while it is open"));
  EXPECT_TRUE(record(panel).isAlive);
}

TEST_F(PanelLife, DestroyingInTheCloseHookIsAFault) {
  const lw::PanelId panel = make();
  hook(panel, lw::kPanelCloseHook, &destroys);
  services->open(panel, lw::kOpenNoButtons);
  services->close(panel);
  EXPECT_THAT(takeFaults(), HasSubstr("destroyed while it is open"));
}

TEST_F(PanelLife, OpeningInTheCloseHookIsAFault) {
  const lw::PanelId panel = make();
  hook(panel, lw::kPanelCloseHook, &opens);
  services->open(panel, lw::kOpenNoButtons);
  services->close(panel);
  EXPECT_THAT(takeFaults(), HasSubstr("within its close hook"));
}

TEST_F(PanelLife, DestroyingWithinAnEventIsAFault) {
  const lw::PanelId panel = make();
  lw::LWControl* button = addButton(panel, "Quit");
  onEvent(button, [](lw::LWControl* control, void*) {
    table->close(record(control)->panel->id);
    table->destroy(record(control)->panel->id);
  });
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_TRUE(person::press(record(button)));
  EXPECT_THAT(takeFaults(), HasSubstr("one of its own callbacks"));
}

TEST_F(PanelLife, AControlMadeAfterOpeningIsAFault) {
  const lw::PanelId panel = make();
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_EQ(nullptr, addButton(panel, "Late"));
  EXPECT_THAT(takeFaults(), HasSubstr("after it was opened"));
}

TEST_F(PanelLife, UsingADestroyedPanelIsAFault) {
  const lw::PanelId panel = make("Gone");
  services->destroy(panel);
  EXPECT_EQ(0, services->open(panel, lw::kOpenNoButtons));
  EXPECT_THAT(takeFaults(), HasSubstr("destroyed panel \"Gone\""));
}

TEST_F(PanelLife, UsingAControlOfADestroyedPanelIsAFault) {
  const lw::PanelId panel = make();
  lw::LWControl* check = add(panel, ControlKind::Bool);
  services->destroy(panel);
  EXPECT_EQ(-12345, getInteger(check, lw::kControlValue));
  EXPECT_THAT(takeFaults(), HasSubstr("destroyed BoolControl"));
}

TEST_F(PanelLife, APanelOfAnEarlierSessionIsAFault) {
  const lw::PanelId panel = make();
  lw::LWControl* check = add(panel, ControlKind::Bool);
  offerPanelServices();
  services->close(panel);
  EXPECT_THAT(takeFaults(), HasSubstr("panel of an earlier session"));
  setInteger(check, lw::kControlValue, 1);
  EXPECT_THAT(takeFaults(), HasSubstr("control of an earlier session"));
}

TEST_F(PanelLife, AForeignHandleIsAFault) {
  int other = 0;
  services->close(reinterpret_cast<lw::PanelId>(&other));
  EXPECT_THAT(takeFaults(), HasSubstr("never made"));
}

TEST_F(PanelLife, ANullHandleIsAFault) {
  services->draw(nullptr, lw::kDrawRefresh);
  EXPECT_THAT(takeFaults(), HasSubstr("null panel"));
}

TEST_F(PanelLife, AnOverwrittenControlRecordIsAFault) {
  lw::LWControl* check = add(make(), ControlKind::Bool);
  check->priv_data = nullptr;
  setInteger(check, lw::kControlValue, 1);
  EXPECT_THAT(takeFaults(), HasSubstr("overwritten"));
}

TEST_F(PanelLife, DestroyedAddressesAreNotUsedAgain) {
  const lw::PanelId first = make();
  services->destroy(first);
  EXPECT_NE(first, make());
}

TEST_F(PanelLife, OpeningWithoutUserDataOfACallbackIsAFault) {
  const lw::PanelId panel = make();
  lw::LWPanControlDesc desc = described(lw::kValueInteger);
  onEvent(services->addControl(panel, "ButtonControl", &desc, "Run"), [](lw::LWControl*, void*) {});
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_THAT(takeFaults(), HasSubstr("user data was never set"));
}

TEST_F(PanelLife, NullUserDataIsEnough) {
  const lw::PanelId panel = make();
  lw::LWControl* button = addButton(panel, "Run");
  setPointer(button, lw::kControlUserData, nullptr);
  onEvent(button, [](lw::LWControl*, void*) {});
  EXPECT_EQ(1, services->open(panel, lw::kOpenNoButtons));
}

TEST_F(PanelLife, PanelsNotDestroyedAreListed) {
  make("Leaked");
  services->destroy(make("Freed"));
  EXPECT_THAT(panels().undestroyed(), ElementsAre("panel \"Leaked\" was never destroyed"));
}

TEST_F(PanelLife, UnloadingTheModuleListsWhatItLeftAndForgetsIt) {
  std::string title = "Leaked";
  const lw::PanelId panel = make(title.c_str());
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_THAT(panels().moduleUnloaded(), ElementsAre("panel \"Leaked\" was never destroyed and is open"));
  EXPECT_THAT(panels().all(), IsEmpty());
  services->close(panel);
  EXPECT_THAT(takeFaults(), HasSubstr("destroyed panel \"Leaked\""));
}

TEST_F(PanelLife, AnOpenPanelIsFoundBeforeAClosedOne) {
  const lw::PanelId shown = make("Tool(1.20) ");
  services->open(shown, lw::kOpenNoButtons);
  make("Tool(1.20) ");
  EXPECT_EQ(&record(shown), panels().find("Tool"));
}

TEST_F(PanelLife, AnExceptionOutOfAHookIsAFault) {
  const lw::PanelId panel = make();
  hook(panel, lw::kPanelOpenHook, [](lw::PanelId, void*) { throw 1; });
  EXPECT_EQ(1, services->open(panel, lw::kOpenNoButtons));
  EXPECT_THAT(takeFaults(), HasSubstr("panel open hook: let an exception out"));
}

TEST_F(PanelLife, OpeningAsNoToolDoesIsAFault) {
  services->open(make(), lw::kOpenNoButtons | 1);
  EXPECT_THAT(takeFaults(), HasSubstr("got flags 65, with which no tool opens"));
  services->open(make(), lw::kOpenResizable);
  EXPECT_THAT(takeFaults(), HasSubstr("got flags 128"));
}

TEST_F(PanelLife, ClosingAClosedPanelIsOnlyNoted) {
  services->close(make());
  EXPECT_THAT(panels().notes(), ElementsAre("panel \"Tool\" was closed while it was not open"));
}

TEST_F(PanelLife, AnUnusedSlotIsAFault) {
  reinterpret_cast<void* (*)()>(services->gap_104[2])();
  EXPECT_THAT(takeFaults(), HasSubstr("LWPanelFuncs: the unused slot at offset 120"));
}

TEST_F(PanelLife, NothingIsLeftAfterANewSession) {
  make();
  offerPanelServices();
  EXPECT_THAT(panels().all(), IsEmpty());
}

// The loop that every action of the module is put through: each call fails once, in its own way.
struct PanelRefusals : PanelLife {};

TEST_F(PanelRefusals, EachFunctionAnswersAsItFails) {
  const lw::PanelId panel = make();
  lw::LWControl* check = add(panel, ControlKind::Bool);
  setInteger(check, lw::kControlValue, 1);
  const auto refuse = [] { witness().refuseCall(1); };

  refuse();
  EXPECT_EQ(nullptr, make("Second"));
  refuse();
  EXPECT_EQ(nullptr, services->addControl(panel, "BorderControl", std::array{describedArea(10, 10)}.data(), nullptr));
  refuse();
  EXPECT_EQ(0, services->open(panel, lw::kOpenNoButtons));
  refuse();
  EXPECT_EQ(-12345, getInteger(check, lw::kControlValue));
  refuse();
  setInteger(check, lw::kControlValue, 0);
  EXPECT_EQ(1, getInteger(check, lw::kControlValue));
  refuse();
  EXPECT_EQ(-12345, getNumber(panel, lw::kPanelWidth));
  refuse();
  services->destroy(panel);
  EXPECT_TRUE(record(panel).isAlive);
}

}  // namespace
}  // namespace standin
