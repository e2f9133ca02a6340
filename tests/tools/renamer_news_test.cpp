// What the renamer tells the other open panels, and what it does when they tell it something. Here the panel is the test's
// own, not the built module's, so that the test can stand in the list of open panels.
#include "modeler/renamer/MST_RenamerPanel.h"
#include "tests/tools/panel_listener.h"
#include "tests/tools/renamer_fixture.h"

namespace varnel::test {
namespace {

class RenamerNews : public OwnPanel<mst::RenamerPanel> {
 protected:
  RenamerNews() : OwnPanel(renamerRig(), kLeftArm) {
    EXPECT_TRUE(tool->OpenRenamerPanel());
    panel = standin::panels().find(kRenamerTool);
  }

  standin::Control* at(Item item) const { return panel->at(static_cast<int>(mst::indexOf(item))); }
  void chooseMode(RenameMode mode) { EXPECT_TRUE(person::choose(at(Item::Mode), static_cast<int>(mode))); }
  void run(bool withProperties) {
    EXPECT_TRUE(person::switchTo(at(Item::BoneProperty), withProperties));
    EXPECT_TRUE(person::press(at(Item::Run)));
  }
};

struct Run {
  RenameMode mode;
  bool isSelected;
  bool withProperties;
  News told;
};
class RenamerRuns : public RenamerNews, public testing::WithParamInterface<Run> {};

const News kNames = {PanelNews::NamesChanged};
const News kBoth = {PanelNews::NamesChanged, PanelNews::PropertiesChanged};
INSTANTIATE_TEST_SUITE_P(Renamer, RenamerRuns,
                         testing::Values(Run{RenameMode::Replace, true, false, kNames},
                                         Run{RenameMode::Replace, true, true, kBoth},
                                         Run{RenameMode::Replace, false, true, {}},
                                         Run{RenameMode::Advanced, true, false, kNames},
                                         Run{RenameMode::Advanced, true, true, kBoth},
                                         // A failed advanced run tells all the same.
                                         Run{RenameMode::Advanced, false, true, kBoth}));

TEST_P(RenamerRuns, AreTold) {
  const PanelListener listener;
  chooseMode(GetParam().mode);
  if (!GetParam().isSelected) host.deselectAll();
  run(GetParam().withProperties);
  EXPECT_EQ(host.messages().empty(), GetParam().isSelected);
  EXPECT_EQ(listener.heard, GetParam().told);
}

TEST_F(RenamerNews, ASimpleRunWithABadPatternTellsNothing) {
  const PanelListener listener;
  chooseMode(RenameMode::RegularExpression);
  EXPECT_TRUE(person::type(at(Item::FirstText), "("));
  run(false);
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(RenamerNews, ModesAndRegisteringTellNothing) {
  const PanelListener listener;
  chooseMode(RenameMode::Advanced);
  EXPECT_TRUE(person::press(at(Item::Add)));
  EXPECT_TRUE(person::press(at(Item::Clear)));
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(RenamerNews, IsNotToldOfItsOwnRuns) {
  chooseMode(RenameMode::Advanced);
  EXPECT_TRUE(person::press(at(Item::Add)));
  at(Item::RegisteredCount)->integer = 99;  // a telling would put it right
  run(true);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 99);
}

TEST_F(RenamerNews, ShowsTheRegisteredCountAgainWhenItIsTold) {
  chooseMode(RenameMode::Advanced);
  EXPECT_TRUE(person::press(at(Item::Add)));
  for (const PanelNews news : kEveryNews) {
    at(Item::RegisteredCount)->integer = 0;
    mst::NotifyPanels(nullptr, news);
    EXPECT_EQ(at(Item::RegisteredCount)->integer, 3);
  }
}

TEST_F(RenamerNews, DoesNothingElseWhenItIsTold) {
  const std::size_t edits = host.edits().size();
  const PanelListener listener;
  mst::NotifyPanels(&listener, PanelNews::SelectionChanged);
  EXPECT_EQ(host.edits().size(), edits);
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(RenamerNews, HearsNothingWhileItIsClosed) {
  ASSERT_TRUE(person::close(panel));
  at(Item::RegisteredCount)->integer = 99;
  mst::NotifyPanels(nullptr, PanelNews::Refresh);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 99);
}

TEST_F(RenamerNews, LeavesTheListWithItsObject) {
  tool.reset();
  mst::NotifyPanels(nullptr, PanelNews::Refresh);  // nobody there to be called
}

// Both panels in the module: what one renames the other shows.
TEST_F(Renamer, ThePropertyPanelShowsTheNewNameAtOnce) {
  host.select({"Arm_L_01"});
  EXPECT_EQ(host.activate(module, kPropertyTool), 0);
  const Panel* const properties = standin::panels().find(kPropertyTool);
  ASSERT_NE(properties, nullptr);
  EXPECT_EQ(properties->at(7)->text, "Arm_L_01");
  openIn(RenameMode::Replace);
  run();
  EXPECT_EQ(properties->at(7)->text, "Arm_R_01");
}

}  // namespace
}  // namespace varnel::test
