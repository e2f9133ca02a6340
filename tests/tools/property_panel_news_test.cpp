// What the property panel tells the other open panels, and what it does when they tell it something. Here the panel is the
// test's own, not the built module's, so that the test can stand in the list of open panels.
#include <memory>

#include "host/lwtool2_globals.h"
#include "modeler/property/MST_CSkgPropPanel.h"
#include "tests/tools/panel_listener.h"
#include "tests/tools/property_panel_fixture.h"

namespace varnel::test {
namespace {

using mst::PanelNews;

class PropertyPanelNews : public testing::Test {
 protected:
  PropertyPanelNews() : object(&host.add(panelRig(), "rig.lwo")) {
    host.showLayers({0, 1});
    host.select({"Hips"});
    const standin::ActivationRecord local("");
    EXPECT_TRUE(lw::AcquireHostGlobals(lw::Program::Modeler, standin::Globals::lookup(), local.get()));
    lw::LoadModelerStrings(standin::Globals::lookup());
    tool = std::make_unique<mst::CSkgPropPanel>();
    EXPECT_TRUE(tool->OpenPropertyPanel());
    panel = standin::panels().find(kPropertyTool);
  }
  ~PropertyPanelNews() override {
    tool.reset();
    standin::panels().moduleUnloaded();
    EXPECT_EQ(standin::witness().report(), "");
  }

  standin::Control* control(std::size_t number) const { return panel->at(static_cast<int>(number)); }
  standin::Control* control(Slot slot) const { return control(mst::controlOf(slot).value()); }
  void storeStrength(const std::string& text) {
    object->setTag(*object->skelegon("Hips"), skg::SlotTagId(Slot::Strength), text);
  }

  standin::ModelerHost host;
  standin::ModelerObject* object;
  std::unique_ptr<mst::CSkgPropPanel> tool;
  standin::Panel* panel = nullptr;
};

const std::vector<PanelNews> kTold = {PanelNews::SelectionChanged};

TEST_F(PropertyPanelNews, AChangeIsToldOnce) {
  const PanelListener listener;
  EXPECT_TRUE(standin::oddhost::fire(control(Slot::Strength)));
  EXPECT_EQ(listener.heard, kTold);
}

TEST_F(PropertyPanelNews, ANewNameIsToldOnce) {
  const PanelListener listener;
  EXPECT_TRUE(person::type(control(mst::control::kNameEdit), "Pelvis"));
  EXPECT_EQ(listener.heard, kTold);
}

TEST_F(PropertyPanelNews, AReloadIsToldOnce) {
  const PanelListener listener;
  EXPECT_TRUE(person::press(control(mst::control::kSync)));
  EXPECT_EQ(listener.heard, kTold);
}

TEST_F(PropertyPanelNews, AFillButtonIsToldOnce) {
  const PanelListener listener;
  EXPECT_TRUE(standin::oddhost::fire(control(50)));
  EXPECT_EQ(listener.heard, kTold);
}

TEST_F(PropertyPanelNews, APageSwitchIsToldToNobody) {
  const PanelListener listener;
  EXPECT_TRUE(person::choose(control(mst::control::kPages), 1));
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(PropertyPanelNews, EveryCodeOfTheOthersLoadsTheValuesAnew) {
  int strength = 10;
  for (const PanelNews news :
       {PanelNews::Refresh, PanelNews::NamesChanged, PanelNews::PropertiesChanged, PanelNews::SelectionChanged}) {
    storeStrength(std::to_string(++strength));
    mst::NotifyPanels(nullptr, news);
    EXPECT_EQ(control(Slot::Strength)->real, strength);
  }
}

TEST_F(PropertyPanelNews, AnUnknownCodeLoadsNothing) {
  storeStrength("10");
  mst::NotifyPanels(nullptr, static_cast<PanelNews>(3));
  EXPECT_EQ(control(Slot::Strength)->real, 100);
}

TEST_F(PropertyPanelNews, AReloadThatAnotherPanelAskedForIsNotToldOn) {
  const PanelListener listener;
  mst::NotifyPanels(nullptr, PanelNews::NamesChanged);
  EXPECT_EQ(listener.heard, std::vector<PanelNews>{PanelNews::NamesChanged});
}

TEST_F(PropertyPanelNews, AClosedPanelLooksAtNothing) {
  EXPECT_TRUE(person::close(panel));
  const std::size_t edits = host.edits().size();
  mst::NotifyPanels(nullptr, PanelNews::SelectionChanged);
  EXPECT_EQ(host.edits().size(), edits);
}

TEST_F(PropertyPanelNews, ATakenDownToolIsToldNothing) {
  tool.reset();
  const std::uint64_t calls = standin::witness().calls();
  mst::NotifyPanels(nullptr, PanelNews::SelectionChanged);
  EXPECT_EQ(standin::witness().calls(), calls);
}

TEST_F(PropertyPanelNews, AFailedChangeIsToldToNobody) {
  const PanelListener listener;
  host.closeAll();
  EXPECT_TRUE(standin::oddhost::fire(control(Slot::Strength)));
  EXPECT_TRUE(listener.heard.empty());
}

}  // namespace
}  // namespace varnel::test
