// The selector on hosts that refuse calls.
#include <functional>

#include "tests/tools/selector_fixture.h"

namespace varnel::test {
namespace {

// Calls that give nothing back: a module cannot know that they did not do what they should.
bool cannotBeNoticed(const std::string& function) {
  return function == "control set" || function == "control draw" || function == "panel set";
}

// Does something with the panel open, while the n-th host call fails, for every n until none fails. Whatever fails, no rule of
// the host's may be broken. `look` looks at the session then, with the name of the function that was refused.
void refuseEach(const std::function<void(SelectorSession&)>& act,
                const std::function<void(SelectorSession&, const std::string& refused)>& look) {
  for (std::uint64_t call = 1;; ++call) {
    SelectorSession session;
    session.openWith({"Tail_01"});
    standin::witness().refuseCall(call);
    act(session);
    const bool happened = standin::witness().refusalHappened();
    const std::string refused = standin::witness().refusedFunction();
    SCOPED_TRACE("call " + std::to_string(call) + ", " + refused);
    standin::witness().refuseCall(0);
    look(session, refused);
    if (!happened) return;
  }
}

TEST(SelectorRefusals, APushSelectsAllOrNothing) {
  refuseEach([](SelectorSession& session) { session.click(row::kHips, kAlt); },
             [](SelectorSession& session, const std::string& refused) {
               const Names selected = session.selected();
               const bool isWhole = selected == Names{"Hips", "Chest", "Head"} || selected == Names{"Tail_01"};
               // Where the click's place was refused, another row was clicked.
               const bool isElsewhere = refused == "control get" || refused == "panel get";
               // A polygon whose type was not given is left out.
               const bool isUnknown = refused == "MeshEditOp::polyType";
               EXPECT_TRUE(isWhole || isElsewhere || isUnknown) << testing::PrintToString(selected);
             });
}

TEST(SelectorRefusals, AFailedPushKeepsTheTree) {
  refuseEach([](SelectorSession& session) { session.click(row::kHips); },
             [](SelectorSession& session, const std::string& refused) {
               if (refused != "LWModCommand::editBegin2" && refused != "MeshEditOp::polSelect") return;
               session.click(row::kHead);
               EXPECT_EQ(session.selected(), Names{"Head"});
             });
}

TEST(SelectorRefusals, AFailedSyncKeepsTheTree) {
  refuseEach(
      [](SelectorSession& session) {
        session.host.deleteSkelegons({"Head"});
        session.pressSync();
      },
      [](SelectorSession& session, const std::string& refused) {
        if (refused != "LWModCommand::editBegin2" && refused != "MeshEditOp::fastPolyScan") return;
        EXPECT_EQ(session.shownIn(3), "Chest");
      });
}

// A polygon without a record ends the scan; what was found before it is shown.
TEST(SelectorRefusals, AMissingRecordCutsTheTree) {
  bool wasSeen = false;
  refuseEach([](SelectorSession& session) { session.pressSync(); },
             [&](SelectorSession& session, const std::string& refused) {
               if (refused != "MeshEditOp::polyInfo" || wasSeen) return;
               wasSeen = true;
               EXPECT_EQ(session.shown(3), (Names{"", "", ""}));
               session.pressSync();
               EXPECT_EQ(session.shownIn(2), "Hips");
             });
  EXPECT_TRUE(wasSeen);
}

TEST(SelectorRefusals, AResizeWorksAgainAfterARefusedOne) {
  refuseEach([](SelectorSession& session) { EXPECT_TRUE(person::resize(session.panel, 300, 300)); },
             [](SelectorSession& session, const std::string&) {
               EXPECT_TRUE(person::resize(session.panel, 310, 310));
               EXPECT_EQ(session.selectedBy(row::kHips), Names{"Hips"});
             });
}

TEST(SelectorRefusals, AFailedRunLeavesTheNextOneWhole) {
  bool happened = true;
  for (std::uint64_t call = 1; happened; ++call) {
    SelectorSession session;
    standin::witness().refuseCall(call);
    session.host.activate(session.module, kSelectorTool);
    happened = standin::witness().refusalHappened();
    const std::string refused = standin::witness().refusedFunction();
    SCOPED_TRACE("call " + std::to_string(call) + ", " + refused);
    standin::witness().refuseCall(0);
    if (cannotBeNoticed(refused)) {
      standin::witness().reset();
      continue;
    }
    standin::Panel* const opened = standin::panels().find(kSelectorTool);
    if (opened != nullptr && opened->isOpen()) {
      EXPECT_TRUE(person::close(opened));
    }
    session.openTool();
    EXPECT_EQ(session.selectedBy(row::kHips), Names{"Hips"});
    EXPECT_EQ(standin::panels().all().size(), 1U);
  }
}

}  // namespace
}  // namespace varnel::test
