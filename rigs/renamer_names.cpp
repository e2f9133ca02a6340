#include "rigs/renamer_names.h"

#include <string>
#include <unordered_map>

#include "modeler/renamer/rename_rules.h"
#include "modeler/renamer/rename_targets.h"
#include "skelegon/skelegon_tree.h"

namespace standin::rigs {
namespace {

// With the parents that the rig knows already.
void addLayer(skg::SkelegonList& list, const Rig& rig, const Layer& layer) {
  std::unordered_map<std::size_t, skg::SkelegonNode*> nodes;
  for (const std::size_t i : layer.skelegons) nodes[i] = &list.add({});
  for (const std::size_t i : layer.skelegons) {
    if (rig.skelegons[i].parent) nodes[i]->parent = nodes.at(*rig.skelegons[i].parent);
  }
}

}  // namespace

std::optional<SharedNames> sharedByCounters(const Rig& rig, const Layer& layer) {
  skg::SkelegonList list;
  addLayer(list, rig, layer);
  const mst::RenameTargets chosen = mst::chooseTargets(mst::RenameTarget::All, list, {}, {});
  mst::setCounters(chosen.targets, chosen.heads);

  mst::RenamerSettings counters;
  counters.baseNameOn = counters.columnOn = counters.rowOn = true;
  mst::CNameRule rule(counters);
  std::unordered_map<std::string, std::size_t> bearers;
  SharedNames shared;
  for (std::size_t k = 0; k < layer.skelegons.size(); ++k) {
    const auto [bearer, isNew] = bearers.try_emplace(rule.newText({}, list[k].column, list[k].row), layer.skelegons[k]);
    if (!isNew && shared.skelegons++ == 0) {
      shared.first = bearer->second;
      shared.second = layer.skelegons[k];
    }
  }
  return shared.skelegons == 0 ? std::nullopt : std::optional(shared);
}

}  // namespace standin::rigs
