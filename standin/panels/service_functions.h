// The functions of the panel services' table that stand in files of their own, and what all of them share.
#pragma once

#include <string>

#include "interface/lightwave.h"
#include "standin/core/witness.h"
#include "standin/panels/panel.h"

namespace standin {

inline constexpr int kWidestControl = 8192;  // beyond it a width is taken for garbage

// The panel behind a handle; null after a fault when it is dead or unknown.
Panel* resolved(const HostCall& call, lw::PanelId id);
// "panel "Title""
std::string named(const Panel& panel);

inline bool isDrawMode(int mode) { return mode == lw::kDrawErase || mode == lw::kDrawRender || mode == lw::kDrawRefresh; }

void getPanelAttribute(lw::PanelId id, int attribute, void* out);
void setPanelAttribute(lw::PanelId id, int attribute, void* value);

lw::LWControl* addControl(lw::PanelId id, const char* kind, lw::LWPanControlDesc* desc, const char* label);

}  // namespace standin
