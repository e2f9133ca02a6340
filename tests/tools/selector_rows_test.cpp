// Which rows the selector shows of a mesh, in which order, also of a damaged one.
#include "tests/tools/selector_fixture.h"

namespace varnel::test {
namespace {

Names shownOf(standin::ObjectFile file, int rows) {
  SelectorSession session(std::move(file));
  session.openTool();
  return session.shown(rows);
}

// The rows that a click with Alt selects.
Names branchOf(standin::ObjectFile file, SeenRow row) {
  SelectorSession session(std::move(file));
  session.openTool();
  session.click(row, kAlt);
  return session.selected();
}

TEST(SelectorRows, NumbersInNamesCountAsNumbers) {
  standin::RigBuilder rig;
  const auto root = rig.root("Root", {0, 0, 0}, {0, 1, 0});
  for (const char* name : {"Bone10", "Bone2", "Bone1"}) rig.child(root, name, {1, 1, 0});
  EXPECT_EQ(shownOf(rig.take(), 6), (Names{"", "", "Root", "Bone1", "Bone2", "Bone10"}));
}

TEST(SelectorRows, EqualNamesStandInScanOrder) {
  standin::RigBuilder rig;
  rig.chain({"Same", "First"}, {{0, 0, 0}, {0, 1, 0}, {0, 2, 0}});
  rig.chain({"Same", "Second"}, {{1, 0, 0}, {1, 1, 0}, {1, 2, 0}});
  EXPECT_EQ(shownOf(rig.take(), 6), (Names{"", "", "Same", "First", "Same", "Second"}));
}

TEST(SelectorRows, AMeshWithoutSkelegonsShowsTheTopAndTheMapsOnly) {
  standin::RigBuilder rig;
  rig.layer(0, "Body");
  rig.face({rig.point({0, 0, 0}), rig.point({1, 0, 0}), rig.point({0, 1, 0})}, "Skin");
  rig.weightMap("Head", {{0, 1.0F}});
  SelectorSession session(rig.take());
  session.openTool();
  // Where a third row would be, a click below the rows clears.
  session.click({1, 1}, kAlt);
  EXPECT_EQ(session.shown(3), (Names{"", "", ""}));
}

TEST(SelectorRows, ASkelegonWithoutANameHasARow) {
  standin::RigBuilder rig;
  rig.between(rig.point({0, 0, 0}), rig.point({0, 1, 0}), std::nullopt);
  SelectorSession session(rig.take());
  session.openTool();
  session.click({2, 2});
  EXPECT_EQ(session.selected().size(), 1U);
}

TEST(SelectorRows, ALoopShowsEverySkelegonOnce) {
  standin::RigBuilder rig;
  const auto a = rig.point({0, 0, 0}), b = rig.point({0, 1, 0}), c = rig.point({0, 2, 0});
  rig.between(a, b, "A");
  rig.between(b, c, "B");
  rig.between(c, a, "C");
  EXPECT_EQ(shownOf(rig.take(), 6), (Names{"", "", "A", "B", "C", ""}));
}

TEST(SelectorRows, ASkelegonThatIsItsOwnParentIsShownOnce) {
  standin::RigBuilder rig;
  const auto a = rig.point({0, 0, 0});
  rig.between(a, a, "A");
  EXPECT_EQ(shownOf(rig.take(), 4), (Names{"", "", "A", ""}));
}

TEST(SelectorRows, WithTwoParentsASkelegonIsShownOnceBelowTheLater) {
  standin::RigBuilder rig;
  const auto shared = rig.point({0, 1, 0});
  rig.between(rig.point({0, 0, 0}), shared, "P1");
  rig.between(rig.point({1, 0, 0}), shared, "P2");
  rig.between(shared, rig.point({0, 2, 0}), "Child");
  standin::ObjectFile file = rig.take();
  EXPECT_EQ(shownOf(file, 6), (Names{"", "", "P1", "P2", "Child", ""}));
  EXPECT_EQ(branchOf(file, {3, 2}), (Names{"P2", "Child"}));
}

TEST(SelectorRows, AChainOfFiveThousandIsShownToItsEnd) {
  standin::RigBuilder rig;
  standin::RigBuilder::Skelegon last = rig.root("B0", {0, 0, 0}, {0, 1, 0});
  for (int i = 1; i < 5000; ++i) last = rig.child(last, "B" + std::to_string(i), {0, 0, 0});
  EXPECT_EQ(branchOf(rig.take(), {2, 2}).size(), 5000U);
}

}  // namespace
}  // namespace varnel::test
