// The property panel on hosts that differ in what the interface's documents leave open.
#include <functional>
#include <tuple>

#include "tests/tools/property_panel_fixture.h"

namespace varnel::test {
namespace {

using namespace mst::control;  // NOLINT(google-build-using-namespace): names of controls
using standin::OpenHook;
using standin::OutsideIndex;

standin::PanelOptions& hostOptions() { return standin::panels().options; }

// ---------------------------------------------------------------------------------------------------------------------
// What open answers, and when the hooks come

class AnyOpening : public testing::TestWithParam<std::tuple<int, OpenHook, bool>>, protected PropertySession {
 protected:
  AnyOpening() {
    hostOptions().openAnswer = std::get<0>(GetParam());
    hostOptions().openHook = std::get<1>(GetParam());
    hostOptions().closeCallsHook = std::get<2>(GetParam());
  }
};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, AnyOpening,
                         testing::Combine(testing::Values(0, 1, -1, 77),
                                          testing::Values(OpenHook::Shown, OpenHook::Before, OpenHook::Later),
                                          testing::Bool()));

TEST_P(AnyOpening, TakesWhatTheUserChanges) {
  openWith({"Hips"});
  enter(Slot::Strength, 40);
  EXPECT_EQ(stored("Hips", Slot::Strength), "40.000000");
}

TEST_P(AnyOpening, DestroysNoOpenPanel) {
  for (int i = 0; i < 3; ++i) openWith({"Hips"});
  ASSERT_TRUE(person::close(panel));
  openTool();
  EXPECT_EQ(standin::panels().all().size(), 1U);
}

TEST_P(AnyOpening, HearsNothingOnceItIsClosed) {
  openWith({"Hips"});
  const std::string before = everythingStored();
  ASSERT_TRUE(person::close(panel));
  control(Slot::Strength)->real = 7;
  EXPECT_TRUE(standin::oddhost::fire(control(Slot::Strength)));
  EXPECT_EQ(everythingStored(), before);
}

TEST_P(AnyOpening, HidesWhatIsNotSeenThoughTheHostForgotIt) {
  hostOptions().drawBeforeOpenHolds = false;
  openWith({"Hips"});
  EXPECT_EQ(standin::layoutComplaints(*panel), "");
}

// ---------------------------------------------------------------------------------------------------------------------
// Run again while one of its own events is under way: the host does not let a panel go then.

class RunWithinItsEvent : public PropertyPanel {
 protected:
  // Answers the question that "Reset" asks, after doing something.
  void whenAsked(const std::function<void()>& act) {
    host.showMessagesTo([act](const standin::Message&) {
      act();
      return standin::Answer::No;
    });
  }
};

TEST_F(RunWithinItsEvent, StaysAndLooksAgain) {
  openWith({"Hips"});
  whenAsked([&] {
    host.select({"Chest"});
    EXPECT_EQ(host.activate(module, kPropertyTool), 0);
  });
  press(kReset);
  EXPECT_TRUE(panel->isOpen());
  EXPECT_EQ(control(kNameEdit)->text, "Chest");
}

TEST_F(RunWithinItsEvent, KeepsTheNameThatWasChosen) {
  store("Chest", Slot::Strength, "40.000000");
  openWith({"Hips", "Chest"});
  EXPECT_TRUE(person::choose(control(kNamePopup), "Chest"));
  whenAsked([&] { EXPECT_EQ(host.activate(module, kPropertyTool), 0); });
  press(kReset);
  EXPECT_EQ(control(kNamePopup)->shown(), "Chest");
  EXPECT_EQ(control(Slot::Strength)->real, 40);
}

TEST_F(RunWithinItsEvent, OpensAgainWhatWasClosedMeanwhile) {
  openWith({"Hips"});
  whenAsked([&] {
    ASSERT_TRUE(person::close(panel));
    EXPECT_EQ(host.activate(module, kPropertyTool), 0);
  });
  press(kReset);
  EXPECT_TRUE(panel->isOpen());
  enter(Slot::Strength, 40);
  EXPECT_EQ(stored("Hips", Slot::Strength), "40.000000");
}

// ---------------------------------------------------------------------------------------------------------------------
// Choosers on hosts that fire only when the choice changes

class SilentMenus : public testing::TestWithParam<OutsideIndex>, protected PropertySession {
 protected:
  SilentMenus() {
    hostOptions().repeatedChoiceFires = false;
    hostOptions().outsideIndex = GetParam();
  }
};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, SilentMenus,
                         testing::Values(OutsideIndex::Kept, OutsideIndex::Clamped, OutsideIndex::NotNegative,
                                         OutsideIndex::Ignored));

TEST_P(SilentMenus, TakeNoneAtOnce) {
  store("Hips", lw::kTagBoneWeight, "Spine");
  store("Hips", Slot::ParentItem, "Chest");
  openWith({"Hips"});
  chooseBehind(Slot::WeightMap, "(none)");
  chooseBehind(Slot::ParentItem, "(none)");
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "");
  EXPECT_EQ(stored("Hips", Slot::BoneActive), "0");
  EXPECT_EQ(stored("Hips", Slot::ParentItem), std::nullopt);
}

TEST_P(SilentMenus, TakeEachEntryTwice) {
  openWith({"Hips"});
  show(Slot::ParentItem);
  const Names items = {"(none)", "[file]:Body", "[file]:Tail", "Hips", "Chest", "Head", "Tail_01", "Tail_02"};
  for (const std::string& item : items) {
    const std::string taken = item == "(none)" ? "" : item;
    for (int i = 0; i < 2; ++i) {
      type(Slot::ParentItem, "typed");
      chooseBehind(Slot::ParentItem, item);
      EXPECT_EQ(shown(Slot::ParentItem), taken);
    }
  }
}

TEST_P(SilentMenus, OfferABlankEntryOnlyWhereTheyHaveToRestOnOne) {
  openWith({"Hips"});
  show(Slot::WeightMap);
  Names expected = {"(none)", "Head", "Spine"};
  if (GetParam() == OutsideIndex::Clamped || GetParam() == OutsideIndex::Ignored) expected.emplace_back("");
  EXPECT_EQ(person::menu(behind(Slot::WeightMap)), expected);
}

TEST_P(SilentMenus, TakeEachEntryAfterTheListHasGrownAndShrunk) {
  openWith({"Hips"});
  host.removeWeightMap("Spine");
  sync();
  chooseBehind(Slot::WeightMap, "Head");
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "Head");
  EXPECT_TRUE(host.undo());
  sync();
  chooseBehind(Slot::WeightMap, "Head");
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "Head");
}

// ---------------------------------------------------------------------------------------------------------------------
// Erasing paints over what is there, and sets are not seen

TEST_F(PropertyPanel, ShowsTheNameFieldAfterItsListIsErased) {
  openWith({"Hips", "Chest"});
  for (int i = 0; i < 2; ++i) {
    host.select({"Hips"});
    sync();
    EXPECT_TRUE(isVisible(kNameEdit));
    EXPECT_FALSE(isVisible(kNamePopup));
    host.select({"Hips", "Chest"});
    sync();
    EXPECT_FALSE(isVisible(kNameEdit));
    EXPECT_TRUE(isVisible(kNamePopup));
  }
}

TEST_F(PropertyPanel, ShowsEveryControlOfAPageAfterThoseOfAnotherAreErased) {
  openWith({"Hips"});
  for (const Page page : {kControllersPage, kIKPage, kBonePage, kGroupPage, kIKPage, kControllersPage, kBonePage}) {
    showPage(page);
    for (std::size_t number = 0; number < mst::kControlCount; ++number) {
      if (number == kNamePopup) continue;
      EXPECT_EQ(isVisible(number), mst::isShown(mst::controlTable()[number], page, kPositionGroup)) << page << " " << number;
    }
  }
}

TEST_F(PropertyPanel, DrawsTheValuesThatItSets) {
  hostOptions().setsRepaint = false;
  store("Chest", Slot::Strength, "40.000000");
  openWith({"Hips"});
  show(Slot::WeightMap);
  host.select({"Chest"});
  sync();
  EXPECT_EQ(shown(Slot::Strength), "40 %");
  chooseBehind(Slot::WeightMap, "Spine");
  EXPECT_EQ(shown(Slot::WeightMap), "Spine");
  EXPECT_FALSE(behind(Slot::WeightMap)->stale.has_value());
}

// ---------------------------------------------------------------------------------------------------------------------
// Ranges that hold for typed values

class LimitedFields : public testing::TestWithParam<bool>, protected PropertySession {
 protected:
  LimitedFields() {
    hostOptions().limitsTypedValues = true;
    hostOptions().rangesInValueUnit = GetParam();
  }
};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, LimitedFields, testing::Bool());

TEST_P(LimitedFields, HoldEverySensibleValue) {
  openWith({"Hips"});
  const std::tuple<Slot, double, const char*> typed[] = {{Slot::Strength, 250, "250.000000"},
                                                         {Slot::MuscleFlexAmount, -50, "-50.000000"},
                                                         {Slot::HeadingMin, -90, "-1.570796"},
                                                         {Slot::BankMax, 720, "12.566371"},
                                                         {Slot::RangeMax, 150, "150.000000"},
                                                         {Slot::XPositionMin, -3.5, "-3.500000"},
                                                         {Slot::PathReliableDistance, 2500, "2500.000000"},
                                                         {Slot::ZScaleMax, 1000, "1000.000000"},
                                                         {Slot::IKInitialStateFrame, -12, "-12"}};
  for (const auto& [slot, number, text] : typed) {
    enter(slot, number);
    EXPECT_EQ(stored("Hips", slot), text);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Texts longer than a control holds

class CutTexts : public testing::TestWithParam<std::tuple<bool, std::size_t>>, protected PropertySession {
 protected:
  CutTexts() {
    hostOptions().terminatesTexts = std::get<0>(GetParam());
    hostOptions().longestText = std::get<1>(GetParam());
  }
  std::size_t longest() const {
    const std::size_t buffer = std::get<0>(GetParam()) ? 4094 : 4095;
    return std::get<1>(GetParam()) == 0 ? buffer : std::get<1>(GetParam());
  }
};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, CutTexts, testing::Combine(testing::Bool(), testing::Values(0, 255)));

TEST_P(CutTexts, EndWithAWholeCharacter) {
  openWith({"Hips"});
  for (const std::string beginning : {"", "a", "ab"}) {
    std::string typed = beginning;
    for (int i = 0; i < 2'000; ++i) typed += "骨";
    type(Slot::TargetItem, typed);
    const std::size_t whole = (longest() - beginning.size()) / 3 * 3 + beginning.size();
    EXPECT_EQ(stored("Hips", Slot::TargetItem), typed.substr(0, whole)) << beginning;
  }
}

// Stored by another program, in another encoding: what looks like the beginning of a character at the end is none.
TEST_P(CutTexts, AreOnlyThoseThatWereCut) {
  const std::string odd = "caf\xE9";
  store("Hips", Slot::TargetItem, odd);
  openWith({"Hips"});
  show(Slot::TargetItem);
  EXPECT_TRUE(standin::oddhost::fire(control(Slot::TargetItem)));
  EXPECT_EQ(stored("Hips", Slot::TargetItem), odd);
  type(Slot::TargetItem, "more " + odd);
  EXPECT_EQ(stored("Hips", Slot::TargetItem), "more " + odd);
}

TEST_P(CutTexts, AreShownInWholeCharacters) {
  std::string text = "ab";
  for (int i = 0; i < 2'000; ++i) text += "骨";
  store("Hips", Slot::TargetItem, text);
  openWith({"Hips"});
  if (std::get<1>(GetParam()) == 0) {
    EXPECT_EQ(control(Slot::TargetItem)->text, text.substr(0, 4094));
  }
  EXPECT_EQ(stored("Hips", Slot::TargetItem), text);
}

}  // namespace
}  // namespace varnel::test
