// The property panel on hosts that refuse calls or behave oddly.
#include <functional>

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

// Calls that give nothing back: a module cannot know that they did not do what they should.
bool cannotBeNoticed(const std::string& function) {
  return function == "control set" || function == "control draw" || function == "panel set";
}

// Does something with a panel that is open on Hips and Chest, while the n-th host call fails: for every step-th n up to the
// first that only shows something. `look` judges what is stored; whatever fails, no rule of the host's may be broken.
void refuseEach(std::uint64_t step, const std::function<void(PropertySession&)>& act,
                const std::function<void(PropertySession&)>& look) {
  for (std::uint64_t call = 1;; call += step) {
    PropertySession session;
    session.openWith({"Hips", "Chest"});
    session.showPage(kBonePage);
    standin::witness().refuseCall(call);
    act(session);
    const bool happened = standin::witness().refusalHappened();
    SCOPED_TRACE("call " + std::to_string(call) + ", " + standin::witness().refusedFunction());
    standin::witness().refuseCall(0);
    look(session);
    // The next load shows what is stored.
    session.sync();
    const Text strength = session.stored("Hips", Slot::Strength);
    EXPECT_EQ(session.control(Slot::Strength)->real, strength ? std::stod(*strength) : 100);
    if (!happened || cannotBeNoticed(standin::witness().refusedFunction())) return;
  }
}

bool isWhole(PropertySession& session, Slot slot, const std::string& first, const std::string& second) {
  const Text hips = session.stored("Hips", slot);
  const Text chest = session.stored("Chest", slot);
  return (!hips && !chest) || (hips == first && chest == second);
}

TEST(PropertyPanelRefusals, AChangeIsStoredOnAllSkelegonsOrOnNone) {
  refuseEach(
      1,
      [](PropertySession& session) {
        session.control(Slot::Strength)->real = 40;
        EXPECT_TRUE(standin::oddhost::fire(session.control(Slot::Strength)));
      },
      [](PropertySession& session) {
        const bool isUnread = session.stored("Hips", Slot::Strength) == "0.000000";  // the host did not give the value
        EXPECT_TRUE(isUnread || isWhole(session, Slot::Strength, "40.000000", "40.000000"));
      });
}

TEST(PropertyPanelRefusals, AFilledNameIsStoredOnAllSkelegonsOrOnNone) {
  refuseEach(
      3, [](PropertySession& session) { EXPECT_TRUE(standin::oddhost::fire(session.behind(Slot::InitialPositionItem))); },
      [](PropertySession& session) {
        // A name tag that the host does not give is none.
        EXPECT_TRUE(isWhole(session, Slot::InitialPositionItem, "Hips_initpos", "Chest_initpos") ||
                    isWhole(session, Slot::InitialPositionItem, "_initpos", "Chest_initpos") ||
                    isWhole(session, Slot::InitialPositionItem, "Hips_initpos", "_initpos"));
      });
}

TEST(PropertyPanelRefusals, ARefusedEditLeavesTheControlsAsTheyAre) {
  PropertySession session;
  session.openWith({"Hips"});
  session.showPage(kBonePage);
  std::uint64_t call = 1;
  do {  // the first call that an edit makes
    session.control(Slot::Strength)->real = 40;
    standin::witness().refuseCall(call++);
    EXPECT_TRUE(standin::oddhost::fire(session.control(Slot::Strength)));
  } while (standin::witness().refusedFunction() != "LWModCommand::editBegin2" && call < 100);
  EXPECT_EQ(session.control(Slot::Strength)->real, 40);
}

TEST(PropertyPanelRefusals, AResetRemovesEverythingOrNothing) {
  refuseEach(
      11,
      [](PropertySession& session) {
        session.store("Hips", Slot::Strength, "40.000000");
        session.store("Hips", Slot::Twist, "1");
        session.host.answer(standin::Answer::yes);
        EXPECT_TRUE(standin::oddhost::fire(session.control(mst::control::kReset)));
      },
      [](PropertySession& session) {
        EXPECT_EQ(session.stored("Hips", Slot::Strength).has_value(), session.stored("Hips", Slot::Twist).has_value());
      });
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
  bool happened = true;
  for (std::uint64_t call = 1; happened;) {
    PropertySession session;
    session.host.select({"Hips"});
    standin::witness().refuseCall(call);
    session.host.activate(session.module, kPropertyTool);
    happened = standin::witness().refusalHappened();
    const std::string refused = standin::witness().refusedFunction();
    SCOPED_TRACE("call " + std::to_string(call) + ", " + refused);
    standin::witness().refuseCall(0);
    call += refused.rfind("control", 0) == 0 || refused.rfind("panel", 0) == 0 ? 23 : 3;
    if (cannotBeNoticed(refused)) {
      standin::witness().reset();
      continue;
    }
    standin::Panel* const opened = standin::panels().find(kPropertyTool);
    if (opened != nullptr && opened->isOpen()) {
      EXPECT_TRUE(person::close(opened));
    }
    session.openTool();
    EXPECT_EQ(session.control(mst::control::kNameEdit)->text, "Hips");
    EXPECT_EQ(standin::panels().all().size(), 1U);
  }
}

}  // namespace
}  // namespace varnel::test
