#include "host/polygon_scan.h"

#include "host/lwtool2_errors.h"

namespace lw {

int PolygonScan::appendBeyondRoom(PolygonId polygon) noexcept {
  const auto append = [&] {
    found.push_back(polygon);
    return static_cast<int>(kEditNoError);
  };
  return guarded(append, static_cast<int>(kEditNoMemory), failure);
}

}  // namespace lw
