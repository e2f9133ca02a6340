// The colours of the selector's rows: as in the colour list of the property panel.
#pragma once

#include <optional>

#include "modeler/selector/tree_rows.h"

namespace mst {

// By colour index. None for the index "as Modeler has it", which has no colour of its own, and beyond the list.
std::optional<Rgba> rowColour(int colourIndex);

}  // namespace mst
