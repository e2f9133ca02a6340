// The desk: the window in which a person works on an object with the module's tools.
#include <gmock/gmock.h>

#include <filesystem>
#include <optional>

#include "objectfile/file_bytes.h"
#include "objectfile/sample_rigs.h"
#include "standin/core/program_folder.h"
#include "standin/core/tool_names.h"
#include "standin/windows/desk_window.h"
#include "standin/windows/driver.h"

namespace standin {
namespace {

using testing::ElementsAre;

class Desk : public testing::Test {
 protected:
  void SetUp() override {
    host.add(makeDemoRig(), "lizard.lwo");
    host.showAllLayers();
    ASSERT_EQ("", module.load(modulePath()));
    front.emplace();
    driver.emplace(*front);
    desk.emplace(host, module, *front);
    desk->ask = [this](const std::string& text, UINT) { return asked = text, answer; };
    settle();
  }
  void TearDown() override {
    desk.reset();
    front.reset();
    panels().moduleUnloaded();
    module.unload();
    EXPECT_EQ("", witness().report());
  }
  void settle() {
    front->settle();
    desk->refresh();
  }
  std::size_t rowOf(const std::wstring& name) const {
    HWND const list = desk->part(DeskPart::Polygons);
    return static_cast<std::size_t>(
        SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name.c_str())));
  }
  // A click on a row of a list that is scrolled so that the row is its first.
  void clickRow(DeskPart part, std::size_t row) {
    HWND const list = desk->part(part);
    SendMessageW(list, LB_SETTOPINDEX, row, 0);
    RECT place{};
    SendMessageW(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&place));
    const LPARAM point = MAKELPARAM(place.left + 5, (place.top + place.bottom) / 2);
    PostMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageW(list, WM_LBUTTONUP, 0, point);
    settle();
  }
  Panel* startPropertyPanel() {
    EXPECT_TRUE(driver->press(desk->toolButton(kPropertyTool)));
    settle();
    return panels().find(kPropertyTool);
  }
  void changeSomething() {
    host.select({"Tail_01"});
    Panel* const panel = startPropertyPanel();
    ASSERT_NE(nullptr, panel);
    ASSERT_TRUE(driver->chooseTab(*panel->find(ControlKind::TabChoice, 0), 1));
    ASSERT_TRUE(driver->type(*panel->find(ControlKind::Percent, 0), "55"));
    driver->key(VK_TAB);
    settle();
  }

  ModelerHost host;
  ModuleFile module;
  std::optional<WindowsFront> front;
  std::optional<Driver> driver;
  std::optional<DeskWindow> desk;
  std::string asked;
  int answer = IDCANCEL;
};

TEST_F(Desk, ListsThePolygonsOfTheForeground) {
  const auto all = SendMessageW(desk->part(DeskPart::Polygons), LB_GETCOUNT, 0, 0);
  host.showLayers({1});
  settle();
  const auto tail = SendMessageW(desk->part(DeskPart::Polygons), LB_GETCOUNT, 0, 0);
  EXPECT_GT(tail, 0);
  EXPECT_LT(tail, all);
}

TEST_F(Desk, ListsTheSkelegonsOfAllLayersBeforeTheFaces) {
  EXPECT_EQ(rowOf(L"Root"), 0U);
  EXPECT_EQ(rowOf(L"Tail_06"), 23U);
}

TEST_F(Desk, ClickOnALayerTakesItOutOfTheForeground) {
  clickRow(DeskPart::Layers, 0);
  EXPECT_FALSE(host.current()->layer(0)->foreground);
  EXPECT_TRUE(host.current()->layer(1)->foreground);
}

TEST_F(Desk, ClickOnAPolygonSelectsIt) {
  clickRow(DeskPart::Polygons, rowOf(L"Tail_01"));
  EXPECT_THAT(host.selectedNames(), ElementsAre("Tail_01"));
}

TEST_F(Desk, SelectionOfTheModulesShowsInTheList) {
  host.select({"Tail_02"});
  settle();
  EXPECT_GT(SendMessageW(desk->part(DeskPart::Polygons), LB_GETSEL, rowOf(L"Tail_02"), 0), 0);
}

TEST_F(Desk, ButtonStartsItsTool) { EXPECT_NE(nullptr, startPropertyPanel()); }

TEST_F(Desk, UndoTakesAChangeBack) {
  changeSomething();
  EXPECT_TRUE(desk->isChanged());
  ASSERT_TRUE(driver->press(desk->part(DeskPart::Undo)));
  settle();
  EXPECT_FALSE(desk->isChanged());
}

TEST_F(Desk, ClosingAnUnchangedObjectAsksNothing) {
  SendMessageW(desk->handle(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(desk->isOver());
  EXPECT_EQ("", asked);
}

TEST_F(Desk, ClosingAChangedObjectAsksAndStaysOnCancel) {
  changeSomething();
  SendMessageW(desk->handle(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(desk->isOver());
  EXPECT_NE("", asked);
}

TEST_F(Desk, SaveAsWritesTheObject) {
  changeSomething();
  const std::string path = (std::filesystem::temp_directory_path() / "varnel-desk-test.lwo").string();
  desk->askPath = [&] { return path; };
  ASSERT_TRUE(driver->press(desk->part(DeskPart::SaveAs)));
  settle();
  EXPECT_FALSE(desk->isChanged());
  EXPECT_TRUE(std::filesystem::exists(path));
  std::filesystem::remove(path);
}

int countOf(const DeskWindow& desk, DeskPart part) {
  return static_cast<int>(SendMessageW(desk.part(part), LB_GETCOUNT, 0, 0));
}

TEST_F(Desk, ListsNothingOnceTheObjectIsClosed) {
  host.closeAll();
  settle();
  EXPECT_EQ(countOf(*desk, DeskPart::Layers), 0);
  EXPECT_EQ(countOf(*desk, DeskPart::Polygons), 0);
}

TEST_F(Desk, HasNothingToSaveWithoutAnObject) {
  host.closeAll();
  settle();
  for (const DeskPart part : {DeskPart::Save, DeskPart::SaveAs, DeskPart::Undo, DeskPart::Redo}) {
    ASSERT_TRUE(driver->press(desk->part(part)));
    settle();
  }
  SendMessageW(desk->handle(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(desk->isOver());
  EXPECT_EQ("", asked);
}

// The probe runs where nothing is loaded.
class EmptyDesk : public Desk {
 protected:
  void SetUp() override {
    ASSERT_EQ("", module.load(probePath()));
    front.emplace();
    driver.emplace(*front);
    desk.emplace(host, module, *front);
    settle();
  }
  static std::string probePath() {
    const std::filesystem::path own = pathFromUtf8(modulePath());
    return utf8Of(own.parent_path() / (own.stem().string() + "-probe" + own.extension().string()));
  }
};

TEST_F(EmptyDesk, ListsTheCommandsOfAnyModule) {
  EXPECT_NE(nullptr, desk->toolButton("Varnel:HostFacts"));
  EXPECT_EQ(nullptr, desk->toolButton(kPropertyTool));
}

TEST_F(EmptyDesk, StartsTheProbe) {
  EXPECT_EQ(countOf(*desk, DeskPart::Polygons), 0);
  ASSERT_TRUE(driver->press(desk->toolButton("Varnel:HostFacts")));
  settle();
  const Panel* const panel = panels().find("Varnel:HostFacts");
  ASSERT_NE(nullptr, panel);
  EXPECT_TRUE(panel->isOpen());
}

}  // namespace
}  // namespace standin
