// The windows of parts that need more than their system's class gives them: fields, lists, tabs, sliders, drawing areas.
#pragma once

#include "standin/windows/panel_window.h"

namespace standin {

// Registers the class of drawing areas, once.
void registerDrawingClass();

// Gives a new part's window its further behaviour. The part outlives the window.
void equip(PanelPart& part);

// Puts the tabs' items anew.
void fillTabs(const PanelPart& part);

}  // namespace standin
