// Colours and font of the stand-in's windows: a dark scheme, as 3D programs have it.
#pragma once

#include "standin/windows/system.h"

namespace standin {

enum class Tone { Panel, Field, Raised, Pressed, Chosen, Edge, Highlight, Text, Mark };

COLORREF colour(Tone tone);
HBRUSH brush(Tone tone);

// Of fixed pitch and with Japanese characters; its cells are those of standin/panels/metrics.h. Lives as long as the
// program.
HFONT panelFont();
// Of a line of its text, in pixels.
int fontHeight();

void fill(HDC dc, const RECT& area, Tone tone);
// A line of one pixel around the inside of the area.
void frame(HDC dc, const RECT& area, Tone tone);

}  // namespace standin
