// The rows of the tree: laid out from its nodes, which come from a scan of the mesh.
#include <algorithm>
#include <random>

#include "modeler/selector/name_order.h"
#include "modeler/selector/selector_colours.h"
#include "modeler/selector/skelegon_parents.h"
#include "skelegon/skelegon_tree.h"
#include "skelegon/slots.h"
#include "tests/unit/tree_view_fixture.h"
#include "texts/texts.h"

namespace mst {
namespace {

std::string outlineOf(SkelegonInfos skelegons, const Names& layers = {}, Names maps = {}) {
  return outline(buildSelectorNodes(std::move(skelegons), layers, std::move(maps)));
}

// ---------------------------------------------------------------------------------------------------------------------
// Nodes

TEST(SelectorNodes, AnEmptyMeshHasTheTopAndTheMapsOnly) { EXPECT_EQ(outlineOf({}), "[Top]\n [WMaps]\n"); }

TEST(SelectorNodes, SkelegonsHangBelowTheirLayerAndTheirParent) {
  EXPECT_EQ(outlineOf({skelegon("Hips", 1, 2), skelegon("Chest", 2, 3), skelegon("Tail", 7, 8, 1)}, {"Body", "Back"}),
            "[Top]\n [Layer1]:Body\n  Hips\n   Chest\n [Layer2]:Back\n  Tail\n [WMaps]\n");
}

TEST(SelectorNodes, LayersStandInTheOrderOfTheirNumbers) {
  EXPECT_EQ(outlineOf({skelegon("C", 1, 2, 10), skelegon("B", 3, 4, 2)}),
            "[Top]\n [Layer3]:Layer3\n  B\n [Layer11]:Layer11\n  C\n [WMaps]\n");
}

TEST(SelectorNodes, ALayerWithoutANumberOfItsOwnHasNoName) {
  EXPECT_EQ(outlineOf({skelegon("A", 1, 2, -1)}, {"Body"}), "[Top]\n [Layer0]:Layer0\n  A\n [WMaps]\n");
}

TEST(SelectorNodes, WeightMapsStandInTheOrderOfSkelegons) {
  EXPECT_EQ(outlineOf({}, {}, {"m2", "m02"}), outlineOf({}, {}, {"m02", "m2"}));
  EXPECT_EQ(outlineOf({}, {}, {"b10", "B2", "b2", "腰"}), "[Top]\n [WMaps]\n  B2\n  b2\n  b10\n  腰\n");
}

TEST(SelectorNodes, ChildrenStandInNameOrderThenInScanOrder) {
  SkelegonInfos skelegons = {skelegon("Root", 1, 2)};
  for (const char* name : {"Bone10", "Bone2", "bone1", "Bone2", "Bone"}) skelegons.push_back(skelegon(name, 2, 0));
  const skg::PolygonId firstBone2 = skelegons[2].polygon;
  const SelectorNodes nodes = buildSelectorNodes(std::move(skelegons), {"L"}, {});
  EXPECT_EQ(outline(nodes), "[Top]\n [Layer1]:L\n  Root\n   Bone\n   Bone2\n   Bone2\n   Bone10\n   bone1\n [WMaps]\n");
  const std::size_t root = nodes[nodes[kRootNode].children[0]].children[0];
  EXPECT_EQ(nodes[nodes[root].children[1]].polygon, firstBone2);
}

// So many that sorting by halves would exchange them.
TEST(SelectorNodes, ManyOfOneNameStandInScanOrder) {
  SkelegonInfos skelegons;
  std::vector<skg::PolygonId> scanned;
  for (int i = 0; i < 200; ++i) scanned.push_back(skelegons.emplace_back(skelegon("Bone", 0, 0)).polygon);
  const SelectorNodes nodes = buildSelectorNodes(std::move(skelegons), {"L"}, {});
  std::vector<skg::PolygonId> shown;
  for (const std::size_t child : nodes[nodes[kRootNode].children[0]].children) shown.push_back(nodes[child].polygon);
  EXPECT_EQ(shown, scanned);
}

TEST(SelectorNodes, AParentOnAnotherLayerIsNone) {
  EXPECT_EQ(outlineOf({skelegon("A", 1, 2, 0), skelegon("B", 2, 3, 1)}, {"P", "Q"}),
            "[Top]\n [Layer1]:P\n  A\n [Layer2]:Q\n  B\n [WMaps]\n");
}

TEST(SelectorNodes, CarryWhatTheScanFound) {
  const skg::SkelegonInfo chest = selectedInModeler(skelegon("Chest", 4, 5, 3));
  const SelectorNodes nodes = buildSelectorNodes({chest}, {}, {});
  const SelectorNode& node = nodes[nodes[nodes[kRootNode].children[0]].children[0]];
  EXPECT_EQ(node.polygon, chest.polygon);
  EXPECT_EQ(node.text, "Chest");
  EXPECT_EQ(node.layer, 3);
  EXPECT_EQ(node.head, point(4));
  EXPECT_EQ(node.tail, point(5));
  EXPECT_TRUE(node.isSelected);
  EXPECT_EQ(node.state, kStateSet | kStateExpanded | kStateSelected);
}

TEST(SelectorNodes, OnlyTheMapsBeginCollapsed) {
  for (const SelectorNode& node : buildSelectorNodes({skelegon("A", 1, 2)}, {"L"}, {"Map"})) {
    EXPECT_EQ(node.is(kStateExpanded), node.text != "[WMaps]") << node.text;
    EXPECT_FALSE(node.is(kStateSelected));
  }
}

TEST(SelectorNodes, GroupsHaveTheirColours) {
  for (const SelectorNode& node : buildSelectorNodes({skelegon("A", 1, 2)}, {"L"}, {"Map"})) {
    const int wanted = node.text == "[Top]" ? 14 : node.text == "[WMaps]" || node.text == "Map" ? 8 : 13;
    EXPECT_EQ(node.colour, wanted) << node.text;
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Damaged meshes

TEST(DamagedMesh, ALoopIsCutBeforeItsFirstMemberByName) {
  EXPECT_EQ(outlineOf({skelegon("C", 3, 1), skelegon("A", 1, 2), skelegon("B", 2, 3)}, {"L"}),
            "[Top]\n [Layer1]:L\n  A\n   B\n    C\n [WMaps]\n");
}

TEST(DamagedMesh, WhatHangsOnALoopStaysOnIt) {
  EXPECT_EQ(outlineOf({skelegon("M", 1, 2), skelegon("N", 2, 1), skelegon("A", 2, 9)}, {"L"}),
            "[Top]\n [Layer1]:L\n  M\n   A\n   N\n [WMaps]\n");
}

TEST(DamagedMesh, ItsOwnParentIsNone) {
  EXPECT_EQ(outlineOf({skelegon("A", 1, 1)}, {"L"}), "[Top]\n [Layer1]:L\n  A\n [WMaps]\n");
}

TEST(DamagedMesh, OfTwoParentsTheLaterCounts) {
  EXPECT_EQ(outlineOf({skelegon("P2", 1, 5), skelegon("P1", 2, 5), skelegon("Child", 5, 6)}, {"L"}),
            "[Top]\n [Layer1]:L\n  P1\n  P2\n   Child\n [WMaps]\n");
}

TEST(DamagedMesh, WithoutPointsASkelegonStandsAlone) {
  EXPECT_EQ(outlineOf({skelegon("A", 0, 0), skelegon("B", 0, 0)}, {"L"}), "[Top]\n [Layer1]:L\n  A\n  B\n [WMaps]\n");
}

// Random meshes of few points, full of loops and shared ends.
TEST(DamagedMesh, ShowsEverySkelegonOnceWhateverItsShape) {
  std::mt19937 random(4);
  for (int round = 0; round < 500; ++round) {
    std::uniform_int_distribution<std::size_t> anyPoint(0, 1 + static_cast<std::size_t>(round % 9));
    SkelegonInfos skelegons;
    for (int i = 0; i < 1 + round % 12; ++i) {
      skelegons.push_back(skelegon("S", anyPoint(random), anyPoint(random), static_cast<int>(random() % 2)));
    }
    const std::size_t count = skelegons.size();
    CTreeView tree;
    tree.setNodes(buildSelectorNodes(std::move(skelegons), {}, {}));
    std::vector<int> seen(tree.nodes().size());
    for (const TreeRow& row : tree.rows()) ++seen[row.node];
    ASSERT_EQ(std::count(seen.begin(), seen.end(), 1), static_cast<std::ptrdiff_t>(seen.size()));
    ASSERT_EQ(std::count_if(tree.nodes().begin(), tree.nodes().end(),
                            [](const SelectorNode& node) { return node.polygon != nullptr; }),
              static_cast<std::ptrdiff_t>(count));
  }
}

// Where nothing is cut, the parents are those of the skelegon tree.
TEST(DamagedMesh, HasTheParentsOfTheSkelegonTree) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    SkelegonInfos skelegons;
    skg::SkelegonList list;
    for (std::size_t i = 1; i <= 20; ++i) {
      // Every skelegon goes to a point of a larger number: no loops.
      const std::size_t head = 1 + random() % 10;
      const skg::SkelegonInfo& added = skelegons.emplace_back(skelegon("S", head, head + 1 + random() % 10));
      skg::SkelegonNode node;
      node.polygon = added.polygon;
      node.headPoint = added.head;
      node.tailPoint = added.tail;
      list.add(node);
    }
    list.link();
    const std::vector<std::size_t> parents = skelegonParents(skelegons);
    for (std::size_t i = 0; i < parents.size(); ++i) {
      const skg::SkelegonNode* const wanted = list[i].parent;
      ASSERT_EQ(parents[i] == kNoParent ? nullptr : &list[parents[i]], wanted);
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Rows

TEST_F(TreeViewTest, RowsStandDepthFirstWithTheirParents) {
  struct Wanted {
    int depth;
    std::size_t parent;
    std::size_t lastChild;
  };
  const Wanted wanted[] = {{0, kNoRow, 6}, {1, 0, 5}, {2, 1, 3}, {3, 2, 4}, {4, 3, kNoRow}, {2, 1, kNoRow}, {1, 0, kNoRow}};
  ASSERT_EQ(tree.rows().size(), std::size(wanted));
  for (std::size_t i = 0; i < std::size(wanted); ++i) {
    EXPECT_EQ(tree.rows()[i].depth, wanted[i].depth) << i;
    EXPECT_EQ(tree.rows()[i].parent, wanted[i].parent) << i;
    EXPECT_EQ(tree.rows()[i].lastChild, wanted[i].lastChild) << i;
  }
}

TEST_F(TreeViewTest, ACollapsedRowKeepsItsChildrenInMind) {
  pressExpander(2);
  EXPECT_EQ(tree.rows()[2].lastChild, kNoRow);
  EXPECT_EQ(tree.picture().owner->childCountOf(tree.rows()[2].node), 1U);
  pressExpander(2);
  EXPECT_EQ(shown(tree), "[Top]\n [Layer1]:L\n  A\n   B\n    C\n  D\n [WMaps]\n");
}

TEST_F(TreeViewTest, TheMapsOpenLikeAnyRow) {
  pressExpander(6);
  EXPECT_EQ(tree.rows().size(), 8U);
}

TEST_F(TreeViewTest, TheAnchorFollowsItsSkelegonToNewNodes) {
  pressLabel(3);
  SelectorNodes nodes = tree.nodes();
  nodes[kRootNode].children = {nodes[kRootNode].children[1], nodes[kRootNode].children[0]};  // the maps first
  tree.setNodes(std::move(nodes));
  EXPECT_EQ(tree.anchor(), 4U);
}

TEST_F(TreeViewTest, AnAnchorWhoseSkelegonIsGoneIsNone) {
  pressLabel(3);
  tree.setNodes(buildSelectorNodes({skelegon("A", 1, 2)}, {"L"}, {}));
  EXPECT_EQ(tree.anchor(), kNoRow);
}

TEST(LongChain, IsLaidOutCutAndSelectedWithoutRecursion) {
  constexpr std::size_t kLength = 200'000;
  SkelegonInfos skelegons;
  for (std::size_t i = 1; i <= kLength; ++i) skelegons.push_back(skelegon("S", i, i % kLength + 1));  // and closed
  CTreeView tree;
  tree.setNodes(buildSelectorNodes(std::move(skelegons), {"L"}, {}));
  tree.setView(300, 300);
  EXPECT_EQ(tree.rows().size(), kLength + 3);
  tree.press({50, 30, kAlt | kLeft | kDown, 1});
  EXPECT_EQ(tree.selectedPolygons().size(), kLength);
}

// ---------------------------------------------------------------------------------------------------------------------
// Names

TEST(NameOrder, NumbersCountAsNumbers) {
  const Names ordered = {"",      "1",      "2",       "10",   "10a", "A",  "Bone", "Bone1", "Bone2",
                         "Bone9", "Bone10", "Bone10b", "Bone", "a",   "a1", "a1b2", "a1b10"};
  EXPECT_TRUE(comesBefore("Bone2", "Bone10"));
  EXPECT_FALSE(comesBefore("Bone10", "Bone2"));
  EXPECT_TRUE(comesBefore("Bone11", "Bone101"));  // they begin alike, and are compared whole
  Names sorted = ordered;
  std::stable_sort(sorted.begin(), sorted.end(), comesBefore);
  EXPECT_EQ(sorted, (Names{"", "1", "2", "10", "10a", "A", "Bone", "Bone", "Bone1", "Bone2", "Bone9", "Bone10", "Bone10b",
                           "a", "a1", "a1b2", "a1b10"}));
}

TEST(NameOrder, NumbersOfAnyLengthAreCompared) {
  EXPECT_TRUE(comesBefore("B99999999999999999999999998", "B99999999999999999999999999"));
  EXPECT_TRUE(comesBefore("B99999999999999999999999999", "B100000000000000000000000000"));
}

TEST(NameOrder, LeadingZerosDoNotCount) {
  EXPECT_FALSE(comesBefore("Bone01", "Bone1"));
  EXPECT_FALSE(comesBefore("Bone1", "Bone01"));
  EXPECT_TRUE(comesBefore("Bone01a", "Bone1b"));
  EXPECT_TRUE(comesBefore("Bone009", "Bone10"));
  EXPECT_FALSE(comesBefore("B0", "B000"));
}

// What sorting asks of an order, over all names of up to four of some characters.
TEST(NameOrder, IsAnOrder) {
  Names names = {""};
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i].size() >= 3) break;
    for (const char character : {'0', '1', '9', 'a', '\xE3'}) names.push_back(names[i] + character);
  }
  std::vector<std::string> sorted = names;
  std::stable_sort(sorted.begin(), sorted.end(), comesBefore);
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    for (std::size_t k = i + 1; k < sorted.size(); ++k) ASSERT_FALSE(comesBefore(sorted[k], sorted[i]));
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Colours

skg::SkelegonInfo coloured(std::optional<std::string> colour, std::optional<std::string> copy) {
  skg::SkelegonInfo skelegon;
  skelegon.tags = {std::move(colour), std::move(copy)};
  return skelegon;
}

TEST(RowColours, EachWordHasItsIndex) {
  for (std::size_t i = 0; i < skg::BoneColourNames.size(); ++i) {
    EXPECT_EQ(colourOf(coloured(std::string(skg::BoneColourNames[i]), std::nullopt)), static_cast<int>(i));
  }
}

TEST(RowColours, TheColourTagGoesBeforeItsCopy) { EXPECT_EQ(colourOf(coloured("Blue", "Red")), 8); }
TEST(RowColours, WithoutAColourTagTheCopyCounts) { EXPECT_EQ(colourOf(coloured(std::nullopt, "DkCyn")), 3); }
// The two cyans are stored so, and any other colour may be.
TEST(RowColours, BehindABlankColourTagTheCopyCounts) {
  for (std::size_t i = 0; i < skg::BoneColourNames.size(); ++i) {
    EXPECT_EQ(colourOf(coloured("", std::string(skg::BoneColourNames[i]))), static_cast<int>(i));
  }
}
TEST(RowColours, ABlankColourTagAloneIsOrange) { EXPECT_EQ(colourOf(coloured("", std::nullopt)), 13); }
// Only a blank one gives way to the copy.
TEST(RowColours, AnUnknownWordIsOrangeWhateverTheCopySays) { EXPECT_EQ(colourOf(coloured("blue", "DkCyn")), 13); }
TEST(RowColours, WithoutAnyTagItIsOrange) { EXPECT_EQ(colourOf(coloured(std::nullopt, std::nullopt)), 13); }
TEST(RowColours, AnUnknownWordIsOrange) {
  EXPECT_EQ(colourOf(coloured("blue", std::nullopt)), 13);
  EXPECT_EQ(colourOf(coloured("Blue ", std::nullopt)), 13);
}

// The bytes of the packed number are 1, red, blue, green, deliberately.
TEST(RowColours, BlueStandsBeforeGreenInThePackedNumber) { EXPECT_EQ(rowColour(1), (Rgba{0, 8, 128, 255})); }

TEST(RowColours, ThereIsNoneForModelersOwnAndBeyond) {
  EXPECT_EQ(rowColour(15), std::nullopt);
  EXPECT_EQ(rowColour(16), std::nullopt);
  EXPECT_EQ(rowColour(-1), std::nullopt);
}

TEST(RowColours, AreThoseOfTheColourListsSwatches) {
  const texts::ChoiceListRow& list = texts::propertyChoices().at(static_cast<std::size_t>(texts::ChoiceList::Colour));
  const std::string before = "\x03(i:BLOCK8, ";
  for (int i = 0; i < 15; ++i) {
    const std::string entry = list.english[i];
    ASSERT_EQ(entry.substr(0, before.size()), before);
    const unsigned long packed = std::stoul(entry.substr(before.size()));
    const Rgba colour = rowColour(i).value();
    EXPECT_EQ(packed, 0x1000000UL | (colour[0] * 0x10000UL) | (colour[2] * 0x100UL) | colour[1]) << entry;
    EXPECT_EQ(colour[3], 255);
  }
}

}  // namespace
}  // namespace mst
