// What lies below a point of the tree's view, and what the host's mouse bits ask for. Without OpenGL and without the host.
#pragma once

#include <cstddef>
#include <span>

#include "modeler/selector/tree_rows.h"

namespace mst {

// What a press hits.
enum class TreePart {
  Outside,        // of the view
  HorizontalBar,  // at the bottom
  VerticalBar,    // at the right
  Expander,
  Label,
  Neither,  // left of the expander's place, or below the last row
};

struct TreeHit {
  TreePart part = TreePart::Outside;
  std::size_t row = kNoRow;  // of an expander, a label, and of the gap left of an expander
};

// The view: size in pixels, scroll offsets in eighths of a pixel.
struct TreeWindow {
  int width = 0;
  int height = 0;
  int scrollX = 0;
  int scrollY = 0;
};

// The position is in pixels from the view's upper left corner.
TreeHit hitAt(int x, int y, const TreeWindow& window, std::span<const TreeRow> rows);

// What a press asks for.
struct TreeAction {
  bool toggle = false;
  bool extend = false;
  bool subtree = false;
  bool click = false;
  bool doubleClick = false;

  bool isQualified() const { return toggle || extend || subtree; }
};

// From the bits of the host's mouse event: none while no button is down.
TreeAction actionOf(int bits);

}  // namespace mst
