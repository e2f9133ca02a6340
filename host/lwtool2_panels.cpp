#include "host/lwtool2_panels.h"

#include <string_view>
#include <utility>

#include "host/lwtool2_errors.h"
#include "skelegon/table_order.h"
#include "texts/whole_text.h"

namespace lw {
namespace {

constexpr int kWidestAngle = 36'000;  // degrees
constexpr int kWidestPercent = 100'000;
constexpr int kWidestNumber = 1'000'000;  // metres, or none

struct KindRow {
  forms::HostControl kind;
  const char* name;
  ValueType type;
  // Of typed numbers, as far below zero too. Whether the host holds them to a range is not documented, nor in which unit it
  // takes it: so it is far wider than what a rig needs, in whichever unit.
  int widest = 0;
};
constexpr std::array kKinds = {
    KindRow{forms::HostControl::Angle, "AngleControl", kValueRange, kWidestAngle},
    KindRow{forms::HostControl::Bool, "BoolControl", kValueBoolean},
    KindRow{forms::HostControl::BoolButton, "BoolButtonControl", kValueArea},
    KindRow{forms::HostControl::Border, "BorderControl", kValueArea},
    KindRow{forms::HostControl::Button, "ButtonControl", kValueArea},
    KindRow{forms::HostControl::CustomPopup, "CustomPopupControl", kValuePopup},
    KindRow{forms::HostControl::Distance, "MiniDistanceControl", kValueRange, kWidestNumber},
    KindRow{forms::HostControl::Edit, "EditControl", kValueString},
    KindRow{forms::HostControl::Float, "MiniFloatControl", kValueRange, kWidestNumber},
    KindRow{forms::HostControl::MiniSlider, "MiniSliderControl", kValueRange},
    KindRow{forms::HostControl::Number, "NumControl", kValueInteger},
    KindRow{forms::HostControl::NumberInfo, "NumInfoControl", kValueInteger},
    KindRow{forms::HostControl::OpenGL, "OpenGLControl", kValueArea},
    KindRow{forms::HostControl::Percent, "PercentControl", kValueRange, kWidestPercent},
    KindRow{forms::HostControl::Popup, "PopupControl", kValueChoice},
    KindRow{forms::HostControl::Tabs, "TabChoiceControl", kValueChoice},
    KindRow{forms::HostControl::Text, "TextControl", kValueText},
};

static_assert(skg::standInOrder(kKinds, &KindRow::kind));

// Cleared as a whole, then with what the type holds. Lists the host only reads, though its interface does not say so.
LWPanControlDesc describe(const KindRow& kind, const forms::ControlRow& row, const PanelTexts& texts,
                          const PopupFunctions& lists) {
  LWPanControlDesc made;
  for (GapSlot& slot : made.whole) slot = nullptr;
  made.type = kind.type;
  switch (kind.type) {
    case kValueArea:
      made.area.width = row.width;
      made.area.height = row.height;
      break;
    case kValueChoice:
      made.choice.items = const_cast<const char**>(texts.choices.at(row.choices.value()));
      made.choice.vertical = row.width;  // of a popup the width
      break;
    case kValuePopup:
      made.popup.width = row.width;
      made.popup.countFn = lists.count;
      made.popup.nameFn = lists.name;
      break;
    case kValueRange:
      made.range.width = kind.widest != 0 ? 0 : row.width;
      made.range.min = kind.widest != 0 ? -kind.widest : row.range.least;
      made.range.max = kind.widest != 0 ? kind.widest : row.range.greatest;
      break;
    case kValueString: made.str.width = row.width; break;
    default: break;
  }
  return made;
}

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

forms::Measured CControl::measured() const { return {measure(kControlWidth), measure(kControlLabelWidth)}; }

void CControl::moveTo(forms::Position position) const {
  setNumber(kControlX, position.x);
  setNumber(kControlY, position.y);
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

CControl CPanel::add(const forms::ControlRow& row, const PanelTexts& texts, const PopupFunctions& lists) {
  const KindRow& kind = kKinds[static_cast<std::size_t>(row.kind)];
  const char* label = row.label ? texts.labels[*row.label] : "";
  LWPanControlDesc description = describe(kind, row, texts, lists);
  if (row.kind == forms::HostControl::Text) {  // the label is the text
    lines_.push_front({std::exchange(label, ""), nullptr});
    description.text.text = lines_.front().data();
  }
  LWControl* const made = panels().addControl(panel_, kind.name, &description, label);
  if (made == nullptr) throw ex::CBaseEx(std::string("panel::addControl() !(") + kind.name + ")");
  return CControl(made);
}

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

void CPanel::setHooks(void* user, PanelHook opened, PanelHook closed) const {
  panels().set(panel_, kPanelUserData, user);
  panels().set(panel_, kPanelOpenHook, reinterpret_cast<void*>(opened));
  panels().set(panel_, kPanelCloseHook, reinterpret_cast<void*>(closed));
}

void CPanel::onMouse(PanelMouseHook button, PanelMouseHook motion, PanelMouseHook wheel) const {
  panels().set(panel_, kPanelMouseButtonHook, reinterpret_cast<void*>(button));
  panels().set(panel_, kPanelMouseMoveHook, reinterpret_cast<void*>(motion));
  panels().set(panel_, kPanelMouseWheelHook, reinterpret_cast<void*>(wheel));
}

void CPanel::onResize(PanelResizeHook hook) const { panels().set(panel_, kPanelResizeHook, reinterpret_cast<void*>(hook)); }

int CPanel::open(int flags) const { return panels().open(panel_, flags); }

void CPanel::close() const { panels().close(panel_); }

}  // namespace lw
