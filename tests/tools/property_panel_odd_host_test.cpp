// The property panel on hosts that behave as no host should: events out of turn, without or with wrong handles.
#include "tests/tools/property_panel_fixture.h"

namespace varnel::test {
namespace {

class PropertyPanelOddHost : public PropertyPanel {
 protected:
  std::vector<bool> visibility() const {
    std::vector<bool> all;
    for (std::size_t number = 0; number < mst::kControlCount; ++number) all.push_back(isVisible(number));
    return all;
  }
};

TEST_F(PropertyPanelOddHost, WithoutTheUserPointersNothingIsWritten) {
  openWith({"Hips"});
  const std::string before = everythingStored();
  panel->user = nullptr;
  for (std::size_t number = 0; number < mst::kControlCount; ++number) {
    control(number)->user = nullptr;
    if (control(number)->event != nullptr) {
      EXPECT_TRUE(standin::oddhost::fire(control(number)));
    }
  }
  EXPECT_TRUE(person::close(panel));
  EXPECT_EQ(everythingStored(), before);
}

TEST_F(PropertyPanelOddHost, WithoutTheUserPointersListsAreEmpty) {
  openWith({"Hips"});
  show(Slot::ParentItem);
  Control* const chooser = behind(Slot::ParentItem);
  ASSERT_FALSE(person::menu(chooser).empty());
  chooser->user = nullptr;
  EXPECT_TRUE(person::menu(chooser).empty());
  EXPECT_TRUE(standin::oddhost::askName(chooser, 0));
}

TEST_F(PropertyPanelOddHost, AnEventOfAnotherControlIsNone) {
  openWith({"Hips"});
  const std::string before = everythingStored();
  Control* const strength = control(Slot::Strength);
  strength->real = 40;
  standin::callModule("control event callback", [&] { strength->event(control(Slot::Twist)->face, strength->user); });
  EXPECT_EQ(everythingStored(), before);
}

TEST_F(PropertyPanelOddHost, PagesAndGroupsThatAreNoneChangeNothing) {
  openWith({"Hips"});
  showGroup(kRotationGroup);
  const std::vector<bool> before = visibility();
  for (const std::size_t tabs : {mst::control::kPages, mst::control::kGroups}) {
    for (const int index : {-1, 4, 1000}) {
      EXPECT_TRUE(standin::oddhost::choose(control(tabs), index));
      EXPECT_EQ(visibility(), before) << tabs << " " << index;
    }
  }
}

TEST_F(PropertyPanelOddHost, ANameChosenAfterTheObjectWasClosedShowsNone) {
  openWith({"Hips", "Chest"});
  host.closeAll();
  EXPECT_TRUE(person::choose(control(mst::control::kNamePopup), 1));
  EXPECT_TRUE(person::menu(control(mst::control::kNamePopup)).empty());
}

TEST_F(PropertyPanelOddHost, APanelThatCouldNotBeMadeIsNoneWhenTheModuleGoes) { unloadAfterRefusedPanel(kPropertyTool); }

TEST_F(PropertyPanelOddHost, ARefusedPanelIsTriedAgain) {
  host.select({"Hips"});
  runRefused(kPropertyTool, "panel open");
  openTool();
  EXPECT_EQ(control(mst::control::kNameEdit)->text, "Hips");
  EXPECT_EQ(standin::panels().all().size(), 1U);
}

}  // namespace
}  // namespace varnel::test
