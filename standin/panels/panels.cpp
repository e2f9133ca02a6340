#include <algorithm>
#include <utility>

#include "standin/core/witness.h"
#include "standin/panels/handle_pool.h"
#include "standin/panels/metrics.h"
#include "standin/panels/panel.h"
#include "standin/panels/running.h"
#include "standin/panels/services.h"

namespace standin {
namespace {

// What the module holds, of all sessions of the process.
struct ControlHandle {
  lw::LWControl face;
  Control* record;
};
struct PanelHandle {
  Panel* record;
};

struct Handles {
  HandlePool<ControlHandle> controls;
  HandlePool<PanelHandle> panels;
};

Handles& handles() {
  static Handles instance;
  return instance;
}

void giveHandle(Panel& panel) { panel.id = reinterpret_cast<lw::PanelId>(&handles().panels.add({&panel})); }

void giveHandle(Control& control) {
  ControlHandle& handle = handles().controls.add({newControlFace(), &control});
  handle.face.priv_data = &handle;
  control.face = &handle.face;
}

bool isIntact(const ControlHandle& handle) {
  const lw::LWControl fresh = newControlFace();
  return handle.face.draw == fresh.draw && handle.face.get == fresh.get && handle.face.set == fresh.set &&
         handle.face.priv_data == &handle;
}

int widest(const std::vector<std::string>& texts) {
  int width = 0;
  for (const std::string& text : texts) width = std::max(width, textWidth(text));
  return width;
}

int orElse(int given, int otherwise) { return given > 0 ? given : otherwise; }

int tabsWidth(const std::vector<std::string>& items) {
  int width = 0;
  for (const std::string& item : items) width += textWidth(item) + kTabInset;
  return width;
}

// Size of the hot area that the host gives a new control.
int firstWidth(const Control& control) {
  const lw::LWPanControlDesc& desc = control.description;
  switch (control.kind->kind) {
    case ControlKind::Edit: return desc.str.width * kCellWidth + kFieldInset;
    case ControlKind::Num:
    case ControlKind::NumInfo: return kNumberWidth;
    case ControlKind::Text: return widest(control.lines());
    case ControlKind::Popup: return orElse(desc.choice.vertical, widest(control.items()) + kFieldInset + kPopupArrowWidth);
    case ControlKind::TabChoice: return tabsWidth(control.items());
    case ControlKind::CustomPopup: return orElse(desc.popup.width, 2 * kNumberWidth);
    case ControlKind::Bool: return kCheckMarkWidth;
    case ControlKind::BoolButton:
    case ControlKind::Button:
      return orElse(desc.type == lw::kValueArea ? desc.area.width : 0, textWidth(control.label.read()) + kButtonInset);
    case ControlKind::MiniSlider:
    case ControlKind::Percent:
    case ControlKind::Angle:
    case ControlKind::MiniDistance:
    case ControlKind::MiniFloat: return orElse(desc.range.width, kNumberWidth) + kSliderWidth;
    case ControlKind::Border:
    case ControlKind::OpenGL: return desc.area.width;
  }
  return 0;
}

int firstHeight(const Control& control) {
  constexpr int line = 2;  // height of a border that is only a dividing line
  switch (control.kind->kind) {
    case ControlKind::Border: return orElse(control.description.area.height, line);
    case ControlKind::OpenGL: return control.description.area.height;
    case ControlKind::Text: return std::max(1, static_cast<int>(control.lines().size())) * kTextHeight + 4;
    default: return panels().options.rowHeight - 2 * kRowInset;
  }
}

// Below the last one; the panel grows to hold it.
void stack(Panel& panel, Control& control) {
  control.x = kPanelMargin;
  control.y = panel.stackY;
  panel.stackY += control.height();
  panel.width = std::max(panel.width, control.whole().right() + kPanelMargin);
  panel.height = std::max(panel.height, panel.stackY + kPanelMargin);
}

void copyLists(Control& control) {
  if (control.is(ControlKind::CustomPopup)) return;
  panels().options.copiesTexts = false;
  control.copiedItems = control.is(ControlKind::Text) ? control.lines() : control.items();
  panels().options.copiesTexts = true;
}

}  // namespace

Panels& panels() {
  static Panels instance;
  return instance;
}

void Panels::reset() {
  // Only the records of this session: those before have none any more, and there may be very many.
  for (const auto& panel : panels_) {
    handles().panels.find(panel->id)->record = nullptr;
    for (const auto& control : panel->controls) handles().controls.find(control->face)->record = nullptr;
  }
  panels_.clear();
  notes_.clear();
  due_.clear();
  options = PanelOptions();
  listener = nullptr;
}

std::vector<Panel*> Panels::all() const {
  std::vector<Panel*> living;
  for (const auto& panel : panels_) {
    if (panel->isAlive) living.push_back(panel.get());
  }
  return living;
}

std::vector<Panel*> Panels::open() const {
  std::vector<Panel*> open = all();
  std::erase_if(open, [](const Panel* panel) { return !panel->isOpen(); });
  return open;
}

Panel* Panels::find(std::string_view title) const {
  Panel* best = nullptr;
  for (Panel* panel : all()) {
    const std::string whole = panel->title.read();
    if (!whole.starts_with(title)) continue;
    if (best == nullptr || panel->isOpen() || !best->isOpen()) best = panel;
  }
  return best;
}

std::vector<std::string> Panels::undestroyed() const {
  std::vector<std::string> lines;
  for (const Panel* panel : all()) {
    lines.push_back("panel \"" + spelledOut(panel->titleAtCreation) + "\" was never destroyed" +
                    (panel->isOpen() ? " and is open" : ""));
  }
  return lines;
}

std::vector<std::string> Panels::moduleUnloaded() {
  std::vector<std::string> left = undestroyed();
  for (Panel* panel : all()) {
    panel->state = Panel::State::Closed;
    destroy(*panel);
  }
  return left;
}

Panel* Panels::create(const char* title) {
  Panel& panel = *panels_.emplace_back(std::make_unique<Panel>());
  panel.title = KeptText::kept(title);
  panel.titleAtCreation = panel.title.read();
  panel.stackY = kPanelMargin;
  giveHandle(panel);
  return &panel;
}

Control* Panels::createControl(Panel& panel, const KindRow& kind, const lw::LWPanControlDesc& description,
                               const char* label) {
  Control& control = *panel.controls.emplace_back(std::make_unique<Control>());
  control.panel = &panel;
  control.kind = &kind;
  control.index = static_cast<int>(panel.controls.size()) - 1;
  control.description = description;
  control.label = KeptText::kept(label);
  if (description.type == lw::kValueRange) {
    control.rangeLeast = description.range.min;
    control.rangeGreatest = description.range.max;
  }
  if (options.copiesTexts) copyLists(control);
  control.hotWidth = firstWidth(control);
  control.hotHeight = firstHeight(control);
  giveHandle(control);
  control.isDrawn();
  stack(panel, control);
  if (options.asksPopupsAnytime) askAnything(control);
  return &control;
}

void Panels::destroy(Panel& panel) {
  panel.isAlive = false;
  for (const auto& control : panel.controls) destroy(*control);
  if (listener != nullptr) listener->destroyed(panel);
}

void Panels::destroy(Control& control) {
  control.isAlive = false;
  if (control.panel->mouseOwner == &control) control.panel->mouseOwner = nullptr;
}

Panel* Panels::resolve(lw::PanelId id, std::string& why) const {
  if (id == nullptr) {
    why = "got a null panel";
    return nullptr;
  }
  const auto* const handle = handles().panels.find(id);
  if (handle == nullptr) {
    why = "got a panel that the host never made";
    return nullptr;
  }
  Panel* panel = handle->record;
  if (panel == nullptr) {
    why = "got a panel of an earlier session";
    return nullptr;
  }
  if (!panel->isAlive) {
    why = "got the destroyed panel \"" + spelledOut(panel->titleAtCreation) + "\"";
    return nullptr;
  }
  return panel;
}

Control* Panels::resolve(const lw::LWControl* face, std::string& why) const {
  if (face == nullptr) {
    why = "got a null control";
    return nullptr;
  }
  const auto* const handle = handles().controls.find(face);
  if (handle == nullptr) {
    why = "got a control that the host never made";
    return nullptr;
  }
  Control* control = handle->record;
  if (control == nullptr) {
    why = "got a control of an earlier session";
    return nullptr;
  }
  if (!control->isAlive) {
    why = "got the destroyed " + control->describe();
    return nullptr;
  }
  if (!isIntact(*handle)) {
    why = "got a control whose record the module has overwritten: " + control->describe();
    return nullptr;
  }
  return control;
}

void Panels::callEvent(Control& control) {
  callModule("control event callback", [&] { control.event(control.face, control.user); });
}

void Panels::fire(Control& control) {
  if (!control.isAlive || control.event == nullptr || control.isFiring) return;
  const Running running(*control.panel);
  control.isFiring = true;
  ++control.eventsFired;
  if (listener != nullptr && control.is(ControlKind::OpenGL)) {
    listener->withContext(control, [&] { callEvent(control); });
  } else {
    callEvent(control);
  }
  control.isFiring = false;
}

void Panels::callHook(Panel& panel, lw::PanelHook hook, const char* name) {
  if (hook == nullptr) return;
  const Running running(panel);
  callModule(name, [&] { hook(panel.id, panel.user); });
}

void Panels::turn() {
  for (const lw::PanelId id : std::exchange(due_, {})) {
    std::string why;
    Panel* const panel = resolve(id, why);
    if (panel != nullptr && panel->isOpen()) callHook(*panel, panel->openHook, "panel open hook");
  }
}

void Panels::callMouseHook(Panel& panel, lw::PanelMouseHook hook, const char* name, int bits) {
  if (hook == nullptr) return;
  const Running running(panel);
  const auto call = [&] { callModule(name, [&] { hook(panel.id, panel.user, bits, panel.mouseX, panel.mouseY); }); };
  Control* const area = options.contextInHooks && listener != nullptr ? panel.find(ControlKind::OpenGL) : nullptr;
  if (area != nullptr) {
    listener->withContext(*area, call);
  } else {
    call();
  }
}

void Panels::callResizeHook(Panel& panel) {
  if (panel.resizeHook == nullptr) return;
  const Running running(panel);
  callModule("panel resize hook", [&] { panel.resizeHook(panel.id, panel.user, panel.width, panel.height); });
}

bool Panels::paint(Control& control) {
  const bool isArea = control.is(ControlKind::OpenGL);
  const Painter painter = isArea ? options.painter : Painter::DrawCallback;
  const bool draws = painter != Painter::EventCallback && control.drawCallback != nullptr;
  const bool fires = painter != Painter::DrawCallback && control.event != nullptr;
  if (!isVisible(control) || control.isPainting || (!draws && !fires)) return false;
  control.wantsPaint = false;
  control.isPainting = true;
  ++control.paints;
  const Running running(*control.panel);
  const auto call = [&] {
    if (draws)
      callModule("control draw callback", [&] { control.drawCallback(control.face, control.user, lw::kDrawRender); });
    if (fires) callEvent(control);
  };
  if (listener != nullptr && isArea) {
    listener->withContext(control, call);
  } else {
    call();
  }
  control.isPainting = false;
  return true;
}

int Panels::paintWanted(Panel& panel) {
  int painted = 0;
  for (const auto& control : panel.controls) {
    if (control->wantsPaint && paint(*control)) ++painted;
  }
  return painted;
}

}  // namespace standin
