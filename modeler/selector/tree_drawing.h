// Draws the selector's tree with OpenGL into the device context that is current. Reads what is to be seen from a
// TreePicture; where a press hits is computed elsewhere from the same numbers.
#pragma once

#include "host/platform.h"
#include "modeler/selector/tree_font.h"
#include "modeler/selector/tree_rows.h"

namespace mst {

class CTreeDrawing {
 public:
  // 'gl' outlives the drawing; null: nothing is ever drawn.
  explicit CTreeDrawing(const GlCalls* gl = platform::glCalls()) : gl_(gl) {}

  // Does nothing without a current device context. Costs what the rows in view cost, however many there are. OpenGL is left
  // as it was found, also when the owner of the rows throws.
  void draw(const TreePicture& picture);

  // Gives OpenGL back the lists that it numbered, if the context that they were made in is current; draw makes them again.
  // To be called while the host still runs: the destructor asks OpenGL for nothing, since at a program's end it may be gone
  // already.
  void giveFontBack();

 private:
  const GlCalls* gl_;
  CTreeFont font_;
};

}  // namespace mst
