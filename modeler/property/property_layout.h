// When and where the property panel's controls are seen. The table names sections, rows and columns; this turns them into
// pages and positions. No host here.
#pragma once

#include "modeler/property/property_controls.h"
#include "skelegon/setting_groups.h"

namespace mst {

inline constexpr int kPropertyWidth = 385;
inline constexpr int kPropertyHeight = 700;

inline constexpr int kPageCount = 4;
inline constexpr int kControllersPage = 3;  // the page that has groups
inline constexpr int kMotionGroupCount = static_cast<int>(skg::kMotionGroupCount);

// Whether a control is to be seen while a page and, on the last page, a group is chosen.
bool isShown(const PropertyRow& row, int page, int group);

// Where the upper left corner of a whole control goes.
forms::Position positionOf(const PropertyRow& row, const forms::Measured& measured);

}  // namespace mst
