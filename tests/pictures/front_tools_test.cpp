// The module's own panels as real windows: a setting is written by real hands, and nothing that a page shows is cut.
#include <gmock/gmock.h>

#include "objectfile/sample_rigs.h"
#include "standin/core/program_folder.h"
#include "standin/core/tool_names.h"
#include "standin/layout/layout_host.h"
#include "standin/modeler/modeler_host.h"
#include "standin/panels/metrics.h"
#include "standin/windows/driver.h"
#include "standin/windows/painting.h"

namespace standin {
namespace {

// Texts of the visible controls that are wider when drawn than the room that they have.
std::vector<std::string> cutTexts(const Panel& panel) {
  std::vector<std::string> cut;
  HDC const dc = CreateCompatibleDC(nullptr);
  for (const auto& control : panel.controls) {
    if (!isVisible(*control)) continue;
    const std::string label = control->label.read();
    const bool isButton = control->is(ControlKind::Button) || control->is(ControlKind::BoolButton);
    const int room = isButton ? control->hotWidth - 4 : control->labelWidth();
    if (!control->is(ControlKind::Border) && drawnWidth(dc, label) > room) cut.push_back(control->describe());
    if (control->is(ControlKind::Popup) && drawnWidth(dc, control->shown()) > control->hotWidth - kPopupArrowWidth - 2) {
      cut.push_back(control->describe() + " = " + control->shown());
    }
    const bool isNumber = control->kind->handling == Handling::Slide;
    if (isNumber && drawnWidth(dc, control->shown()) > control->hotWidth - kSliderWidth - kFieldInset) {
      cut.push_back(control->describe() + " = " + control->shown());
    }
  }
  DeleteDC(dc);
  return cut;
}

class FrontTools : public testing::TestWithParam<std::uint32_t> {
 protected:
  void load() { ASSERT_EQ("", module.load(modulePath())); }
  void TearDown() override {
    panels().moduleUnloaded();
    module.unload();
    EXPECT_EQ("", witness().report());
  }
  ModuleFile module;
};

TEST_P(FrontTools, NoTextOfThePropertyPanelIsCutOnAnyPage) {
  ModelerHost host;
  host.options().localeInfo = GetParam();
  host.add(makeDemoRig());
  host.showLayers({0, 1});
  host.select({"Tail_01"});
  load();
  WindowsFront front;
  Driver driver(front);
  ASSERT_EQ(0, host.activate(module, kPropertyTool));
  const Panel& panel = *panels().find(kPropertyTool);
  for (int page = 0; page < 4; ++page) {
    ASSERT_TRUE(driver.chooseTab(*panel.find(ControlKind::TabChoice, 0), page));
    const int groups = page == 3 ? 3 : 1;
    for (int group = 0; group < groups; ++group) {
      if (groups > 1) {
        ASSERT_TRUE(driver.chooseTab(*panel.find(ControlKind::TabChoice, 1), group));
      }
      EXPECT_THAT(cutTexts(panel), testing::IsEmpty()) << "page " << page + 1 << ", group " << group + 1;
    }
  }
}

TEST_P(FrontTools, NoTextOfTheConversionPanelIsCut) {
  LayoutHost host;
  host.setLocale(GetParam());
  load();
  const WindowsFront front;
  ASSERT_EQ(0, host.activate(module, kConversionTool));
  EXPECT_THAT(cutTexts(*panels().find(kConversionTool)), testing::IsEmpty());
}

TEST_P(FrontTools, NoTextOfTheRenamerIsCutInAnyMode) {
  ModelerHost host;
  host.options().localeInfo = GetParam();
  host.add(makeDemoRig());
  load();
  WindowsFront front;
  Driver driver(front);
  ASSERT_EQ(0, host.activate(module, kRenamerTool));
  const Panel& panel = *panels().find(kRenamerTool);
  const Control& mode = *panel.find(ControlKind::Popup, 0);
  for (int i = 0; i < static_cast<int>(mode.items().size()); ++i) {
    ASSERT_TRUE(driver.choose(mode, i));
    EXPECT_THAT(cutTexts(panel), testing::IsEmpty()) << "mode " << i;
  }
}

TEST_P(FrontTools, ClickOnARowOfTheSelectorSelectsInModeler) {
  ModelerHost host;
  host.options().localeInfo = GetParam();
  host.add(makeDemoRig());
  host.showLayers({1});
  load();
  WindowsFront front;
  Driver driver(front);
  ASSERT_EQ(0, host.activate(module, kSelectorTool));
  const Control& tree = *panels().find(kSelectorTool)->find(ControlKind::OpenGL);
  const Picture before = driver.picture(tree);
  ASSERT_TRUE(driver.clickAt(tree, 60, 2 * 14 + 7));  // below the rows of the tree and of the layer
  EXPECT_THAT(host.selectedNames(), testing::ElementsAre("Tail_01"));
  EXPECT_NE(before, driver.picture(tree));
}

TEST_P(FrontTools, StrengthThatIsTypedBecomesATag) {
  ModelerHost host;
  host.options().localeInfo = GetParam();
  ModelerObject& object = host.add(makeDemoRig());
  host.showLayers({0, 1});
  host.select({"Tail_01"});
  load();
  WindowsFront front;
  Driver driver(front);
  ASSERT_EQ(0, host.activate(module, kPropertyTool));
  const Panel& panel = *panels().find(kPropertyTool);
  ASSERT_TRUE(driver.chooseTab(*panel.find(ControlKind::TabChoice, 0), 1));
  const std::size_t steps = object.undoSteps();
  ASSERT_TRUE(driver.type(*panel.find(ControlKind::Percent, 0), "55"));
  driver.key(VK_TAB);
  EXPECT_EQ(steps + 1, object.undoSteps());
  EXPECT_EQ("55 %", panel.find(ControlKind::Percent, 0)->shown());
}

INSTANTIATE_TEST_SUITE_P(Languages, FrontTools, testing::Values(0x409U, 0x411U));

}  // namespace
}  // namespace standin
