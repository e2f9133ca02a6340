#include "standin/layout/skelegon_bones.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace standin {
namespace {

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

// For each skelegon the first one that ends where it begins. Of a ring of skelegons the first in the file begins anew.
std::vector<std::size_t> parentsByPoint(const std::vector<ObjectPolygon>& skelegons) {
  std::unordered_map<std::uint32_t, std::size_t> endingAt;
  for (std::size_t i = 0; i < skelegons.size(); ++i) endingAt.try_emplace(skelegons[i].points[1], i);
  std::vector<std::size_t> parents(skelegons.size(), kNone);
  for (std::size_t i = 0; i < skelegons.size(); ++i) {
    const auto found = endingAt.find(skelegons[i].points[0]);
    if (found != endingAt.end() && found->second != i) parents[i] = found->second;
  }
  std::vector<std::size_t> walkOf(skelegons.size(), kNone);
  for (std::size_t i = 0; i < skelegons.size(); ++i) {
    std::size_t at = i;
    while (at != kNone && walkOf[at] == kNone) {
      walkOf[at] = i;
      at = parents[at];
    }
    if (at == kNone || walkOf[at] != i) continue;
    std::size_t first = at;
    for (std::size_t ring = parents[at]; ring != at; ring = parents[ring]) first = std::min(first, ring);
    parents[first] = kNone;
  }
  return parents;
}

// Sets the motion that puts the bone at its rest position.
void place(Item& bone, const Item* parentBone) {
  Matrix3 axes = restAxes(bone.rest.direction);
  Vec3 position = bone.rest.position;
  if (parentBone != nullptr) {
    const Matrix3 back = transposed(restAxes(parentBone->rest.direction));
    axes = back * axes;
    position = back * (position - parentBone->rest.position);
  }
  const Vec3 angles = anglesOf(axes, bone.settings.order);
  for (std::size_t i = 0; i < 3; ++i) {
    bone.motion[kAxisX + i].assign(0, position[i]);
    bone.motion[kAxisH + i].assign(0, angles[i]);
  }
}

// The host's own tags of a skelegon: its weight map and its colour. A colour of another name leaves the bone's as it is.
void takeTags(Item& bone, const ObjectPolygon& skelegon, bool withColour) {
  if (const std::string* map = skelegon.tag(lw::kTagBoneWeight)) bone.bone.weightMap = *map;
  const std::string* colour = withColour ? skelegon.tag(lw::kTagColour) : nullptr;
  if (colour != nullptr) {
    const auto found = std::find(kColourNames.begin(), kColourNames.end(), *colour);
    if (found != kColourNames.end()) bone.settings.colour = static_cast<int>(found - kColourNames.begin());
  }
}

std::string boneName(const ObjectPolygon& skelegon) {
  const std::string* tag = skelegon.tag(lw::kTagBone);
  return tag == nullptr || tag->empty() ? "Bone" : *tag;
}

// The places of the skelegons in the order in which their bones are made.
std::vector<std::size_t> orderOf(BoneOrder order, const std::vector<std::size_t>& parents) {
  std::vector<std::size_t> places(parents.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  if (order == BoneOrder::Reversed) std::reverse(places.begin(), places.end());
  if (order != BoneOrder::AsInTree) return places;
  std::vector<std::vector<std::size_t>> below(parents.size());
  std::vector<std::size_t> waiting;
  for (std::size_t i = parents.size(); i-- > 0;) (parents[i] == kNone ? waiting : below[parents[i]]).push_back(i);
  places.clear();
  while (!waiting.empty()) {
    const std::size_t next = waiting.back();
    waiting.pop_back();
    places.push_back(next);
    waiting.insert(waiting.end(), below[next].begin(), below[next].end());
  }
  return places;
}

std::vector<Item*> makeBonesOf(Scene& scene, Item& from, Item& object) {
  const SkelegonSource source = from.skelegons;
  if (!scene.options().skelegonsStay) from.skelegons = {};
  std::vector<ObjectPolygon> skelegons;
  for (const ObjectPolygon& polygon : source.polygons) {
    const auto known = [&](std::uint32_t point) { return point < source.points.size(); };
    if (polygon.points.size() == 2 && std::all_of(polygon.points.begin(), polygon.points.end(), known))
      skelegons.push_back(polygon);
  }
  const std::vector<std::size_t> parents = parentsByPoint(skelegons);
  std::vector<Item*> bones(skelegons.size());
  for (const std::size_t i : orderOf(scene.options().boneOrder, parents)) {
    const ObjectPolygon& skelegon = skelegons[i];
    Item& bone = scene.addBone(object, boneName(skelegon));
    bone.rest = restOf(vectorOf(source.points[skelegon.points[0]]), vectorOf(source.points[skelegon.points[1]]));
    takeTags(bone, skelegon, scene.options().bonesTakeColour);
    bones[i] = &bone;
  }
  for (std::size_t i = 0; i < bones.size(); ++i) {
    Item* parent = parents[i] == kNone ? nullptr : bones[parents[i]];
    if (parent != nullptr) scene.setParent(*bones[i], parent);
    place(*bones[i], parent);
  }
  return bones;
}

}  // namespace

BoneRest restOf(const Vec3& head, const Vec3& tail) {
  BoneRest rest;
  rest.position = head;
  rest.length = length(tail - head);
  if (rest.length > 0) rest.direction = (tail - head) * (1 / rest.length);
  return rest;
}

Matrix3 restAxes(const Vec3& direction) {
  const double heading = std::atan2(direction[0], direction[2]);
  const double pitch = std::asin(std::clamp(-direction[1], -1.0, 1.0));
  return rotation({heading, pitch, 0}, RotationOrder::HPB);
}

std::vector<Item*> skelegonSources(Scene& scene, const Item& object) {
  std::vector<Item*> sources;
  for (Item* item : scene.objects()) {
    const bool isOfTheFile = item->source && object.source && item->source->path == object.source->path;
    const bool counts = item == &object || (scene.options().bonesOfWholeFile && isOfTheFile);
    if (counts && !item->skelegons.polygons.empty()) sources.push_back(item);
  }
  return sources;
}

std::vector<Item*> makeBonesOfSkelegons(Scene& scene, Item& object) {
  std::vector<Item*> bones;
  for (Item* source : skelegonSources(scene, object)) {
    const std::vector<Item*> more = makeBonesOf(scene, *source, object);
    bones.insert(bones.end(), more.begin(), more.end());
  }
  return bones;
}

}  // namespace standin
