// The attributes of panels. Numbers travel as the address of an int. Hooks and user data are the pointer itself.
#include <array>
#include <string>

#include "standin/core/witness.h"
#include "standin/panels/service_functions.h"
#include "standin/panels/services.h"

namespace standin {
namespace {

struct NumberAttribute {
  int attribute;
  const char* name;
  bool readable;
  bool writable;
  int Panel::*member;
};

// clang-format off
constexpr std::array kNumbers{
    //              attribute                  name                 read   write  member
    NumberAttribute{lw::kPanelWidth,           "width",             true,  true,  &Panel::width},
    NumberAttribute{lw::kPanelHeight,          "height",            true,  true,  &Panel::height},
    NumberAttribute{lw::kPanelMouseX,          "mouse x",           true,  false, &Panel::mouseX},
    NumberAttribute{lw::kPanelMouseY,          "mouse y",           true,  false, &Panel::mouseY},
    NumberAttribute{lw::kPanelQualifiers,      "qualifiers",        true,  false, &Panel::qualifiers},
    NumberAttribute{lw::kPanelToFront,         "bring to front",    false, true,  nullptr},
    NumberAttribute{lw::kPanelLeastWidth,      "least width",       true,  true,  &Panel::leastWidth},
    NumberAttribute{lw::kPanelLeastHeight,     "least height",      true,  true,  &Panel::leastHeight},
    NumberAttribute{lw::kPanelGreatestWidth,   "greatest width",    true,  true,  &Panel::greatestWidth},
    NumberAttribute{lw::kPanelGreatestHeight,  "greatest height",   true,  true,  &Panel::greatestHeight},
};
// clang-format on

const NumberAttribute* numberAttribute(int attribute) {
  for (const NumberAttribute& row : kNumbers) {
    if (row.attribute == attribute) return &row;
  }
  return nullptr;
}

// An open panel keeps its size unless it is resizable.
void setSize(const HostCall& call, Panel& panel, int attribute, int size) {
  const bool isWidth = attribute == lw::kPanelWidth;
  const std::string which = std::string(isWidth ? "width " : "height ") + std::to_string(size) + " of " + named(panel);
  if (size <= 0 || size > kWidestControl) {
    call.fault(which + " is no sensible size");
    return;
  }
  if (panel.isOpen() && !panel.isResizable() && panels().options.sizeNeedsResizable) {
    panels().note(which + " was ignored: the panel is open and not resizable");
    return;
  }
  const bool callHook = panel.isOpen() && panels().options.resizeHookOnSet;
  resizePanel(panel, isWidth ? size : panel.width, isWidth ? panel.height : size, callHook);
}

void setNumber(const HostCall& call, Panel& panel, const NumberAttribute& row, int number) {
  if (row.attribute == lw::kPanelWidth || row.attribute == lw::kPanelHeight) {
    setSize(call, panel, row.attribute, number);
  } else if (row.attribute == lw::kPanelToFront) {
    panel.takesFront = true;
    if (panels().listener != nullptr) panels().listener->cameToFront(panel);
  } else {
    panel.*row.member = number;
  }
}

bool setPointer(Panel& panel, int attribute, void* value) {
  const auto take = [value]<class Hook>(Hook& hook) {
    hook = reinterpret_cast<Hook>(value);
    return true;
  };
  switch (attribute) {
    case lw::kPanelOpenHook: return take(panel.openHook);
    case lw::kPanelCloseHook: return take(panel.closeHook);
    case lw::kPanelMouseButtonHook: return take(panel.mouseButtonHook);
    case lw::kPanelMouseMoveHook: return take(panel.mouseMoveHook);
    case lw::kPanelMouseWheelHook: return take(panel.mouseWheelHook);
    case lw::kPanelResizeHook: return take(panel.resizeHook);
    case lw::kPanelUserData: panel.user = value; return true;
    default: return false;
  }
}

}  // namespace

void getPanelAttribute(lw::PanelId id, int attribute, void* out) {
  const HostCall call("panel get");
  const Panel* panel = resolved(call, id);
  if (panel == nullptr) return;
  const std::string which = "attribute " + std::to_string(attribute) + " of " + named(*panel);
  if (out == nullptr) {
    call.fault("got no place for " + which);
    return;
  }
  if (call.refused()) return;
  const NumberAttribute* row = numberAttribute(attribute);
  if (row == nullptr) {
    if (attribute == lw::kPanelUserData) {
      *static_cast<void**>(out) = panel->user;
    } else {
      call.fault(which + " cannot be read");
    }
  } else if (!row->readable) {
    call.fault(which + " (" + row->name + ") can only be set");
  } else if (attribute == lw::kPanelQualifiers && panels().options.qualifiersAreOfTold) {
    *static_cast<int*>(out) = panel->toldQualifiers;
  } else {
    *static_cast<int*>(out) = panel->*row->member;
  }
}

void setPanelAttribute(lw::PanelId id, int attribute, void* value) {
  const HostCall call("panel set");
  Panel* panel = resolved(call, id);
  if (panel == nullptr || call.refused()) return;
  const std::string which = "attribute " + std::to_string(attribute) + " of " + named(*panel);
  const NumberAttribute* row = numberAttribute(attribute);
  if (row == nullptr) {
    if (!setPointer(*panel, attribute, value)) call.fault(which + " cannot be set");
  } else if (!row->writable) {
    call.fault(which + " (" + row->name + ") can only be read");
  } else if (value == nullptr) {
    call.fault(which + " (" + row->name + ") got a null instead of the address of a number");
  } else {
    setNumber(call, *panel, *row, *static_cast<const int*>(value));
  }
}

}  // namespace standin
