// How what a person does with the mouse over a panel reaches the module: by which calls, with which numbers. For person.h.
#pragma once

#include "standin/panels/panel.h"
#include "standin/panels/person.h"

namespace standin {

enum class MouseDeed { Press, Move, Release };

int buttonBits(MouseButton button);

// The control that hears of a press there; null when none does.
Control* areaAt(const Panel& panel, int x, int y);

// The pointer goes there.
void moveMouse(Panel& panel, int x, int y);

// What the host counts as clicks; `quick` is how many presses the person has made in quick succession, wherever.
int countedClicks(Panel& panel, int x, int y, int quick);

// Tells the module, in the ways that the options choose.
void deliver(Panel& panel, MouseDeed deed);
void deliverWheel(Panel& panel, int notches);

}  // namespace standin
