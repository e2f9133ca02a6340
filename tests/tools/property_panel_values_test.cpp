// Every value control: what it shows of a skelegon, and what of it is stored.
#include <cmath>
#include <numbers>

#include "skelegon/slot_table.h"
#include "tests/tools/property_panel_fixture.h"

namespace varnel::test {
namespace {

using skg::SlotKind;

std::vector<Slot> everySetting() {
  std::vector<Slot> slots;
  for (const skg::SlotRow& row : skg::kSlotTable) {
    if (row.kind != SlotKind::Reserved && row.slot != Slot::Name) slots.push_back(row.slot);
  }
  return slots;
}

bool isReal(SlotKind kind) {
  return kind == SlotKind::Percent || kind == SlotKind::Distance || kind == SlotKind::Number || kind == SlotKind::Angle;
}
bool isText(SlotKind kind) {
  return kind == SlotKind::ItemName || kind == SlotKind::ObjectName || kind == SlotKind::WeightMapName;
}

// The bone's own colour is stored by a rule of its own.
std::vector<Slot> everyPlainSetting() {
  std::vector<Slot> slots = everySetting();
  std::erase(slots, Slot::Colour);
  return slots;
}

// Their defaults are not spelled as the panel writes numbers, so that the panel always stores them.
bool isAlwaysStored(Slot slot) {
  return slot == Slot::JointCompAmount || slot == Slot::IKFKBlending || slot == Slot::PathMaxSteps ||
         slot == Slot::YScaleMin;
}

std::string nameOf(const testing::TestParamInfo<Slot>& info) { return "Slot" + std::to_string(skg::indexOf(info.param)); }

void expectShown(const standin::Control& shownIn, SlotKind kind, const std::string& text) {
  if (isText(kind)) {
    EXPECT_EQ(shownIn.text, text) << shownIn.describe();
  } else if (isReal(kind)) {
    EXPECT_EQ(shownIn.real, std::stod(text)) << shownIn.describe();
  } else if (kind == SlotKind::Colour) {
    EXPECT_EQ(skg::BoneColourNames[static_cast<std::size_t>(shownIn.integer)], text) << shownIn.describe();
  } else {
    EXPECT_EQ(shownIn.integer, std::stoi(text)) << shownIn.describe();
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Shown

class AllSettings : public PropertyPanel {
 protected:
  // The same text in all of them.
  void storeEverywhere(const std::string& text) {
    for (const Slot slot : everySetting()) store("Hips", slot, text);
  }
};

TEST_F(AllSettings, ShowTheirDefaultsForASkelegonWithoutTags) {
  openWith({"Hips"});
  for (const Slot slot : everySetting()) expectShown(*control(slot), rowOf(slot).kind, rowOf(slot).defaultText);
}

TEST_F(AllSettings, ShowTheirDefaultsWhenNothingIsSelected) {
  storeEverywhere("1");
  openWith({});
  for (const Slot slot : everySetting()) expectShown(*control(slot), rowOf(slot).kind, rowOf(slot).defaultText);
}

TEST_F(AllSettings, ShowTheirDefaultsForEmptyTags) {
  storeEverywhere("");
  openWith({"Hips"});
  for (const Slot slot : everySetting()) expectShown(*control(slot), rowOf(slot).kind, rowOf(slot).defaultText);
}

TEST_F(AllSettings, ShowWhatIsStored) {
  const auto text = [](SlotKind kind) { return kind == SlotKind::Colour ? "Green" : isText(kind) ? "Name" : "1"; };
  for (const Slot slot : everySetting()) store("Hips", slot, text(rowOf(slot).kind));
  openWith({"Hips"});
  for (const Slot slot : everySetting()) expectShown(*control(slot), rowOf(slot).kind, text(rowOf(slot).kind));
}

TEST_F(AllSettings, ShowZeroAndOrangeForTextThatIsNeitherNumberNorColour) {
  storeEverywhere("odd text");
  openWith({"Hips"});
  for (const Slot slot : everySetting()) {
    const SlotKind kind = rowOf(slot).kind;
    if (kind == SlotKind::Colour) {
      EXPECT_EQ(control(slot)->integer, 13);  // deliberate: what is no colour shows as orange
    } else {
      expectShown(*control(slot), kind, isText(kind) ? "odd text" : "0");
    }
  }
}

TEST_F(AllSettings, ShowTheNumberThatAnOddTextBeginsWith) {
  storeEverywhere("1 and more");
  openWith({"Hips"});
  for (const Slot slot : everySetting()) {
    const SlotKind kind = rowOf(slot).kind;
    if (!isText(kind) && kind != SlotKind::Colour) expectShown(*control(slot), kind, "1");
  }
}

TEST_F(AllSettings, LeaveOddTextAloneUntilTheyAreChanged) {
  storeEverywhere("odd text");
  const std::string before = everythingStored();
  openWith({"Hips"});
  sync();
  enter(Slot::Strength, 5);
  EXPECT_EQ(stored("Hips", Slot::Strength), "5.000000");
  store("Hips", Slot::Strength, "odd text");
  EXPECT_EQ(everythingStored(), before);
}

// ---------------------------------------------------------------------------------------------------------------------
// Stored

class EverySetting : public testing::TestWithParam<Slot>, protected PropertySession {
 protected:
  EverySetting() : slot(GetParam()), kind(rowOf(slot).kind), defaultText(rowOf(slot).defaultText) {}

  // A number as the control's field takes it.
  void enterNumber(double number) { enter(slot, kind == SlotKind::Angle ? number * 180 / std::numbers::pi : number); }

  // Uses the control so that it shows something else than before. Gives the text that is to be stored then.
  std::string change() {
    if (isText(kind)) {
      type(slot, "Ärm \"L\" 100%d");
      return "Ärm \"L\" 100%d";
    }
    if (isReal(kind)) {
      enterNumber(2.5);
      return "2.500000";
    }
    if (kind == SlotKind::Integer) {
      enter(slot, 7);
      return "7";
    }
    if (kind == SlotKind::Flag) {
      toggle(slot);
      return defaultText == "0" ? "1" : "0";
    }
    if (kind == SlotKind::Colour) {
      choose(slot, 4);
      return "DkRed";
    }
    show(slot);
    const auto count = static_cast<int>(person::menu(control(slot)).size());
    const int other = (std::stoi(defaultText) + 1) % count;
    choose(slot, other);
    return std::to_string(other);
  }

  // Uses the control so that it shows the default again.
  void changeBack() {
    if (isText(kind)) return type(slot, "");
    if (isReal(kind)) return enterNumber(std::stod(defaultText));
    if (kind == SlotKind::Integer) return enter(slot, std::stod(defaultText));
    if (kind == SlotKind::Flag) return toggle(slot);
    choose(slot, kind == SlotKind::Colour ? 15 : std::stoi(defaultText));
  }

  const Slot slot;
  const SlotKind kind;
  const std::string defaultText;
};

INSTANTIATE_TEST_SUITE_P(PropertyPanel, EverySetting, testing::ValuesIn(everyPlainSetting()), nameOf);

TEST_P(EverySetting, IsStoredInOneStepWhenItChanges) {
  openWith({"Hips"});
  const std::size_t steps = object->undoSteps();
  const std::string text = change();
  EXPECT_EQ(stored("Hips", slot), text);
  EXPECT_EQ(changingEdits(), 1U);
  EXPECT_EQ(object->undoSteps(), steps + 1);
}

TEST_P(EverySetting, GoesToAllSelectedSkelegonsAndChangesNothingElse) {
  openWith({"Hips", "Chest", "Head", "Tail_01", "Tail_02"});
  const std::string before = everythingStored();
  const std::string text = change();
  for (const standin::MeshPolygon* polygon : object->skelegons()) {
    EXPECT_EQ(polygon->tag(skg::SlotTagId(slot)), text);
    object->setTag(*polygon, skg::SlotTagId(slot), std::nullopt);
  }
  EXPECT_EQ(everythingStored(), before);
}

TEST_P(EverySetting, IsNotStoredWhenItIsTheDefaultAgain) {
  openWith({"Hips"});
  change();
  changeBack();
  if (slot == Slot::WeightMap) {
    EXPECT_EQ(stored("Hips", slot), "");  // the host's own tag stays, blank
  } else {
    EXPECT_EQ(stored("Hips", slot).has_value(), isAlwaysStored(slot));
  }
}

TEST_P(EverySetting, ComesBackWhenTheToolIsRunAgain) {
  openWith({"Hips"});
  const std::string text = change();
  ASSERT_TRUE(person::close(panel));
  openTool();
  expectShown(*control(slot), kind, text);
}

TEST_P(EverySetting, ReachesNoSkelegonWhenNothingIsSelected) {
  openWith({});
  const std::string before = everythingStored();
  change();
  EXPECT_EQ(everythingStored(), before);
}

TEST_P(EverySetting, ShowsItsDefaultAgainWhenNothingIsSelected) {
  openWith({});
  change();
  expectShown(*control(slot), kind, defaultText);
}

TEST_P(EverySetting, ShowsWhatWasStoredLastAfterARefusedChange) {
  openWith({"Hips"});
  const std::string text = change();
  standin::witness().refuseNext("LWModCommand::editBegin2");
  changeBack();
  EXPECT_TRUE(standin::witness().refusalHappened());
  expectShown(*control(slot), kind, text);
}

// ---------------------------------------------------------------------------------------------------------------------
// Settings with a rule of their own

TEST_F(PropertyPanel, StoresTheDefaultOfFourSettingsThatAreNotSpelledAsThePanelWritesThem) {
  openWith({"Hips"});
  const std::pair<Slot, double> odd[] = {
      {Slot::JointCompAmount, 100}, {Slot::IKFKBlending, 0}, {Slot::PathMaxSteps, 10}, {Slot::YScaleMin, 0}};
  for (const auto& [slot, number] : odd) {
    enter(slot, 50);
    enter(slot, number);
  }
  EXPECT_EQ(stored("Hips", Slot::JointCompAmount), "100.000000");
  EXPECT_EQ(stored("Hips", Slot::IKFKBlending), "0.000000");
  EXPECT_EQ(stored("Hips", Slot::PathMaxSteps), "10.000000");
  EXPECT_EQ(stored("Hips", Slot::YScaleMin), "0.000000");
}

TEST_F(PropertyPanel, SettingStrengthBackTo100RemovesItsTag) {
  openWith({"Hips"});
  enter(Slot::Strength, 62.5);
  EXPECT_EQ(stored("Hips", Slot::Strength), "62.500000");
  enter(Slot::Strength, 100);
  EXPECT_EQ(stored("Hips", Slot::Strength), std::nullopt);
}

TEST_F(PropertyPanel, TheGreatestYPositionIsZeroByDefault) {
  openWith({"Hips"});
  EXPECT_EQ(control(Slot::YPositionMax)->real, 0);
  EXPECT_EQ(control(Slot::YScaleMax)->real, 0);
}

// The default limits are cut after six digits; half a turn that is typed is rounded, so it is another text.
TEST_F(PropertyPanel, ATypedHalfTurnIsStored) {
  openWith({"Hips"});
  enter(Slot::HeadingMax, 90);
  EXPECT_EQ(stored("Hips", Slot::HeadingMax), "1.570796");
  enter(Slot::HeadingMax, 180);
  EXPECT_EQ(stored("Hips", Slot::HeadingMax), "3.141593");
}

TEST_F(PropertyPanel, ADistanceIsStoredInMetresWhateverUnitIsTyped) {
  openWith({"Hips"});
  type(Slot::RangeMax, "150 mm");
  EXPECT_EQ(stored("Hips", Slot::RangeMax), "0.150000");
}

TEST_F(PropertyPanel, FramesBelowZeroAndFarAboveItAreStored) {
  openWith({"Hips"});
  for (const int frame : {-1, -5000, 11, 250, 99999}) {
    enter(Slot::IKInitialStateFrame, frame);
    EXPECT_EQ(stored("Hips", Slot::IKInitialStateFrame), std::to_string(frame));
  }
}

TEST_F(PropertyPanel, AValueEnteredWithNothingSelectedIsNotShown) {
  openWith({});
  enter(Slot::Strength, 40);
  EXPECT_EQ(shown(Slot::Strength), "100 %");
  type(Slot::ParentItem, "Root");
  EXPECT_EQ(shown(Slot::ParentItem), "");
}

TEST_F(PropertyPanel, AChoiceMadeWithNothingSelectedIsNotShown) {
  openWith({});
  show(Slot::ParentItem);
  chooseBehind(Slot::ParentItem, "Chest");
  EXPECT_EQ(shown(Slot::ParentItem), "");
  show(Slot::WeightMap);
  chooseBehind(Slot::WeightMap, "(none)");
  EXPECT_EQ(control(Slot::BoneActive)->integer, 1);
}

TEST_F(PropertyPanel, AValueForASkelegonThatWasDeletedIsNotShown) {
  openWith({"Hips"});
  host.deleteSkelegons({"Hips"});
  enter(Slot::Strength, 40);
  EXPECT_EQ(shown(Slot::Strength), "100 %");
}

TEST_F(PropertyPanel, ANameForASkelegonThatWasDeletedIsNotShown) {
  openWith({"Hips"});
  host.deleteSkelegons({"Hips"});
  EXPECT_TRUE(person::type(control(mst::control::kNameEdit), "Pelvis"));
  EXPECT_FALSE(isVisible(mst::control::kNameEdit));
  EXPECT_TRUE(person::menu(control(mst::control::kNamePopup)).empty());
}

// The panel finds out when it writes.
TEST_F(PropertyPanel, AValueThatNotAllHaveTakenIsShownWithTheSettingsOfThoseThatAreLeft) {
  store("Hips", Slot::IconSize, "60.000000");
  openWith({"Hips", "Chest"});
  host.deleteSkelegons({"Hips"});
  enter(Slot::Strength, 40);
  EXPECT_EQ(shown(Slot::Strength), "40 %");
  EXPECT_EQ(shown(Slot::IconSize), "100 %");
  EXPECT_EQ(control(mst::control::kNameEdit)->text, "Chest");
}

TEST_F(PropertyPanel, EachStepOfADraggedSliderIsStored) {
  openWith({"Hips"});
  show(Slot::Strength);
  EXPECT_TRUE(person::drag(control(Slot::Strength), 60, 4));
  EXPECT_EQ(stored("Hips", Slot::Strength), "60.000000");
  EXPECT_EQ(changingEdits(), 4U);
}

// What a host makes of an index outside a list is not known: it gets none. Nothing is lost meanwhile.
TEST_F(PropertyPanel, AStoredChoiceOutsideItsListShowsAsTheDefaultAndStays) {
  for (const char* const odd : {"99", "8", "-1", "-2000000000"}) {
    store("Hips", Slot::FalloffType, odd);
    openWith({"Hips"});
    for (const Page page : {kGroupPage, kBonePage, kIKPage, kControllersPage}) showPage(page);
    EXPECT_EQ(control(Slot::FalloffType)->integer, 4) << odd;
    EXPECT_EQ(stored("Hips", Slot::FalloffType), odd);
  }
}

TEST_F(PropertyPanel, AChoiceTakesThePlaceOfAStoredOneOutsideItsList) {
  store("Hips", Slot::FalloffType, "99");
  openWith({"Hips"});
  choose(Slot::FalloffType, 7);
  EXPECT_EQ(stored("Hips", Slot::FalloffType), "7");
}

TEST_F(AllSettings, GiveNoListAnIndexOutsideIt) {
  storeEverywhere("1000");
  openWith({"Hips"});
  for (const Slot slot : everySetting()) {
    if (rowOf(slot).kind != SlotKind::Choice) continue;
    show(slot);
    EXPECT_LT(static_cast<std::size_t>(control(slot)->integer), person::menu(control(slot)).size())
        << control(slot)->describe();
  }
}

class ObjectWide : public testing::TestWithParam<Slot>, protected PropertySession {};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, ObjectWide,
                         testing::Values(Slot::UseBonesFromObject, Slot::FalloffType, Slot::BoneCalc, Slot::LimitBoneNum),
                         nameOf);

TEST_P(ObjectWide, GoesToEverySkelegonOfALayerThatHasASelectedOne) {
  openWith({"Chest"});
  switch (GetParam()) {
    case Slot::UseBonesFromObject: type(GetParam(), "1"); break;
    case Slot::LimitBoneNum: enter(GetParam(), 1); break;
    default: choose(GetParam(), 1); break;
  }
  for (const char* name : {"Hips", "Chest", "Head"}) EXPECT_EQ(stored(name, GetParam()), "1") << name;
  for (const char* name : {"Tail_01", "Tail_02"}) EXPECT_EQ(stored(name, GetParam()), std::nullopt) << name;
}

TEST_P(ObjectWide, ReachesNoneWhenNothingIsSelected) {
  openWith({});
  const std::string before = everythingStored();
  show(GetParam());
  EXPECT_TRUE(standin::oddhost::fire(control(GetParam())));
  EXPECT_EQ(everythingStored(), before);
}

// ---------------------------------------------------------------------------------------------------------------------
// The bone's colour

class BoneColour : public testing::TestWithParam<int>, protected PropertySession {};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, BoneColour, testing::Range(0, 16));

TEST_P(BoneColour, IsStoredTwiceButForTheTwoCyans) {
  openWith({"Hips"});
  choose(Slot::Colour, GetParam());
  const std::string word(skg::BoneColourNames[static_cast<std::size_t>(GetParam())]);
  const bool isCyan = word == "DkCyn" || word == "Cyan";  // deliberately kept from the host's own tag
  EXPECT_EQ(stored("Hips", skg::kColourCopyTag), word);
  EXPECT_EQ(stored("Hips", lw::kTagColour), isCyan ? "" : word);
  EXPECT_EQ(changingEdits(), 1U);
}

TEST_P(BoneColour, ComesBackFromWhatIsStored) {
  openWith({"Hips"});
  choose(Slot::Colour, GetParam());
  sync();
  EXPECT_EQ(control(Slot::Colour)->integer, GetParam());
}

TEST_F(PropertyPanel, TheBonesColourIsModelersByDefault) {
  openWith({"Hips"});
  EXPECT_EQ(shown(Slot::Colour), "Modeler Setting");
}

TEST_F(PropertyPanel, ABonesColourThatOnlyTheCopyHoldsIsShown) {
  store("Hips", lw::kTagColour, "");
  store("Hips", skg::kColourCopyTag, "Blue");
  openWith({"Hips"});
  EXPECT_EQ(control(Slot::Colour)->integer, 8);
}

TEST_F(PropertyPanel, AnUnknownBoneColourShowsAsOrangeAndStays) {
  store("Hips", lw::kTagColour, "Pink");
  openWith({"Hips"});
  EXPECT_EQ(control(Slot::Colour)->integer, 13);
  EXPECT_EQ(stored("Hips", lw::kTagColour), "Pink");
}

TEST_F(PropertyPanel, AColourIndexBeyondTheListStoresNoWord) {
  openWith({"Hips"});
  show(Slot::TargetColour);
  EXPECT_TRUE(standin::oddhost::choose(control(Slot::TargetColour), 16));
  EXPECT_EQ(stored("Hips", Slot::TargetColour), std::nullopt);
}

// ---------------------------------------------------------------------------------------------------------------------
// The name

TEST_F(PropertyPanel, ANewNameIsStoredAsNameAndAsPart) {
  openWith({"Hips"});
  EXPECT_TRUE(person::type(control(mst::control::kNameEdit), "Pelvis"));
  EXPECT_EQ(stored("Pelvis", lw::kTagBone), "Pelvis");
  EXPECT_EQ(stored("Pelvis", lw::kTagPart), "Pelvis");
  EXPECT_EQ(changingEdits(), 1U);
}

TEST_F(PropertyPanel, AnEmptyNameBlanksBothTags) {
  openWith({"Hips"});
  EXPECT_TRUE(person::type(control(mst::control::kNameEdit), ""));
  EXPECT_EQ(stored("", lw::kTagBone), "");
  EXPECT_EQ(stored("", lw::kTagPart), "");
}

TEST_F(PropertyPanel, ASkelegonWithoutANameTagShowsNoName) {
  store("Hips", lw::kTagBone, std::nullopt);
  host.selectPolygons({object->skelegons().front()});
  openTool();
  EXPECT_EQ(control(mst::control::kNameEdit)->text, "");
}

TEST_F(PropertyPanel, ANewNameIsOfferedByTheChoosersAtOnce) {
  openWith({"Hips"});
  EXPECT_TRUE(person::type(control(mst::control::kNameEdit), "Pelvis"));
  show(Slot::ParentItem);
  EXPECT_EQ(person::menu(behind(Slot::ParentItem))[3], "Pelvis");
}

}  // namespace
}  // namespace varnel::test
