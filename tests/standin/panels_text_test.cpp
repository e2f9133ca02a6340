// Panels as text, the measure of texts, and the judgement of layouts.
#include "standin/panels/metrics.h"
#include "tests/standin/panels_fixture.h"

namespace standin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(PanelTextWidth, AWideCharacterTakesTwoCells) {
  EXPECT_EQ(3 * kCellWidth, textWidth("abc"));
  EXPECT_EQ(4 * kCellWidth, textWidth("\xE9\xAA\xA8\xE5\x90\x8D"));  // two ideographs
  EXPECT_EQ(kCellWidth, textWidth("\xEF\xBD\xB1"));                  // half-width katakana
  EXPECT_EQ(kCellWidth, textWidth("\xC3\xA9"));
}

TEST(PanelTextWidth, AnEscapeTakesAnIconsWidth) {
  EXPECT_EQ(kIconWidth, textWidth("\x03(i:MIMG_LEFTARROW)"));
  EXPECT_EQ(kIconWidth + 5 * kCellWidth, textWidth("\x03(i:BLOCK8, 16777216)Black"));
}

TEST(PanelTextWidth, BrokenBytesTakeACellEach) {
  EXPECT_EQ(3 * kCellWidth, textWidth("\xE9\xAA"
                                      "a"));
  EXPECT_EQ(2 * kCellWidth, textWidth("\x03("));
}

TEST(PanelTextSpelledOut, EscapesAndBrokenBytesCanBeSeen) { EXPECT_EQ("<(i:X)>a\\\"\\xff", spelledOut("\x03(i:X)a\"\xFF")); }

struct PanelsAsText : PanelsTest {
  lw::PanelId panel = nullptr;
  void SetUp() override {
    PanelsTest::SetUp();
    panel = make("Tool(1.20) ");
  }
  lw::LWControl* placed(lw::LWControl* control, int x, int y) {
    setInteger(control, lw::kControlX, x);
    setInteger(control, lw::kControlY, y);
    return control;
  }
  Panel& opened(int width = 200, int height = 100) {
    setNumber(panel, lw::kPanelWidth, width);
    setNumber(panel, lw::kPanelHeight, height);
    services->open(panel, lw::kOpenNoButtons);
    return record(panel);
  }
};

TEST_F(PanelsAsText, EachVisibleControlIsALineInReadingOrder) {
  placed(addButton(panel, "Run", 60), 130, 70);
  placed(add(panel, ControlKind::Bool, "Recount"), 10, 10);
  placed(add(panel, ControlKind::Popup, "Fruit"), 10, 40);
  EXPECT_EQ(
      "Panel \"Tool(1.20) \" 200x100\n"
      "  10,10    64x20    BoolControl         \"Recount\" = off\n"
      "  10,40    92x20    PopupControl        \"Fruit\" = 0 \"Apple\"\n"
      "  130,70   60x20    ButtonControl       \"Run\"\n",
      panelText(opened()));
}

TEST_F(PanelsAsText, HiddenAndOutlyingControlsAreLeftOut) {
  placed(addButton(panel, "Away", 60), 800, 800);
  lw::LWControl* hidden = addButton(panel, "Hidden", 60);
  hidden->draw(hidden, lw::kDrawErase);
  EXPECT_EQ("Panel \"Tool(1.20) \" 200x100\n", panelText(opened()));
}

TEST_F(PanelsAsText, ACustomPopupShowsItsPresentItem) {
  lw::LWControl* popup = add(panel, ControlKind::CustomPopup);
  setInteger(popup, lw::kControlValue, 2);
  opened();
  EXPECT_THAT(controlText(*record(popup)), HasSubstr("= 2 \"Fig\""));
}

TEST_F(PanelsAsText, AnUnknownItemOfACustomPopupShowsItsIndex) {
  lw::LWControl* popup = add(panel, ControlKind::CustomPopup);
  setInteger(popup, lw::kControlValue, 9);
  opened();
  EXPECT_THAT(controlText(*record(popup)), HasSubstr("= 9 \"(9)\""));
}

TEST_F(PanelsAsText, AClosedPanelShowsNoControls) {
  addButton(panel, "Run");
  EXPECT_THAT(panelText(record(panel)), HasSubstr("(closed)\n"));
}

struct PanelLayout : PanelsAsText {};

TEST_F(PanelLayout, ControlsThatShareAPixelOverlap) {
  lw::LWControl* first = placed(addButton(panel, "A", 50), 10, 10);
  lw::LWControl* second = placed(addButton(panel, "B", 50), 59, 10);
  EXPECT_THAT(overlapping(opened()), ElementsAre(ControlPair(record(first), record(second))));
}

TEST_F(PanelLayout, NeighboursDoNotOverlap) {
  placed(addButton(panel, "A", 50), 10, 10);
  placed(addButton(panel, "B", 50), 60, 10);
  EXPECT_THAT(overlapping(opened()), IsEmpty());
}

TEST_F(PanelLayout, ALabelOverlapsToo) {
  placed(addButton(panel, "A", 50), 10, 10);
  placed(add(panel, ControlKind::Bool, "Label"), 55, 10);
  EXPECT_EQ(1U, overlapping(opened()).size());
}

TEST_F(PanelLayout, ABorderMayFrameOthers) {
  placed(add(panel, "BorderControl", describedArea(190, 40)), 5, 5);
  placed(addButton(panel, "A", 50), 10, 10);
  EXPECT_EQ("", layoutComplaints(opened()));
}

TEST_F(PanelLayout, BordersMustNotCutEachOther) {
  placed(add(panel, "BorderControl", describedArea(100, 40)), 5, 5);
  placed(add(panel, "BorderControl", describedArea(100, 40)), 50, 20);
  EXPECT_THAT(layoutComplaints(opened()), HasSubstr("overlaps"));
}

TEST_F(PanelLayout, AHiddenControlOverlapsNothing) {
  placed(addButton(panel, "A", 50), 10, 10);
  lw::LWControl* hidden = placed(addButton(panel, "B", 50), 10, 10);
  hidden->draw(hidden, lw::kDrawErase);
  EXPECT_THAT(overlapping(opened()), IsEmpty());
}

TEST_F(PanelLayout, APartlyVisibleControlLeavesThePanel) {
  lw::LWControl* button = placed(addButton(panel, "A", 50), 160, 10);
  EXPECT_THAT(leaving(opened()), ElementsAre(record(button)));
}

TEST_F(PanelLayout, AnOutlyingControlIsListedApart) {
  lw::LWControl* button = placed(addButton(panel, "A", 50), 800, 800);
  opened();
  EXPECT_THAT(leaving(record(panel)), IsEmpty());
  EXPECT_THAT(outside(record(panel)), ElementsAre(record(button)));
}

TEST_F(PanelLayout, AButtonNarrowerThanItsLabelIsCut) {
  lw::LWControl* button = placed(addButton(panel, "A long label", 50), 10, 10);
  EXPECT_THAT(cut(opened()), ElementsAre(record(button)));
}

TEST_F(PanelLayout, APopupNarrowerThanItsLongestItemIsCut) {
  lw::LWControl* popup = placed(add(panel, "PopupControl", describedChoice(kFruit, 40)), 10, 10);
  EXPECT_THAT(cut(opened()), ElementsAre(record(popup)));
}

TEST_F(PanelLayout, TabsNarrowerThanTheirItemsAreCut) {
  lw::LWControl* tabs = placed(add(panel, ControlKind::TabChoice), 10, 10);
  setInteger(tabs, lw::kControlWidth, getInteger(tabs, lw::kControlWidth) - 1);
  EXPECT_THAT(cut(opened()), ElementsAre(record(tabs)));
}

// A module whose list died shows other items afterwards: the host reads its lists when it needs them.
TEST_F(PanelsAsText, ListsAreReadWhenTheyAreNeeded) {
  const char* items[] = {"Old", nullptr};
  lw::LWControl* popup = add(panel, "PopupControl", describedChoice(items));
  opened();
  items[0] = "New";
  EXPECT_THAT(person::menu(record(popup)), ElementsAre("New"));
}

TEST_F(PanelsAsText, AHostMayCopyListsAndLabels) {
  panels().options.copiesTexts = true;
  std::array<char, 4> label{"Old"};
  const char* items[] = {"Old", nullptr};
  lw::LWControl* popup = add(panel, "PopupControl", describedChoice(items), label.data());
  opened();
  items[0] = "New";
  label[0] = 'X';
  EXPECT_THAT(controlText(*record(popup)), HasSubstr("\"Old\" = 0 \"Old\""));
}

TEST_F(PanelsAsText, HidingBeforeOpeningIsForgottenByAnOddHost) {
  panels().options.drawBeforeOpenHolds = false;
  lw::LWControl* button = addButton(panel, "Run");
  button->draw(button, lw::kDrawErase);
  opened();
  EXPECT_TRUE(isVisible(*record(button)));
}

TEST_F(PanelsAsText, AHostMayKeepRoomForTheFinalZero) {
  panels().options.terminatesTexts = true;
  lw::LWControl* edit = add(panel, ControlKind::Edit);
  setText(edit, "abcdef");
  std::array<char, 4> buffer{'#', '#', '#', '#'};
  lw::LWValue value{};
  value.str = {lw::kValueString, buffer.data(), 4};
  edit->get(edit, lw::kControlValue, &value);
  EXPECT_STREQ("abc", buffer.data());
}

TEST_F(PanelsAsText, ASizeSetWhileOpenMayCallTheResizeHook) {
  static int calls = 0;
  calls = 0;
  panels().options.resizeHookOnSet = true;
  const lw::PanelResizeHook hook = [](lw::PanelId, void*, int, int) { ++calls; };
  services->set(panel, lw::kPanelResizeHook, reinterpret_cast<void*>(hook));
  services->open(panel, 192);
  setNumber(panel, lw::kPanelWidth, 333);
  EXPECT_EQ(1, calls);
}

}  // namespace
}  // namespace standin
