#include "host/lwtool2_panels.h"

#include <array>
#include <string_view>
#include <utility>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_globals.h"
#include "texts/whole_text.h"

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

// The host only reads the list, though its interface does not say so. For popups `vertical` carries the width.
LWPanControlDesc choiceDescription(texts::Choices choices, int vertical) {
  LWPanControlDesc choice = description(kValueChoice);
  choice.choice.items = const_cast<const char**>(choices);
  choice.choice.vertical = vertical;
  return choice;
}

LWPanControlDesc rangeDescription(int width, int least, int greatest) {
  LWPanControlDesc range = description(kValueRange);
  range.range.width = width;
  range.range.min = least;
  range.range.max = greatest;
  return range;
}

constexpr int kWidestAngle = 36'000;  // degrees
constexpr int kWidestPercent = 100'000;
constexpr int kWidestNumber = 1'000'000;  // metres, or none

LWPanControlDesc widestRange(int greatest) { return rangeDescription(0, -greatest, greatest); }

LWValue integerValue(int value) {
  LWValue result;
  result.intv = {kValueInteger, value, 0};
  return result;
}

LWValue realValue(double value) {
  LWValue result;
  result.flt = {kValueFloat, value, 0};
  return result;
}

LWValue stringValue(char* buffer, int size) {
  LWValue result;
  result.str = {kValueString, buffer, size};
  return result;
}

}  // namespace

int CControl::integer() const { return measure(kControlValue); }

void CControl::setInteger(int value) const { setNumber(kControlValue, value); }

double CControl::real() const {
  LWValue value = realValue(0);
  control_->get(control_, kControlValue, &value);
  return value.flt.value;
}

void CControl::setReal(double number) const {
  LWValue value = realValue(number);
  control_->set(control_, kControlValue, &value);
}

std::string CControl::text(TextEnd end) const {
  // One byte more than the host is told of: a text that fills the buffer may come without its final zero.
  std::array<char, kLongestText + 1> buffer{};
  LWValue value = stringValue(buffer.data(), kLongestText);
  control_->get(control_, kControlValue, &value);
  const std::string_view text = buffer.data();
  const bool fillsBuffer = text.size() + 1 >= kLongestText;  // with its final zero or without
  return std::string(end == TextEnd::Whole || fillsBuffer ? texts::withoutCutCharacter(text) : text);
}

void CControl::setText(const std::string& text) const {
  std::string copy(texts::cutAtCharacter(text, kLongestText));  // the host only reads it, through a pointer to char
  LWValue value = stringValue(copy.data(), static_cast<int>(copy.size()) + 1);
  control_->set(control_, kControlValue, &value);
}

int CControl::measure(ControlAttribute attribute) const {
  LWValue value = integerValue(0);
  control_->get(control_, attribute, &value);
  return value.intv.value;
}

void CControl::moveTo(int x, int y) const {
  setNumber(kControlX, x);
  setNumber(kControlY, y);
}

void CControl::setHotWidth(int width) const {
  const int present = measure(kControlHotWidth);
  // The width that can be set is that of the whole, with label and padding.
  if (present != width) setNumber(kControlWidth, measure(kControlWidth) + width - present);
}

void CControl::setHotHeight(int height) const {
  const int present = measure(kControlHotHeight);
  if (present != height) setNumber(kControlHeight, measure(kControlHeight) + height - present);
}

void CControl::show(bool visible) const { control_->draw(control_, visible ? kDrawRender : kDrawErase); }

void CControl::refresh() const { control_->draw(control_, kDrawRefresh); }

void CControl::setUser(void* user) const { setPointer(kControlUserData, user); }

void CControl::onEvent(ControlEvent event) const { setPointer(kControlEventCallback, reinterpret_cast<void*>(event)); }

void CControl::onDraw(ControlDraw draw) const { setPointer(kControlDrawCallback, reinterpret_cast<void*>(draw)); }

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

CControl CPanel::addBoolButton(const char* label, int width) const {
  return add("BoolButtonControl", areaDescription(width, 0), label);
}

CControl CPanel::addBorder(int width, int height) const { return add("BorderControl", areaDescription(width, height), ""); }

CControl CPanel::addButton(const char* label, int width) const {
  return add("ButtonControl", areaDescription(width, 0), label);
}

CControl CPanel::addCustomPopup(const char* label, int width, PopupFunctions functions) const {
  LWPanControlDesc popup = description(kValuePopup);
  popup.popup.width = width;
  popup.popup.countFn = functions.count;
  popup.popup.nameFn = functions.name;
  return add("CustomPopupControl", popup, label);
}

CControl CPanel::addEdit(const char* label, int characters) const {
  LWPanControlDesc edit = description(kValueString);
  edit.str.width = characters;
  return add("EditControl", edit, label);
}

CControl CPanel::addPopup(const char* label, int width, texts::Choices choices) const {
  return add("PopupControl", choiceDescription(choices, width), label);
}

CControl CPanel::addTabs(const char* label, texts::Choices choices) const {
  return add("TabChoiceControl", choiceDescription(choices, 0), label);
}

CControl CPanel::addNumber(const char* label) const { return add("NumControl", description(kValueInteger), label); }

CControl CPanel::addNumberInfo(const char* label) const { return add("NumInfoControl", description(kValueInteger), label); }

// The host only reads the lines.
CControl CPanel::addText(const char* const* lines) const {
  LWPanControlDesc text = description(kValueText);
  text.text.text = const_cast<const char**>(lines);
  return add("TextControl", text, "");
}

CControl CPanel::addOpenGL(int width, int height) const { return add("OpenGLControl", areaDescription(width, height), ""); }

CControl CPanel::addMiniSlider(const char* label, int fieldWidth, int least, int greatest) const {
  return add("MiniSliderControl", rangeDescription(fieldWidth, least, greatest), label);
}

// Whether the host holds typed numbers to these ranges is not documented, nor in which unit it takes them: so they are far wider
// than what a rig needs, in whichever unit, and reach as far below zero.
CControl CPanel::addAngle(const char* label) const { return add("AngleControl", widestRange(kWidestAngle), label); }
CControl CPanel::addDistance(const char* label) const {
  return add("MiniDistanceControl", widestRange(kWidestNumber), label);
}
CControl CPanel::addFloat(const char* label) const { return add("MiniFloatControl", widestRange(kWidestNumber), label); }
CControl CPanel::addPercent(const char* label) const { return add("PercentControl", widestRange(kWidestPercent), label); }

void CPanel::setSize(int width, int height) const {
  panels().set(panel_, kPanelWidth, &width);
  panels().set(panel_, kPanelHeight, &height);
}

void CPanel::setGreatestSize(int width, int height) const {
  panels().set(panel_, kPanelGreatestWidth, &width);
  panels().set(panel_, kPanelGreatestHeight, &height);
}

void CPanel::redraw() const { panels().draw(panel_, kDrawRefresh); }

void CPanel::setLeastSize(int width, int height) const {
  panels().set(panel_, kPanelLeastWidth, &width);
  panels().set(panel_, kPanelLeastHeight, &height);
}

int CPanel::measure(PanelAttribute attribute) const {
  int number = 0;
  panels().get(panel_, attribute, &number);
  return number;
}

void CPanel::bringToFront() const {
  int yes = 1;
  panels().set(panel_, kPanelToFront, &yes);
}

void CPanel::setUser(void* user) const { panels().set(panel_, kPanelUserData, user); }

void CPanel::onOpen(PanelHook hook) const { panels().set(panel_, kPanelOpenHook, reinterpret_cast<void*>(hook)); }

void CPanel::onClose(PanelHook hook) const { panels().set(panel_, kPanelCloseHook, reinterpret_cast<void*>(hook)); }

void CPanel::onMouse(PanelMouseHook button, PanelMouseHook motion, PanelMouseHook wheel) const {
  panels().set(panel_, kPanelMouseButtonHook, reinterpret_cast<void*>(button));
  panels().set(panel_, kPanelMouseMoveHook, reinterpret_cast<void*>(motion));
  panels().set(panel_, kPanelMouseWheelHook, reinterpret_cast<void*>(wheel));
}

void CPanel::onResize(PanelResizeHook hook) const { panels().set(panel_, kPanelResizeHook, reinterpret_cast<void*>(hook)); }

int CPanel::open(int flags) const { return panels().open(panel_, flags); }

void CPanel::close() const { panels().close(panel_); }

}  // namespace lw
