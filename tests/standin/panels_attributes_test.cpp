// Attributes of panels and controls: which can be read and set, and how they travel.
#include "standin/panels/metrics.h"
#include "tests/standin/panels_fixture.h"

namespace standin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct PanelAttributes : PanelsTest {
  lw::PanelId panel = nullptr;
  void SetUp() override {
    PanelsTest::SetUp();
    panel = make();
  }
};

TEST_F(PanelAttributes, NumbersTravelByAddress) {
  for (const int attribute : {lw::kPanelWidth, lw::kPanelHeight, lw::kPanelLeastWidth, lw::kPanelLeastHeight,
                              lw::kPanelGreatestWidth, lw::kPanelGreatestHeight}) {
    setNumber(panel, attribute, 300 + attribute);
    EXPECT_EQ(300 + attribute, getNumber(panel, attribute));
  }
}

TEST_F(PanelAttributes, UserDataReachesTheHooks) {
  static void* got = nullptr;
  services->set(panel, lw::kPanelUserData, this);
  const lw::PanelHook hook = [](lw::PanelId, void* user) { got = user; };
  services->set(panel, lw::kPanelOpenHook, reinterpret_cast<void*>(hook));
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_EQ(this, got);
}

TEST_F(PanelAttributes, AReadOnlyNumberCannotBeSet) {
  setNumber(panel, lw::kPanelQualifiers, 1);
  EXPECT_THAT(takeFaults(), HasSubstr("attribute 22 of panel \"Tool\" (qualifiers) can only be read"));
}

TEST_F(PanelAttributes, AWriteOnlyNumberCannotBeRead) {
  EXPECT_EQ(-12345, getNumber(panel, lw::kPanelToFront));
  EXPECT_THAT(takeFaults(), HasSubstr("can only be set"));
}

TEST_F(PanelAttributes, AHookCannotBeRead) {
  void* hook = nullptr;
  services->get(panel, lw::kPanelOpenHook, &hook);
  EXPECT_THAT(takeFaults(), HasSubstr("cannot be read"));
}

TEST_F(PanelAttributes, AnUnknownAttributeIsAFault) {
  setNumber(panel, 99, 1);
  EXPECT_THAT(takeFaults(), HasSubstr("attribute 99"));
}

TEST_F(PanelAttributes, ANullPlaceIsAFault) {
  services->get(panel, lw::kPanelWidth, nullptr);
  EXPECT_THAT(takeFaults(), HasSubstr("got no place"));
  services->set(panel, lw::kPanelWidth, nullptr);
  EXPECT_THAT(takeFaults(), HasSubstr("instead of the address of a number"));
}

TEST_F(PanelAttributes, ASenselessSizeIsAFault) {
  setNumber(panel, lw::kPanelWidth, -5);
  EXPECT_THAT(takeFaults(), HasSubstr("no sensible size"));
}

TEST_F(PanelAttributes, AnOpenPanelKeepsItsSizeUnlessItIsResizable) {
  setNumber(panel, lw::kPanelWidth, 300);
  services->open(panel, lw::kOpenNoButtons);
  setNumber(panel, lw::kPanelWidth, 400);
  EXPECT_EQ(300, getNumber(panel, lw::kPanelWidth));
  EXPECT_THAT(panels().notes(), ElementsAre(HasSubstr("was ignored")));
}

TEST_F(PanelAttributes, AHostMayTakeEverySize) {
  panels().options.sizeNeedsResizable = false;
  services->open(panel, lw::kOpenNoButtons);
  setNumber(panel, lw::kPanelWidth, 400);
  EXPECT_EQ(400, getNumber(panel, lw::kPanelWidth));
}

TEST_F(PanelAttributes, AnOpenResizablePanelTakesANewSize) {
  services->open(panel, lw::kOpenNoButtons | lw::kOpenResizable);
  setNumber(panel, lw::kPanelWidth, 400);
  EXPECT_EQ(400, getNumber(panel, lw::kPanelWidth));
}

TEST_F(PanelAttributes, ThePanelGrowsToHoldItsControls) {
  add(panel, "BorderControl", describedArea(200, 100));
  EXPECT_EQ(208, getNumber(panel, lw::kPanelWidth));
  EXPECT_EQ(108, getNumber(panel, lw::kPanelHeight));
}

struct ControlAttributes : PanelAttributes {};

TEST_F(ControlAttributes, ControlsStackDownwardsInOrderOfCreation) {
  lw::LWControl* first = addButton(panel, "1");
  lw::LWControl* second = addButton(panel, "2");
  EXPECT_EQ(getInteger(first, lw::kControlY) + getInteger(first, lw::kControlHeight), getInteger(second, lw::kControlY));
}

TEST_F(ControlAttributes, MovingSetsTheWholeControl) {
  lw::LWControl* check = add(panel, ControlKind::Bool, "Label");
  setInteger(check, lw::kControlX, 40);
  setInteger(check, lw::kControlY, 50);
  EXPECT_EQ(40 + getInteger(check, lw::kControlLabelWidth), getInteger(check, lw::kControlHotX));
  EXPECT_EQ(51, getInteger(check, lw::kControlHotY));
}

TEST_F(ControlAttributes, ALabelsWidthIsThatOfItsTextAndAGap) {
  lw::LWControl* check = add(panel, ControlKind::Bool, "Label");
  EXPECT_EQ(textWidth("Label") + 4, getInteger(check, lw::kControlLabelWidth));
}

TEST_F(ControlAttributes, WithoutALabelThereIsNoLabelWidth) {
  EXPECT_EQ(0, getInteger(add(panel, ControlKind::Edit), lw::kControlLabelWidth));
}

TEST_F(ControlAttributes, AButtonsLabelLiesInsideIt) {
  EXPECT_EQ(0, getInteger(addButton(panel, "Run"), lw::kControlLabelWidth));
}

TEST_F(ControlAttributes, AWidthIsSharedByLabelAndHotArea) {
  lw::LWControl* edit = add(panel, ControlKind::Edit, "Name");
  setInteger(edit, lw::kControlWidth, getInteger(edit, lw::kControlLabelWidth) + 90);
  EXPECT_EQ(90, getInteger(edit, lw::kControlHotWidth));
}

TEST_F(ControlAttributes, PaddingComesOnTopWhereTheHostHasIt) {
  panels().options.rightPadding = 3;
  lw::LWControl* check = add(panel, ControlKind::Bool, "Label");
  EXPECT_EQ(getInteger(check, lw::kControlLabelWidth) + getInteger(check, lw::kControlHotWidth) + 3,
            getInteger(check, lw::kControlWidth));
}

TEST_F(ControlAttributes, TheFlagsTellWhatIsErased) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  check->draw(check, lw::kDrawErase);
  EXPECT_EQ(lw::kControlErased, getInteger(check, lw::kControlFlags));
}

TEST_F(ControlAttributes, TheFlagsOfWhatIsShownAreEmpty) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  check->draw(check, lw::kDrawErase);
  check->draw(check, lw::kDrawRender);
  EXPECT_EQ(0, getInteger(check, lw::kControlFlags));
}

TEST_F(ControlAttributes, FlagsCannotBeSet) {
  setInteger(add(panel, ControlKind::Bool), lw::kControlFlags, lw::kControlErased);
  EXPECT_THAT(takeFaults(), testing::HasSubstr("attribute 12 (flags)"));
}

TEST_F(ControlAttributes, ALabelIsReadIntoTheCallersBuffer) {
  EXPECT_EQ("Label", getText(add(panel, ControlKind::Bool, "Label"), lw::kControlLabel));
}

TEST_F(ControlAttributes, AControlWithoutALabelGivesAnEmptyOne) {
  EXPECT_EQ("", getText(add(panel, ControlKind::Bool), lw::kControlLabel));
}

TEST_F(ControlAttributes, ALabelThatTheModuleChangedIsReadAnew) {
  std::string label = "Before";
  lw::LWControl* check = add(panel, ControlKind::Bool, label.c_str());
  label = "After";
  EXPECT_EQ("After", getText(check, lw::kControlLabel));
}

TEST_F(ControlAttributes, ALabelThatTheHostCopiedStaysAsItWas) {
  panels().options.copiesTexts = true;
  std::string label = "Before";
  lw::LWControl* check = add(panel, ControlKind::Bool, label.c_str());
  label = "After";
  EXPECT_EQ("Before", getText(check, lw::kControlLabel));
}

TEST_F(ControlAttributes, ALabelWithoutABufferIsAFault) {
  lw::LWControl* check = add(panel, ControlKind::Bool, "Label");
  lw::LWValue value{};
  value.str = {lw::kValueString, nullptr, 10};
  check->get(check, lw::kControlLabel, &value);
  EXPECT_THAT(takeFaults(), testing::HasSubstr("attribute 15 (label)"));
}

TEST_F(ControlAttributes, PointersTravelWhateverTheTypeCodeSays) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  lw::LWValue value{};
  value.ptr = {lw::kValueInteger, &value};
  check->set(check, lw::kControlUserData, &value);
  EXPECT_EQ(&value, record(check)->user);
}

TEST_F(ControlAttributes, DrawModesHideAndShow) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  check->draw(check, lw::kDrawErase);
  EXPECT_TRUE(record(check)->isErased);
  check->draw(check, lw::kDrawRefresh);
  EXPECT_TRUE(record(check)->isErased);
  check->draw(check, lw::kDrawRender);
  EXPECT_FALSE(record(check)->isErased);
}

TEST_F(ControlAttributes, GhostingIsNotOffered) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  check->draw(check, 2);
  EXPECT_THAT(takeFaults(), HasSubstr("unknown draw mode 2"));
}

TEST_F(ControlAttributes, AnUnknownDrawModeIsAFault) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  check->draw(check, 9);
  services->draw(panel, 9);
  EXPECT_EQ(2U, witness().faults().size());
  EXPECT_THAT(takeFaults(), HasSubstr("unknown draw mode 9"));
}

TEST_F(ControlAttributes, TheHotAreaCannotBeSet) {
  setInteger(addButton(panel, "Run"), lw::kControlHotWidth, 10);
  EXPECT_THAT(takeFaults(), HasSubstr("attribute 7 (hot area's width)"));
}

TEST_F(ControlAttributes, AnAttributeThatIsNotOfferedIsAFault) {
  getInteger(addButton(panel, "Run"), 26);
  EXPECT_THAT(takeFaults(), HasSubstr("attribute 26 is not offered"));
}

TEST_F(ControlAttributes, ANumberNeedsTheIntegerType) {
  lw::LWControl* button = addButton(panel, "Run");
  lw::LWValue value{};
  value.type = lw::kValueFloat;
  button->get(button, lw::kControlX, &value);
  EXPECT_THAT(takeFaults(), HasSubstr("wrong type 3"));
}

TEST_F(ControlAttributes, ANullValueIsAFault) {
  lw::LWControl* button = addButton(panel, "Run");
  button->get(button, lw::kControlX, nullptr);
  EXPECT_THAT(takeFaults(), HasSubstr("got no value"));
}

}  // namespace
}  // namespace standin
