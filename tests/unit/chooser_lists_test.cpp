#include "modeler/property/chooser_lists.h"

#include <gtest/gtest.h>

#include <climits>

namespace mst {
namespace {

constexpr ChooserList kItems = ChooserList::Items;

TEST(ChooserLists, OfferNoneBeforeTheWeightMaps) {
  EXPECT_EQ(weightMapChoices({"Arm", "Leg"}), (ChooserTexts{"(none)", "Arm", "Leg"}));
}

TEST(ChooserLists, OfferLayersAsItemsOfTheFileAndThenTheSkelegons) {
  EXPECT_EQ(itemChoices({"Body", "Layer2"}, {"Hips", "Chest"}),
            (ChooserTexts{"(none)", "[file]:Body", "[file]:Layer2", "Hips", "Chest"}));
}

TEST(ChooserLists, ChooseTheTextOfAnEntryAndNothingForNone) {
  CChooserLists lists;
  lists.set(kItems, itemChoices({"Body"}, {"Hips"}));
  EXPECT_EQ(lists.chosen(kItems, 0), "");
  EXPECT_EQ(lists.chosen(kItems, 1), "[file]:Body");
  EXPECT_EQ(lists.chosen(kItems, 2), "Hips");
}

TEST(ChooserLists, GiveAnEmptyTextForAnyOtherIndex) {
  CChooserLists lists;
  lists.set(kItems, itemChoices({}, {"Hips"}));
  for (const int index : {-1, 2, INT_MAX, INT_MIN}) {
    EXPECT_STREQ(lists.name(kItems, index), "") << index;
    EXPECT_EQ(lists.chosen(kItems, index), "") << index;
  }
}

TEST(ChooserLists, AreEmptyAtFirst) {
  const CChooserLists lists;
  EXPECT_EQ(lists.count(ChooserList::SelectedNames), 0);
  EXPECT_STREQ(lists.name(ChooserList::SelectedNames, 0), "");
}

TEST(ChooserLists, KeepATextAliveThatTheHostGotBeforeTheListChanged) {
  CChooserLists lists;
  lists.set(kItems, {"(none)", "a name long enough to lie in memory of its own"});
  const char* const held = lists.name(kItems, 1);
  for (int i = 0; i < 100; ++i) lists.set(kItems, {"(none)", std::to_string(i)});
  lists.clearLists();
  EXPECT_STREQ(held, "a name long enough to lie in memory of its own");
}

TEST(ChooserLists, HoldEqualNamesAsOftenAsTheyAreThere) {
  CChooserLists lists;
  lists.set(kItems, {"(none)", "Bone", "Bone"});
  EXPECT_EQ(lists.count(kItems), 3);
  EXPECT_EQ(lists.chosen(kItems, 2), "Bone");
}

TEST(ChooserLists, EndWithABlankEntryForAHostThatNeedsOne) {
  CChooserLists lists;
  lists.set(ChooserList::WeightMaps, {"(none)", "Head"});
  lists.endWithBlank(ChooserList::WeightMaps);
  lists.endWithBlank(ChooserList::WeightMaps);
  EXPECT_EQ(lists.count(ChooserList::WeightMaps), 3);
  EXPECT_STREQ(lists.name(ChooserList::WeightMaps, 2), "");
  EXPECT_EQ(lists.chosen(ChooserList::WeightMaps, 2), "");
  EXPECT_EQ(lists.count(ChooserList::Items), 0);
  lists.set(ChooserList::WeightMaps, {"(none)"});
  EXPECT_EQ(lists.count(ChooserList::WeightMaps), 2);
}

}  // namespace
}  // namespace mst
