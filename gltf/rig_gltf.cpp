#include "gltf/rig_gltf.h"

#include <algorithm>
#include <limits>
#include <map>
#include <set>
#include <unordered_map>

#include "gltf/axes.h"
#include "gltf/faces.h"
#include "gltf/numbers.h"
#include "gltf/weights.h"
#include "rigs/japanese_texts.h"
#include "rigs/rig.h"
#include "rigs/settings_json.h"
#include "rigs/text.h"
#include "standin/layout/skelegon_bones.h"

namespace standin::gltf {
namespace {

// glTF numbers the joints of a point in 16 bits; one joint may be the layer.
constexpr std::size_t kMostMovingBones = std::numeric_limits<std::uint16_t>::max();

FilePoint pointInGltf(const FilePoint& point) {
  const Vec3 v = inGltf(vectorOf(point));
  return {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])};
}

// The skelegons of a layer that become bones, in the order of these.
std::vector<const rigs::Skelegon*> skelegonsWithBones(const ObjectFile& object, const rigs::Rig& rig, std::size_t layer) {
  std::vector<const rigs::Skelegon*> found;
  for (const std::size_t i : rig.layers[layer].skelegons) {
    const rigs::Skelegon& skelegon = rig.skelegons[i];
    const PolygonGroup& group = object.layers[layer].groups[skelegon.group];
    if (group.polygons[skelegon.polygon].points.size() == 2) found.push_back(&skelegon);
  }
  return found;
}

bool storesSettings(const rigs::Skelegon& skelegon) {
  const auto isSetting = [](const PolygonTag& tag) { return rigs::settingOfTag(tag.type) != nullptr; };
  return std::any_of(skelegon.tags.begin(), skelegon.tags.end(), isSetting);
}

bool storesParent(const rigs::Skelegon& skelegon) {
  static const rigs::Setting& setting = *rigs::settingNamed("Parent Item");
  const std::string* const parent = skelegon.stored(setting);
  return parent != nullptr && !parent->empty();
}

class Translator {
 public:
  Translator(const ObjectFile& object, const std::string& path)
      : object_(object), rig_(rigs::rigOf(object, path)), scene_(LayoutOptions{}), items_(scene_.addObject(object, path)) {
    for (Item* item : items_) made_.bones += makeBonesOfSkelegons(scene_, *item).size();
    made_.model.nodes.emplace_back().name = shown(path.substr(path.find_last_of("/\\") + 1));
    for (std::size_t layer = 0; layer < items_.size(); ++layer) addLayer(layer);
    for (std::size_t layer = 0; layer < items_.size(); ++layer) addBones(layer);
    hangUp();
  }

  Outcome<Translated> translate() {
    for (std::size_t layer = 0; layer < items_.size(); ++layer) {
      if (auto failure = addMesh(layer)) return std::move(*failure);
    }
    for (std::size_t layer = 0; layer < items_.size(); ++layer) addSkinOfTheRest(layer);
    countTheRest(object_, made_.leftOut);
    if (!made_.model.meshes.empty()) made_.leftOut.idleBones = made_.bones - moving_.size();
    return std::move(made_);
  }

 private:
  std::string shown(const std::string& text) const { return rigs::printable(rig_.isInJapanese ? rigs::inUtf8(text) : text); }

  std::size_t addNode(Item& item) {
    Node node;
    node.name = shown(scene_.nameOf(item));
    node.place = inGltf(scene_.placement(item, 0));
    made_.model.nodes.push_back(std::move(node));
    return nodeOf_[&item] = made_.model.nodes.size() - 1;
  }

  void addLayer(std::size_t layer) {
    const ObjectLayer& from = object_.layers[layer];
    constexpr std::uint16_t kHidden = 1;
    made_.model.nodes[addNode(*items_[layer])].facts =
        LayerFacts{from.number, shown(from.name), inGltf(vectorOf(from.pivot)), (from.flags & kHidden) != 0};
  }

  void addBones(std::size_t layer) {
    const std::vector<const rigs::Skelegon*> skelegons = skelegonsWithBones(object_, rig_, layer);
    for (std::size_t i = 0; i < skelegons.size(); ++i) {
      Item& bone = *items_[layer]->bones[i];
      made_.model.nodes[addNode(bone)].facts =
          BoneFacts{bone.rest.length, shown(bone.bone.weightMap),
                    kColourNames[static_cast<std::size_t>(bone.settings.colour)], rigs::exportSkelegon(*skelegons[i])};
      layersByMap_[bone.bone.weightMap].insert(layer);
      if (storesSettings(*skelegons[i])) ++made_.leftOut.settingBones;
      if (storesParent(*skelegons[i])) ++made_.leftOut.storedParents;
    }
  }

  // Below the file where an item is below nothing.
  void hangUp() {
    for (const auto& [item, node] : nodeOf_) {
      made_.model.nodes[node].parent = item->parent == nullptr ? 0 : nodeOf_.at(item->parent);
    }
  }

  // The bones that may move a layer's mesh: its own, else those of the layers that have a bone with one of its maps. The host
  // goes by "Use Bones From Object" there; the maps say the same wherever both fit.
  std::vector<Item*> bonesFor(std::size_t layer, const std::set<std::string>& maps) const {
    if (!items_[layer]->bones.empty()) return items_[layer]->bones;
    std::set<std::size_t> layers;
    for (const std::string& map : maps) {
      if (const auto found = layersByMap_.find(map); found != layersByMap_.end()) layers.merge(std::set(found->second));
    }
    std::vector<Item*> bones;
    for (const std::size_t other : layers)
      bones.insert(bones.end(), items_[other]->bones.begin(), items_[other]->bones.end());
    return bones;
  }

  WeightedBone weightedBone(Item& bone, Item& layer) {
    const Placement toLayer = combined(inverseOf(scene_.placement(layer, 0)), scene_.placement(*bone.owner, 0));
    const Vec3 head = bone.rest.position;
    const Vec3 tail = head + bone.rest.direction * bone.rest.length;
    return {bone.bone.weightMap, toLayer.axes * head + toLayer.position, toLayer.axes * tail + toLayer.position};
  }

  std::optional<Failure> addMesh(std::size_t layer) {
    const ObjectLayer& from = object_.layers[layer];
    const auto triangles = trianglesOf(from, made_.leftOut);
    if (triangles.empty()) return {};
    std::set<std::string> maps;
    for (const VertexMap& map : from.maps) {
      if (isWeightMap(map) && !map.name.empty()) maps.insert(map.name);
    }
    // Those that move points stand first: only the numbers of these have to be small.
    std::vector<Item*> bones = bonesFor(layer, maps);
    const auto still = std::stable_partition(bones.begin(), bones.end(),
                                             [&](const Item* bone) { return maps.contains(bone->bone.weightMap); });
    const std::vector<Item*> moving(bones.begin(), still);
    if (moving.size() > kMostMovingBones) {
      return Failure{"more than " + std::to_string(kMostMovingBones) + " bones have weight maps of one layer"};
    }
    std::vector<WeightedBone> weighted;
    weighted.reserve(moving.size());
    for (Item* bone : moving) weighted.push_back(weightedBone(*bone, *items_[layer]));
    const auto shares = sharesOf(from, weighted, made_.leftOut);
    if (!shares) return Failure{shares.why()};
    moving_.insert(moving.begin(), moving.end());
    countUnusedMaps(maps, moving);
    place(layer, makeMesh(from, triangles, *shares), bones);
    return {};
  }

  void countUnusedMaps(std::set<std::string> maps, const std::vector<Item*>& moving) {
    for (const Item* bone : moving) maps.erase(bone->bone.weightMap);
    made_.leftOut.unusedMaps += maps.size();
  }

  struct MadeMesh {
    Mesh mesh;
    bool movesSome = false;
    bool leavesSome = false;
  };

  // Of the points that faces use.
  MadeMesh makeMesh(const ObjectLayer& from, const std::vector<std::array<std::uint32_t, 3>>& triangles,
                    const std::vector<Shares>& shares) {
    constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();
    MadeMesh made;
    std::vector<std::uint32_t> numbers(from.points.size(), kNone);
    for (const auto& triangle : triangles) {
      for (const std::uint32_t point : triangle) numbers[point] = 0;
    }
    std::vector<std::uint32_t> used;
    for (std::uint32_t point = 0; point < from.points.size(); ++point) {
      if (numbers[point] == kNone) continue;
      numbers[point] = static_cast<std::uint32_t>(used.size());
      used.push_back(point);
      made.mesh.points.push_back(pointInGltf(from.points[point]));
      (shares[point].empty() ? made.leavesSome : made.movesSome) = true;
    }
    for (const auto& [a, b, c] : triangles) made.mesh.triangles.push_back({numbers[a], numbers[c], numbers[b]});
    if (!made.movesSome) return made;
    for (const std::uint32_t point : used) {
      made.mesh.joints.push_back(jointsOf(shares[point], made.leavesSome));
      if (shares[point].empty()) ++made_.leftOut.unweightedPoints;
    }
    return made;
  }

  void place(std::size_t layer, MadeMesh made, const std::vector<Item*>& bones) {
    const std::size_t layerNode = nodeOf_.at(items_[layer]);
    Model& model = made_.model;
    model.meshes.push_back(std::move(made.mesh));
    model.meshes.back().name = model.nodes[layerNode].name;
    if (!made.movesSome) {
      model.nodes[layerNode].mesh = model.meshes.size() - 1;
      return;
    }
    // What no bone moves goes with the layer, as it does in the host.
    addSkin(layerNode, made.leavesSome, bones);
    Node node;
    node.name = model.nodes[layerNode].name + " (mesh)";
    node.mesh = model.meshes.size() - 1;
    node.skin = model.skins.size() - 1;
    model.nodes.push_back(std::move(node));
  }

  void addSkin(std::size_t layerNode, bool withLayer, const std::vector<Item*>& bones) {
    const std::vector<Node>& nodes = made_.model.nodes;
    const Placement& mesh = nodes[layerNode].place;
    Skin skin;
    skin.name = nodes[layerNode].name;
    if (withLayer) skin.joints.push_back({layerNode, {}});
    for (const Item* bone : bones) {
      const std::size_t node = nodeOf_.at(bone);
      skin.joints.push_back({node, combined(inverseOf(nodes[node].place), mesh)});
    }
    made_.model.skins.push_back(std::move(skin));
    inSkins_.insert(bones.begin(), bones.end());
  }

  // A node is a joint by being in a skin, so that every bone has to be in one.
  void addSkinOfTheRest(std::size_t layer) {
    const std::vector<Item*>& bones = items_[layer]->bones;
    const auto isLeft = [&](const Item* bone) { return !inSkins_.contains(bone); };
    if (std::any_of(bones.begin(), bones.end(), isLeft)) addSkin(nodeOf_.at(items_[layer]), false, bones);
  }

  const ObjectFile& object_;
  const rigs::Rig rig_;
  Scene scene_;
  const std::vector<Item*> items_;  // by layer
  Translated made_;
  std::unordered_map<const Item*, std::size_t> nodeOf_;
  std::map<std::string, std::set<std::size_t>> layersByMap_;  // that have a bone with the map
  std::set<const Item*> moving_;
  std::set<const Item*> inSkins_;
};

}  // namespace

Outcome<Translated> translated(const ObjectFile& object, const std::string& path) {
  if (auto refused = refusedNumbers(object)) return std::move(*refused);
  return Translator(object, path).translate();
}

}  // namespace standin::gltf
