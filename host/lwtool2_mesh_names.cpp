// Names of layers and weight maps.
#include <optional>

#include "host/lwtool2_globals.h"
#include "host/lwtool2_mesh.h"

namespace lw {
namespace {

// The host's text, or a name made of the index where there is none.
std::string nameOr(const char* name, const char* stem, int index) {
  if (name != nullptr && *name != '\0') return name;
  std::string made = stem;
  return made += std::to_string(index + 1);
}

// The scene knows the current object under a number, which may change whenever objects come or go.
std::optional<int> currentObject() {
  const char* const text = stateQuery().object();
  if (text == nullptr) return std::nullopt;
  const std::string current = text;
  const int count = sceneObjects().numObjects();
  for (int object = 0; object < count; ++object) {
    const char* const fileName = sceneObjects().filename(object);
    if (fileName != nullptr && current == fileName) return object;
  }
  return std::nullopt;
}

std::string layerNameIn(std::optional<int> object, int layer) {
  const bool exists = object && sceneObjects().layerExists(*object, layer) != 0;
  return nameOr(exists ? sceneObjects().layerName(*object, layer) : nullptr, "Layer", layer);
}

}  // namespace

std::string LayerName(int index) { return layerNameIn(currentObject(), index); }

TagTexts LayerNames() {
  const std::optional<int> object = currentObject();
  const int count = object ? sceneObjects().maxLayers(*object) : 0;
  TagTexts names;
  for (int layer = 0; layer < count; ++layer) names.push_back(layerNameIn(object, layer));
  return names;
}

TagTexts WeightMapNames() {
  const int count = sceneObjects().numVMaps(kMapWeight);
  TagTexts names;
  for (int map = 0; map < count; ++map) names.push_back(nameOr(sceneObjects().vmapName(kMapWeight, map), "WMap", map));
  return names;
}

}  // namespace lw
