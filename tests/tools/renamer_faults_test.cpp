// The renamer on hosts that refuse calls or behave oddly, and without an object.
#include <set>

#include "tests/tools/renamer_fixture.h"

namespace varnel::test {
namespace {

// ---------------------------------------------------------------------------------------------------------------------
// A host that refuses a call

void pressRun(RenamerSession& session) { EXPECT_TRUE(person::press(session.at(Item::Run))); }

void storeLinks(RenamerSession& session) {
  for (const std::string& name : kLeftArm) {
    session.store(name, lw::kTagBoneWeight, name);
    for (const Slot slot : skg::kNameBearingSlots) session.store(name, slot, name);
  }
}

// What the host does not tell cannot be renamed: a text that it gives as empty, a field, a skelegon that it hides.
bool hidesSomething(const std::string& function) {
  return function == "MeshEditOp::polyTag" || function == "control get" || function == "MeshEditOp::polyInfo" ||
         function == "MeshEditOp::polyType";
}

// All texts of the left arm are those of the left or of the right side.
void expectWhole(const RenamerSession& session) {
  std::set<std::string> sides;
  for (std::size_t i = 0; i < 3; ++i) {
    for (const standin::PolygonTag& tag : session.object->skelegons()[i]->content.tags) {
      if (tag.type != standin::kTagSurface) sides.insert(tag.text.substr(0, 5));
    }
  }
  EXPECT_EQ(sides.size(), 1U) << "half renamed";
}

void prepareSimpleRun(RenamerSession& session) {
  storeLinks(session);
  session.host.select(kLeftArm);
  session.openIn(RenameMode::Replace);
  session.switchOn(Item::BoneProperty);
}

void prepareAdvancedRun(RenamerSession& session) {
  storeLinks(session);
  session.openIn(RenameMode::Advanced);
  session.registerThese(kLeftArm);
  session.chooseTarget(RenameTarget::Registration);
  session.switchOn(Item::RegexOn);
  session.switchOn(Item::BoneProperty);
}

// Where the writing of a tag fails, whatever was set before it in that edit is dropped.
void expectEverythingOrNothing(void (*prepare)(RenamerSession&)) {
  const std::string before = [&] {
    RenamerSession session;
    prepare(session);
    return session.everythingStored();
  }();
  std::size_t dropped = 0;
  const auto look = [&](const RenamerSession& session, const std::string& refused) {
    if (!hidesSomething(refused)) expectWhole(session);
    EXPECT_LE(session.changingEdits(), 1U);
    EXPECT_TRUE(session.panel->isOpen());
    if (refused != "MeshEditOp::polTag") return;
    ++dropped;
    EXPECT_EQ(session.everythingStored(), before);
    EXPECT_NE(session.host.edits().back().error, 0);
  };
  EXPECT_GT(refuseEach(prepare, &pressRun, look), 100U);
  EXPECT_GE(dropped, 3U);
}

TEST(RenamerRefusals, ASimpleRunRenamesEverythingOrNothing) { expectEverythingOrNothing(&prepareSimpleRun); }
TEST(RenamerRefusals, AnAdvancedRunRenamesEverythingOrNothing) { expectEverythingOrNothing(&prepareAdvancedRun); }

TEST_F(Renamer, TakesAFailedScanOfTheSelectionForNoSelection) {
  host.select(kLeftArm);
  openIn(RenameMode::Replace);
  standin::witness().refuseNext("MeshEditOp::fastPolyScan");
  run();
  EXPECT_TRUE(standin::witness().refusalHappened());
  EXPECT_EQ(onlyMessage(), kNeedSelection);
  EXPECT_EQ(changingEdits(), 0U);
}

TEST(RenamerRefusals, AFailedOpeningLeavesTheNextOneWhole) {
  refuseEach(
      +[](RenamerSession&) {}, [](RenamerSession& session) { session.host.activate(session.module, kRenamerTool); },
      [](RenamerSession& session, const std::string& refused) {
        if (cannotBeNoticed(refused) || refused == "control get") return standin::witness().reset();
        session.openTool();
        EXPECT_EQ(session.panel->controls.size(), mst::kRenamerItemCount);
        EXPECT_EQ(standin::panels().all().size(), 1U);
      },
      [](const std::string& refused) -> std::uint64_t { return refused.empty() ? 0 : 3; });
}

// ---------------------------------------------------------------------------------------------------------------------
// A host that fires events when the module sets a value

TEST_F(Renamer, IsTheSameWhereTheHostFiresEventsOnSets) {
  standin::panels().options.setsFireEvents = true;
  host.select(kLeftArm);
  openTool();
  type(Item::FirstText, "Bone");
  chooseMode(RenameMode::Replace);
  EXPECT_EQ(changingEdits(), 0U);
  run();
  EXPECT_EQ(names(3), kRightArm);
  EXPECT_EQ(changingEdits(), 1U);
  chooseMode(RenameMode::Prefix);
  EXPECT_EQ(at(Item::FirstText)->text, "Bone");
  chooseMode(RenameMode::Advanced);
  press(Item::Add);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 3);
}

// ---------------------------------------------------------------------------------------------------------------------
// Odd moments

class EveryMode : public testing::TestWithParam<RenameMode>, protected RenamerSession {};
INSTANTIATE_TEST_SUITE_P(Renamer, EveryMode, testing::ValuesIn(kEveryMode));

TEST_P(EveryMode, NeedsAnObject) {
  host.closeAll();
  openTool();
  if (GetParam() != RenameMode::Change) chooseMode(GetParam());
  run();
  EXPECT_EQ(onlyMessage(), kNeedSelection);
}

TEST_P(EveryMode, NeedsSkelegons) {
  standin::RigBuilder rig;
  rig.face({rig.point({0, 0, 0}), rig.point({1, 0, 0}), rig.point({0, 1, 0})}, "Skin");
  load(rig.take());
  openTool();
  if (GetParam() != RenameMode::Change) chooseMode(GetParam());
  if (GetParam() == RenameMode::Advanced) chooseTarget(RenameTarget::All);
  run();
  EXPECT_EQ(onlyMessage(), kNeedSelection);
}

TEST_P(EveryMode, DoesNothingOnceThePanelIsClosed) {
  host.select(kLeftArm);
  openTool();
  if (GetParam() != RenameMode::Change) chooseMode(GetParam());
  const std::string before = everythingStored();
  ASSERT_TRUE(person::close(panel));
  for (const mst::RenamerRow& row : mst::renamerTable()) static_cast<void>(standin::oddhost::fire(at(row.item)));
  EXPECT_EQ(everythingStored(), before);
  EXPECT_TRUE(host.edits().empty());
}

TEST_P(EveryMode, WorksWhereTheHostRemovesEmptyTags) {
  host.options().emptyTagRemoves = true;
  host.select(kLeftArm);
  openTool();
  if (GetParam() != RenameMode::Change) chooseMode(GetParam());
  switchOn(Item::BoneProperty);
  run();
  EXPECT_LE(changingEdits(), 1U);
}

TEST_F(Renamer, RunsAfterItsRegisteredSkelegonsObjectWasClosed) {
  openIn(RenameMode::Advanced);
  registerThese({"Root", "Tail"});
  host.closeAll();
  chooseTarget(RenameTarget::Registration);
  run();
  EXPECT_EQ(onlyMessage(), kNeedSelection);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 2);
}

// Skelegons in a ring: no skelegon tool makes them, but a file can hold them.
TEST_F(Renamer, EndsOnSkelegonsInARing) {
  standin::RigBuilder rig;
  const std::uint32_t a = rig.point({0, 0, 0});
  const std::uint32_t b = rig.point({1, 0, 0});
  rig.between(a, b, "one");
  rig.between(b, a, "two");
  rig.between(a, a, "three");
  load(rig.take());
  openCounting("[col][row]", 0, 1);
  switchOn(Item::OverlapCheck, false);
  registerThese({"two"});
  for (const RenameTarget target : {RenameTarget::All, RenameTarget::RegistrationAndChildren, RenameTarget::Registration}) {
    chooseTarget(target);
    run();
  }
  EXPECT_EQ(names().size(), 3U);
}

}  // namespace
}  // namespace varnel::test
