// Which polygons are skelegons, as scans within the present call of the host have found it. Inner part of the mesh layer.
//
// One scan of a layer choice serves all who ask for it within that call. Nothing else is remembered: flags, names and tags
// are read anew each time. Outside a call of the host nothing is kept.
#pragma once

#include <map>

#include "host/lwtool2_mesh.h"

namespace lw {

class CFoundSkelegons {
 public:
  // The skelegons of a layer choice in the host's order, deleted ones too; null when they were not looked for yet. Good
  // until the next keep() or forget().
  const PolygonIds* in(int layers) const;

  void keep(int layers, PolygonIds skelegons);
  void forget() noexcept { found_.clear(); }
  // [no edit open] Lets what was found in all layers serve for the foreground too, where that is the same.
  void shareWithForeground();

 private:
  std::map<int, PolygonIds> found_;  // by layer choice
};

CFoundSkelegons& foundSkelegons();

}  // namespace lw
