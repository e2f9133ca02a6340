#include "host/found_skelegons.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "host/host_call.h"
#include "host/lwtool2_globals.h"

namespace lw {
namespace {

// Numbers of the layers of a choice in the current object. The host gives them as a text.
std::set<int> layersOf(int choice) {
  const char* const list = stateQuery().layerList(choice, nullptr);
  const std::string_view text = list == nullptr ? std::string_view() : list;
  std::set<int> layers;
  for (const char* at = text.data(); at != text.data() + text.size();) {
    int number = 0;
    const auto [end, error] = std::from_chars(at, text.data() + text.size(), number);
    if (error == std::errc()) layers.insert(number);
    at = end == at ? at + 1 : end;
  }
  return layers;
}

// Whether the scene's object of that number is the one that is edited. One that was never saved may not be listed there.
bool isCurrent(int object) {
  const char* const current = stateQuery().object();
  const std::string name = current == nullptr ? "" : current;
  const char* const listed = sceneObjects().filename(object);
  return !name.empty() && listed != nullptr && name == listed;
}

// Whether a scan of the foreground delivers what a scan of all layers does. With further objects loaded nobody knows whose
// layers "all" means.
bool foregroundIsEverything() {
  if (sceneObjects().numObjects() != 1 || !isCurrent(0)) return false;
  const std::set<int> filled = layersOf(kLayersNonEmpty);
  const std::set<int> foreground = layersOf(kLayersForeground);
  return !filled.empty() && std::includes(foreground.begin(), foreground.end(), filled.begin(), filled.end());
}

}  // namespace

const PolygonIds* CFoundSkelegons::in(int layers) const {
  const auto found = found_.find(layers);
  return found == found_.end() ? nullptr : &found->second;
}

void CFoundSkelegons::keep(int layers, PolygonIds skelegons) {
  if (CHostCall::isRunning()) found_.insert_or_assign(layers, std::move(skelegons));
}

void CFoundSkelegons::shareWithForeground() {
  const PolygonIds* const everywhere = in(kLayersAll);
  if (everywhere != nullptr && in(kLayersForeground) == nullptr && foregroundIsEverything()) {
    keep(kLayersForeground, *everywhere);
  }
}

CFoundSkelegons& foundSkelegons() {
  static CFoundSkelegons found;
  return found;
}

}  // namespace lw
