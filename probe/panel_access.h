// The panel services as the probe uses them: values and attributes without the unions and casts around them.
#pragma once

#include <string>
#include <vector>

#include "interface/lightwave.h"

namespace probe {

// Cleared as a whole; the caller fills in what its kind needs.
lw::LWPanControlDesc description(lw::ValueType type);

int integerOf(lw::LWControl* control, lw::ControlAttribute attribute = lw::kControlValue);
void setInteger(lw::LWControl* control, int value, lw::ControlAttribute attribute = lw::kControlValue);
double realOf(lw::LWControl* control);
void setReal(lw::LWControl* control, double value);
std::string textOf(lw::LWControl* control);
void setText(lw::LWControl* control, const std::string& text);
void setPointer(lw::LWControl* control, lw::ControlAttribute attribute, void* pointer);
template <class Callback>
void setCallback(lw::LWControl* control, lw::ControlAttribute attribute, Callback* callback) {
  setPointer(control, attribute, reinterpret_cast<void*>(callback));
}
void draw(lw::LWControl* control, lw::DrawMode mode);

// Places the rows below each other, by what the host says of its controls, and sets the panel's size. Fields stand below each
// other; what has no label begins at the left.
using ControlRow = std::vector<lw::LWControl*>;
void layOut(lw::LWPanelFuncs& panels, lw::PanelId panel, const std::vector<ControlRow>& rows);

}  // namespace probe
