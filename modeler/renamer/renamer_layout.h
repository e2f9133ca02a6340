// Where the renamer panel's controls go, in its two layouts. No host here.
#pragma once

#include <array>

#include "modeler/renamer/rename_rules.h"
#include "modeler/renamer/renamer_controls.h"

namespace mst {

inline constexpr int kRenamerWidth = 320;
inline constexpr int kRenamerSimpleHeight = 130;
inline constexpr int kRenamerAdvancedHeight = 630;

constexpr bool isSimple(RenameMode mode) { return mode != RenameMode::Advanced; }
constexpr int renamerHeight(RenameMode mode) { return isSimple(mode) ? kRenamerSimpleHeight : kRenamerAdvancedHeight; }

using RenamerPositions = std::array<forms::Position, kRenamerItemCount>;

// Far from the panel, which is never made this large.
inline constexpr forms::Position kOutOfSight = {800, 800};

// Where the controls are made to stand: the places of the advanced layout and of both simple fields.
RenamerPositions renamerHomes(const std::array<forms::Measured, kRenamerItemCount>& measures);

// Where a control stands in a mode, given its home.
forms::Position renamerPosition(RenamerItem item, RenameMode mode, forms::Position home);

}  // namespace mst
