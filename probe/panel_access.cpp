#include "probe/panel_access.h"

#include <algorithm>
#include <array>

namespace probe {

lw::LWPanControlDesc description(lw::ValueType type) {
  lw::LWPanControlDesc made;
  for (lw::GapSlot& slot : made.whole) slot = nullptr;
  made.type = type;
  return made;
}

int integerOf(lw::LWControl* control, lw::ControlAttribute attribute) {
  lw::LWValue value;
  value.intv = {lw::kValueInteger, 0, 0};
  control->get(control, attribute, &value);
  return value.intv.value;
}

void setInteger(lw::LWControl* control, int number, lw::ControlAttribute attribute) {
  lw::LWValue value;
  value.intv = {lw::kValueInteger, number, 0};
  control->set(control, attribute, &value);
}

double realOf(lw::LWControl* control) {
  lw::LWValue value;
  value.flt = {lw::kValueFloat, 0, 0};
  control->get(control, lw::kControlValue, &value);
  return value.flt.value;
}

void setReal(lw::LWControl* control, double number) {
  lw::LWValue value;
  value.flt = {lw::kValueFloat, number, 0};
  control->set(control, lw::kControlValue, &value);
}

std::string textOf(lw::LWControl* control) {
  // One byte more than the host is told of: a text that fills the buffer may come without its final zero.
  constexpr int kLongest = 1023;
  std::array<char, kLongest + 1> buffer{};
  lw::LWValue value;
  value.str = {lw::kValueString, buffer.data(), kLongest};
  control->get(control, lw::kControlValue, &value);
  return buffer.data();
}

void setText(lw::LWControl* control, const std::string& text) {
  std::string copy = text;  // the host only reads it, through a pointer to char
  lw::LWValue value;
  value.str = {lw::kValueString, copy.data(), static_cast<int>(copy.size()) + 1};
  control->set(control, lw::kControlValue, &value);
}

void setPointer(lw::LWControl* control, lw::ControlAttribute attribute, void* pointer) {
  lw::LWValue value;
  value.ptr = {lw::kValuePointer, pointer};
  control->set(control, attribute, &value);
}

void draw(lw::LWControl* control, lw::DrawMode mode) { control->draw(control, mode); }

void layOut(lw::LWPanelFuncs& panels, lw::PanelId panel, const std::vector<ControlRow>& rows) {
  constexpr int kMargin = 8;
  constexpr int kGap = 12;
  int labels = 0;
  for (const ControlRow& row : rows) labels = std::max(labels, integerOf(row.front(), lw::kControlLabelWidth));
  int right = 0;
  int y = kMargin;
  for (const ControlRow& row : rows) {
    const int label = integerOf(row.front(), lw::kControlLabelWidth);
    int x = kMargin + (label == 0 ? 0 : labels - label);
    int height = 0;
    for (lw::LWControl* const control : row) {
      setInteger(control, x, lw::kControlX);
      setInteger(control, y, lw::kControlY);
      x += integerOf(control, lw::kControlWidth) + kGap;
      height = std::max(height, integerOf(control, lw::kControlHeight));
    }
    right = std::max(right, x);
    y += height + 2;
  }
  int width = right - kGap + kMargin;
  int height = y + kMargin;
  panels.set(panel, lw::kPanelWidth, &width);
  panels.set(panel, lw::kPanelHeight, &height);
}

}  // namespace probe
