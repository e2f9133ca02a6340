// What each kind of click does to the tree.
#include "tests/unit/tree_view_fixture.h"

namespace mst {
namespace {

constexpr TreeChange kNothing{false, false};
constexpr TreeChange kLooks{true, false};
constexpr TreeChange kSelection{true, true};

// ---------------------------------------------------------------------------------------------------------------------
// The label, with each combination of qualifiers, without and with an anchor. Rows A to D are 2 to 5.

struct LabelCase {
  int qualifiers;
  const char* withoutAnchor;  // selected after C was selected and B is clicked
  const char* withAnchor;     // the same with the anchor at D
};

// Toggle goes before extend, extend before subtree.
constexpr LabelCase kLabelCases[] = {
    {0, "B", "B"},
    {kCtrl, "BC", "BC"},
    {kShift, "BC", "BCD"},
    {kAlt, "BC", "BC"},
    {kCtrl | kShift, "BC", "BC"},
    {kCtrl | kAlt, "BC", "BC"},
    {kShift | kAlt, "BC", "BCD"},
    {kCtrl | kShift | kAlt, "BC", "BC"},
};

class TreeLabels : public TreeViewTest, public testing::WithParamInterface<LabelCase> {
 protected:
  std::string letters() const {
    std::string all;
    for (const std::string& text : selected()) all += text;
    return all;
  }
  // Selects C in a way that leaves the anchor where the test wants it.
  void prepare(bool withAnchor) {
    pressLabel(4);
    if (withAnchor) {
      pressLabel(5, kCtrl);
      pressLabel(5, kCtrl);
    } else {
      tree.setView(212, 162);
    }
  }
};

INSTANTIATE_TEST_SUITE_P(Qualifiers, TreeLabels, testing::ValuesIn(kLabelCases));

TEST_P(TreeLabels, WithoutAnAnchor) {
  prepare(false);
  EXPECT_EQ(pressLabel(3, GetParam().qualifiers), kSelection);
  EXPECT_EQ(letters(), GetParam().withoutAnchor);
  EXPECT_EQ(tree.anchor(), 3U);
}

TEST_P(TreeLabels, WithAnAnchor) {
  prepare(true);
  EXPECT_EQ(pressLabel(3, GetParam().qualifiers), kSelection);
  EXPECT_EQ(letters(), GetParam().withAnchor);
  EXPECT_EQ(tree.anchor(), 3U);
}

TEST_P(TreeLabels, WithTheRightButtonCollapseWhateverTheQualifiers) {
  pressLabel(4);
  EXPECT_EQ(tree.press({labelX(3), middleOf(3), GetParam().qualifiers | kRight | kDown, 1}), kLooks);
  EXPECT_EQ(shown(tree), "[Top]\n [Layer1]:L\n  A\n   B\n  D\n [WMaps]\n");
  EXPECT_EQ(tree.anchor(), kNoRow);
  EXPECT_EQ(letters(), "C");
}

TEST_P(TreeLabels, WithTheMiddleButtonNothing) {
  pressLabel(4);
  EXPECT_EQ(tree.press({labelX(3), middleOf(3), GetParam().qualifiers | kMiddle | kDown, 1}), kNothing);
  EXPECT_EQ(letters(), "C");
  EXPECT_EQ(tree.anchor(), 4U);
}

TEST_P(TreeLabels, WithoutAButtonDownNothing) {
  pressLabel(4);
  EXPECT_EQ(tree.press({labelX(3), middleOf(3), GetParam().qualifiers | kLeft, 1}), kNothing);
  EXPECT_EQ(letters(), "C");
}

TEST_P(TreeLabels, ExpandersOnlyFlip) {
  pressLabel(4);
  EXPECT_EQ(pressExpander(3, GetParam().qualifiers | kLeft | kDown), kLooks);
  EXPECT_EQ(shown(tree), "[Top]\n [Layer1]:L\n  A\n   B\n  D\n [WMaps]\n");
  EXPECT_EQ(tree.anchor(), kNoRow);
  EXPECT_EQ(letters(), "C");
}

TEST_P(TreeLabels, TheGapClears) {
  for (const int button : {kLeft, kRight}) {
    pressLabel(4);
    EXPECT_EQ(pressGap(3, GetParam().qualifiers | button | kDown), kSelection);
    EXPECT_EQ(letters(), "");
    EXPECT_EQ(tree.anchor(), kNoRow);
  }
}

TEST_F(TreeViewTest, TheGapIgnoresTheMiddleButton) {
  pressLabel(4);
  EXPECT_EQ(pressGap(3, kMiddle | kDown), kNothing);
  EXPECT_EQ(selected(), Names{"C"});
}

TEST_F(TreeViewTest, AnExpanderIgnoresTheOtherButtons) {
  EXPECT_EQ(pressExpander(3, kRight | kDown), kNothing);
  EXPECT_EQ(pressExpander(3, kMiddle | kDown), kNothing);
  EXPECT_EQ(tree.rows().size(), 7U);
}

TEST_F(TreeViewTest, APressOutsideDoesNothing) {
  pressLabel(4);
  EXPECT_EQ(tree.press({-1, 20, kLeft | kDown, 1}), kNothing);
  EXPECT_EQ(tree.press({20, 162, kLeft | kDown, 1}), kNothing);
  EXPECT_EQ(selected(), Names{"C"});
}

TEST_F(TreeViewTest, ToggleSwitchesOneRowOnAndOff) {
  pressLabel(3, kCtrl);
  pressLabel(4, kCtrl);
  pressLabel(3, kCtrl);
  EXPECT_EQ(selected(), Names{"C"});
}

TEST_F(TreeViewTest, ExtendGoesUpAsWellAsDown) {
  pressLabel(4);
  pressLabel(2, kShift);
  EXPECT_EQ(selected(), (Names{"A", "B", "C"}));
}

TEST_F(TreeViewTest, ExtendMovesTheAnchor) {
  pressLabel(2);
  pressLabel(3, kShift);
  pressLabel(5, kShift);
  EXPECT_EQ(selected(), (Names{"A", "B", "C", "D"}));
  EXPECT_EQ(tree.anchor(), 5U);
}

TEST_F(TreeViewTest, ExtendTakesOnlyRowsInSight) {
  pressExpander(2);
  pressLabel(2);
  pressLabel(3, kShift);
  EXPECT_EQ(selected(), (Names{"A", "D"}));
}

TEST_F(TreeViewTest, SubtreeTakesWhatIsHiddenToo) {
  pressExpander(2);
  pressLabel(2, kAlt);
  EXPECT_EQ(selected(), (Names{"A", "B", "C"}));
}

TEST_F(TreeViewTest, ClearingReachesWhatIsHidden) {
  pressLabel(4);
  pressExpander(2);
  pressGap(2);
  EXPECT_EQ(selected(), Names{});
}

TEST_F(TreeViewTest, LeftOfTheGapTheLabelIsHitAgain) {
  tree.press({0, middleOf(4), kLeft | kDown, 1});
  EXPECT_EQ(selected(), Names{"C"});
}

TEST_F(TreeViewTest, TheSecondOfTwoQuickClicksCollapses) {
  pressLabel(2);
  EXPECT_EQ(tree.press({labelX(2), middleOf(2), kLeft | kDown, 2}), kLooks);
  EXPECT_EQ(tree.rows().size(), 5U);
  EXPECT_EQ(tree.anchor(), kNoRow);
  EXPECT_EQ(selected(), Names{"A"});
}

TEST_F(TreeViewTest, TheThirdOfThreeQuickClicksSelects) {
  for (const int clicks : {1, 2}) tree.press({labelX(2), middleOf(2), kLeft | kDown, clicks});
  EXPECT_EQ(tree.press({labelX(2), middleOf(2), kLeft | kDown, 3}), kSelection);
}

// Hosts may count clicks by time alone.
TEST_F(TreeViewTest, AQuickClickOnAnotherRowSelectsIt) {
  pressLabel(2);
  EXPECT_EQ(tree.press({labelX(4), middleOf(4), kLeft | kDown, 2}), kSelection);
  EXPECT_EQ(selected(), Names{"C"});
}

TEST_F(TreeViewTest, TwoQuickClicksAfterOneOnAnotherRowAreADoubleClick) {
  pressLabel(4);
  tree.press({labelX(2), middleOf(2), kLeft | kDown, 2});
  EXPECT_EQ(tree.press({labelX(2), middleOf(2), kLeft | kDown, 3}), kLooks);
}

TEST_F(TreeViewTest, AQuickClickAfterAnExpanderOrAQualifiedOneIsAClick) {
  pressLabel(2, kCtrl);
  EXPECT_EQ(tree.press({labelX(2), middleOf(2), kLeft | kDown, 2}), kSelection);
  pressExpander(5);
  EXPECT_EQ(tree.press({labelX(5), middleOf(5), kLeft | kDown, 2}), kSelection);
}

// Hosts may never count.
TEST_F(TreeViewTest, ClicksThatAreNotCountedAreClicks) {
  for (const int clicks : {0, 0, 1, 1}) {
    EXPECT_EQ(tree.press({labelX(2), middleOf(2), kLeft | kDown, clicks}), kSelection);
  }
  EXPECT_EQ(tree.rows().size(), 7U);
}

// ---------------------------------------------------------------------------------------------------------------------
// Presses that prove to be none

TEST_F(TreeViewTest, TakenBackThePressesSinceHaveChangedNothing) {
  pressLabel(3);
  tree.keepForTakingBack();
  pressExpander(2);
  pressLabel(2, kCtrl);
  EXPECT_EQ(tree.takeBack(), kSelection);
  EXPECT_EQ(selected(), Names{"B"});
  EXPECT_EQ(tree.rows().size(), 7U);
  EXPECT_EQ(tree.anchor(), 3U);
}

TEST_F(TreeViewTest, WhatIsKeptFirstIsWhatComesBack) {
  pressLabel(3);
  tree.keepForTakingBack();
  pressLabel(4);
  tree.keepForTakingBack();
  pressLabel(5);
  tree.takeBack();
  EXPECT_EQ(selected(), Names{"B"});
}

TEST_F(TreeViewTest, AfterPressesWereTakenBackTheSecondClickIsStillOne) {
  const std::size_t rows = tree.rows().size();
  pressLabel(2);
  tree.keepForTakingBack();
  pressLabel(2);
  tree.takeBack();
  tree.press({labelX(2), middleOf(2), kLeft | kDown, 2});
  EXPECT_NE(tree.rows().size(), rows);
}

TEST_F(TreeViewTest, WithNothingKeptNothingIsTakenBack) {
  tree.keepForTakingBack();
  pressLabel(3);
  tree.keepNothing();
  EXPECT_EQ(tree.takeBack(), kNothing);
  EXPECT_EQ(selected(), Names{"B"});
}

TEST_F(TreeViewTest, OtherNodesAreKeptFromBeingTakenBack) {
  tree.keepForTakingBack();
  tree.setNodes(buildSelectorNodes({selectedInModeler(skelegon("New", 1, 2))}, {"L"}, {}));
  EXPECT_EQ(tree.takeBack(), kNothing);
  EXPECT_EQ(selected(), Names{"New"});
}

TEST_F(TreeViewTest, QuickClicksWithAQualifierAreClicks) {
  for (const int qualifier : {kCtrl, kShift, kAlt}) {
    EXPECT_EQ(tree.press({labelX(2), middleOf(2), qualifier | kLeft | kDown, 2}), kSelection);
  }
  EXPECT_EQ(tree.rows().size(), 7U);
}

TEST_F(TreeViewTest, QuickClicksOnTheExpanderFlipEachTime) {
  tree.press({24, middleOf(2), kLeft | kDown, 1});
  tree.press({24, middleOf(2), kLeft | kDown, 2});
  EXPECT_EQ(tree.rows().size(), 7U);
}

TEST_F(TreeViewTest, SelectedPolygonsComeFromTopToBottom) {
  pressLabel(5);
  pressLabel(2, kCtrl);
  pressLabel(1, kCtrl);  // a layer's row has no polygon
  const std::vector<skg::PolygonId> polygons = tree.selectedPolygons();
  ASSERT_EQ(polygons.size(), 2U);
  EXPECT_EQ(polygons[0], tree.nodes()[tree.rows()[2].node].polygon);
  EXPECT_EQ(polygons[1], tree.nodes()[tree.rows()[5].node].polygon);
}

TEST_F(TreeViewTest, EachPolygonIsPushedOnce) {
  skg::SkelegonInfo twice = selectedInModeler(skelegon("A", 1, 2));
  tree.setNodes(buildSelectorNodes({twice, twice}, {"L"}, {}));
  EXPECT_EQ(tree.selectedPolygons(), std::vector<skg::PolygonId>{twice.polygon});
}

TEST(EmptyTree, StandsEveryInput) {
  CTreeView tree;
  tree.setView(100, 100);
  EXPECT_EQ(tree.press({20, 20, kLeft | kDown, 1}), kSelection);
  EXPECT_EQ(tree.drag(50, 50), kNothing);
  EXPECT_EQ(tree.wheel(3), kNothing);
  EXPECT_TRUE(tree.selectedPolygons().empty());
  EXPECT_TRUE(tree.picture().rows.empty());
}

}  // namespace
}  // namespace mst
