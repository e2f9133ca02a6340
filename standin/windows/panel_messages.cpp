// What arrives at a panel's window from a person, and its way to standin/panels/person.h.
#include <array>
#include <cstdlib>
#include <utility>

#include "standin/core/wide_text.h"
#include "standin/panels/metrics.h"
#include "standin/panels/units.h"
#include "standin/windows/front.h"
#include "standin/windows/messages.h"
#include "standin/windows/painting.h"
#include "standin/windows/panel_window.h"
#include "standin/windows/theme.h"
// After windows.h, which it needs.
#include <windowsx.h>

namespace standin {
namespace {

std::string textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return utf8(text);
}

RECT rectOf(const Rectangle& area) { return {area.x, area.y, area.right(), area.bottom()}; }

int qualifiersNow() {
  const auto held = [](int key, int bit) { return GetKeyState(key) < 0 ? bit : 0; };
  return held(VK_CONTROL, lw::kMouseCtrl) | held(VK_SHIFT, lw::kMouseShift) | held(VK_MENU, lw::kMouseAlt);
}

struct MouseMessage {
  UINT message;
  MouseButton button;
  int clicks;  // 0: a release
};
constexpr std::array kMouseMessages{
    MouseMessage{WM_LBUTTONDOWN, MouseButton::Left, 1},     MouseMessage{WM_LBUTTONDBLCLK, MouseButton::Left, 2},
    MouseMessage{WM_LBUTTONUP, MouseButton::Left, 0},       MouseMessage{WM_MBUTTONDOWN, MouseButton::Middle, 1},
    MouseMessage{WM_MBUTTONDBLCLK, MouseButton::Middle, 2}, MouseMessage{WM_MBUTTONUP, MouseButton::Middle, 0},
    MouseMessage{WM_RBUTTONDOWN, MouseButton::Right, 1},    MouseMessage{WM_RBUTTONDBLCLK, MouseButton::Right, 2},
    MouseMessage{WM_RBUTTONUP, MouseButton::Right, 0},
};

// How far a value goes with each pixel that a slider is dragged, as the field shows it.
double perPixel(ControlKind kind) {
  switch (kind) {
    case ControlKind::MiniSlider: return 0.5;
    case ControlKind::Percent:
    case ControlKind::Angle: return 1;
    default: return 0.01;
  }
}

double shownValue(const Control& control) {
  if (control.kind->value == ValueForm::Integer) return control.integer;
  return control.real / valueOfShown(control.kind->kind, 1);
}

}  // namespace

LRESULT CALLBACK PanelWindow::procedure(HWND window, UINT message, WPARAM wide, LPARAM place) {
  if (message == WM_NCCREATE) {
    auto* const made = static_cast<PanelWindow*>(reinterpret_cast<CREATESTRUCTW*>(place)->lpCreateParams);
    made->handle_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
  }
  auto* const self = reinterpret_cast<PanelWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self != nullptr && self->panel_ != nullptr) {
    if (const auto result = self->received(message, wide, place)) return *result;
  }
  return DefWindowProcW(window, message, wide, place);
}

std::optional<LRESULT> PanelWindow::received(UINT message, WPARAM wide, LPARAM place) {
  if (message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK) {
    mouse(message, wide, GET_X_LPARAM(place), GET_Y_LPARAM(place));
    return 0;
  }
  switch (message) {
    case kMessageSync: sync(); return 0;
    case kMessageChosen:
      if (PanelPart* const list = partOf(reinterpret_cast<HWND>(wide))) chosen(*list);
      return 0;
    case WM_PAINT: paint(); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_SIZE:
      if (wide != SIZE_MINIMIZED) sized(GET_X_LPARAM(place), GET_Y_LPARAM(place));
      return 0;
    case WM_MOVE: moved(); return 0;
    case WM_GETMINMAXINFO: limits(*reinterpret_cast<MINMAXINFO*>(place)); return 0;
    case WM_MOUSEWHEEL: wheel(wide, place); return 0;
    case WM_CAPTURECHANGED:  // a button that another window took away counts as released
      if ((panel_->qualifiers & lw::kMouseDown) != 0) report(person::mouseRelease(panel_, panel_->mouseX, panel_->mouseY));
      return 0;
    case WM_SYSCOMMAND:  // Alt alone, held for a click, opens no menu
      if ((wide & 0xFFF0U) == SC_KEYMENU && place == 0) return 0;
      return std::nullopt;
    case WM_CLOSE: close(); return 0;
    default: return receivedFromParts(message, wide, place);
  }
}

std::optional<LRESULT> PanelWindow::receivedFromParts(UINT message, WPARAM wide, LPARAM place) {
  switch (message) {
    case WM_COMMAND: command(LOWORD(wide), HIWORD(wide), reinterpret_cast<HWND>(place)); return 0;
    case WM_NOTIFY: notified(*reinterpret_cast<const NMHDR*>(place)); return 0;
    case WM_DRAWITEM: drawPart(*reinterpret_cast<const DRAWITEMSTRUCT*>(place)); return TRUE;
    case WM_MEASUREITEM: reinterpret_cast<MEASUREITEMSTRUCT*>(place)->itemHeight = kRowHeight; return TRUE;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX: {
      auto* const dc = reinterpret_cast<HDC>(wide);
      SetTextColor(dc, colour(Tone::Text));
      SetBkColor(dc, colour(Tone::Field));
      return reinterpret_cast<LRESULT>(brush(Tone::Field));
    }
    default: return std::nullopt;
  }
}

void PanelWindow::report(const Done& done) {
  if (!done) front_.refused(done.why);
}

// ---------------------------------------------------------------------------------------------------------------------
// The controls

void PanelWindow::command(int id, int code, HWND from) {
  if (from == nullptr && id == IDOK) {  // Enter: the field is done
    SetFocus(handle_);
  } else if (from == nullptr && id == IDCANCEL) {
    revertField(GetFocus());
  } else if (PanelPart* const part = partOf(from)) {
    partCommand(*part, code);
  }
}

void PanelWindow::partCommand(PanelPart& part, int code) {
  switch (part.look()) {
    case Look::Button:
    case Look::Check:
      if (code != BN_CLICKED && code != BN_DOUBLECLICKED) break;  // two quick clicks are two clicks
      report(part.control->kind->handling == Handling::Press ? person::press(part.control) : person::toggle(part.control));
      break;
    case Look::Field:
      if (code == EN_KILLFOCUS && part.role == PartRole::Main) commitField(part);
      break;
    case Look::List:
      if (code == CBN_DROPDOWN) openMenu(part);
      // The list is in the midst of its own work here; it is asked for the choice when that is done.
      if (code == CBN_SELENDOK && !std::exchange(part.isChoiceWaiting, true)) {
        PostMessageW(handle_, kMessageChosen, reinterpret_cast<WPARAM>(part.handle), 0);
      }
      break;
    default: break;
  }
}

// The menu is filled each time it opens: what it offers may depend on what happened since.
void PanelWindow::openMenu(PanelPart& part) {
  SendMessageW(part.handle, CB_RESETCONTENT, 0, 0);
  int width = part.control->hotWidth;
  for (const std::string& item : person::menu(part.control)) {
    SendMessageW(part.handle, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(item).c_str()));
    width = std::max(width, textWidth(item) + kFieldInset + kPopupArrowWidth);
  }
  SendMessageW(part.handle, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width), 0);
  SendMessageW(part.handle, CB_SETCURSEL, static_cast<WPARAM>(part.control->integer), 0);
}

void PanelWindow::chosen(PanelPart& part) {
  part.isChoiceWaiting = false;
  const auto index = static_cast<int>(SendMessageW(part.handle, CB_GETCURSEL, 0, 0));
  if (index >= 0) report(person::choose(part.control, index));
  wantSync();
  InvalidateRect(part.handle, nullptr, FALSE);
}

void PanelWindow::notified(const NMHDR& note) {
  PanelPart* const part = partOf(note.hwndFrom);
  if (part == nullptr || part->look() != Look::Tabs || note.code != static_cast<UINT>(TCN_SELCHANGE)) return;
  report(person::choose(part->control, TabCtrl_GetCurSel(part->handle)));
}

// A field that was left tells its text, if that is another one than it showed.
void PanelWindow::commitField(PanelPart& part) {
  if (panel_ == nullptr || !isVisible(*part.control)) return;
  const std::string typed = textOf(part.handle);
  if (typed == part.content) return;
  report(person::type(part.control, typed));
  if (panel_ == nullptr) return;
  part.content = typed;  // so that the field is written anew where it shows the value in another form
  wantSync();
}

void PanelWindow::revertField(HWND field) {
  const PanelPart* const part = partOf(field);
  if (part == nullptr || part->look() != Look::Field || part->role != PartRole::Main) return;
  SetWindowTextW(part->handle, wide(part->content).c_str());
}

void PanelWindow::drag(PanelPart& slider, int x) {
  if (panel_ == nullptr) return;
  if (x == slider.dragStart) {
    slider.dragFrom = shownValue(*slider.control);
    return;
  }
  const double wanted = slider.dragFrom + (x - slider.dragStart) * perPixel(slider.control->kind->kind);
  report(person::drag(slider.control, wanted, 1));
}

// ---------------------------------------------------------------------------------------------------------------------
// The mouse and the keys

void PanelWindow::mouse(UINT message, WPARAM /*wide*/, int x, int y) {
  if (message == WM_MOUSEMOVE) {
    if (x != panel_->mouseX || y != panel_->mouseY) report(person::mouseMove(panel_, x, y));
    return;
  }
  for (const MouseMessage& row : kMouseMessages) {
    if (row.message != message) continue;
    if (row.clicks > 0) {
      if (!panel_->area().holds(x, y)) return;
      SetFocus(handle_);
      SetCapture(handle_);
      if (panel_ != nullptr) report(person::mousePress(panel_, x, y, row.button, qualifiersNow(), row.clicks));
    } else if ((panel_->qualifiers & lw::kMouseDown) != 0) {
      report(person::mouseRelease(panel_, x, y));
      ReleaseCapture();
    }
    return;
  }
}

void PanelWindow::wheel(WPARAM wide, LPARAM place) {
  if (panel_ == nullptr) return;
  POINT point{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
  ScreenToClient(handle_, &point);
  wheelRest_ += GET_WHEEL_DELTA_WPARAM(wide);
  const int notches = wheelRest_ / WHEEL_DELTA;
  wheelRest_ -= notches * WHEEL_DELTA;
  if (notches != 0 && panel_->area().holds(point.x, point.y)) report(person::wheel(panel_, point.x, point.y, notches));
}

// ---------------------------------------------------------------------------------------------------------------------
// The frame

void PanelWindow::sized(int width, int height) {
  if (isSyncing_ || !isReady_) return;
  if (width != panel_->width || height != panel_->height) {
    if (panel_->isResizable()) report(person::resize(panel_, width, height));
    wantSync();
  }
}

void PanelWindow::moved() {
  if (isSyncing_ || !isReady_) return;
  RECT place{};
  GetWindowRect(handle_, &place);
  panel_->x = place.left;
  panel_->y = place.top;
}

void PanelWindow::limits(MINMAXINFO& out) const {
  const SIZE least = outerSize(std::max(panel_->leastWidth, 1), std::max(panel_->leastHeight, 1));
  out.ptMinTrackSize = {least.cx, least.cy};
  const SIZE greatest = outerSize(panel_->greatestWidth, panel_->greatestHeight);
  if (panel_->greatestWidth > 0) out.ptMaxTrackSize.x = greatest.cx;
  if (panel_->greatestHeight > 0) out.ptMaxTrackSize.y = greatest.cy;
}

void PanelWindow::close() {
  SetFocus(handle_);  // what was typed into a field is taken first
  if (panel_ != nullptr) report(person::close(panel_));
}

// ---------------------------------------------------------------------------------------------------------------------
// Painting

void PanelWindow::paint() {
  PAINTSTRUCT paint{};
  HDC const dc = BeginPaint(handle_, &paint);
  fill(dc, paint.rcPaint, Tone::Panel);
  for (const auto& control : panel_->controls) {
    if (control->is(ControlKind::Border) && isVisible(*control)) drawBorder(dc, rectOf(control->hot()), *control);
  }
  EndPaint(handle_, &paint);
}

void PanelWindow::drawPart(const DRAWITEMSTRUCT& item) {
  PartState state{.isPressed = (item.itemState & ODS_SELECTED) != 0, .hasFocus = (item.itemState & ODS_FOCUS) != 0};
  const PanelPart* const part = partOf(item.hwndItem);
  if (part == nullptr) return;
  const Control& control = *part->control;
  state.isOn = control.kind->handling == Handling::Toggle && control.integer != 0;
  if (part->role == PartRole::Label) return drawLabel(item.hDC, item.rcItem, control);
  if (part->role == PartRole::Slider) {
    state.isPressed = part->isDragged;
    return drawSlider(item.hDC, item.rcItem, state);
  }
  switch (part->look()) {
    case Look::Lines: drawLines(item.hDC, item.rcItem, control); break;
    case Look::Info: drawInfo(item.hDC, item.rcItem, control); break;
    case Look::Check: drawCheck(item.hDC, item.rcItem, control, state); break;
    case Look::Button: drawButton(item.hDC, item.rcItem, control.label.read(), state); break;
    case Look::List: {
      if ((item.itemState & ODS_COMBOBOXEDIT) != 0 || item.itemID == static_cast<UINT>(-1)) {
        InvalidateRect(item.hwndItem, nullptr, FALSE);
        break;
      }
      std::wstring text(static_cast<std::size_t>(SendMessageW(item.hwndItem, CB_GETLBTEXTLEN, item.itemID, 0)) + 1, L'\0');
      SendMessageW(item.hwndItem, CB_GETLBTEXT, item.itemID, reinterpret_cast<LPARAM>(text.data()));
      text.pop_back();
      drawItem(item.hDC, item.rcItem, utf8(text), state.isPressed);
      break;
    }
    default: break;
  }
}

void PanelWindow::paintArea(PanelPart& part) { front_.paint(*part.control); }

}  // namespace standin
