#include "standin/panels/mouse_delivery.h"

#include <algorithm>

namespace standin {
namespace {

bool callsHooks(const Panel& panel) {
  const PanelOptions& options = panels().options;
  if (options.mouse == MouseDelivery::Control) return false;
  return !options.hooksNeedMouseFlag || (panel.openFlags & lw::kOpenMouse) != 0;
}

struct HookRow {
  lw::PanelMouseHook hook;
  const char* name;
};

// The hook that tells of it.
HookRow hookFor(const Panel& panel, MouseDeed deed) {
  const bool isDown = (panel.qualifiers & lw::kMouseDown) != 0;
  const DragHook drags = deed == MouseDeed::Move && isDown ? panels().options.dragHook : DragHook::Motion;
  const bool isOfButtons = deed != MouseDeed::Move || drags == DragHook::Button;
  return isOfButtons ? HookRow{panel.mouseButtonHook, "panel mouse-button hook"}
                     : HookRow{panel.mouseMoveHook, "panel mouse-move hook"};
}

bool reachesHooks(const Panel& panel) {
  return callsHooks(panel) && !(panels().options.hooksBesideControlsOnly && panel.mouseOwner != nullptr);
}

bool reachesControl(const Panel& panel, MouseDeed deed) {
  const PanelOptions& options = panels().options;
  if (options.mouse == MouseDelivery::Hooks || panel.mouseOwner == nullptr || !isVisible(*panel.mouseOwner)) return false;
  switch (options.eventMouse) {
    case EventMouse::All: return true;
    case EventMouse::Buttons: return deed != MouseDeed::Move;
    case EventMouse::Presses: return deed == MouseDeed::Press;
  }
  return false;
}

void callHook(Panel& panel, MouseDeed deed) {
  const HookRow row = hookFor(panel, deed);
  if (row.hook == nullptr || !reachesHooks(panel)) return;
  panel.toldQualifiers = panel.qualifiers;
  panels().callMouseHook(panel, row.hook, row.name, panel.qualifiers);
}

void callControl(Panel& panel, MouseDeed deed) {
  if (!reachesControl(panel, deed)) return;
  panel.toldQualifiers = panel.qualifiers;
  panels().fire(*panel.mouseOwner);
}

}  // namespace

int buttonBits(MouseButton button) {
  switch (button) {
    case MouseButton::Left: return lw::kMouseLeft;
    case MouseButton::Middle: return lw::kMouseMiddle;
    case MouseButton::Right: return lw::kMouseRight;
  }
  return 0;
}

Control* areaAt(const Panel& panel, int x, int y) {
  for (const auto& control : panel.controls) {
    if (control->kind->handling == Handling::Mouse && isVisible(*control) && control->hot().holds(x, y))
      return control.get();
  }
  return nullptr;
}

void moveMouse(Panel& panel, int x, int y) {
  panel.mouseX = x;
  panel.mouseY = y;
  if (panel.mouseOwner != nullptr) {
    panel.mouseOwner->mouseX = x;
    panel.mouseOwner->mouseY = y;
  }
}

void deliver(Panel& panel, MouseDeed deed) {
  const bool eventFirst = panels().options.eventBeforeHooks;
  if (eventFirst) callControl(panel, deed);
  callHook(panel, deed);
  if (!eventFirst) callControl(panel, deed);
}

int countedClicks(Panel& panel, int x, int y, int quick) {
  const bool isFirst = panel.pressCount == 0;
  const bool isThere = panel.pressX == x && panel.pressY == y;
  const int atPlace = isFirst ? quick : isThere ? std::min(quick, panel.pressCount + 1) : 1;
  panel.pressX = x;
  panel.pressY = y;
  panel.pressCount = atPlace;
  switch (panels().options.clickCount) {
    case ClickCount::ByPlace: return atPlace;
    case ClickCount::ByTime: return quick;
    case ClickCount::Constant: return 1;
    case ClickCount::Never: return 0;
  }
  return atPlace;
}

void deliverWheel(Panel& panel, int notches) {
  const int count = panels().options.wheelCountsDown ? -notches : notches;
  if (callsHooks(panel)) panels().callMouseHook(panel, panel.mouseWheelHook, "panel mouse-wheel hook", count);
}

}  // namespace standin
