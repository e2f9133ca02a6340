#include "standin/windows/driver.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <thread>
#include <vector>

#include "standin/core/wide_text.h"

namespace standin {
namespace {

Done failed(std::string why) { return {false, std::move(why)}; }

struct ButtonRow {
  MouseButton button;
  DWORD down;
  DWORD up;
};
constexpr std::array kButtons{
    ButtonRow{MouseButton::Left, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP},
    ButtonRow{MouseButton::Middle, MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP},
    ButtonRow{MouseButton::Right, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP},
};

// Input that is collected and then sent as one, so that loops of the system's own (a dragged frame) find all of it.
class Input {
 public:
  void mouse(DWORD what, DWORD data = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = what;
    input.mi.mouseData = data;
    inputs_.push_back(input);
  }
  void move(POINT to) {
    constexpr int whole = 65536;
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    const auto scaled = [](int place, int size) { return (place * whole + whole / 2) / size; };
    input.mi.dx = scaled(to.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = scaled(to.y, GetSystemMetrics(SM_CYSCREEN));
    inputs_.push_back(input);
  }
  void key(WORD code, bool isDown) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = code;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(code, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = isDown ? 0U : KEYEVENTF_KEYUP;
    inputs_.push_back(input);
  }
  void stroke(WORD code) {
    key(code, true);
    key(code, false);
  }
  void unit(wchar_t unit) {
    for (const DWORD up : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
      INPUT input{};
      input.type = INPUT_KEYBOARD;
      input.ki.wScan = unit;
      input.ki.dwFlags = KEYEVENTF_UNICODE | up;
      inputs_.push_back(input);
    }
  }
  void hold(Held held, bool isDown) {
    if (held.control) key(VK_CONTROL, isDown);
    if (held.shift) key(VK_SHIFT, isDown);
    if (held.alt) key(VK_MENU, isDown);
  }
  void send() {
    SendInput(static_cast<UINT>(inputs_.size()), inputs_.data(), sizeof(INPUT));
    inputs_.clear();
  }

 private:
  std::vector<INPUT> inputs_;
};

POINT onScreen(HWND window, int x, int y) {
  POINT point{x, y};
  ClientToScreen(window, &point);
  return point;
}

POINT middleOf(HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

const ButtonRow& rowOf(MouseButton button) {
  for (const ButtonRow& row : kButtons) {
    if (row.button == button) return row;
  }
  return kButtons[0];
}

HWND menuOf(HWND list) {
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  return GetComboBoxInfo(list, &info) != FALSE ? info.hwndList : nullptr;
}

}  // namespace

PanelWindow* Driver::reach(const Panel& panel, Done& done) {
  front_.settle();
  PanelWindow* const window = front_.windowOf(panel);
  if (window == nullptr) {
    done = failed("the panel has no window");
  } else if (GetForegroundWindow() != window->handle()) {
    SetForegroundWindow(window->handle());
    front_.settle();
  }
  return window;
}

const PanelPart* Driver::reach(const Control& control, PartRole role, Done& done) {
  PanelWindow* const window = reach(*control.panel, done);
  if (window == nullptr) return nullptr;
  const PanelPart* const part = window->part(control, role);
  if (part == nullptr || IsWindowVisible(part->handle) == FALSE) {
    done = failed(control.describe() + " is not to be seen");
    return nullptr;
  }
  return part;
}

Done Driver::clickOn(HWND window, POINT screen, MouseButton button, Held held, int times) {
  HWND const below = WindowFromPoint(screen);
  if (below == nullptr || GetAncestor(below, GA_ROOT) != GetAncestor(window, GA_ROOT)) {
    return failed("another window lies over the place");
  }
  // Two clicks are no double click.
  const ULONGLONG apart = lastClick_ + GetDoubleClickTime() + 1;
  const bool isNear = std::abs(screen.x - lastPlace_.x) <= 4 && std::abs(screen.y - lastPlace_.y) <= 4;
  if (const ULONGLONG now = GetTickCount64(); isNear && now < apart) Sleep(static_cast<DWORD>(apart - now));
  lastPlace_ = screen;
  Input input;
  input.hold(held, true);
  input.move(screen);
  for (int i = 0; i < times; ++i) {
    input.mouse(rowOf(button).down);
    input.mouse(rowOf(button).up);
  }
  input.send();
  front_.settle();
  input.hold(held, false);
  input.send();
  front_.settle();
  lastClick_ = GetTickCount64();
  return {};
}

Done Driver::click(const Control& control, PartRole role) {
  Done done;
  const PanelPart* const part = reach(control, role, done);
  return part == nullptr ? done : clickOn(part->handle, middleOf(part->handle), MouseButton::Left, {}, 1);
}

Done Driver::clickAt(const Control& control, int x, int y, MouseButton button, Held held, int times) {
  return clickAt(*control.panel, control.hot().x + x, control.hot().y + y, button, held, times);
}

Done Driver::clickAt(const Panel& panel, int x, int y, MouseButton button, Held held, int times) {
  Done done;
  const PanelWindow* const window = reach(panel, done);
  if (window == nullptr) return done;
  return clickOn(window->handle(), onScreen(window->handle(), x, y), button, held, times);
}

Done Driver::press(HWND button) {
  front_.settle();
  return clickOn(button, middleOf(button), MouseButton::Left, {}, 1);
}

Done Driver::drag(const Panel& panel, POINT from, POINT to, int steps, Held held) {
  Done done;
  const PanelWindow* const window = reach(panel, done);
  if (window == nullptr) return done;
  const POINT start = onScreen(window->handle(), from.x, from.y);
  const POINT end = onScreen(window->handle(), to.x, to.y);
  Input input;
  input.hold(held, true);
  input.move(start);
  input.mouse(MOUSEEVENTF_LEFTDOWN);
  input.send();
  front_.settle();
  for (int i = 1; i <= steps; ++i) {
    input.move({start.x + (end.x - start.x) * i / steps, start.y + (end.y - start.y) * i / steps});
    input.send();
    front_.settle();
  }
  input.mouse(MOUSEEVENTF_LEFTUP);
  input.send();
  front_.settle();
  input.hold(held, false);
  input.send();
  front_.settle();
  return {};
}

Done Driver::dragSlider(const Control& control, int pixels) {
  Done done;
  const PanelPart* const part = reach(control, PartRole::Slider, done);
  if (part == nullptr) return done;
  POINT from = middleOf(part->handle);
  ScreenToClient(front_.windowOf(*control.panel)->handle(), &from);
  return drag(*control.panel, from, {from.x + pixels, from.y});
}

Done Driver::wheel(const Panel& panel, int x, int y, int notches) {
  Done done;
  const PanelWindow* const window = reach(panel, done);
  if (window == nullptr) return done;
  Input input;
  input.move(onScreen(window->handle(), x, y));
  const int step = notches < 0 ? -WHEEL_DELTA : WHEEL_DELTA;
  for (int i = 0; i < std::abs(notches); ++i) input.mouse(MOUSEEVENTF_WHEEL, static_cast<DWORD>(step));
  input.send();
  front_.settle();
  return {};
}

Done Driver::type(const Control& field, std::string_view text) {
  if (Done done = click(field); !done) return done;
  Input input;
  input.stroke(VK_HOME);  // from the begin to the end, all is marked
  input.key(VK_SHIFT, true);
  input.stroke(VK_END);
  input.key(VK_SHIFT, false);
  if (text.empty()) input.stroke(VK_DELETE);
  for (const wchar_t unit : wide(text)) input.unit(unit);
  input.send();
  front_.settle();
  return {};
}

void Driver::key(WORD code, Held held) {
  Input input;
  input.hold(held, true);
  input.stroke(code);
  input.hold(held, false);
  input.send();
  front_.settle();
}

Done Driver::choose(const Control& list, int index) {
  if (Done done = click(list); !done) return done;
  Done done;
  const PanelPart* const part = reach(list, PartRole::Main, done);
  if (part == nullptr) return done;
  HWND const menu = menuOf(part->handle);
  if (menu == nullptr || IsWindowVisible(menu) == FALSE) return failed(list.describe() + " did not open");
  RECT item{};
  RECT area{};
  GetClientRect(menu, &area);
  if (SendMessageW(menu, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)) == LB_ERR) {
    key(VK_ESCAPE);
    return failed(list.describe() + " has no item " + std::to_string(index));
  }
  if (item.top >= area.top && item.bottom <= area.bottom) {
    return clickOn(menu, onScreen(menu, (item.left + item.right) / 2, (item.top + item.bottom) / 2), MouseButton::Left, {},
                   1);
  }
  key(VK_HOME);
  for (int i = 0; i < index; ++i) key(VK_DOWN);
  key(VK_RETURN);
  return {};
}

Done Driver::chooseTab(const Control& tabs, int index) {
  Done done;
  const PanelPart* const part = reach(tabs, PartRole::Main, done);
  if (part == nullptr) return done;
  RECT tab{};
  if (TabCtrl_GetItemRect(part->handle, index, &tab) == FALSE) return failed("there is no such tab");
  return clickOn(part->handle, onScreen(part->handle, (tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2),
                 MouseButton::Left, {}, 1);
}

Done Driver::resize(const Panel& panel, int dx, int dy) {
  Done done;
  const PanelWindow* const window = reach(panel, done);
  if (window == nullptr) return done;
  RECT frame{};
  GetWindowRect(window->handle(), &frame);
  const POINT corner{frame.right - 2, frame.bottom - 2};
  // While the frame is dragged, the system runs a loop of its own; the hands must go on meanwhile.
  std::atomic<bool> isDone = false;
  const std::jthread hands([&] {
    constexpr std::chrono::milliseconds pause(20);
    Input input;
    const auto step = [&] {
      input.send();
      std::this_thread::sleep_for(pause);
    };
    input.move(corner);
    step();
    input.mouse(MOUSEEVENTF_LEFTDOWN);
    step();
    for (int i = 1; i <= 3; ++i) {
      input.move({corner.x + dx * i / 3, corner.y + dy * i / 3});
      step();
    }
    input.mouse(MOUSEEVENTF_LEFTUP);
    step();
    isDone = true;
  });
  while (!isDone) front_.settle();
  front_.settle();
  return {};
}

Done Driver::close(const Panel& panel) {
  Done done;
  const PanelWindow* const window = reach(panel, done);
  if (window == nullptr) return done;
  PostMessageW(window->handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
  front_.settle();
  return {};
}

// ---------------------------------------------------------------------------------------------------------------------
// Pictures

Picture pictureOf(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  Picture picture(area.right, area.bottom);
  if (picture.isEmpty()) return picture;
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = picture.width;
  info.bmiHeader.biHeight = -picture.height;  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  HDC const screen = GetDC(window);
  HDC const memory = CreateCompatibleDC(screen);
  HBITMAP const bitmap = CreateCompatibleBitmap(screen, picture.width, picture.height);
  HGDIOBJ const before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, picture.width, picture.height, screen, 0, 0, SRCCOPY);
  SelectObject(memory, before);
  GetDIBits(memory, bitmap, 0, static_cast<UINT>(picture.height), picture.pixels.data(), &info, DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(window, screen);
  for (std::uint32_t& pixel : picture.pixels) {  // blue and red change places
    pixel = 0xFF000000U | (pixel & 0x0000FF00U) | (pixel & 0xFFU) << 16 | (pixel >> 16 & 0xFFU);
  }
  return picture;
}

Picture Driver::picture(const Panel& panel) {
  Done done;
  PanelWindow* const window = reach(panel, done);
  if (window == nullptr) return {};
  RedrawWindow(window->handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
  front_.settle();
  return pictureOf(window->handle());
}

Picture Driver::picture(const Control& control) { return picture(*control.panel).part(control.hot()); }

}  // namespace standin
