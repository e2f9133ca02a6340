// A small module's panel in a real window, with a person's hands before it.
#pragma once

#include <algorithm>
#include <numeric>
#include <optional>

#include "standin/windows/driver.h"
#include "tests/standin/panels_fixture.h"

namespace standin {

class FrontTest : public PanelsTest {
 public:
  void SetUp() override {
    PanelsTest::SetUp();
    front.emplace();
    driver.emplace(*front);
  }
  void TearDown() override {
    EXPECT_THAT(front->refusals(), testing::IsEmpty());
    front.reset();
    PanelsTest::TearDown();
  }

  // A control that listens: one without an event callback has no events.
  lw::LWControl* add(lw::PanelId id, const char* kind, lw::LWPanControlDesc desc, const char* label = nullptr) {
    lw::LWControl* const control = PanelsTest::add(id, kind, desc, label);
    onEvent(control, [](lw::LWControl*, void*) {});
    return control;
  }
  lw::LWControl* add(lw::PanelId id, ControlKind kind, const char* label = nullptr) {
    return add(id, rowOf(kind).name, sampleDescription(kind), label);
  }
  lw::LWControl* addButton(lw::PanelId id, const char* label) {
    return add(id, "ButtonControl", describedArea(80, 0), label);
  }

  // Opens a panel of one control and gives that.
  Control& open(ControlKind kind, const char* label = "Label", int flags = kFlags) {
    panelId = make();
    Control& control = *record(add(panelId, kind, label));
    open(flags);
    return control;
  }
  void open(int flags = kFlags) {
    services->open(panelId, flags);
    front->settle();
  }
  Panel& panel() const { return record(panelId); }
  PanelWindow& window() const { return *front->windowOf(panel()); }
  HWND windowOf(const Control& control, PartRole role = PartRole::Main) const {
    return window().part(control, role)->handle;
  }
  bool isSeen(const Control& control) const { return IsWindowVisible(windowOf(control)) != FALSE; }
  static std::wstring textOf(HWND window) {
    std::wstring text(256, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), 256)));
    return text;
  }

  static constexpr int kFlags = lw::kOpenNoButtons | lw::kOpenResizable | lw::kOpenMouse;
  lw::PanelId panelId = nullptr;
  std::optional<WindowsFront> front;
  std::optional<Driver> driver;
};

}  // namespace standin
