// The renamer panel as it opens, changes its layout, registers skelegons, closes and opens again.
#include <algorithm>

#include "modeler/renamer/renamer_layout.h"
#include "tests/tools/renamer_fixture.h"
#include "texts/texts.h"

namespace varnel::test {
namespace {

// ---------------------------------------------------------------------------------------------------------------------
// Opening

TEST_F(Renamer, OpensWithItsNameItsVersionAndABlankInTheTitle) {
  openTool();
  EXPECT_EQ(panel->title.read(), "Orlo:SkelegonRenamer(1.20) ");
}

TEST_F(Renamer, OpensWithoutButtonsAndSoThatItsSizeCanChange) {
  openTool();
  EXPECT_EQ(panel->openFlags, 64 + 128);
}

TEST_F(Renamer, OpensInTheModeChange) {
  openTool();
  EXPECT_EQ(at(Item::Mode)->shown(), "Change");
  EXPECT_EQ(panel->width, 320);
  EXPECT_EQ(panel->height, 130);
}

TEST_F(Renamer, HasItsControlsInTheOrderOfTheTable) {
  openTool();
  ASSERT_EQ(panel->controls.size(), mst::kRenamerItemCount);
  for (const mst::RenamerRow& row : mst::renamerTable()) {
    const char* const label = row.label ? texts::renamerLabels(texts::Language::English)[*row.label] : "";
    const std::string shown =
        row.kind == mst::HostControl::Text ? at(row.item)->lines().front() : at(row.item)->label.read();
    EXPECT_EQ(shown, label) << mst::indexOf(row.item);
  }
}

TEST_F(Renamer, HasTheDefaultsOfTheTable) {
  openIn(RenameMode::Advanced);
  EXPECT_EQ(at(Item::Target)->shown(), "Selection");
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 0);
  EXPECT_EQ(at(Item::BaseName)->text, "Bone01_[col]_[row]");
  EXPECT_EQ(at(Item::RegexPattern)->text, "(.*)_L(.*)");
  EXPECT_EQ(at(Item::RegexFormat)->text, "$1_R$2");
  EXPECT_EQ(at(Item::Order)->shown(), "Registration Order");
  EXPECT_EQ(at(Item::ColumnStart)->shown(), "A");
  EXPECT_EQ(at(Item::RowDigits)->integer, 2);
  EXPECT_EQ(at(Item::RowStart)->integer, 1);
  for (const Item field : {Item::Prefix, Item::Suffix, Item::ReplaceFrom, Item::ReplaceTo}) EXPECT_EQ(at(field)->text, "");
}

TEST_F(Renamer, HasThreeCheckMarksOnAtFirst) {
  openTool();
  std::vector<Item> on;
  for (const mst::RenamerRow& row : mst::renamerTable()) {
    if (row.kind == mst::HostControl::Bool && at(row.item)->integer != 0) on.push_back(row.item);
  }
  EXPECT_EQ(on, (std::vector<Item>{Item::SkelegonName, Item::WeightMap, Item::OverlapCheck}));
}

TEST_F(Renamer, OffersAllLettersThoughColumnsEndAtX) {
  openIn(RenameMode::Advanced);
  EXPECT_EQ(person::menu(at(Item::ColumnStart)).size(), 26U);
  EXPECT_EQ(person::menu(at(Item::ColumnStart)).back(), "Z");
}

TEST_F(Renamer, OffersSeventeenOrders) {
  openIn(RenameMode::Advanced);
  EXPECT_EQ(person::menu(at(Item::Order)).size(), 17U);
}

TEST_F(Renamer, SpeaksJapanese) {
  host.options().localeInfo = kJapanese;
  openIn(RenameMode::Advanced);
  EXPECT_EQ(at(Item::Mode)->shown(), "詳細設定");
  EXPECT_EQ(at(Item::ConversionHeading)->lines(), Names{"変換"});
  EXPECT_EQ(at(Item::Run)->label.read(), "実行");
}

TEST_F(Renamer, ChangesNothingByBeingOpenedAndSwitched) {
  openTool();
  for (const RenameMode mode : kEveryMode) chooseMode(mode);
  EXPECT_EQ(host.edits().size(), 0U);
}

// ---------------------------------------------------------------------------------------------------------------------
// Layout

struct Form {
  std::uint32_t locale;
  RenameMode mode;
};
void PrintTo(const Form& form, std::ostream* out) {
  *out << (form.locale == kEnglish ? "English" : "Japanese") << ", mode " << static_cast<int>(form.mode);
}
std::vector<Form> everyForm() {
  std::vector<Form> forms;
  for (const RenameMode mode : kEveryMode) {
    forms.push_back({kEnglish, mode});
    forms.push_back({kJapanese, mode});
  }
  return forms;
}

class RenamerForm : public testing::TestWithParam<Form>, protected RenamerSession {
 protected:
  void openForm() {
    host.options().localeInfo = GetParam().locale;
    openTool();
    if (GetParam().mode != RenameMode::Change) chooseMode(GetParam().mode);
  }
  void expectClearLayout() const {
    EXPECT_TRUE(standin::overlapping(*panel).empty()) << standin::layoutComplaints(*panel);
    EXPECT_TRUE(standin::leaving(*panel).empty()) << standin::layoutComplaints(*panel);
    // The widths of two lists and a button are given, whatever they show in whichever language: a host cuts their texts.
    for (const Control* const control : standin::cut(*panel)) {
      EXPECT_TRUE(control == at(Item::Target) || control == at(Item::Order) || control == at(Item::Clear))
          << control->describe();
    }
  }
};
INSTANTIATE_TEST_SUITE_P(Renamer, RenamerForm, testing::ValuesIn(everyForm()));

TEST_P(RenamerForm, IsClearlyLaidOut) {
  openForm();
  expectClearLayout();
}

TEST_P(RenamerForm, IsClearlyLaidOutWhereControlsHavePadding) {
  standin::panels().options.rightPadding = 3;
  openForm();
  expectClearLayout();
}

TEST_P(RenamerForm, StandsAsItsLayoutSays) {
  openForm();
  std::array<forms::Measured, mst::kRenamerItemCount> measures;
  for (std::size_t i = 0; i < measures.size(); ++i)
    measures[i] = {panel->controls[i]->width(), panel->controls[i]->labelWidth()};
  const mst::RenamerPositions homes = mst::renamerHomes(measures);
  for (std::size_t i = 0; i < measures.size(); ++i) {
    const forms::Position wanted = mst::renamerPosition(static_cast<Item>(i), GetParam().mode, homes[i]);
    EXPECT_EQ((forms::Position{panel->controls[i]->x, panel->controls[i]->y}), wanted) << i;
  }
  EXPECT_EQ(panel->width, mst::kRenamerWidth);
  EXPECT_EQ(panel->height, mst::renamerHeight(GetParam().mode));
}

TEST_P(RenamerForm, HidesWhatIsAwayHoweverLargeTheUserMakesIt) {
  openForm();
  EXPECT_TRUE(person::resize(panel, 2'000, 2'000));
  if (mst::isSimple(GetParam().mode)) {
    EXPECT_FALSE(isVisible(Item::Target));
  } else {
    EXPECT_FALSE(isVisible(Item::FirstText));
  }
}

using Places = std::vector<std::pair<int, int>>;
Places placesOf(const standin::Panel& panel) {
  Places places;
  for (const auto& control : panel.controls) places.emplace_back(control->x, control->y);
  return places;
}

TEST_F(Renamer, ComesBackToTheSamePlacesHoweverOftenTheModeChanges) {
  openIn(RenameMode::Advanced);
  const Places advanced = placesOf(*panel);
  chooseMode(RenameMode::Replace);
  const Places simple = placesOf(*panel);
  for (int i = 0; i < 20; ++i) {
    for (const RenameMode mode : kEveryMode) chooseMode(mode);
    EXPECT_EQ(placesOf(*panel), advanced);
    chooseMode(RenameMode::Replace);
    EXPECT_EQ(placesOf(*panel), simple);
  }
}

TEST_F(Renamer, AModeThatIsNoneChangesNothing) {
  openIn(RenameMode::Replace);
  const Places before = placesOf(*panel);
  EXPECT_TRUE(standin::oddhost::choose(at(Item::Mode), 6));
  EXPECT_TRUE(standin::oddhost::choose(at(Item::Mode), -1));
  EXPECT_EQ(placesOf(*panel), before);
}

// ---------------------------------------------------------------------------------------------------------------------
// The two texts of the simple modes

TEST_F(Renamer, KeepsTheFirstTextForChangePrefixAndSuffix) {
  openTool();
  type(Item::FirstText, "Bone");
  for (const RenameMode mode : {RenameMode::Prefix, RenameMode::Suffix, RenameMode::Change}) {
    chooseMode(mode);
    EXPECT_EQ(at(Item::FirstText)->text, "Bone");
  }
}

TEST_F(Renamer, BringsTheFirstTextBackFromAllOtherModes) {
  openIn(RenameMode::Suffix);
  type(Item::FirstText, "_end");
  for (const RenameMode mode : {RenameMode::Replace, RenameMode::RegularExpression, RenameMode::Advanced}) {
    chooseMode(mode);
    if (mst::isSimple(mode)) type(Item::FirstText, "other");
    chooseMode(RenameMode::Prefix);
    EXPECT_EQ(at(Item::FirstText)->text, "_end");
  }
}

TEST_F(Renamer, OffersLeftAndRightWhenReplaceIsChosen) {
  openIn(RenameMode::Replace);
  EXPECT_EQ(at(Item::FirstText)->text, "_L_");
  EXPECT_EQ(at(Item::SecondText)->text, "_R_");
}

TEST_F(Renamer, OffersAPatternWhenRegularExpressionIsChosen) {
  openIn(RenameMode::RegularExpression);
  EXPECT_EQ(at(Item::FirstText)->text, "(.*)_L(.*)");
  EXPECT_EQ(at(Item::SecondText)->text, "$1_R$2");
}

TEST_F(Renamer, OffersThemAgainEachTimeTheModeIsChosen) {
  openIn(RenameMode::Replace);
  type(Item::FirstText, "typed");
  chooseMode(RenameMode::RegularExpression);
  chooseMode(RenameMode::Replace);
  EXPECT_EQ(at(Item::FirstText)->text, "_L_");
}

TEST_F(Renamer, KeepsWhatWasTypedWhenTheSameModeIsChosen) {
  openIn(RenameMode::Replace);
  type(Item::FirstText, "typed");
  chooseMode(RenameMode::Replace);
  EXPECT_EQ(at(Item::FirstText)->text, "typed");
}

// ---------------------------------------------------------------------------------------------------------------------
// Registering

TEST_F(Renamer, CountsWhatIsRegistered) {
  openIn(RenameMode::Advanced);
  registerThese({"Arm_L_01", "Root"});
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 2);
}

TEST_F(Renamer, RegistersEachSkelegonOnce) {
  openIn(RenameMode::Advanced);
  registerThese({"Arm_L_01", "Root"});
  registerThese({"Root", "Tail"});
  press(Item::Add);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 3);
}

TEST_F(Renamer, RegistersNothingWhereNothingIsSelected) {
  openIn(RenameMode::Advanced);
  press(Item::Add);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 0);
  EXPECT_TRUE(host.messages().empty());
}

TEST_F(Renamer, RegistersSkelegonsOnly) {
  openIn(RenameMode::Advanced);
  host.selectPolygons({&object->polygons().front()});
  press(Item::Add);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 0);
}

TEST_F(Renamer, RegistersInTheForegroundOnly) {
  host.options().layerSwitchDeselects = false;
  openIn(RenameMode::Advanced);
  host.select({"Arm_L_01", "Root"});
  host.showLayers({1});
  press(Item::Add);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 1);
}

TEST_F(Renamer, ForgetsWhatIsRegisteredOnClear) {
  openIn(RenameMode::Advanced);
  registerThese({"Arm_L_01", "Root"});
  press(Item::Clear);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 0);
}

TEST_F(Renamer, RegistersWithoutAnObject) {
  openIn(RenameMode::Advanced);
  host.closeAll();
  press(Item::Add);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 0);
}

TEST_F(Renamer, CountsDeletedSkelegonsAsRegistered) {
  openIn(RenameMode::Advanced);
  registerThese({"Arm_L_03", "Root"});
  host.deleteSkelegons({"Arm_L_03"});
  host.select({"Tail"});
  press(Item::Add);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 3);
}

// ---------------------------------------------------------------------------------------------------------------------
// Again and again

TEST_F(Renamer, ComesToTheFrontWhenItIsRunWhileOpen) {
  openTool();
  const Panel* const first = panel;
  panel->takesFront = false;
  openTool();
  EXPECT_EQ(panel, first);
  EXPECT_TRUE(panel->takesFront);
  EXPECT_EQ(standin::panels().all().size(), 1U);
}

TEST_F(Renamer, OpensTheSamePanelAgainWithAllItsValues) {
  openIn(RenameMode::Advanced);
  const Panel* const first = panel;
  registerThese({"Root"});
  switchOn(Item::PrefixOn);
  type(Item::Prefix, "My");
  choose(Item::Order, 3);
  const Places before = placesOf(*panel);
  ASSERT_TRUE(person::close(panel));
  openTool();
  EXPECT_EQ(panel, first);
  EXPECT_EQ(standin::panels().all().size(), 1U);
  EXPECT_EQ(placesOf(*panel), before);
  EXPECT_EQ(panel->height, 630);
  EXPECT_EQ(at(Item::Prefix)->text, "My");
  EXPECT_EQ(at(Item::Order)->integer, 3);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 1);
}

TEST_F(Renamer, RemembersTheFirstTextWhileItIsClosed) {
  openTool();
  type(Item::FirstText, "Bone");
  chooseMode(RenameMode::Replace);
  ASSERT_TRUE(person::close(panel));
  openIn(RenameMode::Suffix);
  EXPECT_EQ(at(Item::FirstText)->text, "Bone");
}

TEST_F(Renamer, StartsAfreshAfterTheModuleWasUnloaded) {
  openIn(RenameMode::Advanced);
  registerThese({"Root"});
  standin::panels().moduleUnloaded();
  module.unload();
  ASSERT_EQ(module.load(standin::modulePath()), "");
  openTool();
  EXPECT_EQ(at(Item::Mode)->shown(), "Change");
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 0);
}

TEST_F(Renamer, TakesAnArgumentAsNone) {
  EXPECT_EQ(host.activate(module, kRenamerTool, "\"Arm\" 3"), 0);
  panel = standin::panels().find(kRenamerTool);
  ASSERT_NE(panel, nullptr);
  EXPECT_EQ(at(Item::FirstText)->text, "");
}

TEST_F(Renamer, WorksWithAHostThatCopiesTextsAndCutsThem) {
  standin::panels().options.copiesTexts = true;
  standin::panels().options.terminatesTexts = true;
  host.select({"Root"});
  runSimple(RenameMode::Change, "Hips");
  EXPECT_NE(object->skelegon("Hips"), nullptr);
}

}  // namespace
}  // namespace varnel::test
