// Attributes of panels and controls: which can be read and set, and how they travel.
#include "tests/standin/panels_fixture.h"

namespace standin {
namespace {

using testing::Each;
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
  for (const int attribute : {lw::kPanelX, lw::kPanelY, lw::kPanelWidth, lw::kPanelHeight, lw::kPanelLeastWidth,
                              lw::kPanelLeastHeight, lw::kPanelGreatestWidth, lw::kPanelGreatestHeight}) {
    setNumber(panel, attribute, 300 + attribute);
    EXPECT_EQ(300 + attribute, getNumber(panel, attribute));
  }
}

TEST_F(PanelAttributes, TheOwnerComesBack) {
  void* owner = nullptr;
  services->get(panel, 17, &owner);
  EXPECT_EQ(services, owner);
}

TEST_F(PanelAttributes, TheInterfaceVersionIs23) { EXPECT_EQ(23, getNumber(panel, 18)); }

TEST_F(PanelAttributes, TheOpenFlagsCanBeRead) {
  services->open(panel, 192);
  EXPECT_EQ(192, getNumber(panel, lw::kPanelOpenFlags));
}

TEST_F(PanelAttributes, ATitleIsThePointerItself) {
  services->set(panel, lw::kPanelTitle, const_cast<char*>("Renamed"));
  EXPECT_EQ(&record(panel), panels().find("Renamed"));
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
  services->get(panel, lw::kPanelX, nullptr);
  EXPECT_THAT(takeFaults(), HasSubstr("got no place"));
  services->set(panel, lw::kPanelX, nullptr);
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
  EXPECT_EQ(services->drawFuncs->textWidth(panel, "Label") + 4, getInteger(check, lw::kControlLabelWidth));
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

TEST_F(ControlAttributes, PointersTravelWhateverTheTypeCodeSays) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  lw::LWValue value{};
  value.ptr = {lw::kValueInteger, &value};
  check->set(check, lw::kControlUserData, &value);
  EXPECT_EQ(&value, record(check)->user);
}

TEST_F(ControlAttributes, ThePanelAndTheServicesCanBeRead) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  lw::LWValue value{};
  value.type = lw::kValuePointer;
  check->get(check, lw::kControlPanel, &value);
  EXPECT_EQ(panel, value.ptr.ptr);
  check->get(check, lw::kControlServices, &value);
  EXPECT_EQ(services, value.ptr.ptr);
}

TEST_F(ControlAttributes, ALabelCanBeSetAndRead) {
  lw::LWControl* check = add(panel, ControlKind::Bool, "Old");
  setText(check, "New label", lw::kControlLabel);
  EXPECT_EQ("New label", getText(check, lw::kControlLabel));
}

TEST_F(ControlAttributes, ARangeCanBeSetAndRead) {
  lw::LWControl* slider = add(panel, "MiniSliderControl", describedRange(1, 9));
  setInteger(slider, lw::kControlRangeGreatest, 12);
  EXPECT_EQ(1, getInteger(slider, lw::kControlRangeLeast));
  EXPECT_EQ(12, getInteger(slider, lw::kControlRangeGreatest));
}

TEST_F(ControlAttributes, DrawModesHideShowAndGhost) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  check->draw(check, lw::kDrawErase);
  EXPECT_EQ(0x200, getInteger(check, lw::kControlFlags));
  check->draw(check, lw::kDrawGhost);
  EXPECT_EQ(0x100, getInteger(check, lw::kControlFlags));
  check->draw(check, lw::kDrawRefresh);
  EXPECT_EQ(0x100, getInteger(check, lw::kControlFlags));
  check->draw(check, lw::kDrawRender);
  EXPECT_EQ(0, getInteger(check, lw::kControlFlags));
}

TEST_F(ControlAttributes, TheErasedFlagCanBeWritten) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  setInteger(check, lw::kControlFlags, 0x200);
  EXPECT_TRUE(record(check)->isErased);
}

TEST_F(ControlAttributes, AnUnknownDrawModeIsAFault) {
  lw::LWControl* check = add(panel, ControlKind::Bool);
  check->draw(check, 9);
  services->draw(panel, 9);
  EXPECT_EQ(2U, witness().faults().size());
  EXPECT_THAT(takeFaults(), HasSubstr("unknown draw mode 9"));
}

TEST_F(ControlAttributes, OnlyFieldsTakeTheFocus) {
  setInteger(add(panel, ControlKind::Edit), lw::kControlFocus, 1);
  setInteger(addButton(panel, "Run"), lw::kControlFocus, 1);
  EXPECT_THAT(takeFaults(), HasSubstr("cannot take the input focus"));
  EXPECT_TRUE(record(panel).focus->is(ControlKind::Edit));
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

TEST_F(ControlAttributes, TheScreensMetricsAreGiven) {
  const int* metrics = services->drawFuncs->dispMetrics();
  EXPECT_THAT(std::vector<int>(metrics, metrics + 8), Each(testing::Gt(0)));
}

}  // namespace
}  // namespace standin
