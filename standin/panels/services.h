// "LWPanelServices 3": the tables of functions through which the module makes and uses panels.
#pragma once

#include "interface/lightwave.h"
#include "standin/panels/panel.h"

namespace standin {

// Begins a session with fresh panel services and offers them under their name in globals(). Call it after globals().reset().
void offerPanelServices();

// The table itself, as the lookup gives it.
lw::LWPanelFuncs* panelServices();

// The three functions of a control's record, for the registry.
lw::LWControl newControlFace();

// What `open` and `close` do, for a person and for the module alike.
int openPanel(Panel& panel, int flags);
void closePanel(Panel& panel, bool callHook = true);
// Gives the panel a size and calls the resize hook when it changed.
void resizePanel(Panel& panel, int width, int height, bool callHook);

}  // namespace standin
