#include "modeler/selector/skelegon_parents.h"

#include <algorithm>
#include <unordered_map>

namespace mst {
namespace {

using Parents = std::vector<std::size_t>;

Parents linked(std::span<const ScannedSkelegon> skelegons) {
  std::unordered_map<skg::PointId, std::size_t> lastEndingAt;
  for (std::size_t i = 0; i < skelegons.size(); ++i) {
    if (skelegons[i].tail != nullptr) lastEndingAt[skelegons[i].tail] = i;
  }
  Parents parents(skelegons.size(), kNoParent);
  for (std::size_t i = 0; i < skelegons.size(); ++i) {
    const auto found = lastEndingAt.find(skelegons[i].head);
    if (found == lastEndingAt.end()) continue;
    if (skelegons[found->second].layer == skelegons[i].layer) parents[i] = found->second;
  }
  return parents;
}

// Cuts the circle that `member` belongs to, before its first member.
void cutCircle(Parents& parents, std::size_t member) {
  std::size_t first = member;
  for (std::size_t i = parents[member]; i != member; i = parents[i]) first = std::min(first, i);
  parents[first] = kNoParent;
}

void cutCircles(Parents& parents) {
  constexpr std::size_t kNeverWalked = 0;
  std::vector<std::size_t> walkedBy(parents.size(), kNeverWalked);
  for (std::size_t i = 0; i < parents.size(); ++i) {
    const std::size_t walk = i + 1;
    std::size_t at = i;
    while (at != kNoParent && walkedBy[at] == kNeverWalked) {
      walkedBy[at] = walk;
      at = parents[at];
    }
    // Back at a place of the same walk.
    if (at != kNoParent && walkedBy[at] == walk) cutCircle(parents, at);
  }
}

}  // namespace

std::vector<std::size_t> skelegonParents(std::span<const ScannedSkelegon> skelegons) {
  Parents parents = linked(skelegons);
  cutCircles(parents);
  return parents;
}

}  // namespace mst
