// Which skelegons an advanced run renames, and how it counts them.
#include "modeler/renamer/rename_targets.h"

#include <gtest/gtest.h>

#include "tests/unit/skelegon_fixture.h"

namespace varnel::test {
namespace {

using mst::chooseTargets;
using mst::firstDuplicate;
using mst::RenameTarget;
using mst::setCounters;
using skg::SkelegonList;
using skg::SkelegonNodes;
using skg::test::listOf;
using skg::test::Names;
using skg::test::namesOf;
using skg::test::polygon;
using Polygons = std::vector<skg::PolygonId>;

//   0 - 1 - 2        6 - 7
//     \ 3 - 4
//         \ 5
SkelegonList branching() { return listOf({{1, 2}, {2, 3}, {3, 4}, {2, 5}, {5, 6}, {5, 7}, {20, 21}, {21, 22}}); }

Polygons polygons(std::initializer_list<int> names) {
  Polygons list;
  for (const int name : names) list.push_back(polygon(static_cast<std::uintptr_t>(name) + 1));
  return list;
}

SkelegonNodes nodes(const SkelegonList& list, std::initializer_list<int> names) { return list.resolve(polygons(names)); }

// "column:row" of each.
Names countersOf(const SkelegonNodes& targets) {
  Names counters;
  for (const skg::SkelegonNode* node : targets)
    counters.push_back(std::to_string(node->column) + ":" + std::to_string(node->row));
  return counters;
}

// ---------------------------------------------------------------------------------------------------------------------
// Targets

TEST(RenameTargets, OfASelectionAreTheSelectedOnesAndTheirHeads) {
  const SkelegonList list = branching();
  const auto [targets, heads] = chooseTargets(RenameTarget::Selection, list, polygons({4, 1, 2, 7}), polygons({0}));
  EXPECT_EQ(namesOf(targets), (Names{"4", "1", "2", "7"}));
  EXPECT_EQ(namesOf(heads), (Names{"4", "1", "7"}));
}

TEST(RenameTargets, OfARegistrationAreAllHeads) {
  const SkelegonList list = branching();
  const auto [targets, heads] = chooseTargets(RenameTarget::Registration, list, polygons({7}), polygons({2, 1, 0}));
  EXPECT_EQ(namesOf(targets), (Names{"2", "1", "0"}));
  EXPECT_EQ(namesOf(heads), (Names{"2", "1", "0"}));
}

TEST(RenameTargets, OfARegistrationWithChildrenHaveTheRegisteredOnesAsHeads) {
  const SkelegonList list = branching();
  const auto [targets, heads] = chooseTargets(RenameTarget::RegistrationAndChildren, list, {}, polygons({6, 3}));
  EXPECT_EQ(namesOf(targets), (Names{"6", "7", "3", "4", "5"}));
  EXPECT_EQ(namesOf(heads), (Names{"6", "3"}));
}

TEST(RenameTargets, OfARegistrationWithChildrenHaveARegisteredChildAsAHeadToo) {
  const SkelegonList list = branching();
  const auto [targets, heads] = chooseTargets(RenameTarget::RegistrationAndChildren, list, {}, polygons({0, 3}));
  EXPECT_EQ(namesOf(targets), (Names{"0", "1", "3", "2", "4", "5"}));
  EXPECT_EQ(namesOf(heads), (Names{"0", "3"}));
}

TEST(RenameTargets, OfAllAreAll) {
  const SkelegonList list = branching();
  const auto [targets, heads] = chooseTargets(RenameTarget::All, list, polygons({3}), polygons({2}));
  EXPECT_EQ(targets.size(), 8U);
  EXPECT_EQ(namesOf(heads), (Names{"0", "6"}));
}

TEST(RenameTargets, LeaveOutWhatIsNotThere) {
  const SkelegonList list = branching();
  for (const RenameTarget choice :
       {RenameTarget::Selection, RenameTarget::Registration, RenameTarget::RegistrationAndChildren}) {
    const auto [targets, heads] = chooseTargets(choice, list, polygons({99, 2}), polygons({99, 2}));
    EXPECT_EQ(namesOf(targets), (Names{"2"}));
    EXPECT_EQ(namesOf(heads), (Names{"2"}));
  }
}

TEST(RenameTargets, OfAnUnknownChoiceAreNone) {
  const SkelegonList list = branching();
  EXPECT_TRUE(chooseTargets(static_cast<RenameTarget>(4), list, polygons({1}), polygons({1})).heads.empty());
  EXPECT_TRUE(chooseTargets(static_cast<RenameTarget>(-1), list, polygons({1}), polygons({1})).heads.empty());
}

TEST(RenameTargets, OfNothingAreNone) {
  const SkelegonList list;
  EXPECT_TRUE(chooseTargets(RenameTarget::All, list, {}, {}).targets.empty());
}

// ---------------------------------------------------------------------------------------------------------------------
// Counters

TEST(RenameCounters, CountTheStepsUpToTheHead) {
  const SkelegonList list = branching();
  setCounters(list.all(), nodes(list, {0, 6}));
  EXPECT_EQ(countersOf(list.all()), (Names{"0:0", "0:1", "0:2", "0:1", "0:2", "0:2", "1:0", "1:1"}));
}

TEST(RenameCounters, FollowTheOrderOfTheHeads) {
  const SkelegonList list = branching();
  setCounters(list.all(), nodes(list, {6, 0}));
  EXPECT_EQ(countersOf(nodes(list, {0, 7})), (Names{"1:0", "0:1"}));
}

TEST(RenameCounters, EndAtTheNearestHead) {
  const SkelegonList list = branching();
  setCounters(nodes(list, {0, 1, 3, 5}), nodes(list, {0, 3}));
  EXPECT_EQ(countersOf(nodes(list, {0, 1, 3, 5})), (Names{"0:0", "0:1", "1:0", "1:1"}));
}

TEST(RenameCounters, GoThroughSkelegonsThatAreNoTargets) {
  const SkelegonList list = branching();
  setCounters(nodes(list, {5, 0}), nodes(list, {0}));
  EXPECT_EQ(countersOf(nodes(list, {5, 0, 3})), (Names{"0:2", "0:0", "0:0"}));
}

TEST(RenameCounters, StayWhereNoHeadIsAbove) {
  const SkelegonList list = branching();
  setCounters(nodes(list, {1, 7}), nodes(list, {3, 6}));
  EXPECT_EQ(countersOf(nodes(list, {1, 7})), (Names{"0:0", "1:1"}));
}

TEST(RenameCounters, EndInARing) {
  const SkelegonList list = listOf({{1, 2}, {2, 3}, {3, 1}, {3, 9}});
  setCounters(list.all(), {});
  EXPECT_EQ(countersOf(list.all()), (Names{"0:0", "0:0", "0:0", "0:0"}));
}

TEST(RenameCounters, EndAtASkelegonThatIsItsOwnChild) {
  const SkelegonList list = listOf({{1, 1}});
  setCounters(list.all(), {});
  EXPECT_EQ(countersOf(list.all()), (Names{"0:0"}));
}

TEST(RenameCounters, FindAHeadInARing) {
  const SkelegonList list = listOf({{1, 2}, {2, 3}, {3, 1}});
  setCounters(list.all(), nodes(list, {1}));
  EXPECT_EQ(countersOf(list.all()), (Names{"0:2", "0:0", "0:1"}));
}

TEST(RenameCounters, WalkAVeryLongChainOnce) {
  constexpr std::uintptr_t kCount = 20'000;
  std::vector<skg::test::Ends> ends;
  for (std::uintptr_t i = 0; i < kCount; ++i) ends.push_back({i + 1, i + 2});
  const SkelegonList list = listOf(ends);
  setCounters(list.all(), {&list[0]});
  EXPECT_EQ(list[kCount - 1].row, kCount - 1);
}

// ---------------------------------------------------------------------------------------------------------------------
// Duplicates

TEST(RenameDuplicates, AreTheFirstNameThatComesAgain) {
  EXPECT_EQ(firstDuplicate({"1", "2", "3", "2", "1"}), "2");
  EXPECT_EQ(firstDuplicate({"1", "2", "3"}), std::nullopt);
  EXPECT_EQ(firstDuplicate({}), std::nullopt);
}

}  // namespace
}  // namespace varnel::test
