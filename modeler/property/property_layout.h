// Where the property panel's controls go. The table names rows and columns; this turns them into positions. No host here.
#pragma once

#include "modeler/property/property_controls.h"

namespace mst {

inline constexpr int kPropertyWidth = 385;
inline constexpr int kPropertyHeight = 700;
inline constexpr int kFootHeight = 35;  // of the frame around the bottom row

// What the host says of a control, in pixels.
struct Measured {
  int width = 0;       // of the whole, label included
  int labelWidth = 0;  // 0 for a control that draws its label inside
};

// The upper left corner of a whole control.
struct Position {
  int x = 0;
  int y = 0;
};
Position positionOf(const ControlRow& row, const Measured& measured);

// The height of a control, where the host has to be told one; 0 where it has its own.
int heightOf(const ControlRow& row);

}  // namespace mst
