#include "standin/windows/front.h"

#include <algorithm>
#include <utility>

#include "standin/core/witness.h"

namespace standin {
namespace {

constexpr DWORD kQuietMilliseconds = 20;  // for so long nothing must come before all is taken for done

void useCommonControls() {
  INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_TAB_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&wanted);
}

void dispatch(MSG& message) {
  HWND const root = message.hwnd == nullptr ? nullptr : GetAncestor(message.hwnd, GA_ROOT);
  if (root != nullptr && IsDialogMessageW(root, &message) != FALSE) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace

WindowsFront::WindowsFront() {
  useCommonControls();
  panels().listener = this;
  for (Panel* panel : panels().open()) opened(*panel);
}

WindowsFront::~WindowsFront() {
  windows_.clear();
  left_.clear();
  if (panels().listener == this) panels().listener = nullptr;
}

PanelWindow* WindowsFront::windowOf(const Panel& panel) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const auto& w) { return w->panel() == &panel; });
  return found == windows_.end() ? nullptr : found->get();
}

bool WindowsFront::pump() {
  ++depth_;
  bool any = false;
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    any = true;
    dispatch(message);
  }
  if (--depth_ == 0) left_.clear();
  return any;
}

void WindowsFront::settle() {
  do {
    while (pump()) {
    }
  } while (MsgWaitForMultipleObjects(0, nullptr, FALSE, kQuietMilliseconds, QS_ALLINPUT) == WAIT_OBJECT_0);
}

void WindowsFront::runUntil(const std::function<bool()>& isOver) {
  while (!isOver()) {
    if (!pump()) WaitMessage();
  }
}

void WindowsFront::leave(const Panel& panel) {
  const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const auto& w) { return w->panel() == &panel; });
  if (found == windows_.end()) return;
  (*found)->leave();
  left_.push_back(std::move(*found));
  windows_.erase(found);
}

// ---------------------------------------------------------------------------------------------------------------------

void WindowsFront::opened(Panel& panel) {
  if (windowOf(panel) == nullptr) windows_.push_back(std::make_unique<PanelWindow>(*this, panel));
}

void WindowsFront::closed(Panel& panel) { leave(panel); }

void WindowsFront::destroyed(Panel& panel) { leave(panel); }

void WindowsFront::resized(Panel& panel) {
  PanelWindow* const window = windowOf(panel);
  if (window == nullptr) return;
  window->wantSync();
  for (const auto& control : panel.controls) {
    if (control->is(ControlKind::OpenGL)) window->wantPaint(*control);
  }
}

void WindowsFront::cameToFront(Panel& panel) {
  if (const PanelWindow* const window = windowOf(panel)) window->bringToFront();
}

void WindowsFront::drawn(Panel& panel, int /*mode*/) { resized(panel); }

void WindowsFront::drawn(Control& control, int /*mode*/) {
  PanelWindow* const window = windowOf(*control.panel);
  if (window == nullptr) return;
  window->wantSync();
  if (control.is(ControlKind::OpenGL)) window->wantPaint(control);
}

void WindowsFront::changed(Control& control) {
  if (PanelWindow* const window = windowOf(*control.panel)) window->wantSync();
}

// ---------------------------------------------------------------------------------------------------------------------
// OpenGL

GlArea* WindowsFront::areaOf(Control& control) const {
  PanelWindow* const window = windowOf(*control.panel);
  const PanelPart* const part = window == nullptr ? nullptr : window->part(control);
  return part != nullptr && part->area != nullptr && part->area->works() ? part->area.get() : nullptr;
}

void WindowsFront::paint(Control& control) {
  const bool before = std::exchange(isPainting_, true);
  const bool isPainted = panels().paint(control);
  isPainting_ = before;
  const GlArea* const area = areaOf(control);
  if (isPainted && area != nullptr) area->show();
}

void WindowsFront::withContext(Control& control, const std::function<void()>& call) {
  GlArea* const area = areaOf(control);
  if (area == nullptr) return call();
  const std::string found = area->during(call, isPainting_);
  if (found.empty()) return;
  witness().fault(isPainting_ ? "control draw callback" : "control event callback",
                  "OpenGL after " + control.describe() + ": " + found);
}

}  // namespace standin
