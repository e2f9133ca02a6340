// What the renamer tells the other open panels, and what it does when they tell it something. Here the panel is the test's
// own, not the built module's, so that the test can stand in the list of open panels.
#include <memory>

#include "host/lwtool2_globals.h"
#include "modeler/renamer/MST_RenamerPanel.h"
#include "tests/tools/panel_listener.h"
#include "tests/tools/renamer_fixture.h"

namespace varnel::test {
namespace {

using mst::PanelNews;
using News = std::vector<PanelNews>;

class RenamerNews : public testing::Test {
 protected:
  RenamerNews() : object(&host.add(renamerRig(), "rig.lwo")) {
    host.showLayers({0, 1});
    host.select(kLeftArm);
    const standin::ActivationRecord local("");
    EXPECT_TRUE(lw::AcquireHostGlobals(lw::Program::Modeler, standin::Globals::lookup(), local.get()));
    lw::modelerFunctions() = lw::ModelerFunctions{};
    lw::AcquireModelerFunctions(lw::modelerFunctions(), standin::Globals::lookup(), local.get());
    lw::LoadRenamerStrings(standin::Globals::lookup());
    tool = std::make_unique<mst::RenamerPanel>();
    EXPECT_TRUE(tool->OpenRenamerPanel());
    panel = standin::panels().find(kRenamerTool);
  }
  ~RenamerNews() override {
    tool.reset();
    standin::panels().moduleUnloaded();
    EXPECT_EQ(standin::witness().report(), "");
  }

  standin::Control* at(Item item) const { return panel->at(static_cast<int>(mst::indexOf(item))); }
  void chooseMode(RenameMode mode) { EXPECT_TRUE(person::choose(at(Item::Mode), static_cast<int>(mode))); }
  void run(bool withProperties) {
    EXPECT_TRUE(person::switchTo(at(Item::BoneProperty), withProperties));
    EXPECT_TRUE(person::press(at(Item::Run)));
  }

  standin::ModelerHost host;
  standin::ModelerObject* object;
  std::unique_ptr<mst::RenamerPanel> tool;
  standin::Panel* panel = nullptr;
};

TEST_F(RenamerNews, ASimpleRunTellsOfNames) {
  const PanelListener listener;
  run(false);
  EXPECT_EQ(listener.heard, News{PanelNews::NamesChanged});
}

TEST_F(RenamerNews, ASimpleRunWithPropertiesTellsOfBoth) {
  const PanelListener listener;
  run(true);
  EXPECT_EQ(listener.heard, (News{PanelNews::NamesChanged, PanelNews::PropertiesChanged}));
}

TEST_F(RenamerNews, ASimpleRunThatFailsTellsNothing) {
  const PanelListener listener;
  host.deselectAll();
  run(true);
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(RenamerNews, ASimpleRunWithABadPatternTellsNothing) {
  const PanelListener listener;
  chooseMode(RenameMode::RegularExpression);
  EXPECT_TRUE(person::type(at(Item::FirstText), "("));
  run(false);
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(RenamerNews, AnAdvancedRunTellsOfNames) {
  const PanelListener listener;
  chooseMode(RenameMode::Advanced);
  run(false);
  EXPECT_EQ(listener.heard, News{PanelNews::NamesChanged});
}

TEST_F(RenamerNews, AnAdvancedRunWithPropertiesTellsOfBoth) {
  const PanelListener listener;
  chooseMode(RenameMode::Advanced);
  run(true);
  EXPECT_EQ(listener.heard, (News{PanelNews::NamesChanged, PanelNews::PropertiesChanged}));
}

TEST_F(RenamerNews, AnAdvancedRunThatFailsTellsAllTheSame) {
  const PanelListener listener;
  chooseMode(RenameMode::Advanced);
  host.deselectAll();
  run(true);
  EXPECT_EQ(host.messages().size(), 1U);
  EXPECT_EQ(listener.heard, (News{PanelNews::NamesChanged, PanelNews::PropertiesChanged}));
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
  for (const PanelNews news :
       {PanelNews::Refresh, PanelNews::NamesChanged, PanelNews::PropertiesChanged, PanelNews::SelectionChanged}) {
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
