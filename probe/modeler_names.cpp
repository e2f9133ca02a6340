// What layers and vertex maps without a name are called, and what a change of layers leaves selected.
#include <algorithm>
#include <array>

#include "probe/host_text.h"
#include "probe/map_names.h"
#include "probe/mesh_access.h"
#include "probe/modeler_site.h"

namespace probe {
namespace {

constexpr int kUnnamedLayerIndex = 1;

Answer unnamedLayer(ModelerSite& site) {
  const auto& objects = site.host.service<lw::LWObjectFuncs>("Scene Objects 9");
  const int rig = site.rig.index();
  if (objects.layerExists(rig, kUnnamedLayerIndex) == 0) return notTold("the rig was loaded without its second layer");
  const std::optional<std::string> name = copied(objects.layerName(rig, kUnnamedLayerIndex));
  const std::string seen = "a layer without a name is called " + shown(name);
  if (!name) return told("null", seen);
  return name->empty() ? told("empty", seen) : other(seen);
}

Answer layerSwitch(ModelerSite& site) {
  site.host.mustDo("setlayer 1");
  select(site.host, kRigLeft, true);
  if (!isSelected(site.host, kRigLeft)) return notTold("the host did not select a polygon");
  site.host.mustDo("setlayer 2");
  site.host.mustDo("setlayer 1");
  const bool stays = isSelected(site.host, kRigLeft);
  if (stays) select(site.host, kRigLeft, false);
  return stays ? told("keeps", "a selected polygon was still selected when its layer came back to the foreground")
               : told("deselects", "a selected polygon was deselected when its layer came back to the foreground");
}

Answer unnamedMap(ModelerSite& site) {
  const MapNames names = weightMapNames(site.host);
  const auto holds = [&](const std::optional<std::string>& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  const bool asNull = holds(std::nullopt);
  const bool asEmpty = holds("");
  if (asNull != asEmpty) {
    return told(asNull ? "null" : "empty",
                std::string("a weight map without a name is called ") + (asNull ? "null" : "\"\""));
  }
  std::string seen = "the weight maps are called";
  for (const std::optional<std::string>& name : names) seen += ' ' + shown(name);
  return other(names.empty() ? "no weight maps are listed" : seen);
}

constexpr std::array kNameQuestions{
    Question<ModelerSite>{"unnamed-layer", unnamedLayer},
    Question<ModelerSite>{"layer-switch", layerSwitch},
    Question<ModelerSite>{"unnamed-map", unnamedMap},
};

}  // namespace

ModelerQuestions nameQuestions() { return kNameQuestions; }

}  // namespace probe
