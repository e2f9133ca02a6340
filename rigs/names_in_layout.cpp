#include "rigs/names_in_layout.h"

#include "reader/stored_properties.h"
#include "rigs/rig.h"
#include "skelegon/item_names.h"

namespace standin::rigs {
namespace {

std::string layerNameOf(std::uint16_t number, const std::string& name) {
  return name.empty() ? "Layer" + std::to_string(number + 1) : name;
}

bool isNamedByFile(const Rig& rig) { return rig.layers.size() == 1 && rig.layers.front().number == 0; }

// The names that the conversion takes from the item's: those around the colon, or, where the item shows the first layer, the
// whole.
std::string partOf(const Layer& layer, int group) {
  std::string part = skg::splitItemName(layer.itemName, group);
  return part.empty() && layer.number == 0 ? layer.itemName : part;
}

}  // namespace

std::string itemNameOf(const ObjectLayer& layer, std::size_t layers, const std::string& fileName) {
  std::string name = skg::fileBaseName(fileName);
  if (layers == 1 && layer.number == 0) return name;
  return name.append(":").append(layerNameOf(layer.number, layer.name));
}

bool matchesItsItem(const Rig& rig, const Layer& layer) {
  const std::string own = isNamedByFile(rig) ? skg::fileBaseName(rig.fileName) : layerNameOf(layer.number, layer.name);
  return partOf(layer, 2) == own;
}

std::string objectNameOf(const Layer& layer) { return partOf(layer, 1); }

std::string itemMeant(const Layer& layer, std::string_view text) { return lwp::withObjectName(text, objectNameOf(layer)); }

std::set<std::string> namesFound(const Rig& rig) {
  std::set<std::string> names;
  for (const Layer& layer : rig.layers) names.insert(layer.itemName);
  for (const Skelegon& skelegon : rig.skelegons) {
    if (skelegon.namesakes == 1 && !skelegon.name.empty()) names.insert(skelegon.name);
  }
  return names;
}

}  // namespace standin::rigs
