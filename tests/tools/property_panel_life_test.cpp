// The property panel as it opens, switches its pages, closes and opens again, and what it bears meanwhile.
#include <utility>

#include "standin/panels/services.h"
#include "tests/tools/property_panel_fixture.h"
#include "texts/texts.h"

namespace varnel::test {
namespace {

using namespace mst::control;  // NOLINT(google-build-using-namespace): names of controls

// ---------------------------------------------------------------------------------------------------------------------
// Opening

TEST_F(PropertyPanel, OpensWithItsNameItsVersionAndABlankInTheTitle) {
  openWith({"Hips"});
  EXPECT_EQ(panel->title.read(), "Orlo:SkelegonProperty(1.20) ");
}

TEST_F(PropertyPanel, OpensWithoutButtonsAndDoesNotWait) {
  openWith({"Hips"});
  EXPECT_EQ(panel->openFlags, 64);
}

TEST_F(PropertyPanel, Is385By700) {
  openWith({"Hips"});
  EXPECT_EQ(panel->width, 385);
  EXPECT_EQ(panel->height, 700);
}

TEST_F(PropertyPanel, HasItsControlsInTheOrderOfTheirNumbers) {
  openWith({"Hips"});
  ASSERT_EQ(panel->controls.size(), mst::kControlCount);
  for (std::size_t number = 0; number < mst::kControlCount; ++number) {
    EXPECT_EQ(control(number)->label.read(), texts::propertyLabels(texts::Language::English)[number]) << number;
  }
}

TEST_F(PropertyPanel, ChangesNothingByBeingOpened) {
  store("Hips", Slot::Strength, "odd text");
  openWith({"Hips"});
  EXPECT_EQ(changingEdits(), 0U);
}

TEST_F(PropertyPanel, ShowsTheFirstSelectedSkelegon) {
  store("Chest", Slot::Strength, "40.000000");
  openWith({"Tail_01", "Chest"});
  EXPECT_EQ(control(Slot::Strength)->real, 40);
}

// ---------------------------------------------------------------------------------------------------------------------
// What is seen

struct Form {
  std::uint32_t locale;
  Page page;
  Group group;
  Names selected;
};
void PrintTo(const Form& form, std::ostream* out) {
  *out << (form.locale == kEnglish ? "English" : "Japanese") << ", page " << form.page << ", group " << form.group << ", "
       << form.selected.size() << " selected";
}

std::vector<Form> everyForm() {
  std::vector<Form> forms;
  for (const std::uint32_t locale : {kEnglish, kJapanese}) {
    for (const Names& selected : {Names{}, Names{"Hips"}, Names{"Hips", "Chest"}}) {
      for (const Page page : {kGroupPage, kBonePage, kIKPage}) forms.push_back({locale, page, kPositionGroup, selected});
      for (const Group group : {kPositionGroup, kRotationGroup, kScaleGroup})
        forms.push_back({locale, kControllersPage, group, selected});
    }
  }
  return forms;
}

class EveryForm : public testing::TestWithParam<Form>, protected PropertySession {
 protected:
  void openForm() {
    host.options().localeInfo = GetParam().locale;
    openWith(GetParam().selected);
    showPage(GetParam().page);
    if (GetParam().page == kControllersPage) showGroup(GetParam().group);
  }
};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, EveryForm, testing::ValuesIn(everyForm()));

TEST_P(EveryForm, IsClearlyLaidOut) {
  openForm();
  EXPECT_EQ(standin::layoutComplaints(*panel), "");
  EXPECT_TRUE(standin::outside(*panel).empty());
}

TEST_P(EveryForm, IsClearlyLaidOutWhereControlsHavePadding) {
  standin::panels().options.rightPadding = 3;
  openForm();
  EXPECT_EQ(standin::layoutComplaints(*panel), "");
}

TEST_P(EveryForm, ShowsExactlyItsControls) {
  openForm();
  const bool canEdit = GetParam().selected.size() == 1;
  for (std::size_t number = 0; number < mst::kControlCount; ++number) {
    bool expected = mst::isShown(mst::controlTable()[number], GetParam().page, GetParam().group);
    if (number == kNameEdit) expected = canEdit;
    if (number == kNamePopup) expected = !canEdit;
    EXPECT_EQ(isVisible(number), expected) << number;
  }
}

// A host that forgets what was hidden before a panel was open.
TEST_F(PropertyPanel, HidesWhatIsNotSeenAlsoOnceItIsOpen) {
  standin::panels().options.drawBeforeOpenHolds = false;
  openWith({"Hips"});
  EXPECT_TRUE(isVisible(9));
  EXPECT_FALSE(isVisible(13));
  EXPECT_FALSE(isVisible(kNamePopup));
  EXPECT_EQ(standin::layoutComplaints(*panel), "");
}

TEST_F(PropertyPanel, SwitchingPagesTwiceReturnsThePanelToItsFirstWidth) {
  standin::panels().options.sizeNeedsResizable = false;
  openWith({"Hips"});
  showPage(kBonePage);
  EXPECT_EQ(panel->width, 386);
  showPage(kIKPage);
  EXPECT_EQ(panel->width, 385);
  EXPECT_EQ(panel->height, 700);
}

TEST_F(PropertyPanel, SwitchesItsWidthWithTheGroupToo) {
  standin::panels().options.sizeNeedsResizable = false;
  openWith({"Hips"});
  showPage(kControllersPage);
  EXPECT_EQ(panel->width, 386);
  EXPECT_TRUE(person::choose(control(kGroups), kScaleGroup));
  EXPECT_EQ(panel->width, 385);
  EXPECT_TRUE(person::choose(control(kGroups), kRotationGroup));
  EXPECT_EQ(panel->width, 386);
}

// A host that opens panels in sizes of its own.
TEST_F(PropertyPanel, TakesItsSizeAgainOnceItIsOpen) {
  standin::panels().options.sizeNeedsResizable = false;
  static int (*openOfHost)(lw::PanelId, int);
  openOfHost = std::exchange(standin::panelServices()->open, [](lw::PanelId id, int flags) {
    const int answer = openOfHost(id, flags);
    Panel* const opened = standin::panels().find(kPropertyTool);
    opened->width = 500;
    opened->height = 400;
    return answer;
  });
  openWith({"Hips"});
  standin::panelServices()->open = openOfHost;
  EXPECT_EQ(panel->width, 385);
  EXPECT_EQ(panel->height, 700);
}

TEST_F(PropertyPanel, APageBeyondTheTabsChangesNothing) {
  openWith({"Hips"});
  showPage(kBonePage);
  EXPECT_TRUE(standin::oddhost::choose(control(kPages), 4));
  EXPECT_TRUE(standin::oddhost::choose(control(kPages), -1));
  EXPECT_TRUE(isVisible(13));
}

TEST_F(PropertyPanel, KeepsPageAndGroupUntilTheNextRun) {
  openWith({"Hips"});
  showGroup(kScaleGroup);
  ASSERT_TRUE(person::close(panel));
  openTool();
  EXPECT_EQ(control(kPages)->integer, kControllersPage);
  EXPECT_EQ(control(kGroups)->integer, kScaleGroup);
  EXPECT_TRUE(isVisible(159));
}

// ---------------------------------------------------------------------------------------------------------------------
// The name's two controls

TEST_F(PropertyPanel, ListsTheNamesOfSeveralSelectedSkelegons) {
  openWith({"Chest", "Tail_02"});
  EXPECT_EQ(person::menu(control(kNamePopup)), (Names{"Chest", "Tail_02"}));
}

TEST_F(PropertyPanel, HasAnEmptyNameListWhenNothingIsSelected) {
  openWith({});
  EXPECT_TRUE(person::menu(control(kNamePopup)).empty());
}

TEST_F(PropertyPanel, AChosenNameShowsThatSkelegonsSettings) {
  store("Chest", Slot::Strength, "40.000000");
  openWith({"Hips", "Chest"});
  EXPECT_EQ(control(Slot::Strength)->real, 100);
  EXPECT_TRUE(person::choose(control(kNamePopup), "Chest"));
  EXPECT_EQ(control(Slot::Strength)->real, 40);
  EXPECT_EQ(changingEdits(), 0U);
}

TEST_F(PropertyPanel, WritesToAllSelectedSkelegonsWhicheverIsShown) {
  openWith({"Hips", "Chest"});
  EXPECT_TRUE(person::choose(control(kNamePopup), "Chest"));
  enter(Slot::Strength, 40);
  EXPECT_EQ(stored("Hips", Slot::Strength), "40.000000");
  EXPECT_EQ(stored("Chest", Slot::Strength), "40.000000");
}

TEST_F(PropertyPanel, AChosenNameIsKeptOverSyncWhileItIsSelected) {
  store("Chest", Slot::Strength, "40.000000");
  openWith({"Hips", "Chest", "Head"});
  EXPECT_TRUE(person::choose(control(kNamePopup), "Chest"));
  host.select({"Hips", "Chest"});
  sync();
  EXPECT_EQ(control(kNamePopup)->shown(), "Chest");
  EXPECT_EQ(control(Slot::Strength)->real, 40);
}

TEST_F(PropertyPanel, AChosenNameIsKeptOverTheReloadOfAFillButton) {
  openWith({"Hips", "Chest"});
  EXPECT_TRUE(person::choose(control(kNamePopup), "Chest"));
  pressBehind(Slot::TargetItem);
  EXPECT_EQ(control(kNamePopup)->shown(), "Chest");
  EXPECT_EQ(shown(Slot::TargetItem), "Chest_tar");
}

TEST_F(PropertyPanel, TheNameListIsBackAtItsFirstEntryWhenTheChosenOneIsNoLongerSelected) {
  store("Hips", Slot::Strength, "40.000000");
  openWith({"Hips", "Chest", "Head"});
  EXPECT_TRUE(person::choose(control(kNamePopup), "Chest"));
  host.select({"Hips", "Head"});
  sync();
  EXPECT_EQ(control(kNamePopup)->shown(), "Hips");
  EXPECT_EQ(control(Slot::Strength)->real, 40);
  host.select({"Hips", "Chest", "Head"});  // selected again, it is not chosen any more
  sync();
  EXPECT_EQ(control(kNamePopup)->shown(), "Hips");
}

TEST_F(PropertyPanel, EachRunBeginsWithTheFirstName) {
  openWith({"Hips", "Chest"});
  EXPECT_TRUE(person::choose(control(kNamePopup), "Chest"));
  openWith({"Hips", "Chest"});
  EXPECT_EQ(control(kNamePopup)->shown(), "Hips");
}

TEST_F(PropertyPanel, ANameBeyondTheListChangesNothing) {
  openWith({"Hips", "Chest"});
  EXPECT_TRUE(standin::oddhost::choose(control(kNamePopup), 2));
  EXPECT_TRUE(standin::oddhost::choose(control(kNamePopup), -1));
  EXPECT_EQ(shown(Slot::Strength), "100 %");
}

TEST_F(PropertyPanel, TheNameOfADeletedSkelegonLooksAtTheMeshAgain) {
  openWith({"Hips", "Chest"});
  host.deleteSkelegons({"Chest"});
  EXPECT_TRUE(person::choose(control(kNamePopup), "Chest"));
  EXPECT_TRUE(isVisible(kNameEdit));
  EXPECT_EQ(control(kNameEdit)->text, "Hips");
}

// ---------------------------------------------------------------------------------------------------------------------
// Again and again

TEST_F(PropertyPanel, OpensTenTimesWithoutLeavingPanelsBehind) {
  for (int i = 0; i < 10; ++i) {
    openWith({"Hips"});
    ASSERT_TRUE(person::close(panel));
  }
  EXPECT_EQ(standin::panels().all().size(), 1U);
}

TEST_F(PropertyPanel, SpeaksTheLanguageOfItsLastRun) {
  openWith({"Hips"});
  ASSERT_TRUE(person::close(panel));
  host.options().localeInfo = kJapanese;
  openTool();
  EXPECT_EQ(control(kNameEdit)->label.read(), "スケルゴン");
  EXPECT_EQ(person::menu(control(kPages)).front(), "グループ");
}

TEST_F(PropertyPanel, IsMadeAnewWhenItIsRunWhileOpen) {
  openWith({"Hips"});
  const Panel* const first = panel;
  openWith({"Chest"});
  EXPECT_NE(panel, first);
  EXPECT_FALSE(first->isAlive);
  EXPECT_EQ(standin::panels().all().size(), 1U);
  EXPECT_EQ(control(kNameEdit)->text, "Chest");
}

TEST_F(PropertyPanel, SpeaksTheLanguageOfARunWhileItIsOpen) {
  openWith({"Hips"});
  host.options().localeInfo = kJapanese;
  openTool();
  EXPECT_EQ(control(kNameEdit)->label.read(), "スケルゴン");
  EXPECT_EQ(person::menu(control(kPages)).front(), "グループ");
}

TEST_F(PropertyPanel, KeepsPageAndGroupWhenItIsRunWhileOpen) {
  openWith({"Hips"});
  showGroup(kScaleGroup);
  openTool();
  EXPECT_EQ(control(kPages)->integer, kControllersPage);
  EXPECT_EQ(control(kGroups)->integer, kScaleGroup);
  EXPECT_TRUE(isVisible(159));
}

TEST_F(PropertyPanel, AsksForItsOwnServicesOnly) {
  openWith({"Hips"});
  for (const std::string& name : standin::globals().asked()) EXPECT_NE(name, "Texture Editor 3");
}

TEST_F(PropertyPanel, KeepsItsServicesWhenAnotherToolWasRefusedOne) {
  openWith({"Hips"});
  standin::globals().withhold("Scene Objects 9");
  EXPECT_EQ(host.activate(module, kRenamerTool), 2);
  host.select({"Chest"});
  sync();
  EXPECT_EQ(control(kNameEdit)->text, "Chest");
  show(Slot::ParentItem);
  EXPECT_EQ(person::menu(behind(Slot::ParentItem))[1], "[file]:Body");
}

TEST_F(PropertyPanel, WorksAgainAfterTheModuleWasUnloadedWithThePanelOpen) {
  openWith({"Hips"});
  standin::panels().moduleUnloaded();
  module.unload();
  ASSERT_EQ(module.load(standin::modulePath()), "");
  openTool();
  enter(Slot::Strength, 40);
  EXPECT_EQ(stored("Hips", Slot::Strength), "40.000000");
}

TEST_F(PropertyPanel, WorksWithAHostThatCopiesTextsAndCutsThem) {
  standin::panels().options.copiesTexts = true;
  standin::panels().options.terminatesTexts = true;
  openWith({"Hips"});
  type(Slot::TargetItem, "Target");
  EXPECT_EQ(stored("Hips", Slot::TargetItem), "Target");
}

TEST_F(PropertyPanel, StoresLongTextsWhole) {
  const std::string text(1000, 'x');
  openWith({"Hips"});
  type(Slot::TargetItem, text);
  EXPECT_EQ(stored("Hips", Slot::TargetItem), text);
}

TEST_F(PropertyPanel, CutsTextsThatAHostWouldNotHold) {
  openWith({"Hips"});
  type(Slot::TargetItem, std::string(5000, 'x'));
  EXPECT_EQ(stored("Hips", Slot::TargetItem), std::string(4095, 'x'));
}

// ---------------------------------------------------------------------------------------------------------------------
// What a person does meanwhile

constexpr int kActionCount = 11;

// Uses a control of each kind of action.
class AnyAction : public testing::TestWithParam<int>, protected PropertySession {
 protected:
  void act() {
    switch (GetParam()) {
      case 0: return enter(Slot::Strength, 40);
      case 1: return choose(Slot::FalloffType, 1);
      case 2: return choose(Slot::Colour, 3);
      case 3: return pressBehind(Slot::TargetItem);
      case 4: return pressBehind(Slot::WeightMap, 2);
      case 5: return chooseBehind(Slot::WeightMap, "Spine");
      case 6: return chooseBehind(Slot::ParentItem, "(none)");
      case 7: return press(88);
      case 8: host.answer(standin::Answer::Yes); return press(kReset);
      case 9: host.answer(standin::Answer::Yes); return press(kResetAll);
      default: EXPECT_TRUE(standin::oddhost::fire(control(kNameEdit)));
    }
  }
};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, AnyAction, testing::Range(0, kActionCount));

TEST_P(AnyAction, DoesNothingWrongWithoutAnObject) {
  host.closeAll();
  openTool();
  act();
}

TEST_P(AnyAction, DoesNothingWrongAfterTheObjectWasClosed) {
  openWith({"Hips"});
  host.closeAll();
  act();
  sync();
  EXPECT_EQ(control(kNameEdit)->text, "");
  EXPECT_TRUE(isVisible(kNamePopup));
}

TEST_P(AnyAction, LeavesAnotherObjectAlone) {
  openWith({"Hips"});
  const standin::ModelerObject* const first = object;
  object = &host.add(panelRig(), "other.lwo");
  host.showLayers({0, 1});
  host.deselectAll();
  if (GetParam() == 9) return;  // of all: of the object that is there now
  const std::string before = everythingStored();
  act();
  EXPECT_EQ(everythingStored(), before);
  EXPECT_EQ(first->undoSteps(), 0U);
}

TEST_P(AnyAction, DoesNothingWrongAfterItsSkelegonsWereDeleted) {
  openWith({"Hips", "Chest"});
  host.deleteSkelegons({"Hips", "Chest"});
  act();
}

TEST_P(AnyAction, DoesNothingWrongAfterTheLayerWasChanged) {
  openWith({"Hips"});
  host.showLayers({1});
  act();
}

TEST_P(AnyAction, LeavesNoEventToAClosedPanel) {
  openWith({"Hips"});
  const std::string before = everythingStored();
  ASSERT_TRUE(person::close(panel));
  for (std::size_t number = 0; number < mst::kControlCount; ++number) {
    EXPECT_TRUE(standin::oddhost::fire(control(number)));
  }
  EXPECT_EQ(everythingStored(), before);
}

TEST_F(PropertyPanel, WritesToThoseThatAreLeftWhenOneWasDeleted) {
  openWith({"Hips", "Chest"});
  host.deleteSkelegons({"Hips"});
  enter(Slot::Strength, 40);
  EXPECT_EQ(stored("Chest", Slot::Strength), "40.000000");
}

TEST_F(PropertyPanel, ShowsTheSkelegonsOfTheLayerThatIsShownAfterSync) {
  openWith({"Hips"});
  host.showLayers({1});
  host.select({"Tail_01"});
  sync();
  EXPECT_EQ(control(kNameEdit)->text, "Tail_01");
  show(Slot::ParentItem);
  EXPECT_EQ(person::menu(behind(Slot::ParentItem)), (Names{"(none)", "[file]:Body", "[file]:Tail", "Tail_01", "Tail_02"}));
}

TEST_F(PropertyPanel, OffersTheWeightMapsThatAreLeftAfterSync) {
  openWith({"Hips"});
  host.removeWeightMap("Head");
  sync();
  show(Slot::WeightMap);
  EXPECT_EQ(person::menu(behind(Slot::WeightMap)), (Names{"(none)", "Spine"}));
}

// A host may take what is being typed when the panel closes.
TEST_F(PropertyPanel, ShowsAnewWhatClosingTheFormerOneHasWritten) {
  openWith({"Hips"});
  static standin::ModelerObject* edited;
  static void (*closeOfHost)(lw::PanelId);
  edited = object;
  closeOfHost = std::exchange(standin::panelServices()->close, [](lw::PanelId id) {
    edited->setTag(*edited->skelegon("Hips"), skg::SlotTagId(Slot::Strength), "40.000000");
    closeOfHost(id);
  });
  openTool();
  standin::panelServices()->close = closeOfHost;
  show(Slot::Strength);
  EXPECT_EQ(control(Slot::Strength)->real, 40);
}

TEST_F(PropertyPanel, AfterAnUndoTheOldValueIsShownUntilSync) {
  openWith({"Hips"});
  enter(Slot::Strength, 40);
  EXPECT_TRUE(host.undo());
  EXPECT_EQ(shown(Slot::Strength), "40 %");
  sync();
  EXPECT_EQ(shown(Slot::Strength), "100 %");
}

TEST_F(PropertyPanel, ADraggedSliderIsTakenBackStepByStep) {
  openWith({"Hips"});
  show(Slot::Strength);
  EXPECT_TRUE(person::drag(control(Slot::Strength), 60, 4));
  EXPECT_TRUE(host.undo());
  EXPECT_EQ(stored("Hips", Slot::Strength), "70.000000");
}

TEST_F(PropertyPanel, OneUndoTakesBackOneChange) {
  openWith({"Hips", "Chest"});
  const std::string before = everythingStored();
  enter(Slot::Strength, 40);
  EXPECT_TRUE(host.undo());
  EXPECT_EQ(everythingStored(), before);
}

}  // namespace
}  // namespace varnel::test
