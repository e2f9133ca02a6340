// Where the renamer panel's controls go, in its two layouts. No host here.
#pragma once

#include <array>

#include "modeler/renamer/rename_rules.h"
#include "modeler/renamer/renamer_controls.h"

namespace mst {

inline constexpr int kRenamerWidth = 320;
inline constexpr int kRenamerSimpleHeight = 130;
inline constexpr int kRenamerAdvancedHeight = 630;
inline constexpr int kRenamerBorderHeight = 30;

constexpr bool isSimple(RenameMode mode) { return mode != RenameMode::Advanced; }
constexpr int renamerHeight(RenameMode mode) { return isSimple(mode) ? kRenamerSimpleHeight : kRenamerAdvancedHeight; }

// The upper left corner of a whole control.
struct RenamerPosition {
  int x = 0;
  int y = 0;
  friend bool operator==(RenamerPosition a, RenamerPosition b) { return a.x == b.x && a.y == b.y; }
};
using RenamerPositions = std::array<RenamerPosition, kRenamerItemCount>;

// Far from the panel, which is never made this large.
inline constexpr RenamerPosition kOutOfSight = {800, 800};

// What the host says of a control, in pixels.
struct RenamerMeasure {
  int width = 0;       // of the whole, label included
  int labelWidth = 0;  // 0 for a control that draws its label inside
};

// Where the controls are made to stand: the places of the advanced layout and of both simple fields.
RenamerPositions renamerHomes(const std::array<RenamerMeasure, kRenamerItemCount>& measures);

// Where a control stands in a mode, given its home.
RenamerPosition renamerPosition(RenamerItem item, RenameMode mode, RenamerPosition home);

}  // namespace mst
