// The selector among other open tool panels.
#include "modeler/property/property_layout.h"
#include "tests/tools/property_panel_fixture.h"
#include "tests/tools/selector_fixture.h"

namespace varnel::test {
namespace {

// The selector and the property panel, both open.
class TwoPanels : public testing::Test, protected SelectorSession {
 protected:
  void openBoth() {
    openTool();
    EXPECT_EQ(host.activate(module, kPropertyTool), 0);
    properties = standin::panels().find(kPropertyTool);
    ASSERT_NE(properties, nullptr);
  }
  standin::Control* propertyControl(std::size_t number) const { return properties->at(static_cast<int>(number)); }
  std::string shownName() const { return propertyControl(mst::control::kNameEdit)->text; }

  standin::Panel* properties = nullptr;
};

TEST_F(TwoPanels, AClickInTheTreeShowsThatSkelegonsProperties) {
  openBoth();
  click(row::kChest);
  EXPECT_EQ(shownName(), "Chest");
}

TEST_F(TwoPanels, OnePushIsToldOnceAndComesNotBack) {
  openBoth();
  startCounting();
  click(row::kChest);
  EXPECT_EQ(pushes(), 1U);
  EXPECT_EQ(scans(), 1U);  // the property panel's
}

TEST_F(TwoPanels, ARenamedSkelegonMovesToItsPlace) {
  openBoth();
  click(row::kTail, kAlt);
  click(row::kTail2);
  EXPECT_TRUE(person::type(propertyControl(mst::control::kNameEdit), "Renamed"));
  EXPECT_EQ(shownIn(7), "Renamed");
}

TEST_F(TwoPanels, SyncInTheOtherPanelShowsModelersSelectionHereToo) {
  openBoth();
  host.select({"Tail_01"});
  EXPECT_TRUE(person::press(propertyControl(mst::control::kSync)));
  click(row::kHips, kCtrl);
  EXPECT_EQ(selected(), (Names{"Hips", "Tail_01"}));
}

TEST_F(TwoPanels, AValueChangedInTheOtherPanelOpensWhatWasClosed) {
  openBoth();
  click(row::kHips);
  clickExpander(row::kHips);
  EXPECT_EQ(shownIn(4), "Tail_01");
  EXPECT_TRUE(person::choose(propertyControl(mst::control::kPages), 1));
  EXPECT_TRUE(person::enter(propertyControl(mst::controlOf(Slot::Strength).value()), 40));
  EXPECT_EQ(shownIn(4), "Head");
}

TEST_F(TwoPanels, NewsAskForPainting) {
  openBoth();
  standin::panels().paintWanted(*panel);
  EXPECT_TRUE(person::press(propertyControl(mst::control::kSync)));
  EXPECT_TRUE(tree()->wantsPaint);
}

TEST_F(TwoPanels, NewsDoNotReachAClosedSelector) {
  openBoth();
  EXPECT_TRUE(person::close(panel));
  startCounting();
  EXPECT_TRUE(person::press(propertyControl(mst::control::kSync)));
  EXPECT_EQ(scans(), 1U);
}

TEST_F(TwoPanels, SyncHereLeavesTheOtherPanelAlone) {
  openBoth();
  startCounting();
  pressSync();
  EXPECT_EQ(scans(), 1U);
}

}  // namespace
}  // namespace varnel::test
