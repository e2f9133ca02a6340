#include "standin/panels/services.h"
#include "standin/panels/metrics.h"

#include <algorithm>
#include <set>
#include <string>

#include "standin/core/gap_slots.h"
#include "standin/core/globals.h"
#include "standin/core/witness.h"
#include "standin/panels/service_functions.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWPanelFuncs> = "LWPanelFuncs";

namespace {

constexpr int kOpenFlags = lw::kOpenMouse | lw::kOpenNoButtons | lw::kOpenResizable | lw::kOpenMouseMotion;

constexpr const char* kServiceName = "LWPanelServices 3";

// Into the one table, or into one of its copies: by which of them a function was called cannot be known.
bool hasLookupFunction() {
  const auto isWritten = [](const void* table) { return static_cast<const lw::LWPanelFuncs*>(table)->globalFun != nullptr; };
  const std::set<void*>& given = globals().given(kServiceName);
  return isWritten(panelServices()) || std::any_of(given.begin(), given.end(), isWritten);
}

lw::PanelId create(const char* title, void* /*owner*/) {
  const HostCall call("panel create");
  if (title == nullptr) {
    call.fault("got a null title");
    return nullptr;
  }
  if (panels().options.wantsLookupFunction && !hasLookupFunction()) {
    call.fault("was called before the module wrote its lookup function into the services table");
  }
  if (call.refused()) return nullptr;
  return panels().create(title)->id;
}

void destroy(lw::PanelId id) {
  const HostCall call("panel destroy");
  Panel* panel = resolved(call, id);
  if (panel == nullptr) return;
  if (panel->state != Panel::State::Closed) {
    call.fault(named(*panel) + " is destroyed while it is open");
  } else if (panel->runningCallbacks > 0) {
    call.fault(named(*panel) + " is destroyed from within one of its own callbacks");
  } else if (!call.refused()) {
    panels().destroy(*panel);
  }
}

// Some kinds of control need their user data before the panel opens, null included; which ones is not known.
void checkUserData(const HostCall& call, const Panel& panel) {
  for (const auto& control : panel.controls) {
    if (!control->isAlive || control->userWasSet) continue;
    const bool hasCallback =
        control->event != nullptr || control->drawCallback != nullptr || control->is(ControlKind::CustomPopup);
    if (hasCallback) {
      call.fault("opens with a control whose user data was never set: " + control->describe());
      return;
    }
  }
}

int open(lw::PanelId id, int flags) {
  const HostCall call("panel open");
  Panel* panel = resolved(call, id);
  if (panel == nullptr) return 0;
  if ((flags & ~kOpenFlags) != 0 || (flags & lw::kOpenNoButtons) == 0) {
    call.fault("got flags " + std::to_string(flags) + ", with which no tool opens, for " + named(*panel));
  }
  if (panel->state == Panel::State::Closing) {
    call.fault(named(*panel) + " is opened from within its close hook");
    return 0;
  }
  if (call.refused()) return 0;
  if (!panel->isOpen()) checkUserData(call, *panel);
  return openPanel(*panel, flags);
}

// All of the panel is painted anew.
void exposeAll(Panel& panel) {
  for (const auto& control : panel.controls) {
    control->wantsPaint = control->isAlive;
    control->isDrawn();
  }
}

void draw(lw::PanelId id, int mode) {
  const HostCall call("panel draw");
  Panel* panel = resolved(call, id);
  if (panel == nullptr) return;
  if (!isDrawMode(mode)) {
    call.fault("got the unknown draw mode " + std::to_string(mode));
    return;
  }
  if (call.refused()) return;
  if (mode != lw::kDrawErase) exposeAll(*panel);
  if (panels().listener != nullptr) panels().listener->drawn(*panel, mode);
}

void close(lw::PanelId id) {
  const HostCall call("panel close");
  Panel* panel = resolved(call, id);
  if (panel == nullptr || call.refused()) return;
  if (!panel->isOpen()) panels().note(named(*panel) + " was closed while it was not open");
  closePanel(*panel, panels().options.closeCallsHook);
}

lw::LWPanelFuncs& servicesTable() {
  static lw::LWPanelFuncs table{};
  return table;
}

void fillTable(lw::LWPanelFuncs& table) {
  table = {};
  table.create = &create;
  table.destroy = &destroy;
  table.open = &open;
  table.draw = &draw;
  table.close = &close;
  table.get = &getPanelAttribute;
  table.set = &setPanelAttribute;
  table.addControl = &addControl;
  STANDIN_FILL_GAP(table, 24);
  STANDIN_FILL_GAP(table, 72);
  STANDIN_FILL_GAP(table, 104);
}

}  // namespace

Panel* resolved(const HostCall& call, lw::PanelId id) {
  std::string why;
  Panel* panel = panels().resolve(id, why);
  if (panel == nullptr) call.fault(why);
  return panel;
}

std::string named(const Panel& panel) { return "panel \"" + spelledOut(panel.titleAtCreation) + "\""; }

lw::LWPanelFuncs* panelServices() { return &servicesTable(); }

void offerPanelServices() {
  panels().reset();
  fillTable(servicesTable());
  globals().offerTable(kServiceName, panelServices());
}

int openPanel(Panel& panel, int flags) {
  if (panel.isOpen()) {
    panel.takesFront = true;
    if (panels().listener != nullptr) panels().listener->cameToFront(panel);
    return panels().options.openAnswer;
  }
  const OpenHook when = panels().options.openHook;
  const auto callHook = [&] { panels().callHook(panel, panel.openHook, "panel open hook"); };
  panel.openFlags = flags;
  if (when == OpenHook::Before) callHook();
  panel.state = Panel::State::Open;
  panel.wasOpened = true;
  exposeAll(panel);
  if (panels().options.asksPopupsAnytime) {
    for (const auto& control : panel.controls) askAnything(*control);
  }
  if (panels().listener != nullptr) panels().listener->opened(panel);
  if (when == OpenHook::Shown) callHook();
  if (when == OpenHook::Later) panels().hookIsDue(panel);
  if (panels().options.resizeHookOnOpen) panels().callResizeHook(panel);
  return panels().options.openAnswer;
}

void closePanel(Panel& panel, bool callHook) {
  if (!panel.isOpen()) return;
  panel.state = Panel::State::Closing;
  panel.mouseOwner = nullptr;
  if (callHook) panels().callHook(panel, panel.closeHook, "panel close hook");
  panel.state = Panel::State::Closed;
  if (panels().listener != nullptr) panels().listener->closed(panel);
}

void resizePanel(Panel& panel, int width, int height, bool callHook) {
  if (panel.width == width && panel.height == height) return;
  panel.width = width;
  panel.height = height;
  exposeAll(panel);
  if (panels().listener != nullptr) panels().listener->resized(panel);
  if (callHook) panels().callResizeHook(panel);
}

}  // namespace standin
