// Every kind of control: what it may be made of, and the value that it carries.
#include <algorithm>
#include <iterator>
#include <numbers>

#include "tests/standin/panels_fixture.h"

namespace standin {
namespace {

using testing::HasSubstr;

class EveryControlKind : public PanelsTest, public testing::WithParamInterface<KindRow> {};

class EveryKindWithAValue : public EveryControlKind {};

std::vector<KindRow> kindsWithAValue() {
  std::vector<KindRow> kinds;
  std::copy_if(kControlKinds.begin(), kControlKinds.end(), std::back_inserter(kinds),
               [](const KindRow& row) { return row.value != ValueForm::None; });
  return kinds;
}

std::string nameOfKind(const testing::TestParamInfo<KindRow>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Kinds, EveryControlKind, testing::ValuesIn(kControlKinds), nameOfKind);
INSTANTIATE_TEST_SUITE_P(Kinds, EveryKindWithAValue, testing::ValuesIn(kindsWithAValue()), nameOfKind);

TEST_P(EveryControlKind, IsMadeFromItsDescription) { EXPECT_NE(nullptr, add(make(), GetParam().kind, "Label")); }

TEST_P(EveryControlKind, RefusesADescriptionOfAnotherType) {
  lw::LWPanControlDesc desc = sampleDescription(GetParam().kind);
  desc.type = 10;
  EXPECT_EQ(nullptr, add(make(), GetParam().name, desc));
  EXPECT_THAT(takeFaults(), HasSubstr("description of type 10"));
}

TEST_P(EveryControlKind, FaultsWhenItsDescriptionWasNotCleared) {
  lw::LWPanControlDesc desc = sampleDescription(GetParam().kind);
  reinterpret_cast<unsigned char*>(&desc)[sizeof desc - 1] = 0x5A;
  EXPECT_NE(nullptr, add(make(), GetParam().name, desc));
  EXPECT_THAT(takeFaults(), HasSubstr("not cleared"));
}

TEST_P(EveryControlKind, CarriesItsValue) {
  lw::LWControl* control = add(make(), GetParam().kind);
  switch (GetParam().value) {
    case ValueForm::Integer:
      setInteger(control, lw::kControlValue, 1);
      EXPECT_EQ(1, getInteger(control, lw::kControlValue));
      break;
    case ValueForm::Float:
      setReal(control, 1.25);
      EXPECT_EQ(1.25, getReal(control));
      break;
    case ValueForm::String:
      setText(control, "abc");
      EXPECT_EQ("abc", getText(control));
      break;
    case ValueForm::None:
      getInteger(control, lw::kControlValue);
      EXPECT_THAT(takeFaults(), HasSubstr("has no value"));
      break;
  }
}

TEST_P(EveryKindWithAValue, FaultsOnAValueOfTheWrongType) {
  lw::LWControl* control = add(make(), GetParam().kind);
  lw::LWValue value{};
  value.type = GetParam().value == ValueForm::Float ? lw::kValueInteger : lw::kValueFloat;
  control->get(control, lw::kControlValue, &value);
  EXPECT_THAT(takeFaults(), HasSubstr("wrong type"));
  control->set(control, lw::kControlValue, &value);
  EXPECT_THAT(takeFaults(), HasSubstr("wrong type"));
}

TEST_P(EveryControlKind, IsNamedInThePanelAsText) {
  const lw::PanelId panel = make();
  add(panel, GetParam().kind, "Label");
  services->open(panel, lw::kOpenNoButtons);
  EXPECT_THAT(panelText(record(panel)), HasSubstr(std::string(" ") + GetParam().name + " "));
}

using PanelControls = PanelsTest;

TEST_F(PanelControls, AnUnknownKindGivesNoControl) {
  EXPECT_EQ(nullptr, add(make(), "FancyControl", described(lw::kValueInteger)));
  EXPECT_THAT(takeFaults(), HasSubstr("unknown kind \"FancyControl\""));
}

TEST_F(PanelControls, ANullKindGivesNoControl) {
  lw::LWPanControlDesc desc = described(lw::kValueInteger);
  EXPECT_EQ(nullptr, services->addControl(make(), nullptr, &desc, ""));
  EXPECT_THAT(takeFaults(), HasSubstr("unknown kind"));
}

TEST_F(PanelControls, AMissingDescriptionGivesNoControl) {
  EXPECT_EQ(nullptr, services->addControl(make(), "BoolControl", nullptr, ""));
  EXPECT_THAT(takeFaults(), HasSubstr("got no description"));
}

TEST_F(PanelControls, AButtonMayHaveNoWidth) {
  EXPECT_NE(nullptr, add(make(), "ButtonControl", described(lw::kValueInteger), "Run"));
}

TEST_F(PanelControls, AButtonsHeightIsNotTheModules) {
  EXPECT_EQ(nullptr, add(make(), "ButtonControl", describedArea(80, 20), "Run"));
  EXPECT_THAT(takeFaults(), HasSubstr("width with height 0"));
}

TEST_F(PanelControls, ABoolButtonTakesBothDescriptions) {
  const lw::PanelId panel = make();
  EXPECT_NE(nullptr, add(panel, "BoolButtonControl", described(lw::kValueBoolean), "Shp"));
  EXPECT_NE(nullptr, add(panel, "BoolButtonControl", describedArea(40, 0), "Shp"));
}

TEST_F(PanelControls, APopupWithoutItemsIsRefused) {
  EXPECT_EQ(nullptr, add(make(), "PopupControl", describedChoice(nullptr)));
  EXPECT_THAT(takeFaults(), HasSubstr("no list of items"));
}

TEST_F(PanelControls, ACustomPopupWithoutFunctionsIsRefused) {
  EXPECT_EQ(nullptr, add(make(), "CustomPopupControl", describedPopup(nullptr, nullptr)));
  EXPECT_THAT(takeFaults(), HasSubstr("no count or name function"));
}

TEST_F(PanelControls, ATextWithoutLinesIsRefused) {
  EXPECT_EQ(nullptr, add(make(), "TextControl", describedLines(nullptr)));
  EXPECT_THAT(takeFaults(), HasSubstr("no list of lines"));
}

TEST_F(PanelControls, AGarbageWidthIsRefused) {
  EXPECT_EQ(nullptr, add(make(), "PercentControl", describedRange(0, 100, -858993460)));
  EXPECT_THAT(takeFaults(), HasSubstr("senseless width"));
}

TEST_F(PanelControls, ARangeTheWrongWayRoundIsRefused) {
  EXPECT_EQ(nullptr, add(make(), "MiniSliderControl", describedRange(10, 0)));
  EXPECT_THAT(takeFaults(), HasSubstr("range"));
}

TEST_F(PanelControls, ABorderOfHeightNoneIsALine) {
  EXPECT_EQ(2, getInteger(add(make(), "BorderControl", describedArea(100, 0)), lw::kControlHeight));
}

TEST_F(PanelControls, ACheckMarkKeepsOnlyOnAndOff) {
  lw::LWControl* check = add(make(), ControlKind::Bool);
  setInteger(check, lw::kControlValue, 7);
  EXPECT_EQ(1, getInteger(check, lw::kControlValue));
}

TEST_F(PanelControls, AnIndexOutsideTheListStays) {
  lw::LWControl* popup = add(make(), ControlKind::Popup);
  setInteger(popup, lw::kControlValue, 7);
  EXPECT_EQ(7, getInteger(popup, lw::kControlValue));
  EXPECT_EQ("(7)", record(popup)->shown());
}

TEST_F(PanelControls, ASetTextIsCopied) {
  lw::LWControl* edit = add(make(), ControlKind::Edit);
  setText(edit, "a text of a buffer that is gone after the call");
  EXPECT_EQ("a text of a buffer that is gone after the call", getText(edit));
}

TEST_F(PanelControls, ATextThatFillsTheBufferHasNoFinalZero) {
  lw::LWControl* edit = add(make(), ControlKind::Edit);
  setText(edit, "abcdef");
  std::array<char, 5> buffer{'#', '#', '#', '#', '#'};
  lw::LWValue value{};
  value.str = {lw::kValueString, buffer.data(), 4};
  edit->get(edit, lw::kControlValue, &value);
  EXPECT_EQ("abcd#", std::string(buffer.data(), buffer.size()));
}

TEST_F(PanelControls, ATextNeedsABuffer) {
  lw::LWControl* edit = add(make(), ControlKind::Edit);
  lw::LWValue value{};
  value.type = lw::kValueString;
  edit->get(edit, lw::kControlValue, &value);
  EXPECT_THAT(takeFaults(), HasSubstr("got no buffer"));
  edit->set(edit, lw::kControlValue, &value);
  EXPECT_THAT(takeFaults(), HasSubstr("got no buffer"));
}

TEST_F(PanelControls, ValuesShowInTheControlsUnits) {
  const lw::PanelId panel = make();
  const auto shown = [&](ControlKind kind, double value) {
    lw::LWControl* control = add(panel, kind);
    setReal(control, value);
    return record(control)->shown();
  };
  EXPECT_EQ("15.2 %", shown(ControlKind::Percent, 15.2));
  EXPECT_EQ("90\xC2\xB0", shown(ControlKind::Angle, std::numbers::pi / 2));
  EXPECT_EQ("1.5 m", shown(ControlKind::MiniDistance, 1.5));
  EXPECT_EQ("0.25", shown(ControlKind::MiniFloat, 0.25));
}

}  // namespace
}  // namespace standin
