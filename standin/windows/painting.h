// How the parts of controls look. Everything is drawn from the control's record, so that a part never shows an old state.
#pragma once

#include <string_view>

#include "standin/panels/panel.h"
#include "standin/windows/system.h"

namespace standin {

enum class Align { Left, Centre };

// One line with its icons, cut at the area's edges. `area` is where the text may stand; it is centred from top to
// bottom.
void drawText(HDC dc, const RECT& area, std::string_view text, COLORREF ink, Align align = Align::Left);
// Width of the text as drawText draws it.
int drawnWidth(HDC dc, std::string_view text);

// How a part stands at this moment.
struct PartState {
  bool isPressed = false;
  bool hasFocus = false;
  bool isOn = false;
};

// Each fills the whole area of its window.
void drawLabel(HDC dc, const RECT& area, const Control& control);
void drawLines(HDC dc, const RECT& area, const Control& control);
void drawButton(HDC dc, const RECT& area, std::string_view label, PartState state);
void drawCheck(HDC dc, const RECT& area, const Control& control, PartState state);
// The box of a check mark alone, from `left` on and in the middle of the area's height.
void drawTick(HDC dc, int left, const RECT& area, bool isOn, PartState state);
void drawInfo(HDC dc, const RECT& area, const Control& control);
void drawSlider(HDC dc, const RECT& area, PartState state);
// The closed list: what is chosen, and the arrow.
void drawClosedList(HDC dc, const RECT& area, const Control& control, PartState state);
void drawItem(HDC dc, const RECT& area, std::string_view text, bool isUnderPointer);
void drawTab(HDC dc, const RECT& area, std::string_view text, PartState state);
// A frame or a dividing line, on the panel itself.
void drawBorder(HDC dc, const RECT& area, const Control& control);

}  // namespace standin
