// Skelegons linked by the points they share, and the sets that the tools take out of the tree.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/unit/skelegon_fixture.h"

namespace skg::test {
namespace {

TEST(SkelegonTree, OfNoSkelegonsIsEmptyAndSoIsEverySetOfIt) {
  const SkelegonList list = listOf({});
  EXPECT_TRUE(list.empty());
  EXPECT_TRUE(list.all().empty());
  EXPECT_TRUE(list.resolve({}).empty());
  EXPECT_TRUE(heads({}).empty());
  EXPECT_TRUE(expandWithChildren({}).empty());
}

TEST(SkelegonTree, ASkelegonThatBeginsWhereAnotherEndsIsItsChild) {
  const SkelegonList list = listOf({{1, 2}, {2, 3}});
  EXPECT_EQ(namesOf(list[0].children), Names{"1"});
  EXPECT_EQ(list[1].parent, &list[0]);
  EXPECT_EQ(list[0].parent, nullptr);
}

TEST(SkelegonTree, ChildrenStandInListOrder) {
  const SkelegonList list = listOf({{2, 4}, {1, 2}, {2, 3}});
  EXPECT_EQ(namesOf(list[1].children), (Names{"0", "2"}));
}

TEST(SkelegonTree, OfTwoParentsTheLaterOneIsTheParentAndBothHaveTheChild) {
  const SkelegonList list = listOf({{1, 3}, {2, 3}, {3, 4}});
  EXPECT_EQ(namesOf(list[0].children), Names{"2"});
  EXPECT_EQ(namesOf(list[1].children), Names{"2"});
  EXPECT_EQ(list[2].parent, &list[1]);
}

TEST(SkelegonTree, ASharedPlaceOnPointsOfTheirOwnLinksNothing) {
  SkelegonList list = unlinkedList({{1, 2}, {3, 4}});
  list[0].tailPos = list[1].headPos = {0, 1, 0};
  list.link();
  EXPECT_EQ(list[1].parent, nullptr);
  EXPECT_TRUE(list[0].children.empty());
}

TEST(SkelegonTree, ASkelegonThatEndsWhereItBeginsIsItsOwnChild) {
  const SkelegonList list = listOf({{1, 1}});
  EXPECT_EQ(list[0].parent, &list[0]);
  EXPECT_EQ(namesOf(list[0].children), Names{"0"});
}

TEST(SkelegonTree, SkelegonsWithoutPointsAreNotLinked) {
  const SkelegonList list = listOf({{0, 0}, {0, 0}});
  EXPECT_EQ(list[0].parent, nullptr);
  EXPECT_TRUE(list[1].children.empty());
}

// The rule as it reads: every record against every record.
void linkByComparingAll(const SkelegonNodes& nodes) {
  for (SkelegonNode* const a : nodes) {
    for (SkelegonNode* const b : nodes) {
      if (a->tailPoint != b->headPoint) continue;
      a->children.push_back(b);
      b->parent = a;
    }
  }
}

TEST(SkelegonTree, LinksLikeComparingEachWithEachOnRandomMeshes) {
  std::mt19937 random(20260);
  for (int mesh = 0; mesh < 300; ++mesh) {
    std::vector<Ends> skelegons(random() % 40);
    const auto points = 1 + random() % 30;  // few points: branches, second parents, circles and self-links all come up
    for (Ends& ends : skelegons) ends = {1 + random() % points, 1 + random() % points};
    const SkelegonList linked = listOf(skelegons);
    const SkelegonList compared = unlinkedList(skelegons);
    linkByComparingAll(compared.all());
    for (std::size_t i = 0; i < skelegons.size(); ++i) {
      ASSERT_EQ(namesOf(linked[i].children), namesOf(compared[i].children)) << "mesh " << mesh << ", skelegon " << i;
      ASSERT_EQ(linked[i].parent == nullptr, compared[i].parent == nullptr) << "mesh " << mesh << ", skelegon " << i;
      if (linked[i].parent == nullptr) continue;
      ASSERT_EQ(linked[i].parent->name, compared[i].parent->name) << "mesh " << mesh << ", skelegon " << i;
    }
  }
}

// --- sets ----------------------------------------------------------------------------------------------------------------

TEST(SkelegonSets, ResolveGivesTheRecordsInTheOrderOfThePolygons) {
  const SkelegonList list = listOf({{1, 2}, {2, 3}, {3, 4}});
  EXPECT_EQ(namesOf(list.resolve({polygon(3), polygon(1), polygon(3)})), (Names{"2", "0", "2"}));
}

TEST(SkelegonSets, ResolveLeavesOutWhatHasNoRecord) {
  const SkelegonList list = listOf({{1, 2}});
  EXPECT_EQ(namesOf(list.resolve({polygon(99), polygon(1)})), Names{"0"});
}

TEST(SkelegonSets, HeadsOfAWholeTreeAreItsRoots) {
  const SkelegonList list = listOf({{2, 3}, {1, 2}, {8, 9}});
  EXPECT_EQ(namesOf(heads(list.all())), (Names{"1", "2"}));
}

TEST(SkelegonSets, AChildWithoutItsParentInTheSetIsAHead) {
  const SkelegonList list = listOf({{1, 2}, {2, 3}, {3, 4}, {4, 5}});
  EXPECT_EQ(namesOf(heads(list.resolve({polygon(3), polygon(2)}))), Names{"1"});
}

TEST(SkelegonSets, HeadsKeepTheOrderOfTheSet) {
  const SkelegonList list = listOf({{1, 2}, {5, 6}, {7, 8}});
  EXPECT_EQ(namesOf(heads({&list[2], &list[0], &list[1]})), (Names{"2", "0", "1"}));
}

// 0 has the children 1 and 2; 3 is below 1, 4 below 2.
const std::vector<Ends> kForked = {{1, 2}, {2, 3}, {2, 4}, {3, 5}, {4, 6}};

TEST(SkelegonSets, DescendantsComeBreadthFirstWithoutTheRecordItself) {
  const SkelegonList list = listOf(kForked);
  EXPECT_EQ(namesOf(descendants(list[0])), (Names{"1", "2", "3", "4"}));
}

TEST(SkelegonSets, DescendantsInACircleEndAtTheRecordItself) {
  const SkelegonList list = listOf({{1, 2}, {2, 3}, {3, 1}});
  EXPECT_EQ(namesOf(descendants(list[1])), (Names{"2", "0"}));
}

TEST(SkelegonSets, ARecordReachedOnTwoWaysIsADescendantOnce) {
  const SkelegonList list = listOf({{1, 2}, {2, 3}, {2, 3}, {3, 4}});
  EXPECT_EQ(namesOf(descendants(list[0])), (Names{"1", "2", "3"}));
}

TEST(SkelegonSets, ExpandPutsTheDescendantsBehindEachRecord) {
  const SkelegonList list = listOf(kForked);
  EXPECT_EQ(namesOf(expandWithChildren({&list[2], &list[1]})), (Names{"2", "4", "1", "3"}));
}

TEST(SkelegonSets, ExpandTakesEachRecordOnce) {
  const SkelegonList list = listOf(kForked);
  EXPECT_EQ(namesOf(expandWithChildren({&list[3], &list[0], &list[4]})), (Names{"3", "0", "1", "2", "4"}));
}

TEST(SkelegonSets, ExpandEndsInACircle) {
  const SkelegonList list = listOf({{1, 2}, {2, 1}});
  EXPECT_EQ(namesOf(expandWithChildren({&list[1]})), (Names{"1", "0"}));
}

// The rule as it reads: all descendants of each record, each taken unless it is in already.
SkelegonNodes expandBySearching(const SkelegonNodes& set) {
  SkelegonNodes result;
  const auto take = [&](SkelegonNode* node) {
    if (std::find(result.begin(), result.end(), node) == result.end()) result.push_back(node);
  };
  for (SkelegonNode* const node : set) {
    take(node);
    for (SkelegonNode* const below : descendants(*node)) take(below);
  }
  return result;
}

TEST(SkelegonSets, ExpandIsWhatSearchingGivesOnRandomMeshes) {
  std::mt19937 random(4711);
  for (int mesh = 0; mesh < 300; ++mesh) {
    std::vector<Ends> skelegons(1 + random() % 30);
    for (Ends& ends : skelegons) ends = {1 + random() % 25, 1 + random() % 25};
    const SkelegonList list = listOf(skelegons);
    SkelegonNodes set = list.all();
    std::shuffle(set.begin(), set.end(), random);
    set.resize(random() % (set.size() + 1));
    ASSERT_EQ(namesOf(expandWithChildren(set)), namesOf(expandBySearching(set))) << "mesh " << mesh;
  }
}

}  // namespace
}  // namespace skg::test
