// One fast scan over the polygons of an open edit. Inner part of the mesh layer.
#pragma once

#include <exception>

#include "host/lwtool2_mesh.h"

namespace lw {

struct PolygonScan {
  PolygonIds found;            // of any type, in the host's order
  int error = kEditNoError;    // the host's code, or that of no memory
  std::exception_ptr failure;  // what the callback would have thrown into the host

  PolygonScan(const MeshEditOp& edit, int layers);
};

// How the flags of a polygon must be to count.
struct FlagRule {
  int mask;
  int wanted;
  bool fits(int flags) const { return (flags & mask) == wanted; }
};
inline constexpr FlagRule kNotDeleted = {kElementDeleted, 0};
inline constexpr FlagRule kSelectedNotDeleted = {kElementSelected | kElementDeleted, kElementSelected};

}  // namespace lw
