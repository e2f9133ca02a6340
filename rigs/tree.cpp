#include "rigs/tree.h"

#include <unordered_set>

namespace standin::rigs {
namespace {

// Walks without recursion: a chain can be as long as the file.
class Walk {
 public:
  Walk(const Rig& rig, const Layer& layer) : rig_(rig) {
    for (const std::size_t i : layer.skelegons) {
      if (!rig.skelegons[i].parent) from(i);
    }
    for (const std::size_t i : layer.skelegons) from(i);
  }

  std::vector<TreePlace> places;

 private:
  void from(std::size_t top) {
    std::vector<TreePlace> open = {{top, 0, true}};
    while (!open.empty()) {
      const TreePlace place = open.back();
      open.pop_back();
      if (!done_.insert(place.skelegon).second) continue;
      places.push_back(place);
      const auto& children = rig_.skelegons[place.skelegon].children;
      for (std::size_t c = children.size(); c-- > 0;) {
        open.push_back({children[c], place.depth + 1, c + 1 == children.size()});
      }
    }
  }

  const Rig& rig_;
  std::unordered_set<std::size_t> done_;
};

}  // namespace

std::vector<TreePlace> treePlaces(const Rig& rig, const Layer& layer) { return Walk(rig, layer).places; }

}  // namespace standin::rigs
