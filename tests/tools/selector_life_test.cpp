// The selector's panel as such: how it opens, what it shows, its layout, and when it looks at the mesh again.
#include <array>

#include "tests/tools/selector_fixture.h"

namespace varnel::test {
namespace {

// ---------------------------------------------------------------------------------------------------------------------
// Opening

TEST_F(Selector, OpensWithoutWaitingAndCanBeResized) {
  openTool();
  EXPECT_EQ(panel->openFlags, 192);
}

TEST_F(Selector, TheTitleNamesToolAndVersion) {
  openTool();
  EXPECT_EQ(panel->titleAtCreation, "Orlo:SkelegonSelector(1.20) ");
}

TEST_F(Selector, HasATreeAFrameAndAButton) {
  openTool();
  EXPECT_EQ(panel->controls.size(), 3U);
  EXPECT_EQ(tree()->index, 0);
  EXPECT_EQ(frame()->index, 1);
  EXPECT_EQ(sync()->index, 2);
}

TEST_F(Selector, ShowsTheSkelegonsByLayerAndTheWeightMapsCollapsed) {
  openTool();
  EXPECT_EQ(shown(10), (Names{"", "", "Hips", "Chest", "Head", "", "Tail_01", "Tail_02", "", ""}));
}

TEST_F(Selector, LayersOutOfTheForegroundAreNotShown) {
  host.showLayers({1});
  openTool();
  EXPECT_EQ(shown(4), (Names{"", "", "Tail_01", "Tail_02"}));
}

TEST_F(Selector, TheRowsBeginSelectedAsInModeler) {
  openWith({"Chest"});
  click(row::kHead, kCtrl);
  EXPECT_EQ(selected(), (Names{"Chest", "Head"}));
}

TEST_F(Selector, ADeletedSkelegonIsNotShown) {
  host.deleteSkelegons({"Hips"});
  openTool();
  EXPECT_EQ(shown(4), (Names{"", "", "Chest", "Head"}));
}

TEST_F(Selector, WithoutAnObjectTheTreeHasNoSkelegons) {
  host.closeAll();
  openTool();
  click({1, 1}, kAlt);
  clickAt(100, 300);
  EXPECT_EQ(host.messages().size(), 0U);
}

TEST_F(Selector, AClosedPanelOpensAgainAndIsTheSame) {
  openTool();
  standin::Panel* const first = panel;
  EXPECT_TRUE(person::close(panel));
  openTool();
  EXPECT_EQ(panel, first);
  EXPECT_EQ(standin::panels().all().size(), 1U);
}

TEST_F(Selector, OpenedAgainItShowsWhatIsThereNow) {
  openTool();
  EXPECT_TRUE(person::close(panel));
  host.deleteSkelegons({"Hips"});
  openTool();
  EXPECT_EQ(shownIn(2), "Chest");
}

TEST_F(Selector, OpenedAgainItForgetsTheAnchor) {
  openTool();
  click(row::kHips);
  EXPECT_TRUE(person::close(panel));
  openTool();
  click(row::kHead, kShift);
  EXPECT_EQ(selected(), (Names{"Hips", "Head"}));
}

TEST_F(Selector, OpenedAgainItKeepsTheSizeThatTheUserGaveIt) {
  openTool();
  EXPECT_TRUE(person::resize(panel, 400, 300));
  EXPECT_TRUE(person::close(panel));
  openTool();
  EXPECT_EQ(tree()->hotWidth, 390);
  // In the larger view this is no scroll bar.
  clickAt(350, SelectorSession::middleOf(row::kHips));
  EXPECT_EQ(selected(), Names{"Hips"});
}

TEST_F(Selector, RunWhileOpenItComesToTheFrontAndLooksAgain) {
  openTool();
  host.deleteSkelegons({"Hips"});
  panel->takesFront = false;
  openTool();
  EXPECT_TRUE(panel->takesFront);
  EXPECT_EQ(shownIn(2), "Chest");
}

TEST_F(Selector, AClosedPanelDoesNothing) {
  openTool();
  EXPECT_TRUE(person::close(panel));
  startCounting();
  EXPECT_TRUE(standin::oddhost::fire(panel->at(0)));
  EXPECT_TRUE(standin::oddhost::fire(panel->at(2)));
  EXPECT_EQ(editsOf(lw::kEditDirect), 0U);
}

// ---------------------------------------------------------------------------------------------------------------------
// Layout

using Box = std::array<int, 4>;  // x, y, width, height
Box boxOf(const standin::Control* control) { return {control->x, control->y, control->hotWidth, control->hotHeight}; }

TEST_F(Selector, IsLaidOutForItsFirstSize) {
  openTool();
  EXPECT_EQ(panel->width, 290);
  EXPECT_EQ(panel->height, 567);
  EXPECT_EQ(boxOf(tree()), (Box{5, 5, 280, 512}));
  EXPECT_EQ(boxOf(frame()), (Box{5, 527, 280, 30}));
  EXPECT_EQ(sync()->whole().right(), 90);
  EXPECT_EQ(sync()->hotWidth, 80);
  EXPECT_EQ(sync()->y, 532);
  EXPECT_EQ(standin::layoutComplaints(*panel), "");
}

class SelectorSizes : public testing::TestWithParam<std::pair<int, int>>, protected SelectorSession {};

INSTANTIATE_TEST_SUITE_P(Odd, SelectorSizes,
                         testing::Values(std::pair{250, 87}, std::pair{251, 89}, std::pair{333, 777}, std::pair{1999, 101},
                                         std::pair{257, 1203}));

TEST_P(SelectorSizes, AreLaidOutByTheirEdges) {
  const auto [width, height] = GetParam();
  openTool();
  EXPECT_TRUE(person::resize(panel, width, height));
  EXPECT_EQ(boxOf(tree()), (Box{5, 5, width - 10, height - 55}));
  EXPECT_EQ(boxOf(frame()), (Box{5, height - 40, width - 10, 30}));
  EXPECT_EQ(sync()->whole().right(), 90);
  EXPECT_EQ(sync()->y, height - 35);
  EXPECT_EQ(standin::layoutComplaints(*panel), "");
}

TEST_P(SelectorSizes, HaveTheirScrollBarsAtTheirEdges) {
  const auto [width, height] = GetParam();
  openTool();
  EXPECT_TRUE(person::resize(panel, width, height));
  clickAt(width - 10 - 13, 0);
  startCounting();
  clickAt(width - 10 - 12, 0);
  clickAt(0, height - 55 - 12);
  EXPECT_EQ(pushes(), 0U);
  clickAt(width - 10 - 13, height - 55 - 13);
  EXPECT_EQ(pushes(), 1U);
}

TEST_F(Selector, CannotBeMadeSmallerThanItsLeastSize) {
  openTool();
  EXPECT_TRUE(person::resize(panel, 10, 10));
  EXPECT_EQ(panel->width, 250);
  EXPECT_EQ(panel->height, 87);
}

TEST_F(Selector, StandsAHostThatIgnoresTheLeastSize) {
  openTool();
  panel->leastWidth = 0;
  panel->leastHeight = 0;
  EXPECT_TRUE(person::resize(panel, 3, 2));
  EXPECT_TRUE(person::resize(panel, 290, 567));
  EXPECT_EQ(boxOf(tree()), (Box{5, 5, 280, 512}));
  EXPECT_EQ(shownIn(2), "Hips");
}

TEST_F(Selector, IsLaidOutWhereControlsHavePadding) {
  standin::panels().options.rightPadding = 3;
  openTool();
  EXPECT_EQ(boxOf(tree()), (Box{5, 5, 280, 512}));
  EXPECT_EQ(sync()->whole().right(), 90);
}

// ---------------------------------------------------------------------------------------------------------------------
// Painting

TEST_F(Selector, EachClickAsksForPainting) {
  openTool();
  standin::panels().paintWanted(*panel);
  click(row::kHips);
  EXPECT_TRUE(tree()->wantsPaint);
}

TEST_F(Selector, AClickThatChangesNothingAsksForNone) {
  openTool();
  standin::panels().paintWanted(*panel);
  clickAt(labelX(row::kHips), middleOf(row::kHips), 0, standin::MouseButton::Middle);
  EXPECT_FALSE(tree()->wantsPaint);
}

TEST_F(Selector, SyncAndResizeAskForPainting) {
  openTool();
  standin::panels().paintWanted(*panel);
  pressSync();
  EXPECT_EQ(standin::panels().paintWanted(*panel), 1);
  EXPECT_TRUE(person::resize(panel, 300, 300));
  EXPECT_EQ(standin::panels().paintWanted(*panel), 1);
}

TEST_F(Selector, PaintingAsksNothingOfTheMesh) {
  openTool();
  startCounting();
  EXPECT_TRUE(standin::panels().paint(*tree()));
  EXPECT_EQ(editsOf(lw::kEditDirect), 0U);
}

// ---------------------------------------------------------------------------------------------------------------------
// Looking again

TEST_F(Selector, ChangesShowAfterSync) {
  openTool();
  host.deleteSkelegons({"Hips"});
  pressSync();
  EXPECT_EQ(shownIn(2), "Chest");
}

TEST_F(Selector, SyncTakesModelersSelection) {
  openTool();
  host.select({"Tail_01"});
  pressSync();
  click(row::kHead, kCtrl);
  EXPECT_EQ(selected(), (Names{"Head", "Tail_01"}));
}

TEST_F(Selector, SyncPushesNothing) {
  openWith({"Tail_01"});
  startCounting();
  pressSync();
  EXPECT_EQ(pushes(), 0U);
  EXPECT_EQ(scans(), 1U);
  EXPECT_EQ(selected(), Names{"Tail_01"});
}

TEST_F(Selector, SyncExpandsWhatWasCollapsed) {
  openTool();
  clickExpander(row::kHips);
  pressSync();
  EXPECT_EQ(shownIn(3), "Chest");
}

TEST_F(Selector, TheAnchorStaysWithItsSkelegonOverSync) {
  openTool();
  click(row::kChest);
  pressSync();
  click(row::kHead, kShift);
  EXPECT_EQ(selected(), (Names{"Chest", "Head"}));
}

// ---------------------------------------------------------------------------------------------------------------------
// Pushing the selection

TEST_F(Selector, WhatIsCollapsedStaysSelected) {
  openTool();
  click(row::kHips, kAlt);
  clickExpander(row::kHips);
  click({4, 2}, kCtrl);
  EXPECT_EQ(selected(), (Names{"Hips", "Chest", "Head", "Tail_01"}));
}

TEST_F(Selector, OtherPolygonsKeepTheirSelection) {
  host.selectPolygons({&object->polygons().front(), object->skelegon("Hips")});
  openTool();
  click(row::kHead);
  EXPECT_TRUE(object->polygons().front().selected);
  EXPECT_EQ(selected(), Names{"Head"});
}

TEST_F(Selector, RowsOfGroupsAndMapsSelectNothing) {
  openWith({"Hips"});
  for (const SeenRow& group : {row::kTop, row::kBody, row::kTail, row::kMaps}) EXPECT_EQ(selectedBy(group), Names{});
}

TEST_F(Selector, AHostThatKeepsFewerLeadsToOneNewScan) {
  openTool();
  host.showLayers({1});
  startCounting();
  click(row::kTop, kAlt);
  EXPECT_EQ(pushes(), 1U);
  EXPECT_EQ(scans(), 1U);
  EXPECT_EQ(selected(), (Names{"Tail_01", "Tail_02"}));
  EXPECT_EQ(shown(4), (Names{"", "", "Tail_01", "Tail_02"}));
}

TEST_F(Selector, ADeletedSkelegonsRowIsGoneAfterAClickOnIt) {
  openTool();
  host.deleteSkelegons({"Chest"});
  startCounting();
  click(row::kChest);
  EXPECT_EQ(scans(), 1U);
  // Head, which has lost its parent, comes first by name.
  EXPECT_EQ(shown(4), (Names{"", "", "Head", "Hips"}));
}

TEST_F(Selector, AKeptSelectionNeedsNoNewScan) {
  openTool();
  startCounting();
  click(row::kTop, kAlt);
  EXPECT_EQ(scans(), 0U);
}

TEST_F(Selector, AfterTheObjectWasClosedClicksBeginNoEdit) {
  openTool();
  host.closeAll();
  const std::size_t edits = host.edits().size();
  click(row::kHips);
  click(row::kChest);
  EXPECT_EQ(host.edits().size(), edits);
}

// ---------------------------------------------------------------------------------------------------------------------
// Meshes that no skelegon tool makes

TEST(SelectorRows, ALoopShowsEverySkelegonOnce) {
  standin::RigBuilder rig;
  const auto a = rig.point({0, 0, 0}), b = rig.point({0, 1, 0}), c = rig.point({0, 2, 0});
  rig.between(a, b, "A");
  rig.between(b, c, "B");
  rig.between(c, a, "C");
  SelectorSession session(rig.take());
  session.openTool();
  EXPECT_EQ(session.shown(6), (Names{"", "", "A", "B", "C", ""}));
}

TEST(SelectorRows, AChainOfFiveThousandIsShownToItsEnd) {
  standin::RigBuilder rig;
  standin::RigBuilder::Skelegon last = rig.root("B0", {0, 0, 0}, {0, 1, 0});
  for (int i = 1; i < 5000; ++i) last = rig.child(last, "B" + std::to_string(i), {0, 0, 0});
  SelectorSession session(rig.take());
  session.openTool();
  session.click({2, 2}, kAlt);
  EXPECT_EQ(session.selected().size(), 5000U);
}

}  // namespace
}  // namespace varnel::test
