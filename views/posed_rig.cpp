#include "views/posed_rig.h"

#include <algorithm>
#include <array>
#include <set>
#include <unordered_map>
#include <utility>

#include "interface/lightwave.h"
#include "rigs/names_in_layout.h"
#include "rigs/settings.h"
#include "standin/layout/skelegon_bones.h"

namespace standin::views {
namespace {

constexpr std::uint8_t kColourSlot = 129;
constexpr std::uint8_t kInitialPositionSlot = 142;

PosedMesh meshOf(const ObjectLayer& layer, const Placement& placement) {
  PosedMesh mesh;
  mesh.points.reserve(layer.points.size());
  for (const FilePoint& point : layer.points) mesh.points.push_back(placement.position + placement.axes * vectorOf(point));
  for (const PolygonGroup& group : layer.groups) {
    const bool isMesh = group.type == lw::kTypeFace || group.type == lw::fourCharacters('P', 'T', 'C', 'H') ||
                        group.type == lw::fourCharacters('S', 'U', 'B', 'D');
    if (!isMesh) continue;
    for (const ObjectPolygon& polygon : group.polygons) {
      if (polygon.points.size() > 2) mesh.faces.push_back(polygon.points);
    }
  }
  return mesh;
}

// ---------------------------------------------------------------------------------------------------------------------
// Before

// As the conversion looks it up: the host's own colour, else the one that the panel stored beside it. What names no colour
// leaves a bone its fresh one.
int colourOf(const rigs::Skelegon& skelegon) {
  for (const std::uint32_t type : {lw::kTagColour, settingTag(kColourSlot)}) {
    const auto tag = std::find_if(skelegon.tags.begin(), skelegon.tags.end(), [&](const auto& t) { return t.type == type; });
    if (tag == skelegon.tags.end()) continue;
    const auto name = std::find(kColourNames.begin(), kColourNames.end(), tag->text);
    if (name != kColourNames.end()) return static_cast<int>(name - kColourNames.begin());
  }
  return Scene::freshColour(ItemKind::Bone);
}

// ---------------------------------------------------------------------------------------------------------------------
// After

class SceneReader {
 public:
  SceneReader(Scene& scene, const ObjectFile& object) : scene_(scene), object_(object) {}

  PosedRig read() {
    rig_.isAfter = true;
    readLayers();
    for (Item* item : scene_.objects()) {
      if (item->isNull()) addNull(*item);
      for (Item* bone : item->bones) addBone(*bone);
    }
    for (const auto& [item, bone] : bones_) {
      const auto parent = bones_.find(item->parent);
      if (parent != bones_.end()) rig_.bones[bone].parent = parent->second;
    }
    // By the order of the scene, not of addresses.
    for (Item* item : scene_.objects()) {
      for (const Item* bone : item->bones) addLines(*bone);
    }
    addInitialPositions();
    return std::move(rig_);
  }

 private:
  // The items that show layers stand in the order of the file.
  void readLayers() {
    std::size_t place = 0;
    for (const ObjectLayer& layer : object_.layers) rig_.layers.push_back({layer.number, layer.name, {}});
    for (Item* item : scene_.objects()) {
      if (!item->source || place == object_.layers.size()) continue;
      fileName_ = item->source->path.substr(item->source->path.find_last_of("/\\") + 1);
      rig_.layers[place].mesh = meshOf(object_.layers[place], scene_.placement(*item, 0));
      layers_[item] = place++;
    }
    for (; place < object_.layers.size(); ++place) rig_.layers[place].mesh = meshOf(object_.layers[place], {});
  }

  void addBone(Item& item) {
    const Placement& placement = scene_.placement(item, 0);
    PosedBone bone{scene_.nameOf(item), 0, {}, placement.position, {}, placement.axes, item.settings.colour};
    if (const auto layer = layers_.find(item.owner); layer != layers_.end()) bone.layer = layer->second;
    bone.tail = bone.head + bone.axes.columns[2] * item.rest.length;
    bone.givenName = item.givenName;
    bones_[&item] = rig_.bones.size();
    byName_.emplace(item.givenName, rig_.bones.size());
    rig_.bones.push_back(std::move(bone));
  }

  void addNull(Item& item) {
    nulls_[&item] = rig_.nulls.size();
    nullsByName_.emplace(scene_.nameOf(item), rig_.nulls.size());
    rig_.nulls.push_back({scene_.nameOf(item), scene_.placement(item, 0).position, item.settings.colour, {}});
  }

  void addLines(const Item& item) {
    const ItemSettings& settings = item.settings;
    const std::array<const Item*, 6> linked = {settings.target,       settings.pole,         settings.ik.goal,
                                               settings.same[0].item, settings.same[1].item, settings.same[2].item};
    const std::size_t bone = bones_.at(&item);
    for (std::size_t kind = 0; kind < linked.size(); ++kind) {
      const auto as = static_cast<HelperKind>(kind);
      if (const auto null = nulls_.find(linked[kind]); null != nulls_.end()) {
        rig_.nulls[null->second].lines.push_back({bone, as});
      } else if (const auto other = bones_.find(linked[kind]); other != bones_.end() && other->second != bone) {
        rig_.boneLines.push_back({bone, other->second, as});
      }
    }
  }

  // Nothing in a scene points to these: only the stored name tells. As in the conversion, names mean the first that bears them.
  void addInitialPositions() {
    const rigs::Rig rig = rigs::rigOf(object_, fileName_);
    const rigs::Setting* const setting = rigs::settingOfTag(settingTag(kInitialPositionSlot));
    for (const rigs::Skelegon& skelegon : rig.skelegons) {
      const std::string* const stored = skelegon.stored(*setting);
      if (stored == nullptr || stored->empty()) continue;
      const auto bone = byName_.find(skelegon.name);
      const auto null = nullsByName_.find(rigs::itemMeant(rig.layers[skelegon.layer], *stored));
      if (bone == byName_.end() || null == nullsByName_.end()) continue;
      if (!isInitialPosition_.emplace(bone->second, null->second).second) continue;
      rig_.nulls[null->second].lines.push_back({bone->second, HelperKind::InitialPosition});
    }
  }

  Scene& scene_;
  const ObjectFile& object_;
  std::string fileName_;
  std::unordered_map<const Item*, std::size_t> layers_;
  std::unordered_map<const Item*, std::size_t> bones_;
  std::unordered_map<const Item*, std::size_t> nulls_;
  std::unordered_map<std::string, std::size_t> byName_;
  std::unordered_map<std::string, std::size_t> nullsByName_;
  std::set<std::pair<std::size_t, std::size_t>> isInitialPosition_;  // bone, null
  PosedRig rig_;
};

}  // namespace

PosedRig posedBefore(const ObjectFile& object, const rigs::Rig& rig) {
  PosedRig posed;
  for (const ObjectLayer& layer : object.layers) posed.layers.push_back({layer.number, layer.name, meshOf(layer, {})});
  for (std::size_t i = 0; i < rig.skelegons.size(); ++i) {
    const rigs::Skelegon& skelegon = rig.skelegons[i];
    const BoneRest rest = restOf(vectorOf(skelegon.head), vectorOf(skelegon.tail));
    PosedBone bone{skelegon.name,           skelegon.layer,           skelegon.parent,   vectorOf(skelegon.head),
                   vectorOf(skelegon.tail), restAxes(rest.direction), colourOf(skelegon)};
    bone.givenName = skelegon.name;
    posed.bones.push_back(std::move(bone));
  }
  return posed;
}

PosedRig posedAfter(Scene& scene, const ObjectFile& object) { return SceneReader(scene, object).read(); }

}  // namespace standin::views
