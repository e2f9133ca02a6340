// The property panel as a person finds it: its pages, its groups, and a control by its place in the panel.
#pragma once

#include "standin/panels/panel.h"
#include "standin/validate/panel_places.h"

namespace standin {

inline constexpr int kPropertyPages = 4;
inline constexpr int kMotionGroups = 3;

// Turns to a page, and on the last page to a group. Throws Trouble.
void showPage(Panel& panel, int page);
void showGroup(Panel& panel, int group);

// The popup for the falloff type, on its page. Null when there is none.
Control* falloffControl(Panel& panel);

}  // namespace standin
