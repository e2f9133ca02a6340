// A person's hands and eyes before the stand-in's windows: real mouse and key input, and pictures of what the screen shows.
//
// Input goes where the system sends it: to the window below the pointer, to the field with the focus. Each action waits
// until nothing more happens.
#pragma once

#include <string_view>

#include "standin/windows/front.h"
#include "standin/windows/picture.h"

namespace standin {

struct Held {
  bool control = false;
  bool shift = false;
  bool alt = false;
};

class Driver {
 public:
  explicit Driver(WindowsFront& front) : front_(front) {}

  // A click into the middle of a control, of its slider or its label.
  Done click(const Control& control, PartRole role = PartRole::Main);
  // The same at a place, counted from the control's hot area.
  Done clickAt(const Control& control, int x, int y, MouseButton button = MouseButton::Left, Held held = {}, int times = 1);
  // At a place of the panel.
  Done clickAt(const Panel& panel, int x, int y, MouseButton button = MouseButton::Left, Held held = {}, int times = 1);
  Done press(HWND button);
  // With the button held from one place of the panel to another, in steps.
  Done drag(const Panel& panel, POINT from, POINT to, int steps = 4, Held held = {});
  Done dragSlider(const Control& control, int pixels);
  Done wheel(const Panel& panel, int x, int y, int notches);
  // Clicks into a field, replaces all of its text and stays in it.
  Done type(const Control& field, std::string_view text);
  // A key of the keyboard (VK_TAB, VK_RETURN, ...), to where the focus is.
  void key(WORD code, Held held = {});
  // Opens the list and takes the item.
  Done choose(const Control& list, int index);
  Done chooseTab(const Control& tabs, int index);
  // Drags the lower right corner of the window's frame.
  Done resize(const Panel& panel, int dx, int dy);
  // The cross of the window's frame.
  Done close(const Panel& panel);

  // The panel's window without its frame, as the screen shows it.
  Picture picture(const Panel& panel);
  Picture picture(const Control& control);

 private:
  PanelWindow* reach(const Panel& panel, Done& done);
  const PanelPart* reach(const Control& control, PartRole role, Done& done);
  Done clickOn(HWND window, POINT screen, MouseButton button, Held held, int times);

  WindowsFront& front_;
  ULONGLONG lastClick_ = 0;
  POINT lastPlace_{};
};

// What the window's client area shows, with its children.
Picture pictureOf(HWND window);

}  // namespace standin
