// The selector on hosts that refuse calls.
#include "tests/tools/selector_fixture.h"

namespace varnel::test {
namespace {

void open(SelectorSession& session) { session.openWith({"Tail_01"}); }

TEST(SelectorRefusals, APushSelectsAllOrNothing) {
  refuseEach(
      &open, [](SelectorSession& session) { session.click(row::kHips, kAlt); },
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
  refuseEach(
      &open, [](SelectorSession& session) { session.click(row::kHips); },
      [](SelectorSession& session, const std::string& refused) {
        if (refused != "LWModCommand::editBegin2" && refused != "MeshEditOp::polSelect") return;
        session.click(row::kHead);
        EXPECT_EQ(session.selected(), Names{"Head"});
      });
}

TEST(SelectorRefusals, AFailedSyncKeepsTheTree) {
  refuseEach(
      &open,
      [](SelectorSession& session) {
        session.host.deleteSkelegons({"Head"});
        session.pressSync();
      },
      [](SelectorSession& session, const std::string& refused) {
        if (refused != "LWModCommand::editBegin2" && refused != "MeshEditOp::fastPolyScan") return;
        EXPECT_EQ(session.shownIn(3), "Chest");
      });
}

// A polygon without a record ends the scan.
TEST_F(Selector, ShowsWhatStandsBeforeAMissingRecord) {
  open(*this);
  standin::witness().refuseNext("MeshEditOp::polyInfo");
  pressSync();
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(shown(3), (Names{"", "", ""}));
  pressSync();
  EXPECT_EQ(shownIn(2), "Hips");
}

TEST(SelectorRefusals, AResizeWorksAgainAfterARefusedOne) {
  refuseEach(
      &open, [](SelectorSession& session) { EXPECT_TRUE(person::resize(session.panel, 300, 300)); },
      [](SelectorSession& session, const std::string&) {
        EXPECT_TRUE(person::resize(session.panel, 310, 310));
        EXPECT_EQ(session.selectedBy(row::kHips), Names{"Hips"});
      });
}

TEST(SelectorRefusals, AFailedRunLeavesTheNextOneWhole) {
  refuseEach(
      +[](SelectorSession&) {}, [](SelectorSession& session) { session.host.activate(session.module, kSelectorTool); },
      [](SelectorSession& session, const std::string& refused) {
        if (cannotBeNoticed(refused)) return standin::witness().reset();
        closeIfOpen(kSelectorTool);
        session.openTool();
        EXPECT_EQ(session.selectedBy(row::kHips), Names{"Hips"});
        EXPECT_EQ(standin::panels().all().size(), 1U);
      });
}

}  // namespace
}  // namespace varnel::test
