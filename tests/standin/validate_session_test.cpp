// What the checks stand on: who is running, what was refused, what the module holds.
#include <algorithm>
#include <cstring>
#include <memory>

#include "standin/core/shared_library.h"
#include "standin/core/witness.h"
#include "standin/panels/person.h"
#include "standin/validate/memory_watch.h"
#include "standin/validate/session.h"
#include "tests/standin/validate_fixture.h"

namespace standin::validate {
namespace {

TEST(ModuleRuns, IsTrueInTheModuleAndNotInTheHostThatItCalls) {
  bool inModule = false;
  bool inHost = true;
  bool afterHost = false;
  callModule("a callback", [&] {
    inModule = witness().moduleRuns();
    {
      const HostCall call("a service");
      inHost = witness().moduleRuns();
    }
    afterHost = witness().moduleRuns();
  });
  EXPECT_TRUE(inModule);
  EXPECT_FALSE(inHost);
  EXPECT_TRUE(afterHost);
  EXPECT_FALSE(witness().moduleRuns());
}

TEST(ModuleRuns, IsOverWhenTheModuleThrows) {
  callModule("a callback", [] { throw 1; });
  EXPECT_FALSE(witness().moduleRuns());
  witness().reset();
}

TEST(MemoryWatch, CountsOnlyWhatTheModuleTakes) {
  if (memory::whyUnwatched() != nullptr) GTEST_SKIP() << memory::whyUnwatched();
  const std::int64_t before = memory::liveBytes();
  const auto hosts = std::make_unique<char[]>(100);
  EXPECT_EQ(memory::liveBytes(), before);
  std::unique_ptr<char[]> modules;
  callModule("a callback", [&] { modules = std::make_unique<char[]>(100); });
  EXPECT_EQ(memory::liveBytes(), before + 100);
  modules.reset();
  EXPECT_EQ(memory::liveBytes(), before);
}

TEST(MemoryWatch, RefusesTheChosenAllocationOnly) {
  if (memory::whyUnwatched() != nullptr) GTEST_SKIP() << memory::whyUnwatched();
  memory::refuse(2);
  bool first = false;
  bool second = false;
  callModule("a callback", [&] {
    first = std::unique_ptr<int>(new (std::nothrow) int) != nullptr;
    second = std::unique_ptr<int>(new (std::nothrow) int) != nullptr;
  });
  EXPECT_TRUE(first);
  EXPECT_FALSE(second);
  EXPECT_TRUE(memory::refusalHappened());
  memory::refuse(0);
}

class Sessions : public Validation {
 protected:
  TripRig rig() const { return japaneseRig(folder_.path()); }
};

TEST_F(Sessions, LoadTheModuleAndLetItGo) {
  {
    Session session(Program::Modeler, rig(), modulePath());
    EXPECT_EQ(session.refusal(), "");
    EXPECT_TRUE(isLibraryLoaded(modulePath()));
    EXPECT_EQ(session.end(), "");
  }
  EXPECT_FALSE(isLibraryLoaded(modulePath()));
}

TEST_F(Sessions, RecordTheCommandThatWasRefused) {
  Session session(Program::Layout, rig(), modulePath());
  Panel* const panel = session.open(kConversion);
  ASSERT_NE(panel, nullptr);
  for (std::uint64_t n = 1; witness().refusedFunction() != "LW Command Interface" && n < 50; ++n) {
    witness().refuseCall(n);
    EXPECT_TRUE(person::press(panel->find(ControlKind::Button, 0)));
  }
  const auto& events = session.layout()->transcript().events();
  const auto refused = [](const Event& event) { return std::strcmp(event.why.c_str(), kRefused) == 0; };
  ASSERT_EQ(std::count_if(events.begin(), events.end(), refused), 1);
  EXPECT_NE(std::find_if(events.begin(), events.end(), refused)->text, "");
}

TEST_F(Sessions, TellWhatAPanelShows) {
  Session session(Program::Modeler, rig(), modulePath());
  session.modeler()->select({session.modeler()->current()->skelegons().front()->tag(lw::kTagBone)});
  Panel* const panel = session.open(kProperty);
  ASSERT_NE(panel, nullptr);
  const std::string before = everythingShown(*panel);
  EXPECT_TRUE(person::choose(panel->find(ControlKind::Popup, 0), 2));
  EXPECT_NE(everythingShown(*panel), before);
}

}  // namespace
}  // namespace standin::validate
