// The property panel on hosts that refuse calls or behave oddly.
#include "skelegon/slot_table.h"
#include "tests/tools/property_panel_fixture.h"

namespace varnel::test {
namespace {

// ---------------------------------------------------------------------------------------------------------------------
// A host that fires events when the module sets a value

TEST_F(PropertyPanel, SettingValuesWritesNothingWhereTheHostFiresEvents) {
  standin::panels().options.setsFireEvents = true;
  for (const skg::SlotRow& row : skg::kSlotTable) store("Hips", skg::plainSlotTagId(skg::indexOf(row.slot)), "odd text");
  const std::string before = everythingStored();
  openWith({"Hips", "Chest"});
  sync();
  EXPECT_TRUE(person::choose(control(mst::control::kNamePopup), 1));
  EXPECT_EQ(everythingStored(), before);
  EXPECT_EQ(changingEdits(), 0U);
}

TEST_F(PropertyPanel, OneChangeIsOneEditWhereTheHostFiresEvents) {
  standin::panels().options.setsFireEvents = true;
  openWith({"Hips"});
  enter(Slot::Strength, 40);
  pressBehind(Slot::TargetItem);
  chooseBehind(Slot::WeightMap, "Spine");
  chooseBehind(Slot::ParentItem, "Chest");
  EXPECT_EQ(stored("Hips", Slot::ParentItem), "Chest");
  EXPECT_EQ(stored("Hips", lw::kTagBoneWeight), "Spine");
  EXPECT_EQ(changingEdits(), 4U);
}

// ---------------------------------------------------------------------------------------------------------------------
// A host that refuses a call

void openOnTwo(PropertySession& session) {
  session.openWith({"Hips", "Chest"});
  session.showPage(kBonePage);
}

// The next load shows what is stored.
void expectStoredShown(PropertySession& session) {
  session.sync();
  const Text strength = session.stored("Hips", Slot::Strength);
  EXPECT_EQ(session.control(Slot::Strength)->real, strength ? std::stod(*strength) : 100);
}

// Every so-many-th call up to the first that only shows something.
template <std::uint64_t stride>
std::uint64_t untilShown(const std::string& refused) {
  return refused.empty() || cannotBeNoticed(refused) ? 0 : stride;
}

bool isWhole(PropertySession& session, Slot slot, const std::string& first, const std::string& second) {
  const Text hips = session.stored("Hips", slot);
  const Text chest = session.stored("Chest", slot);
  return (!hips && !chest) || (hips == first && chest == second);
}

TEST(PropertyPanelRefusals, AChangeIsStoredOnAllSkelegonsOrOnNone) {
  refuseEach(
      &openOnTwo,
      [](PropertySession& session) {
        session.control(Slot::Strength)->real = 40;
        EXPECT_TRUE(standin::oddhost::fire(session.control(Slot::Strength)));
      },
      [](PropertySession& session, const std::string&) {
        const bool isUnread = session.stored("Hips", Slot::Strength) == "0.000000";  // the host did not give the value
        EXPECT_TRUE(isUnread || isWhole(session, Slot::Strength, "40.000000", "40.000000"));
        expectStoredShown(session);
      },
      &untilShown<1>);
}

TEST(PropertyPanelRefusals, AFilledNameIsStoredOnAllSkelegonsOrOnNone) {
  refuseEach(
      &openOnTwo,
      [](PropertySession& session) { EXPECT_TRUE(standin::oddhost::fire(session.behind(Slot::InitialPositionItem))); },
      [](PropertySession& session, const std::string&) {
        // A name tag that the host does not give is none.
        EXPECT_TRUE(isWhole(session, Slot::InitialPositionItem, "Hips_initpos", "Chest_initpos") ||
                    isWhole(session, Slot::InitialPositionItem, "_initpos", "Chest_initpos") ||
                    isWhole(session, Slot::InitialPositionItem, "Hips_initpos", "_initpos"));
        expectStoredShown(session);
      },
      &untilShown<3>);
}

TEST_F(PropertyPanel, AfterARefusedEditShowsTheLastValueThatWasStored) {
  openWith({"Hips"});
  enter(Slot::Strength, 60);
  standin::witness().refuseNext("LWModCommand::editBegin2");
  enter(Slot::Strength, 40);
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(shown(Slot::Strength), "60 %");
  EXPECT_EQ(stored("Hips", Slot::Strength), "60.000000");
}

TEST_F(PropertyPanel, AfterARefusedRenameShowsTheLastNameThatWasStored) {
  openWith({"Hips"});
  EXPECT_TRUE(person::type(control(mst::control::kNameEdit), "Pelvis"));
  standin::witness().refuseNext("LWModCommand::editBegin2");
  EXPECT_TRUE(person::type(control(mst::control::kNameEdit), "Basin"));
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(control(mst::control::kNameEdit)->shown(), "Pelvis");
}

TEST_F(PropertyPanel, AfterARefusedColourShowsTheLastOneThatWasStored) {
  openWith({"Hips"});
  choose(Slot::Colour, 3);
  standin::witness().refuseNext("LWModCommand::editBegin2");
  choose(Slot::Colour, 5);
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(control(Slot::Colour)->integer, 3);
}

TEST_F(PropertyPanel, AfterARefusedValueShowsTheChoiceOfAChooserThatWasStored) {
  openWith({"Hips"});
  show(Slot::ParentItem);
  chooseBehind(Slot::ParentItem, "Chest");
  standin::witness().refuseNext("LWModCommand::editBegin2");
  type(Slot::ParentItem, "Head");
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(shown(Slot::ParentItem), "Chest");
}

// Deliberate: only an edit that the host does not begin puts the stored value back.
TEST_F(PropertyPanel, ARefusedTagLeavesTheControlsAsTheyAre) {
  openWith({"Hips", "Chest"});
  enter(Slot::Strength, 60);
  standin::witness().refuseNext("MeshEditOp::polTag");
  enter(Slot::Strength, 40);
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(shown(Slot::Strength), "40 %");
  EXPECT_EQ(stored("Chest", Slot::Strength), "60.000000");
}

TEST_F(PropertyPanel, AfterARefusedValueTheChosenSkelegonIsShownStill) {
  store("Chest", Slot::Strength, "40.000000");
  openWith({"Hips", "Chest"});
  EXPECT_TRUE(person::choose(control(mst::control::kNamePopup), "Chest"));
  standin::witness().refuseNext("LWModCommand::editBegin2");
  enter(Slot::Strength, 60);
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(control(mst::control::kNamePopup)->shown(), "Chest");
  EXPECT_EQ(shown(Slot::Strength), "40 %");
}

TEST_F(PropertyPanel, DrawsWhatItShowsInThePlaceOfARefusedValue) {
  standin::panels().options.setsRepaint = false;
  openWith({"Hips"});
  standin::witness().refuseNext("LWModCommand::editBegin2");
  enter(Slot::Strength, 40);
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(shown(Slot::Strength), "100 %");
  EXPECT_FALSE(control(Slot::Strength)->stale.has_value());
}

TEST_F(PropertyPanel, ShowsWhatIsStoredAfterARefusalWhereTheHostFiresEvents) {
  standin::panels().options.setsFireEvents = true;
  openWith({"Hips"});
  enter(Slot::Strength, 60);
  standin::witness().refuseNext("LWModCommand::editBegin2");
  enter(Slot::Strength, 40);
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(shown(Slot::Strength), "60 %");
  EXPECT_EQ(changingEdits(), 1U);
}

TEST_F(PropertyPanel, ANameWhoseSettingsCannotBeReadIsNotShown) {
  store("Chest", Slot::Strength, "40.000000");
  openWith({"Hips", "Chest"});
  standin::witness().refuseNext("LWModCommand::editBegin2");
  EXPECT_TRUE(person::choose(control(mst::control::kNamePopup), "Chest"));
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(control(mst::control::kNamePopup)->shown(), "Hips");
  EXPECT_EQ(shown(Slot::Strength), "100 %");
}

// Written first, then shown.
TEST_F(PropertyPanel, ARefusedEditLeavesTheFieldOfAChooserAsItWas) {
  openWith({"Hips"});
  const std::string before = everythingStored();
  show(Slot::WeightMap);
  standin::witness().refuseNext("LWModCommand::editBegin2");
  chooseBehind(Slot::WeightMap, "Spine");
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(shown(Slot::WeightMap), "");
  show(Slot::ParentItem);
  standin::witness().refuseNext("LWModCommand::editBegin2");
  chooseBehind(Slot::ParentItem, "Chest");
  EXPECT_EQ(shown(Slot::ParentItem), "");
  EXPECT_EQ(everythingStored(), before);
}

TEST_F(PropertyPanel, ARefusedResetDrawsNothingInAPanelThatWasClosedMeanwhile) {
  openWith({"Hips"});
  host.showMessagesTo([&](const standin::Message&) {
    EXPECT_TRUE(person::close(panel));
    standin::witness().refuseNext("LWModCommand::editBegin2");
    return standin::Answer::Yes;
  });
  press(mst::control::kReset);
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_FALSE(control(mst::control::kNameEdit)->isErased);
}

TEST(PropertyPanelRefusals, AResetRemovesEverythingOrNothing) {
  refuseEach(
      &openOnTwo,
      [](PropertySession& session) {
        session.store("Hips", Slot::Strength, "40.000000");
        session.store("Hips", Slot::Twist, "1");
        session.host.answer(standin::Answer::Yes);
        EXPECT_TRUE(standin::oddhost::fire(session.control(mst::control::kReset)));
      },
      [](PropertySession& session, const std::string&) {
        EXPECT_EQ(session.stored("Hips", Slot::Strength).has_value(), session.stored("Hips", Slot::Twist).has_value());
        expectStoredShown(session);
      },
      &untilShown<11>);
}

// What the host refuses of the new panel, or of what it is to show.
class RefusedNewPanel : public testing::TestWithParam<const char*>, protected PropertySession {};
INSTANTIATE_TEST_SUITE_P(PropertyPanel, RefusedNewPanel,
                         testing::Values("panel create", "panel addControl", "LWModCommand::editBegin2"),
                         [](const testing::TestParamInfo<const char*>& info) {
                           const std::string function = info.param;
                           return function.substr(function.find_last_of(" :") + 1);
                         });

TEST_P(RefusedNewPanel, CostsNoOpenPanel) {
  openWith({"Hips"});
  const standin::Panel* const before = panel;
  host.select({"Chest"});
  standin::witness().refuseNext(GetParam());
  EXPECT_EQ(host.activate(module, kPropertyTool), 0);
  ASSERT_TRUE(standin::witness().refusalHappened());
  ASSERT_EQ(standin::panels().find(kPropertyTool), before);
  EXPECT_TRUE(panel->isOpen());
  EXPECT_EQ(standin::panels().all().size(), 1U);
  show(Slot::WeightMap);
  EXPECT_EQ(person::menu(behind(Slot::WeightMap)), (Names{"(none)", "Head", "Spine"}));
  enter(Slot::Strength, 40);
  EXPECT_EQ(stored("Hips", Slot::Strength), "40.000000");
}

TEST_P(RefusedNewPanel, IsMadeByTheNextRun) {
  openWith({"Hips"});
  standin::witness().refuseNext(GetParam());
  EXPECT_EQ(host.activate(module, kPropertyTool), 0);
  openWith({"Chest"});
  EXPECT_EQ(control(mst::control::kNameEdit)->text, "Chest");
  EXPECT_EQ(standin::panels().all().size(), 1U);
}

// The host is called thousands of times while it makes the panel: of those calls every 23rd is refused, of all others every
// third.
TEST(PropertyPanelRefusals, AFailedRunLeavesTheNextOneWhole) {
  refuseEach(
      +[](PropertySession& session) { session.host.select({"Hips"}); },
      [](PropertySession& session) { session.host.activate(session.module, kPropertyTool); },
      [](PropertySession& session, const std::string& refused) {
        if (cannotBeNoticed(refused)) return standin::witness().reset();
        closeIfOpen(kPropertyTool);
        session.openTool();
        EXPECT_EQ(session.control(mst::control::kNameEdit)->text, "Hips");
        EXPECT_EQ(standin::panels().all().size(), 1U);
      },
      [](const std::string& refused) -> std::uint64_t {
        if (refused.empty()) return 0;
        return refused.starts_with("control") || refused.starts_with("panel") ? 23 : 3;
      });
}

}  // namespace
}  // namespace varnel::test
