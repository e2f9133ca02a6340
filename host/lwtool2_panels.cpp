#include "host/lwtool2_panels.h"

#include <utility>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_globals.h"

namespace lw {
namespace {

// A description cleared as a whole, with its type.
LWPanControlDesc description(ValueType type) {
  LWPanControlDesc cleared;
  for (GapSlot& slot : cleared.whole) slot = nullptr;
  cleared.type = type;
  return cleared;
}

LWPanControlDesc areaDescription(int width, int height) {
  LWPanControlDesc area = description(kValueArea);
  area.area.width = width;
  area.area.height = height;
  return area;
}

LWValue integerValue(int value) {
  LWValue result;
  result.intv = {kValueInteger, value, 0};
  return result;
}

}  // namespace

int CControl::integer() const { return measure(kControlValue); }

void CControl::setInteger(int value) const { setNumber(kControlValue, value); }

int CControl::measure(ControlAttribute attribute) const {
  LWValue value = integerValue(0);
  control_->get(control_, attribute, &value);
  return value.intv.value;
}

void CControl::moveTo(int x, int y) const {
  setNumber(kControlX, x);
  setNumber(kControlY, y);
}

void CControl::setUser(void* user) const { setPointer(kControlUserData, user); }

void CControl::onEvent(ControlEvent event) const { setPointer(kControlEventCallback, reinterpret_cast<void*>(event)); }

void CControl::setPointer(ControlAttribute attribute, void* pointer) const {
  LWValue value;
  value.ptr = {kValuePointer, pointer};
  control_->set(control_, attribute, &value);
}

void CControl::setNumber(ControlAttribute attribute, int number) const {
  LWValue value = integerValue(number);
  control_->set(control_, attribute, &value);
}

CPanel::CPanel(const char* title) : panel_(panels().create(title, const_cast<LWPanelFuncs*>(&panels()))) {
  if (panel_ == nullptr) throw ex::CBaseEx("panel::create() !");
}

CPanel::~CPanel() {
  if (panel_ != nullptr) panels().destroy(panel_);
}

PanelId CPanel::release() { return std::exchange(panel_, nullptr); }

CControl CPanel::add(const char* kind, LWPanControlDesc description, const char* label) const {
  LWControl* const control = panels().addControl(panel_, kind, &description, label);
  if (control == nullptr) throw ex::CBaseEx(std::string("panel::addControl() !(") + kind + ")");
  return CControl(control);
}

CControl CPanel::addBool(const char* label) const { return add("BoolControl", description(kValueBoolean), label); }

CControl CPanel::addBorder(int width, int height) const { return add("BorderControl", areaDescription(width, height), ""); }

CControl CPanel::addButton(const char* label, int width) const {
  return add("ButtonControl", areaDescription(width, 0), label);
}

void CPanel::setSize(int width, int height) const {
  panels().set(panel_, kPanelWidth, &width);
  panels().set(panel_, kPanelHeight, &height);
}

}  // namespace lw
