// The commands to the host and its status line, in both programs, as the host sees them.
#include "host/lwtool2_eval.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/lwtool2_globals.h"
#include "standin/core/globals.h"
#include "standin/core/service_names.h"
#include "standin/core/witness.h"

namespace lw {
namespace {

std::vector<std::string> received;  // what the host was sent
int answer = 0;                     // what the host answers

int layoutCommandOfHost(const char* command) {
  received.emplace_back(command);
  return answer;
}

int evaluateOfHost(void*, const char* command) {
  received.emplace_back(command);
  return answer;
}

// A host of one program, with every service there.
class Host : public testing::Test {
 protected:
  void offerAll() {
    standin::witness().reset();
    standin::globals().reset();
    standin::globals().offerPresence(standin::modelerServices());
    standin::globals().offerPresence(standin::layoutServices());
    standin::globals().offerNumber("Locale Info", 0x409);
    standin::globals().offer("LW Command Interface", reinterpret_cast<void*>(&layoutCommandOfHost));
    received.clear();
  }
};

class InLayout : public Host {
 protected:
  void SetUp() override {
    offerAll();
    resetHostState();
    answer = 1;
    ASSERT_TRUE(AcquireHostGlobals(Program::Layout, standin::Globals::lookup(), nullptr));
  }
};

class InModeler : public Host {
 protected:
  void SetUp() override {
    offerAll();
    resetHostState();
    answer = 0;
    command.data = &command;
    command.evaluate = &evaluateOfHost;
    command.editBegin2 = [](int, int, int, int) -> MeshEditOp* { return nullptr; };
    ASSERT_TRUE(AcquireHostGlobals(Program::Modeler, standin::Globals::lookup(), &command));
  }
  LWModCommand command{};
};

using Commands = std::vector<std::string>;

TEST_F(InLayout, AnAcceptedCommandIsNoFailure) {
  EXPECT_FALSE(Eval("Foo 1"));
  EXPECT_EQ(received, Commands{"Foo 1"});
}

TEST_F(InLayout, ARefusedCommandIsReportedAndTheCallerGoesOn) {
  answer = 0;
  EXPECT_TRUE(Eval("Foo 1"));
  EXPECT_EQ(received, (Commands{"Foo 1", "StatusMsg *** ERROR: eval( \"Foo 1\" ) !(0) ***"}));
}

TEST_F(InLayout, ARefusedCommandIsReportedAsItStands) {
  answer = 0;
  EXPECT_TRUE(Eval("RenameItem 100%d %s%%"));
  EXPECT_EQ(received.back(), "StatusMsg *** ERROR: eval( \"RenameItem 100%d %s%%\" ) !(0) ***");
}

// The command fits into 511 bytes, the report with it does not: it is lost whole.
TEST_F(InLayout, ARefusedCommandThatDoesNotFitItsReportIsReportedWithoutAMessage) {
  answer = 0;
  EXPECT_TRUE(Eval(std::string(496, 'x')));
  EXPECT_EQ(received.back(), "StatusMsg *** ERROR: eval( \"" + std::string(496, 'x') + "\" ) !(0) ***");
  for (const std::size_t size : {497, 505, 511}) {
    EXPECT_TRUE(Eval(std::string(size, 'x')));
    EXPECT_EQ(received.back(), "StatusMsg *** ERROR:  ***") << size;
  }
}

TEST_F(InLayout, ARefusedPlainCommandIsReported) {
  answer = 0;
  EvalPlain("EnableIK 1");
  EXPECT_EQ(received, (Commands{"EnableIK 1", "StatusMsg *** ERROR: eval( \"EnableIK 1\" ) !(0) ***"}));
}

TEST_F(InLayout, AnEmptyCommandThrows) {
  try {
    Eval("");
    FAIL();
  } catch (const ex::CEvalEx& thrown) {
    EXPECT_EQ(thrown.message(), "eval( \"\" )");
    EXPECT_EQ(thrown.code(), 0);
  }
  EXPECT_EQ(received, Commands{"StatusMsg *** ERROR: eval( \"\" ) ***"});
}

TEST_F(InLayout, EvalFIsTrueWhateverTheHostSays) {
  answer = 0;
  EXPECT_TRUE(EvalF("Foo %d", 1));
}

TEST_F(InLayout, ACommandThatDoesNotFitThrowsAsAnEmptyOne) {
  EXPECT_THROW(EvalF("%s", std::string(512, 'x').c_str()), ex::CEvalEx);
  EXPECT_NO_THROW(EvalF("%s", std::string(511, 'x').c_str()));
}

TEST_F(InLayout, StatusTextIsACommand) {
  StatusText("%s start...", "Tool");
  EXPECT_EQ(received, Commands{"StatusMsg Tool start..."});
}

TEST_F(InLayout, StatusProgressCarriesItsFractionInTwoDigits) {
  StatusProgress(0.5F, "%s", "x");
  EXPECT_EQ(received, Commands{"StatusMsg {0.50}x"});
}

TEST_F(InLayout, StatusProgressThatDoesNotFitWithItsFractionThrowsAsAnEmptyCommand) {
  StatusProgress(0.5F, "%s", std::string(495, 'x').c_str());
  EXPECT_EQ(received, Commands{"StatusMsg {0.50}" + std::string(495, 'x')});
  EXPECT_THROW(StatusProgress(0.5F, "%s", std::string(496, 'x').c_str()), ex::CEvalEx);
}

TEST_F(InLayout, AnOverlongStatusTextIsLostWhole) {
  StatusText("%s", std::string(512, 'x').c_str());
  EXPECT_EQ(received, Commands{"StatusMsg "});
}

TEST_F(InLayout, AReportShowsNeitherFileNorLine) {
  ReportError("File", 42, "%d things", 3);
  EXPECT_EQ(received, Commands{"StatusMsg *** ERROR: 3 things ***"});
}

TEST_F(InLayout, AReportWithoutAMessageIsAReport) {
  ReportError("File", 42, "");
  EXPECT_EQ(received, Commands{"StatusMsg *** ERROR:  ***"});
}

TEST_F(InLayout, AMissingInterfaceServiceIsReportedAndThrown) {
  standin::globals().withhold("LW Interface Info 8");
  EXPECT_THROW(RefreshInterfaceInfo(), ex::CBaseEx);
  EXPECT_EQ(received, Commands{"StatusMsg *** ERROR: g_global( LWINTERFACEINFO_GLOBAL, GFUSE_TRANSIENT ) ***"});
}

TEST_F(InLayout, JapaneseCommandsArriveInTheNarrowEncoding) {
  Eval("AddNull 目標");
#if defined(_WIN32)
  EXPECT_EQ(received, Commands{"AddNull \x96\xDA\x95\x57"});  // code page 932, which the tests run under
#else
  EXPECT_EQ(received, Commands{"AddNull 目標"});
#endif
}

TEST_F(InLayout, CommandsThatTheCodePageCannotHoldGoAsTheyAre) {
  Eval("AddNull \xF0\x9F\xA6\x8E");  // a lizard, beyond every narrow code page
  EXPECT_EQ(received, Commands{"AddNull \xF0\x9F\xA6\x8E"});
  received.clear();
  Eval("AddNull \xFF\xFE");  // no valid UTF-8
  EXPECT_EQ(received, Commands{"AddNull \xFF\xFE"});
}

TEST_F(InModeler, ARefusedCommandThrowsWithItsCode) {
  answer = 3;
  try {
    Eval("Foo 1");
    FAIL();
  } catch (const ex::CBaseEx& thrown) {  // the base catches it too
    EXPECT_EQ(thrown.message(), "eval( \"Foo 1\" ) !(3)");
  }
}

TEST_F(InModeler, ARefusedCommandThatDoesNotFitItsReportThrowsAnEmptyMessage) {
  answer = 3;
  try {
    Eval(std::string(505, 'x'));
    FAIL();
  } catch (const ex::CEvalEx& thrown) {
    EXPECT_EQ(thrown.message(), "");
  }
}

TEST_F(InModeler, AnAcceptedCommandIsNoFailure) {
  EXPECT_FALSE(Eval("Foo 1"));
  EXPECT_EQ(received, Commands{"Foo 1"});
}

TEST_F(InModeler, APlainCommandIsForLayoutOnly) {
  EvalPlain("EnableIK 1");
  EXPECT_TRUE(received.empty());
}

TEST_F(InModeler, AQuietCommandIsDroppedWhereNothingTakesIt) {
  modelerFunctions() = ModelerFunctions();
  EvalQuiet("Foo 1");
  EXPECT_TRUE(received.empty());
}

TEST_F(InModeler, AnEmptyCommandThrows) { EXPECT_THROW(Eval(""), ex::CEvalEx); }

TEST_F(InModeler, ReportsAndStatusTextsShowNothing) {
  ReportError("File", 1, "trouble");
  StatusText("text");
  StatusProgress(1.0F, "text");
  EXPECT_TRUE(received.empty());
}

TEST_F(InModeler, AQuietCommandDropsItsFailure) {
  AcquireModelerFunctions(modelerFunctions(), standin::Globals::lookup(), &command);
  answer = 3;
  EXPECT_NO_THROW(EvalQuiet("Foo 1"));
  EXPECT_EQ(received, Commands{"Foo 1"});
}

TEST_F(InLayout, AQuietCommandGoesToTheCommandInterfaceWithoutModelersData) {
  AcquireModelerFunctions(modelerFunctions(), standin::Globals::lookup(), nullptr);
  answer = 0;
  EXPECT_NO_THROW(EvalQuiet("Foo 1"));
  EXPECT_EQ(received, Commands{"Foo 1"});
}

TEST(FormatString, HoldsUpTo511Bytes) {
  EXPECT_EQ(FormatString("%s", std::string(511, 'x').c_str()).size(), 511u);
  EXPECT_EQ(FormatString("%s", std::string(512, 'x').c_str()), "");
  EXPECT_EQ(FormatString("%s", std::string(65536, 'x').c_str()), "");
}

TEST(Guarded, KeepsEveryThrowInside) {
  EXPECT_EQ(guarded([]() -> int { throw ex::CBaseEx("x"); }, 7), 7);
  EXPECT_EQ(guarded([]() -> int { throw 5; }, 7), 7);
  EXPECT_EQ(guarded([] { return 3; }, 7), 3);
}

TEST_F(InModeler, WithoutALookupFunctionNothingIsAcquired) {
  EXPECT_FALSE(AcquireHostGlobals(Program::Modeler, nullptr, &command));
  ModelerFunctions functions;
  AcquireModelerFunctions(functions, nullptr, &command);
  EXPECT_FALSE(functions.filled);
  EXPECT_EQ(functions.evaluate, nullptr);
  EXPECT_EQ(functions.editBegin, nullptr);
}

TEST_F(InModeler, EachMemberOfTheCommandsDataIsRequired) {
  LWModCommand noBegin = command, noEvaluate = command, noData = command;
  noBegin.editBegin2 = nullptr;
  noEvaluate.evaluate = nullptr;
  noData.data = nullptr;
  for (const LWModCommand* const lacking : {&noBegin, &noEvaluate, &noData}) {
    EXPECT_FALSE(AcquireHostGlobals(Program::Modeler, standin::Globals::lookup(), lacking));
  }
  EXPECT_FALSE(AcquireHostGlobals(Program::Modeler, standin::Globals::lookup(), nullptr));
}

// Panels of earlier activations may be open, and work with what those brought.
TEST_F(InModeler, AMissingMemberLeavesThatOfTheFormerActivation) {
  const LWModCommand empty{};
  EXPECT_FALSE(AcquireHostGlobals(Program::Modeler, standin::Globals::lookup(), &empty));
  EXPECT_EQ(modelerCommand().editBegin, command.editBegin2);
  EXPECT_EQ(modelerCommand().evaluate, command.evaluate);
  EXPECT_EQ(modelerCommand().data, command.data);
}

TEST_F(InModeler, TheLargerTableIsFilledAfterAnActivationWithoutALookupFunction) {
  ModelerFunctions functions;
  AcquireModelerFunctions(functions, nullptr, &command);
  AcquireModelerFunctions(functions, standin::Globals::lookup(), &command);
  EXPECT_EQ(functions.evaluate, command.evaluate);
  EXPECT_EQ(functions.global, standin::Globals::lookup());
}

TEST_F(InLayout, InterfaceDataWithoutALookupFunctionAreAFailureOfTheHost) {
  EXPECT_FALSE(AcquireHostGlobals(Program::Layout, nullptr, nullptr));
  EXPECT_THROW(RefreshInterfaceInfo(), ex::CBaseEx);
}

TEST_F(InModeler, LoadersLeaveTheirListsAsLongAsTheyAre) {
  LoadModelerStrings(standin::Globals::lookup());
  LoadModelerStrings(standin::Globals::lookup());
  LoadRenamerStrings(standin::Globals::lookup());
  LoadRenamerStrings(standin::Globals::lookup());
  EXPECT_EQ(propertyTexts().choices.size(), 15u);
  EXPECT_EQ(propertyTexts().counts.size(), 15u);
  EXPECT_EQ(renamerTexts().choices.size(), 4u);
  EXPECT_EQ(renamerTexts().counts.size(), 4u);
}

TEST_F(InModeler, TheLowSixteenBitsOfTheLocaleDecide) {
  standin::globals().offerNumber("Locale Info", 0x10411);
  LoadModelerStrings(standin::Globals::lookup());
  EXPECT_STREQ(propertyTexts().labels[7], "スケルゴン");
  standin::globals().offerNumber("Locale Info", 0x04110409);
  LoadModelerStrings(standin::Globals::lookup());
  EXPECT_STREQ(propertyTexts().labels[7], "Skelegon");
}

TEST_F(InModeler, TheLowSixteenBitsOfTheLocaleDecideForTheRenamerToo) {
  standin::globals().offerNumber("Locale Info", 0x10411);
  LoadRenamerStrings(standin::Globals::lookup());
  EXPECT_STREQ(renamerTexts().labels[0], "モード");
  EXPECT_STREQ(renamerTexts().choices[0][0], "変更");
  EXPECT_STREQ((*renamerTexts().messages)[1], "スケルゴンを選択してください！");
  standin::globals().offerNumber("Locale Info", 0x04110409);
  LoadRenamerStrings(standin::Globals::lookup());
  EXPECT_STREQ(renamerTexts().labels[0], "Mode");
  EXPECT_STREQ(renamerTexts().choices[0][0], "Change");
  EXPECT_STREQ((*renamerTexts().messages)[1], "Need select the skelegon!");
}

}  // namespace
}  // namespace lw
