// Builds the skelegon tree from the mesh.
#pragma once

#include "host/lwtool2_mesh.h"
#include "skelegon/skelegon_tree.h"

namespace mst {

// [edit open] One linked record per polygon, in the given order. The polygons must be skelegons of the edited object.
skg::SkelegonList BuildSkelegonList(const lw::MeshEditOp& edit, const lw::PolygonIds& polygons);

}  // namespace mst
