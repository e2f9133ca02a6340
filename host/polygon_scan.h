// Scans over the polygons of an open edit. Inner part of the mesh layer.
#pragma once

#include <exception>
#include <utility>

#include "host/found_skelegons.h"
#include "host/lwtool2_mesh.h"

namespace lw {

inline constexpr std::uint32_t kTypeUnknown = 0;  // the host did not tell

// One fast scan.
struct PolygonScan {
  PolygonIds found;            // of any type, in the host's order
  int error = kEditNoError;    // the host's code, or that of no memory
  std::exception_ptr failure;  // what the callback would have thrown into the host

  PolygonScan(const MeshEditOp& edit, int layers);

 private:
  // For a polygon that the list has no room for: gives the callback's answer. It stands in a file of its own: within the
  // callback it would have registers saved for it at each face, 24 instructions in place of 9.
  int appendBeyondRoom(PolygonId polygon) noexcept;
};

// A walk through the skelegons of a layer choice. The first within a call of the host's scans and asks each polygon for its
// type; the later ones go through what that has found.
class CSkelegonWalk {
 public:
  CSkelegonWalk(const MeshEditOp& edit, int layers) : edit_(edit), layers_(layers), known_(foundSkelegons().in(layers)) {
    if (known_ == nullptr) scan_.emplace(edit, layers);
  }

  // Those of the scan.
  int error() const { return scan_ ? scan_->error : static_cast<int>(kEditNoError); }
  std::exception_ptr failure() const { return scan_ ? scan_->failure : nullptr; }

  // [no error] Calls `action` for each skelegon in the host's order, until it answers false.
  template <class Action>
  void forEach(Action&& action) const {
    if (known_ == nullptr) return askEach(action);
    for (const PolygonId polygon : *known_) {
      if (!action(polygon)) return;
    }
  }

 private:
  template <class Action>
  void askEach(Action&& action) const {
    PolygonIds skelegons;
    bool isSure = true;
    for (const PolygonId polygon : scan_->found) {
      const std::uint32_t type = edit_.polyType(edit_.state, polygon);
      isSure = isSure && type != kTypeUnknown;
      if (type != kTypeBone) continue;
      skelegons.push_back(polygon);
      if (!action(polygon)) return;
    }
    // Not kept when the host did not tell a type: the next scan asks again.
    if (isSure) foundSkelegons().keep(layers_, std::move(skelegons));
  }

  const MeshEditOp& edit_;
  int layers_;
  const PolygonIds* known_;
  std::optional<PolygonScan> scan_;
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
