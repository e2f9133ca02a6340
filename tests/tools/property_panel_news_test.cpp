// What the property panel tells the other open panels, and what it does when they tell it something. Here the panel is the
// test's own, not the built module's, so that the test can stand in the list of open panels.
#include <functional>

#include "modeler/property/MST_CSkgPropPanel.h"
#include "tests/tools/panel_listener.h"
#include "tests/tools/property_panel_fixture.h"

namespace varnel::test {
namespace {

class PropertyPanelNews : public OwnPanel<mst::CSkgPropPanel> {
 protected:
  PropertyPanelNews() : OwnPanel(panelRig(), {"Hips"}) {
    EXPECT_TRUE(tool->OpenPropertyPanel());
    panel = standin::panels().find(kPropertyTool);
  }

  standin::Control* control(std::size_t number) const { return panel->at(static_cast<int>(number)); }
  standin::Control* control(Slot slot) const { return control(mst::controlOf(slot).value()); }
  void storeStrength(const std::string& text) {
    object->setTag(*object->skelegon("Hips"), skg::SlotTagId(Slot::Strength), text);
  }
};

TEST_F(PropertyPanelNews, AValueANameAReloadAndAFillButtonAreToldOnce) {
  using Act = std::function<standin::Done()>;
  for (const Act& act : {Act([&] { return standin::oddhost::fire(control(Slot::Strength)); }),
                         Act([&] { return person::type(control(mst::control::kNameEdit), "Pelvis"); }),
                         Act([&] { return person::press(control(mst::control::kSync)); }),
                         Act([&] { return standin::oddhost::fire(control(50)); })}) {
    const PanelListener listener;
    EXPECT_TRUE(act());
    EXPECT_EQ(listener.heard, News{PanelNews::SelectionChanged});
  }
}

TEST_F(PropertyPanelNews, AChooserAPresetAndTheMapButtonAreToldOnce) {
  ASSERT_TRUE(person::choose(control(mst::control::kPages), 3));  // where the presets act
  using Act = std::function<standin::Done()>;
  for (const Act& act :
       {Act([&] { return standin::oddhost::choose(control(16), 1); }),
        Act([&] { return standin::oddhost::fire(control(17)); }),
        Act([&] { return standin::oddhost::choose(control(48), 1); }), Act([&] { return person::press(control(88)); })}) {
    const PanelListener listener;
    EXPECT_TRUE(act());
    EXPECT_EQ(listener.heard, News{PanelNews::SelectionChanged});
  }
}

TEST_F(PropertyPanelNews, AResetIsToldOnceThoughThePanelWasClosedMeanwhile) {
  for (const bool closes : {false, true}) {
    const PanelListener listener;
    host.showMessagesTo([&](const standin::Message&) {
      if (closes) {
        EXPECT_TRUE(person::close(panel));
      }
      return standin::Answer::Yes;
    });
    EXPECT_TRUE(person::press(control(mst::control::kReset)));
    EXPECT_EQ(listener.heard, News{PanelNews::SelectionChanged}) << closes;
  }
}

TEST_F(PropertyPanelNews, AResetThatTheUserDoesNotWantIsToldToNobody) {
  const PanelListener listener;
  host.answer(standin::Answer::No);
  EXPECT_TRUE(person::press(control(mst::control::kReset)));
  EXPECT_TRUE(listener.heard.empty());
}

// It changes nothing.
TEST_F(PropertyPanelNews, ARunWhileThePanelIsOpenIsToldToNobody) {
  const PanelListener listener;
  EXPECT_TRUE(tool->OpenPropertyPanel());
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(PropertyPanelNews, APageSwitchIsToldToNobody) {
  const PanelListener listener;
  EXPECT_TRUE(person::choose(control(mst::control::kPages), 1));
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(PropertyPanelNews, EveryCodeOfTheOthersLoadsTheValuesAnew) {
  int strength = 10;
  for (const PanelNews news : kEveryNews) {
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
  EXPECT_EQ(listener.heard, News{PanelNews::NamesChanged});
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
