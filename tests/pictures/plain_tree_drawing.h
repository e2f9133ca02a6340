// The tree drawn in the plainest way: every row, every line from its beginning, every character, step by step as the picture
// was laid down, and nothing left out. What the module draws has to look the same.
#pragma once

#include "modeler/selector/tree_rows.h"

namespace pictures {

// [context current, with the font's lists] Draws stripes, lines, markers and plain texts, without scroll bars, moved by a
// margin to the right and down, so that nothing begins outside the view.
void drawPlainTree(const mst::TreePicture& picture, double margin);

}  // namespace pictures
