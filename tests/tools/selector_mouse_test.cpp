// Clicks into the selector's tree become Modeler's selection, in whichever way the host tells of them.
#include "tests/tools/selector_fixture.h"

namespace varnel::test {
namespace {

INSTANTIATE_TEST_SUITE_P(Deliveries, SelectorMouse, allDeliveries(), &nameOfParam);

TEST_P(SelectorMouse, AClickSelectsExactlyTheRowAtOnce) {
  openWith({"Tail_01", "Hips"});
  startCounting();
  click(row::kChest);
  EXPECT_EQ(selected(), Names{"Chest"});
  EXPECT_EQ(pushes(), 1U);
}

TEST_P(SelectorMouse, CtrlTogglesTheRowOnly) {
  openWith({"Tail_01"});
  click(row::kChest, kCtrl);
  EXPECT_EQ(selected(), (Names{"Chest", "Tail_01"}));
}

TEST_P(SelectorMouse, TwoQuickTogglesAreTwo) {
  openTool();
  startCounting();
  doubleClick(row::kChest, kCtrl);
  EXPECT_EQ(selected(), Names{});
  EXPECT_EQ(pushes(), 2U);
}

TEST_P(SelectorMouse, ShiftExtendsFromTheLastClick) {
  openTool();
  click(row::kHips);
  click(row::kHead, kShift);
  EXPECT_EQ(selected(), (Names{"Hips", "Chest", "Head"}));
}

TEST_P(SelectorMouse, AltSelectsTheBranch) {
  openWith({"Tail_02"});
  click(row::kChest, kAlt);
  EXPECT_EQ(selected(), (Names{"Chest", "Head"}));
}

TEST_P(SelectorMouse, AltOnTheRootSelectsAll) {
  openTool();
  click(row::kTop, kAlt);
  EXPECT_EQ(selected(), (Names{"Hips", "Chest", "Head", "Tail_01", "Tail_02"}));
}

TEST_P(SelectorMouse, APressLeftOfTheExpanderClears) {
  openWith({"Chest"});
  clickAt(gapX(row::kHead), middleOf(row::kHead));
  EXPECT_EQ(selected(), Names{});
}

TEST_P(SelectorMouse, TheExpanderHidesAndShowsWhatIsBelow) {
  openWith({"Tail_01"});
  startCounting();
  clickExpander(row::kHips);
  EXPECT_EQ(selected(), Names{"Tail_01"});
  EXPECT_EQ(pushes(), 0U);
  EXPECT_EQ(shown(6), (Names{"", "", "Hips", "", "Tail_01", "Tail_02"}));
  clickExpander(row::kHips);
  EXPECT_EQ(shown(6), (Names{"", "", "Hips", "Chest", "Head", ""}));
}

TEST_P(SelectorMouse, ADoubleClickCollapsesTheRow) {
  openTool();
  startCounting();
  doubleClick(row::kHips);
  EXPECT_EQ(selected(), Names{"Hips"});
  EXPECT_EQ(pushes(), 1U);
  EXPECT_EQ(shownIn(4), "Tail_01");
}

// The host tells of the right button by both button bits, which the tree reads as a double-click, deliberately.
TEST_P(SelectorMouse, TheRightButtonCollapsesTheRow) {
  openWith({"Chest"});
  rightClick(row::kHips);
  EXPECT_EQ(selected(), Names{"Chest"});
  EXPECT_EQ(shownIn(4), "Tail_01");
}

TEST_P(SelectorMouse, TheMiddleButtonDoesNothing) {
  openWith({"Chest"});
  startCounting();
  clickAt(labelX(row::kHips), middleOf(row::kHips), 0, standin::MouseButton::Middle);
  EXPECT_EQ(selected(), Names{"Chest"});
  EXPECT_EQ(pushes(), 0U);
}

TEST_P(SelectorMouse, MovingWithTheButtonDownSelectsNothingMore) {
  openTool();
  click(row::kTail2);  // from here on it is known that this host tells of releases
  startCounting();
  pressAt(labelX(row::kHips), middleOf(row::kHips));
  moveTo(labelX(row::kHead), middleOf(row::kHead));
  moveTo(labelX(row::kTail1), middleOf(row::kTail1));
  releaseAt(labelX(row::kTail1), middleOf(row::kTail1));
  EXPECT_EQ(selected(), Names{"Hips"});
  EXPECT_EQ(pushes(), 1U);
}

TEST_P(SelectorMouse, APressBesideTheTreeDoesNothing) {
  openWith({"Chest"});
  EXPECT_TRUE(person::click(panel, 2, 40));
  EXPECT_TRUE(person::click(panel, panel->width - 10, panel->height - 20));
  EXPECT_EQ(selected(), Names{"Chest"});
}

TEST_P(SelectorMouse, ReopenedThePanelHearsTheFirstClick) {
  openTool();
  pressAt(labelX(row::kHips), middleOf(row::kHips));
  EXPECT_TRUE(person::close(panel));
  openTool();
  click(row::kChest);
  EXPECT_EQ(selected(), Names{"Chest"});
}

// ---------------------------------------------------------------------------------------------------------------------
// Scrolling: 27 rows in a view of which the bars leave 100 pixels of height.

standin::ObjectFile longRig() {
  standin::RigBuilder rig;
  rig.layer(0, "Row");
  for (int i = 0; i < 24; ++i) rig.root("B" + std::to_string(i), {0, 0, 0}, {0, 1, 0});
  return rig.take();
}

class SelectorScroll : public testing::TestWithParam<Delivery>, protected SelectorSession {
 protected:
  SelectorScroll() : SelectorSession(longRig()) {
    deliver(GetParam());
    openTool();
    EXPECT_TRUE(person::resize(panel, 250, 167));  // the tree: 240 by 112
  }
};

class SelectorWheel : public SelectorScroll {};

INSTANTIATE_TEST_SUITE_P(Deliveries, SelectorScroll, allDeliveries(), &nameOfParam);

TEST_P(SelectorScroll, DraggingTheThumbToTheEndShowsTheLastRow) {
  pressAt(235, 5);
  moveTo(235, 60);
  moveTo(235, 300);
  releaseAt(235, 300);
  EXPECT_EQ(shownAt(100 - 1 - 14), "B23");
}

TEST_P(SelectorScroll, TheDragEndsWithTheButton) {
  pressAt(235, 5);
  releaseAt(235, 5);
  pressAt(100, 50);
  moveTo(100, 90);
  releaseAt(100, 90);
  EXPECT_EQ(shownIn(2), "B0");
}

TEST_P(SelectorScroll, AScrollBarSelectsNothing) {
  click({3, 2});
  startCounting();
  clickAt(235, 50);
  clickAt(50, 105);
  EXPECT_EQ(selected(), Names{"B1"});
  EXPECT_EQ(pushes(), 0U);
}

TEST_P(SelectorScroll, AResizeBeginsAtTheTopAgain) {
  pressAt(235, 5);
  moveTo(235, 300);
  releaseAt(235, 300);
  EXPECT_TRUE(person::resize(panel, 251, 167));
  EXPECT_EQ(shownIn(2), "B0");
}

TEST_P(SelectorScroll, AResizeEndsADrag) {
  pressAt(235, 5);
  EXPECT_TRUE(person::resize(panel, 251, 167));
  moveTo(235, 300);
  releaseAt(235, 300);
  EXPECT_EQ(shownIn(2), "B0");
}

// The wheel comes through its hook only.
INSTANTIATE_TEST_SUITE_P(Deliveries, SelectorWheel, testing::Values(Delivery::HooksOnly, Delivery::Both), &nameOfParam);

TEST_P(SelectorWheel, ScrollsThreeRowsEachClick) {
  EXPECT_TRUE(person::wheel(panel, 50, 50, -2));
  EXPECT_EQ(shownIn(2), "B6");
}

}  // namespace
}  // namespace varnel::test
